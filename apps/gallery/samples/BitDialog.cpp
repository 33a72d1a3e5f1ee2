// SPDX-License-Identifier: MIT
#include "host/Host.h"
#include "samples/DialogSamples.h"

#include <Tessera/views/CBitDialog.h>

#include <QCoreApplication>

namespace gallery {

QDialog* makeBitDialog(QWidget* parent)
{
    //! [bit]
    const QByteArray bytes = QByteArray::fromHex("4A81");
    const QMap<int, QString> descriptions{
        {0, Words::tr("Enable")},
        {1, Words::tr("Interrupt on error")},
        {7, Words::tr("Ready")},
    };
    auto* dialog = new nsUI::CBitDialog(bytes, descriptions, parent);
    //! [bit]
    dialog->resize(720, 340);
    return dialog;
}

QString bitOutcome(QDialog* dialog)
{
    //! [bit]
    // ... and when it was accepted:
    const QByteArray edited =
        static_cast<nsUI::CBitDialog*>(dialog)->byteArray();
    //! [bit]
    return QStringLiteral("0x") +
           QString::fromLatin1(edited.toHex().toUpper());
}

} // namespace gallery
