// SPDX-License-Identifier: MIT
#include "text/Numbers.h"

#include <QLatin1String>

#include <limits>

namespace registers {

namespace {

constexpr int kAddressDigits = 8;
constexpr quint64 kLargest = std::numeric_limits<quint64>::max();

} // namespace

QString hexNumber(quint64 value, int digits)
{
    return QLatin1String("0x") + QString::number(value, 16).toUpper().rightJustified(digits, QLatin1Char('0'));
}

QString addressText(quint64 address)
{
    return hexNumber(address, kAddressDigits);
}

std::optional<quint64> parsePlainNumber(QStringView text)
{
    const int base = takeBase(text);
    return parseDigits(text, base);
}

int takeBase(QStringView& text)
{
    if (text.size() >= 2 && text.first() == QLatin1Char('0')) {
        const char16_t letter = lowerCase(text.at(1));
        if (letter == u'x' || letter == u'b') {
            text = text.mid(2);
            return letter == u'x' ? 16 : 2;
        }
    }
    return 10;
}

std::optional<quint64> parseDigits(QStringView digits, int base)
{
    if (digits.isEmpty()) {
        return std::nullopt;
    }
    quint64 value = 0;
    for (const QChar c : digits) {
        const int digit = digitOf(c);
        if (digit < 0 || digit >= base || value > (kLargest - quint64(digit)) / quint64(base)) {
            return std::nullopt;
        }
        value = value * quint64(base) + quint64(digit);
    }
    return value;
}

char16_t lowerCase(QChar c)
{
    const char16_t code = c.unicode();
    return code >= u'A' && code <= u'Z' ? char16_t(code + (u'a' - u'A')) : code;
}

int digitOf(QChar c)
{
    const char16_t code = lowerCase(c);
    if (code >= u'0' && code <= u'9') {
        return code - u'0';
    }
    return code >= u'a' && code <= u'f' ? code - u'a' + 10 : -1;
}

} // namespace registers
