// SPDX-License-Identifier: MIT
#pragma once

#include "HostExport.h"

#include <QByteArray>
#include <QChar>
#include <QSettings>
#include <QSharedPointer>
#include <QString>

/*!
    The services that Tessera expects of the application it is part of: a settings store, and byte arrays as text.

    This is the default implementation. A host with a common library of its own replaces the whole library; the
    five operations below are all that Tessera calls.
*/
class TESSERA_HOST_EXPORT CCommon
{
public:
    //! The one object of the process. Creation is thread-safe.
    static CCommon& instance();

    /*!
        A settings store, never null.

        With an empty \a sName it is the application's default store: organization name, application name and
        QSettings::defaultFormat() as they are at the time of the call, so a host may set them late. Where no
        organization is set, the application's name stands in for it: QSettings on its own would then store
        nothing. Any other \a sName gives the store of that name beside it.

        Every call opens the store anew and the caller shares its ownership. What was written is on disk as soon as
        the last owner lets go of it, and at the latest with the next pass of the event loop.
    */
    QSharedPointer<QSettings> getSettings(const QString& sName) const;

    /*!
        The bytes of \a tBytes in order, each as two upper-case hexadecimal digits, with \a cSeparator between bytes
        unless it is the null character. An empty array gives an empty text.
    */
    static QString byteAttryToHex(const QByteArray& tBytes, const QChar& cSeparator);

    //! As byteAttryToHex(), each byte as eight binary digits, the most significant first.
    static QString byteAttryToBin(const QByteArray& tBytes, const QChar& cSeparator);

    /*!
        The bytes that \a sText spells in binary digits: the reverse of byteAttryToBin() with any separator.

        Everything that is neither a letter nor a digit counts as a separator and is passed over, wherever it
        stands. Digits that are not whole bytes are read as one number, that is, as if zeros stood before the first
        digit: "1 00000001" gives the bytes 01 01. A letter, or a digit other than 0 and 1, makes the whole text
        unreadable: the answer is a null array. A text without digits gives an empty array that is not null.
    */
    static QByteArray byteAttryFromBin(const QString& sText);

private:
    CCommon() = default;
    Q_DISABLE_COPY(CCommon)
};
