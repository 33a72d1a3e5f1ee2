// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace registers {

class OpenDevice;

/// What the window's title says; "[*]" stands for the mark of edited values.
QString titleText(const OpenDevice& device);

/// How many registers differ from their reset values.
QString changedText(int count);

/// How many remarks there are on a description.
QString remarksText(qint64 count);

/// There is nothing at @p address.
QString noRegisterText(quint64 address);

} // namespace registers
