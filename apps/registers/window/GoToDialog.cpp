// SPDX-License-Identifier: MIT
#include "window/GoToDialog.h"

#include "editors/NumberBox.h"

#include <Tessera/services/CWheelGuard.h>

#include <QAbstractSpinBox>
#include <QDialogButtonBox>

namespace registers {

namespace {

constexpr int kAddressBits = 64;

} // namespace

GoToDialog::GoToDialog(QWidget* parent)
    : nsUI::CustomInputDlg(parent, Qt::WindowFlags())
    , m_address(new NumberBox(kAddressBits, NumberBase::Hexadecimal, NumberBox::Mode::Editable, this))
{
    setWindowTitle(tr("Go to Address"));
    addRow(tr("&Address:"), m_address);
    buttonBox()->setStandardButtons(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    connect(buttonBox(), &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttonBox(), &QDialogButtonBox::rejected, this, &QDialog::reject);
    m_address->box()->setFocus();
    new nsUI::CWheelGuard(this);
}

quint64 GoToDialog::address() const
{
    return m_address->value();
}

void GoToDialog::setAddress(quint64 address)
{
    m_address->setValue(address);
    m_address->box()->selectAll();
}

std::optional<quint64> GoToDialog::ask(quint64 present, QWidget* parent)
{
    GoToDialog dialog(parent);
    dialog.setAddress(present);
    return dialog.exec() == QDialog::Accepted ? std::optional<quint64>(dialog.address()) : std::nullopt;
}

} // namespace registers
