// SPDX-License-Identifier: MIT
#pragma once

#include "device/DeviceState.h"

#include <QByteArray>
#include <QString>
#include <QVector>

namespace registers {

/// A register of a file that has no place in the device, and why.
struct Unplaced
{
    QString path; ///< or its position in the file, such as "register 3 of the file", when it has no path
    QString reason;
};

/// What a file holds for a device. Nothing is changed by reading it: DeviceState::setValues() takes the values.
struct ImportResult
{
    QString error;                 ///< why nothing could be read, and where; empty when the file makes sense
    QString deviceName;            ///< of the device that the file was made for; empty when the file does not say
    QVector<RegisterValue> values; ///< one for each register that could be placed, in the file's order
    QVector<Unplaced> unplaced;    ///< in the file's order

    bool isOk() const { return error.isEmpty(); }
};

/// Reads what exportJson() writes back into values for the device of @p state. Only the path and the value of each
/// register count; a value is text as parsePlainNumber() takes it, or a whole JSON number below kExactNumberLimit.
/// Where several registers of the device have one path, the file's first goes to the device's first, and so on.
///
/// A register of the file is left out when its path leads to none of the device, when its value is missing, no
/// number or too large, or when it would change bits that are read-only: their present values are those of
/// @p state.
///
/// An error reads "line:column: message", or "message" where there is no line.
ImportResult readExport(const QByteArray& json, const DeviceState& state);

/// As above, of a file. An error begins with the file's name.
ImportResult readExportFile(const QString& fileName, const DeviceState& state);

/// One line for each register that could not be placed, such as
/// "OLD.CTRL: the device "MCU" has no peripheral "OLD"".
QString unplacedText(const QVector<Unplaced>& unplaced);

} // namespace registers
