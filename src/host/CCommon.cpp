// SPDX-License-Identifier: MIT
#include "CCommon.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

constexpr int c_nHexDigits = 2;
constexpr int c_nBinDigits = 8;

void writeHex(uchar nByte, QChar* pOut)
{
    constexpr char digits[] = "0123456789ABCDEF";
    pOut[0] = QLatin1Char(digits[nByte >> 4]);
    pOut[1] = QLatin1Char(digits[nByte & 0x0F]);
}

void writeBin(uchar nByte, QChar* pOut)
{
    for (int i = 0; i < c_nBinDigits; ++i)
        pOut[i] = QLatin1Char((nByte & (0x80 >> i)) != 0 ? '1' : '0');
}

QString bytesToText(const QByteArray& tBytes, const QChar& cSeparator, int nDigits, void (*write)(uchar, QChar*))
{
    if (tBytes.isEmpty())
        return QString();
    const bool separated = !cSeparator.isNull();
    const auto nSize = tBytes.size() * nDigits + (separated ? tBytes.size() - 1 : 0);
    QString sText(nSize, Qt::Uninitialized);
    QChar* pOut = sText.data();
    for (int i = 0; i < tBytes.size(); ++i) {
        if (separated && i > 0)
            *pOut++ = cSeparator;
        write(static_cast<uchar>(tBytes.at(i)), pOut);
        pOut += nDigits;
    }
    return sText;
}

// A character of two code units counts as a letter, whatever it is.
bool isSeparator(QChar c)
{
    return !c.isLetterOrNumber() && !c.isSurrogate();
}

// The names that QSettings would use, with the application's standing in for a missing organization.
QString storeOwner()
{
    const QString sOrganization = QCoreApplication::organizationName();
    return sOrganization.isEmpty() ? QCoreApplication::applicationName() : sOrganization;
}

} // namespace

CCommon& CCommon::instance()
{
    static CCommon common;
    return common;
}

QSharedPointer<QSettings> CCommon::getSettings(const QString& sName) const
{
    const QString sApplication = sName.isEmpty() ? QCoreApplication::applicationName() : sName;
    return QSharedPointer<QSettings>::create(QSettings::defaultFormat(), QSettings::UserScope, storeOwner(),
                                             sApplication);
}

QString CCommon::byteAttryToHex(const QByteArray& tBytes, const QChar& cSeparator)
{
    return bytesToText(tBytes, cSeparator, c_nHexDigits, writeHex);
}

QString CCommon::byteAttryToBin(const QByteArray& tBytes, const QChar& cSeparator)
{
    return bytesToText(tBytes, cSeparator, c_nBinDigits, writeBin);
}

QByteArray CCommon::byteAttryFromBin(const QString& sText)
{
    const auto nDigits = std::count_if(sText.cbegin(), sText.cend(), [](QChar c) { return !isSeparator(c); });
    const int nSize = static_cast<int>((nDigits + c_nBinDigits - 1) / c_nBinDigits);
    QByteArray tBytes(nSize, '\0');
    auto nBit = static_cast<quint64>(nDigits);
    for (const QChar c : sText) {
        if (isSeparator(c))
            continue;
        if (c != QLatin1Char('0') && c != QLatin1Char('1'))
            return QByteArray();
        --nBit;
        if (c == QLatin1Char('1')) {
            char& byte = tBytes.data()[nSize - 1 - static_cast<int>(nBit / c_nBinDigits)];
            byte = static_cast<char>(byte | (1 << (nBit % c_nBinDigits)));
        }
    }
    return tBytes;
}
