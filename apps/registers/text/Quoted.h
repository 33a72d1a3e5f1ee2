// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace registers {

/// @p text as one line that a terminal only shows: what would steer it, end the line or turn the direction of
/// reading (C0, C1, bidirectional controls and separators) becomes \u and its code.
QString plainLine(QStringView text);

/// The same of a text of several lines, which stay.
QString plainLines(QStringView text);

/// @p text in double quotes for a message: plain, and cut when it is long.
QString quoted(QStringView text);

} // namespace registers
