// SPDX-License-Identifier: MIT
#include "cards/RoomKeeper.h"
#include "host/Host.h"
#include "samples/DialogSamples.h"

#include <Tessera/CISpinBox/CU32SpinBox.h>
#include <Tessera/widgets/CustomInputDlg.h>

#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QLineEdit>

namespace gallery {

QDialog* makeInputDialog(QWidget* parent)
{
    //! [input]
    auto* dialog = new nsUI::CustomInputDlg(parent, Qt::WindowFlags());
    dialog->setWindowTitle(Words::tr("New register"));

    auto* address = new nsUI::CU32SpinBox;
    address->setMaximum(0xFFFFFFFF);
    address->setPrefix(QStringLiteral("0x"));
    address->setDisplayIntegerBase(16);
    address->setValue(0x40021000);

    dialog->addRow(Words::tr("&Name:"),
                   new QLineEdit(QStringLiteral("CTRL")));
    dialog->addRow(Words::tr("&Address:"), address);
    dialog->buttonBox()->setStandardButtons(QDialogButtonBox::Ok |
                                            QDialogButtonBox::Cancel);
    QObject::connect(dialog->buttonBox(), &QDialogButtonBox::accepted, dialog,
                     &QDialog::accept);
    QObject::connect(dialog->buttonBox(), &QDialogButtonBox::rejected, dialog,
                     &QDialog::reject);
    //! [input]
    keepRoom(address, QStringLiteral("0xFFFFFFFF"));
    return dialog;
}

QString inputOutcome(QDialog* dialog)
{
    return QStringLiteral("%1 @ %2").arg(
        dialog->findChild<QLineEdit*>(QString(), Qt::FindDirectChildrenOnly)
            ->text(),
        dialog->findChild<nsUI::CU32SpinBox*>()->text());
}

} // namespace gallery
