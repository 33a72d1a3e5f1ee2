// SPDX-License-Identifier: MIT
#pragma once

#include <CCommon.h>

#include <QByteArray>
#include <QString>
#include <QStringRef>
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
    as long. False, which says nothing about the text, for signs, prefixes and numbers near the limit of 64 bits.
*/
inline bool plainDigits(const QStringRef& sText, int nBase, qulonglong* pVal)
{
    const qulonglong nLimit = std::numeric_limits<qlonglong>::max() / static_cast<qulonglong>(nBase) - 1;
    qulonglong nVal = 0;
    for (const QChar c : sText) {
        const int nDigit = digit(c);
        if (nDigit < 0 || nDigit >= nBase || nVal > nLimit)
            return false;
        nVal = nVal * static_cast<qulonglong>(nBase) + static_cast<qulonglong>(nDigit);
    }
    *pVal = nVal;
    return !sText.isEmpty();
}

//! Reads \a sText in \a nBase by the C locale's rules. False when it is no number or does not fit T.
template <class T>
bool toValue(const QStringRef& sText, int nBase, T* pVal)
{
    using Parsed = std::conditional_t<std::is_signed_v<T>, qlonglong, qulonglong>;
    bool ok = false;
    Parsed nParsed = 0;
    qulonglong nPlain = 0;
    if (plainDigits(sText, nBase, &nPlain)) {
        ok = true;
        nParsed = static_cast<Parsed>(nPlain);
    } else if constexpr (std::is_signed_v<T>) {
        nParsed = sText.toLongLong(&ok, nBase);
    } else {
        nParsed = sText.toULongLong(&ok, nBase);
    }
    *pVal = static_cast<T>(nParsed);
    return ok && *pVal == nParsed;
}

} // namespace IntegerText
} // namespace nsUI
