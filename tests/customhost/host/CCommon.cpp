// SPDX-License-Identifier: MIT
#include "CCommon.h"

#include <QDir>

CCommon& CCommon::instance()
{
    static CCommon common;
    return common;
}

QSharedPointer<QSettings> CCommon::getSettings(const QString& sName)
{
    ++m_nAsked;
    m_sLastName = sName;
    return QSharedPointer<QSettings>::create(QDir::current().filePath(QStringLiteral("customhost.ini")),
                                             QSettings::IniFormat);
}

QString CCommon::byteAttryToHex(const QByteArray& tBytes, const QChar& cSeparator)
{
    QStringList texts;
    for (const char cByte : tBytes) {
        texts << QStringLiteral("%1").arg(uint(uchar(cByte)), 2, 16, QLatin1Char('0'));
    }
    return cSeparator.isNull() ? texts.join(QString()) : texts.join(cSeparator);
}

QString CCommon::byteAttryToBin(const QByteArray& tBytes, const QChar& cSeparator)
{
    QStringList texts;
    for (const char cByte : tBytes) {
        texts << QStringLiteral("%1").arg(uint(uchar(cByte)), 8, 2, QLatin1Char('0'));
    }
    return cSeparator.isNull() ? texts.join(QString()) : texts.join(cSeparator);
}

QByteArray CCommon::byteAttryFromBin(const QString& sText)
{
    QByteArray bytes;
    for (const QString& sByte : sText.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        bytes.append(char(sByte.toUInt(nullptr, 2)));
    }
    return bytes;
}
