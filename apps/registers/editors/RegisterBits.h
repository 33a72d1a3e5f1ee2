// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QByteArray>
#include <QMap>
#include <QString>

namespace registers {

/// @p value as the fewest bytes that hold a register of its size, the most significant first.
QByteArray registerBytes(const Register& reg, quint64 value);

/// The value of at most eight bytes, the most significant first.
quint64 valueOfBytes(const QByteArray& bytes);

/// What each bit is: its field, with the bit's place in the field where that has several. Bits of no field are left
/// out; those of the highest byte that the register does not have are named as such.
QMap<int, QString> bitDescriptions(const Register& reg);

} // namespace registers
