// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QChar>
#include <QSettings>
#include <QSharedPointer>
#include <QString>

//! The common library of another host: it writes hexadecimal digits in lower case and keeps its settings in one file.
class CCommon
{
public:
    static CCommon& instance();
    QSharedPointer<QSettings> getSettings(const QString& sName);
    static QString byteAttryToHex(const QByteArray& tBytes, const QChar& cSeparator);
    static QString byteAttryToBin(const QByteArray& tBytes, const QChar& cSeparator);
    static QByteArray byteAttryFromBin(const QString& sText);

    //! For the test: how often the settings were asked for, and with which name the last time.
    int m_nAsked = 0;
    QString m_sLastName;
};
