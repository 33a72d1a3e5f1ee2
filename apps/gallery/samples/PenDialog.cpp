// SPDX-License-Identifier: MIT
#include "samples/DialogSamples.h"

#include <Tessera/widgets/CPenDialog.h>

namespace gallery {

QDialog* makePenDialog(QWidget* parent)
{
    //! [pen]
    const QPen pen(QColor(0xDD, 0x73, 0x08), 2.5, Qt::DashLine);
    auto* dialog = new nsUI::CPenDialog(pen, parent);
    //! [pen]
    return dialog;
}

QString penOutcome(QDialog* dialog)
{
    //! [pen]
    // ... and when it was accepted:
    const QPen chosen = static_cast<nsUI::CPenDialog*>(dialog)->selectedPen();
    //! [pen]
    return QStringLiteral("%1, %2, %3")
        .arg(chosen.color().name())
        .arg(chosen.widthF())
        .arg(nsUI::CPenDialog::getPenStyleDesc(chosen.style()));
}

} // namespace gallery
