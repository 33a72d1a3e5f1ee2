// SPDX-License-Identifier: MIT
#include "text/Quoted.h"

#include <algorithm>

namespace registers {

namespace {

constexpr int kLongestQuote = 60;
constexpr int kCodeDigits = 4;

/// True for what is not to be seen, and changes how the rest is seen.
bool isSteering(QChar c)
{
    const char16_t code = c.unicode();
    const bool isControl = code < 0x20 || (code >= 0x7f && code < 0xa0);
    const bool isDirection = code == 0x061c || code == 0x200e || code == 0x200f || (code >= 0x202a && code <= 0x202e) ||
                             (code >= 0x2066 && code <= 0x2069);
    const bool isSeparator = code == 0x2028 || code == 0x2029 || code == 0xfeff;
    return isControl || isDirection || isSeparator;
}

QString plain(QStringView text, bool keepsLines)
{
    const auto isShown = [keepsLines](QChar c) { return !isSteering(c) || (keepsLines && c == QLatin1Char('\n')); };
    if (std::all_of(text.begin(), text.end(), isShown)) {
        return text.toString();
    }
    QString result;
    for (const QChar c : text) {
        if (isShown(c)) {
            result += c;
        } else {
            const QString code = QString::number(c.unicode(), 16).toUpper();
            result += QLatin1String("\\u") + code.rightJustified(kCodeDigits, QLatin1Char('0'));
        }
    }
    return result;
}

/// @p text up to @p size, and not through the middle of a character.
QStringView beginning(QStringView text, int size)
{
    return text.left(text.at(size - 1).isHighSurrogate() ? size - 1 : size);
}

} // namespace

QString plainLine(QStringView text)
{
    return plain(text, false);
}

QString plainLines(QStringView text)
{
    return plain(text, true);
}

QString quoted(QStringView text)
{
    const QString shown = text.size() > kLongestQuote
                              ? plainLine(beginning(text, kLongestQuote)) + QStringLiteral("...")
                              : plainLine(text);
    return QLatin1Char('"') + shown + QLatin1Char('"');
}

} // namespace registers
