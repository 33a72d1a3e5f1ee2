// SPDX-License-Identifier: MIT
#include "svd/SvdNumber.h"

#include "text/Numbers.h"

#include <QLatin1String>

#include <limits>

namespace registers {

namespace {

constexpr quint64 kLargest = std::numeric_limits<quint64>::max();

bool isSpace(QChar c)
{
    return c.unicode() <= 0x20 ? (c == QLatin1Char(' ') || (c.unicode() >= 0x09 && c.unicode() <= 0x0d)) : c.isSpace();
}

QStringView trimmed(QStringView text)
{
    while (!text.isEmpty() && isSpace(text.first())) {
        text = text.mid(1);
    }
    while (!text.isEmpty() && isSpace(text.last())) {
        text.chop(1);
    }
    return text;
}

int takeSvdBase(QStringView& text)
{
    if (!text.isEmpty() && text.first() == QLatin1Char('#')) {
        text = text.mid(1);
        return 2;
    }
    return takeBase(text);
}

/// Takes a scale suffix off @p text and says how many bits it shifts by.
int takeScale(QStringView& text)
{
    if (text.isEmpty()) {
        return 0;
    }
    int shift = 0;
    switch (lowerCase(text.last())) {
    case u'k':
        shift = 10;
        break;
    case u'm':
        shift = 20;
        break;
    case u'g':
        shift = 30;
        break;
    case u't':
        shift = 40;
        break;
    default:
        return 0;
    }
    text.chop(1);
    return shift;
}

std::optional<quint64> scaled(std::optional<quint64> value, int shift)
{
    if (!value || *value > (kLargest >> shift)) {
        return std::nullopt;
    }
    return *value << shift;
}

void takePlus(QStringView& text)
{
    if (!text.isEmpty() && text.first() == QLatin1Char('+')) {
        text = text.mid(1);
    }
}

/// Binary digits of which some are x.
std::optional<MaskedNumber> parseOpenDigits(QStringView digits)
{
    quint64 value = 0;
    quint64 open = 0;
    for (const QChar c : digits) {
        const bool isOpen = lowerCase(c) == u'x';
        const int digit = isOpen ? 0 : digitOf(c);
        if (digit < 0 || digit > 1 || ((value | open) >> 63) != 0) {
            return std::nullopt;
        }
        value = (value << 1) | quint64(digit);
        open = (open << 1) | (isOpen ? 1u : 0u);
    }
    return MaskedNumber{value, ~open};
}

bool hasOpenDigit(QStringView digits)
{
    for (const QChar c : digits) {
        if (lowerCase(c) == u'x') {
            return true;
        }
    }
    return false;
}

bool equalsIgnoringCase(QStringView text, QStringView lowerCaseWord)
{
    return text.compare(lowerCaseWord, Qt::CaseInsensitive) == 0;
}

} // namespace

std::optional<quint64> parseSvdNumber(QStringView text)
{
    text = trimmed(text);
    takePlus(text);
    const int base = takeSvdBase(text);
    const int shift = takeScale(text);
    return scaled(parseDigits(text, base), shift);
}

std::optional<MaskedNumber> parseSvdMaskedNumber(QStringView text)
{
    QStringView digits = trimmed(text);
    takePlus(digits);
    if (takeSvdBase(digits) == 2 && hasOpenDigit(digits)) {
        return parseOpenDigits(digits);
    }
    const std::optional<quint64> value = parseSvdNumber(text);
    return value ? std::optional<MaskedNumber>(MaskedNumber{*value, kLargest}) : std::nullopt;
}

std::optional<bool> parseSvdBool(QStringView text)
{
    text = trimmed(text);
    if (equalsIgnoringCase(text, u"true") || text == QLatin1String("1")) {
        return true;
    }
    if (equalsIgnoringCase(text, u"false") || text == QLatin1String("0")) {
        return false;
    }
    return std::nullopt;
}

} // namespace registers
