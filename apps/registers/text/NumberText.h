// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <optional>

namespace registers {

/// The base in which a number is shown; the prefix in the text tells which one it is.
enum class NumberBase { Binary = 2, Decimal = 10, Hexadecimal = 16 };

/// "0b", "" or "0x".
QString basePrefix(NumberBase base);

/// How many digits the largest number of @p width bits needs.
int digitCount(int width, NumberBase base);

/// @p value with its prefix and without leading zeros, such as "0x1F".
QString numberText(quint64 value, NumberBase base);

/// @p value with its prefix and all digits of @p width bits, such as "0x001F"; decimal numbers are not padded.
QString paddedNumber(quint64 value, int width, NumberBase base);

/// A number as people copy it from elsewhere: decimal, 0x or 0b in any case, with spaces or underscores between
/// the digits and perhaps a C suffix such as UL. Nothing when it is anything else, or needs more than 64 bits.
std::optional<quint64> parseCopiedNumber(const QString& text);

} // namespace registers
