// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringView>

#include <optional>

namespace registers {

/// The lowest @p width bits set; every width from 0 up is fine, 64 and more give all ones.
constexpr quint64 bitMask(int width)
{
    return width >= 64 ? ~quint64(0) : (width <= 0 ? quint64(0) : (quint64(1) << width) - 1);
}

/// How many hexadecimal digits a number of @p size bits needs.
constexpr int hexDigits(int size)
{
    return (size + 3) / 4;
}

/// "0x" and at least @p digits upper-case hexadecimal digits.
QString hexNumber(quint64 value, int digits);
/// An address, in eight digits or more.
QString addressText(quint64 address);

/// A number as it is typed: decimal, 0x or 0b, with nothing around it. Nothing when the text is anything else, or needs
/// more than 64 bits.
std::optional<quint64> parsePlainNumber(QStringView text);

/// The parts of parsePlainNumber(), for numbers with more around them.
/// Takes a prefix, 0x or 0b, off @p text and says which base it stands for.
int takeBase(QStringView& text);
/// A number in @p base, 2 to 16. Nothing when a character is no digit of it, or the number needs more than 64 bits.
std::optional<quint64> parseDigits(QStringView digits, int base);

/// A letter from A to Z in lower case; any other character as it is.
char16_t lowerCase(QChar c);
/// -1 when @p c is no digit in any base up to 16.
int digitOf(QChar c);

} // namespace registers
