// SPDX-License-Identifier: MIT
#pragma once

#include <CCommon.h>

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QtEndian>

#include <limits>
#include <type_traits>

namespace nsUI {

//! A value and its text in the display base, without prefix and suffix. Plain functions, no widgets.
namespace IntegerText {

template <class T>
QByteArray bigEndianBytes(T nVal)
{
    const auto nBytes = qToBigEndian(static_cast<std::make_unsigned_t<T>>(nVal));
    return QByteArray(reinterpret_cast<const char*>(&nBytes), sizeof nBytes);
}

//! \a sText without its leading zeros and separators, the last character excepted.
inline QString significantDigits(QString sText, QChar cSeparator)
{
    int nLeading = 0;
    while (nLeading < sText.size() - 1 &&
           (sText.at(nLeading) == QLatin1Char('0') || sText.at(nLeading) == cSeparator)) {
        ++nLeading;
    }
    return sText.remove(0, nLeading);
}

inline QString decimal(int nVal)
{
    return QString::number(nVal, 10);
}
inline QString decimal(uint nVal)
{
    return QString::number(nVal, 10);
}
inline QString decimal(qlonglong nVal)
{
    return QString::number(nVal, 10);
}
inline QString decimal(qulonglong nVal)
{
    return QString::number(nVal, 10);
}

//! Base 2 and 16 show the bit pattern of the type's width through the host library; every other base is
//! decimal.
template <class T>
QString fromValue(T nVal, int nBase)
{
    const QChar cSeparator;
    switch (nBase) {
    case 2:
        return significantDigits(CCommon::byteAttryToBin(bigEndianBytes(nVal), cSeparator), cSeparator);
    case 16:
        return significantDigits(CCommon::byteAttryToHex(bigEndianBytes(nVal), cSeparator), cSeparator);
    default:
        return decimal(+nVal);
    }
}

//! The digit that \a c is in bases up to 36; -1 for every other character.
inline int digit(QChar c)
{
    const ushort nCode = c.unicode();
    if (nCode >= '0' && nCode <= '9')
        return nCode - '0';
    const int nLower = nCode | 0x20;
    return nLower >= 'a' && nLower <= 'z' ? nLower - 'a' + 10 : -1;
}

/*!
    Reads a text of nothing but digits: what is typed nearly always is, and Qt's general parser takes several times
    as long. False, which says nothing about the text, for signs, prefixes and numbers of more than 64 bits.
*/
inline bool plainDigits(QStringView sText, int nBase, qulonglong* pVal)
{
    const auto nFactor = static_cast<qulonglong>(nBase);
    const qulonglong nLimit = std::numeric_limits<qulonglong>::max() / nFactor;
    qulonglong nVal = 0;
    for (const QChar c : sText) {
        const int nDigit = digit(c);
        if (nDigit < 0 || nDigit >= nBase || nVal > nLimit)
            return false;
        const qulonglong nShifted = nVal * nFactor;
        nVal = nShifted + static_cast<qulonglong>(nDigit);
        if (nVal < nShifted)
            return false;
    }
    *pVal = nVal;
    return !sText.isEmpty();
}

//! Reads \a sText in \a nBase by Qt's rules for the C locale. Qt 5 copies the text for this.
template <class T>
bool toValueByQt(QStringView sText, int nBase, T* pVal)
{
    bool ok = false;
    if constexpr (std::is_signed_v<T>) {
        const qlonglong nParsed = sText.toLongLong(&ok, nBase);
        *pVal = static_cast<T>(nParsed);
        return ok && *pVal == nParsed;
    } else {
        const qulonglong nParsed = sText.toULongLong(&ok, nBase);
        *pVal = static_cast<T>(nParsed);
        return ok && *pVal == nParsed;
    }
}

//! Reads \a sText in \a nBase by the C locale's rules. False when it is no number or does not fit T.
template <class T>
bool toValue(QStringView sText, int nBase, T* pVal)
{
    const bool negative = std::is_signed_v<T> && sText.startsWith(QLatin1Char('-'));
    qulonglong nMagnitude = 0;
    if (!plainDigits(sText.mid(negative ? 1 : 0), nBase, &nMagnitude))
        return toValueByQt(sText, nBase, pVal);
    *pVal = static_cast<T>(negative ? 0 - nMagnitude : nMagnitude);
    return nMagnitude <= static_cast<qulonglong>(std::numeric_limits<T>::max()) + (negative ? 1 : 0);
}

} // namespace IntegerText
} // namespace nsUI
