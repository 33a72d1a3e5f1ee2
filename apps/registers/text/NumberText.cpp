// SPDX-License-Identifier: MIT
#include "text/NumberText.h"

#include "text/Numbers.h"

#include <QRegularExpression>

namespace registers {

QString basePrefix(NumberBase base)
{
    switch (base) {
    case NumberBase::Binary:
        return QStringLiteral("0b");
    case NumberBase::Hexadecimal:
        return QStringLiteral("0x");
    case NumberBase::Decimal:
        break;
    }
    return QString();
}

int digitCount(int width, NumberBase base)
{
    return static_cast<int>(QString::number(bitMask(width), static_cast<int>(base)).size());
}

QString numberText(quint64 value, NumberBase base)
{
    return basePrefix(base) + QString::number(value, static_cast<int>(base)).toUpper();
}

QString paddedNumber(quint64 value, int width, NumberBase base)
{
    if (base == NumberBase::Decimal) {
        return numberText(value, base);
    }
    const int digits = base == NumberBase::Binary ? width : hexDigits(width);
    return basePrefix(base) +
           QString::number(value, static_cast<int>(base)).toUpper().rightJustified(digits, QLatin1Char('0'));
}

std::optional<quint64> parseCopiedNumber(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s_']+"));
    static const QRegularExpression suffix(QStringLiteral("(?<=[0-9A-F])(U|L|UL|LL|ULL)$"));
    QString digits = text.toUpper();
    digits.remove(separators);
    digits.remove(suffix);
    return parsePlainNumber(
        digits.replace(QLatin1String("0X"), QLatin1String("0x")).replace(QLatin1String("0B"), QLatin1String("0b")));
}

} // namespace registers
