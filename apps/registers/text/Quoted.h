// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

namespace registers {

/// @p text in double quotes for a message, cut when it is long.
QString quoted(QStringView text);

} // namespace registers
