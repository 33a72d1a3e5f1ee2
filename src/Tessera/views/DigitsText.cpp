// SPDX-License-Identifier: MIT
#include "DigitsText_p.h"

#include <Tessera/CISpinBox/IntegerText_p.h>

#include <algorithm>

namespace nsUI {
namespace DigitsText {
namespace {

constexpr int c_nHex = 16;

//! Room for what stands between the digits and around them. What is longer was not meant for the field.
int longestText(const Field& field)
{
    return 4 * field.nDigits + 4096;
}

bool isDigit(QChar c, int nBase)
{
    const int nDigit = IntegerText::digit(c);
    return nDigit >= 0 && nDigit < nBase;
}

bool isBetweenDigits(QChar c)
{
    return c.isSpace() || c == QLatin1Char('_');
}

bool isLetter(QChar c, char cLower)
{
    return (c.unicode() | 0x20) == cLower;
}

//! Part of a text: from nBegin up to nEnd, which is not in it.
struct Range
{
    int nBegin;
    int nEnd;

    int size() const { return nEnd - nBegin; }
};

//! \a sText without what surrounds it.
Range trimmed(const QString& sText)
{
    int nBegin = 0;
    int nEnd = static_cast<int>(sText.size());
    while (nBegin < nEnd && isBetweenDigits(sText.at(nBegin)))
        ++nBegin;
    while (nEnd > nBegin && isBetweenDigits(sText.at(nEnd - 1)))
        --nEnd;
    return {nBegin, nEnd};
}

//! The first character that neither is a digit nor may stand between digits; the end if there is none.
int findStranger(const QString& sText, const Range& range, int nBase)
{
    int nAt = range.nBegin;
    while (nAt < range.nEnd && (isDigit(sText.at(nAt), nBase) || isBetweenDigits(sText.at(nAt))))
        ++nAt;
    return nAt;
}

bool isDigitsOnly(const QString& sText, const Range& range, int nBase)
{
    return findStranger(sText, range, nBase) == range.nEnd;
}

bool startsWithMark(const QString& sText, const Range& range, char cMark)
{
    return range.size() >= 2 && sText.at(range.nBegin) == QLatin1Char('0') &&
           isLetter(sText.at(range.nBegin + 1), cMark);
}

//! 0b can begin a hexadecimal number too: it is a mark where a binary number, and nothing else, follows at once.
bool isMarkedBinary(const QString& sText, const Range& range)
{
    const Range number{range.nBegin + 2, range.nEnd};
    return startsWithMark(sText, range, 'b') && number.size() > 0 && isDigit(sText.at(number.nBegin), 2) &&
           isDigitsOnly(sText, number, 2);
}

//! A hexadecimal number with h behind it. \a range is trimmed.
bool endsWithMark(const QString& sText, const Range& range)
{
    return range.size() >= 2 && isLetter(sText.at(range.nEnd - 1), 'h') &&
           isDigitsOnly(sText, {range.nBegin, range.nEnd - 1}, c_nHex);
}

//! The mark of the other base in \a range; nothing if there is none.
Range findOtherMark(const QString& sText, const Range& range, int nBase)
{
    const bool isBefore = nBase == c_nHex ? isMarkedBinary(sText, range) : startsWithMark(sText, range, 'x');
    if (isBefore)
        return {range.nBegin, range.nBegin + 2};
    if (nBase != c_nHex && endsWithMark(sText, range))
        return {range.nEnd - 1, range.nEnd};
    return {range.nEnd, range.nEnd};
}

//! \a range without the field's own mark.
Range withoutMark(const QString& sText, const Range& range, int nBase)
{
    if (startsWithMark(sText, range, nBase == c_nHex ? 'x' : 'b'))
        return {range.nBegin + 2, range.nEnd};
    if (nBase == c_nHex && endsWithMark(sText, range))
        return {range.nBegin, range.nEnd - 1};
    return range;
}

QString digitsOf(const QString& sText, const Range& range)
{
    QString sDigits;
    sDigits.reserve(range.size());
    for (int i = range.nBegin; i < range.nEnd; ++i) {
        if (!isBetweenDigits(sText.at(i)))
            sDigits += sText.at(i).toUpper();
    }
    return sDigits;
}

//! Where the digit number \a nDigit stands, counted from 0.
int placeOfDigit(const QString& sText, const Range& range, int nDigit)
{
    int nAt = range.nBegin;
    while (isBetweenDigits(sText.at(nAt)) || nDigit-- > 0)
        ++nAt;
    return nAt;
}

Reading refused(Verdict verdict, const Range& part)
{
    Reading reading;
    reading.verdict = verdict;
    reading.nAt = part.nBegin;
    reading.nLength = part.size();
    return reading;
}

Reading tooLong(const Range& part, int nCount, int nRoom)
{
    Reading reading = refused(Verdict::TooLong, part);
    reading.nCount = nCount;
    reading.nRoom = nRoom;
    return reading;
}

//! The verdict on \a range, which holds digits and what may stand between them.
Reading fitted(const QString& sText, const Range& range, const Field& field)
{
    Reading reading;
    reading.sDigits = digitsOf(sText, range);
    reading.nCount = static_cast<int>(reading.sDigits.size());
    reading.nFrom = reading.nCount == field.nDigits ? 0 : field.nFrom;
    reading.nRoom = reading.nCount > field.nDigits ? field.nDigits : field.nDigits - reading.nFrom;
    if (reading.nCount == 0)
        return refused(Verdict::NoDigit, trimmed(sText));
    if (reading.nCount > reading.nRoom)
        return tooLong({placeOfDigit(sText, range, reading.nRoom), range.nEnd}, reading.nCount, reading.nRoom);
    return reading;
}

//! The letters of Unicode that look like digits, or like nothing at all, are told by their number.
QString named(const QString& sText, const Reading& reading)
{
    QString sPart = sText.mid(reading.nAt, reading.nLength);
    const uint nCode = sPart.size() == 2 ? QChar::surrogateToUcs4(sPart.at(0), sPart.at(1)) : sPart.at(0).unicode();
    if (nCode >= 0x20 && nCode < 0x7F)
        return sPart;
    const QString sNumber = QStringLiteral("U+%1").arg(QString::number(nCode, 16).toUpper(), 4, QLatin1Char('0'));
    return QChar::isPrint(nCode) ? sPart + QLatin1Char(' ') + sNumber : sNumber;
}

QString reason(const QString& sText, const Field& field, const Reading& reading)
{
    const QString sClass = field.nBase == c_nHex ? QStringLiteral("[0-9A-F]") : QStringLiteral("[01]");
    switch (reading.verdict) {
    case Verdict::NotADigit:
        return QStringLiteral("%1 ≠ %2").arg(named(sText, reading), sClass);
    case Verdict::NoDigit:
        return QStringLiteral("0 × %1").arg(sClass);
    case Verdict::OtherBase:
        return QStringLiteral("%1 ≠ %2").arg(sText.mid(reading.nAt, reading.nLength),
                                             field.nBase == c_nHex ? QStringLiteral("0x") : QStringLiteral("0b"));
    case Verdict::TooLong:
        return QStringLiteral("%1 × %2 > %3")
            .arg(QString::number(reading.nCount), sClass, QString::number(reading.nRoom));
    case Verdict::Fits:
        break;
    }
    return QString();
}

//! Part of a text in one line, with a sign for what cannot be seen or would rearrange the rest.
QString visible(const QString& sText, const Range& range)
{
    QString sPart = sText.mid(range.nBegin, range.size());
    for (QChar& c : sPart) {
        if (c.isSpace())
            c = QLatin1Char(' ');
        else if (!c.isPrint() && !c.isSurrogate())
            c = QChar(QChar::ReplacementCharacter);
    }
    return sPart.toHtmlEscaped();
}

} // namespace

bool isTyped(const QString& sText, int nBase)
{
    return std::all_of(sText.cbegin(), sText.cend(),
                       [nBase](QChar c) { return isDigit(c, nBase) || c == QLatin1Char(' '); });
}

Reading read(const QString& sText, const Field& field)
{
    const int nSize = static_cast<int>(sText.size());
    if (nSize > longestText(field))
        return tooLong({0, nSize}, nSize, field.nDigits);
    const Range whole = trimmed(sText);
    const Range otherMark = findOtherMark(sText, whole, field.nBase);
    if (otherMark.size() > 0)
        return refused(Verdict::OtherBase, otherMark);
    const Range number = withoutMark(sText, whole, field.nBase);
    const int nStranger = findStranger(sText, number, field.nBase);
    if (nStranger == number.nEnd)
        return fitted(sText, number, field);
    const bool isPair = sText.at(nStranger).isHighSurrogate() && nStranger + 1 < number.nEnd &&
                        sText.at(nStranger + 1).isLowSurrogate();
    return refused(Verdict::NotADigit, {nStranger, nStranger + (isPair ? 2 : 1)});
}

QString refusal(const QString& sText, const Field& field, const Reading& reading)
{
    constexpr int c_nShown = 16;
    const int nSize = static_cast<int>(sText.size());
    const int nEnd = reading.nAt + reading.nLength;
    const Range before{std::max(0, reading.nAt - c_nShown), reading.nAt};
    const Range blamed{reading.nAt, std::min(nEnd, reading.nAt + c_nShown)};
    const Range after{nEnd, std::min(nSize, nEnd + c_nShown)};
    const auto ellipsis = [](bool isCut) { return isCut ? QStringLiteral("…") : QString(); };
    return QStringLiteral("<p style='white-space:pre'>%1<br>%2%3<b><u>%4</u></b>%5%6%7</p>")
        .arg(reason(sText, field, reading).toHtmlEscaped(), ellipsis(before.nBegin > 0), visible(sText, before),
             visible(sText, blamed), ellipsis(blamed.nEnd < nEnd), visible(sText, after), ellipsis(after.nEnd < nSize));
}

} // namespace DigitsText
} // namespace nsUI
