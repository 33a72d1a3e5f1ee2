// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPushButton>

namespace nsUI {

//! What the dialogs that show a button box have in common.
namespace ButtonBox {

//! Nothing happens when there is no such button.
inline void setEnabled(const QDialogButtonBox* pBox, QDialogButtonBox::StandardButton which, bool bEnabled)
{
    if (QPushButton* const pButton = pBox->button(which))
        pButton->setEnabled(bEnabled);
}

//! OK and its like call \a accept, Cancel and its like reject.
template <class Dialog>
void connectTo(Dialog* pDialog, const QDialogButtonBox* pBox, void (Dialog::*accept)() = &Dialog::accept)
{
    QObject::connect(pBox, &QDialogButtonBox::accepted, pDialog, accept);
    QObject::connect(pBox, &QDialogButtonBox::rejected, pDialog, &QDialog::reject);
}

} // namespace ButtonBox
} // namespace nsUI
