// SPDX-License-Identifier: MIT
#include "CustomInputDlg.h"

#include <Tessera/widgets/ButtonBox_p.h>

#include <QFormLayout>
#include <QPointer>
#include <QVBoxLayout>

namespace nsUI {
namespace {

bool takesTabFocus(const QWidget* pField)
{
    const QWidget* const pProxy = pField->focusProxy();
    return ((pProxy != nullptr ? pProxy : pField)->focusPolicy() & Qt::TabFocus) != 0;
}

} // namespace

CustomInputDlg::CustomInputDlg(QWidget* parent, Qt::WindowFlags flags)
    : QDialog(parent, flags)
{
    if (!flags.testFlag(Qt::WindowContextHelpButtonHint))
        setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    initUI();
}

void CustomInputDlg::addRow(const QString& label, QWidget* field)
{
    m_pFormLayout->addRow(label, field);
    if (field != nullptr && focusWidget() == nullptr && takesTabFocus(field))
        field->setFocus(Qt::TabFocusReason);
}

QDialogButtonBox* CustomInputDlg::buttonBox() const
{
    return m_pBtnBox;
}

QPushButton* CustomInputDlg::button(QDialogButtonBox::StandardButton which) const
{
    return m_pBtnBox->button(which);
}

void CustomInputDlg::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(m_pBtnBox, which, enable);
}

// The button box is older than the fields and hands the focus on to its first button, which is mostly younger: Tab
// would come from the last button to the box, and so to the first button again.
bool CustomInputDlg::focusNextPrevChild(bool next)
{
    const QPointer<QDialogButtonBox> pBtnBox = m_pBtnBox;
    const QPointer<QWidget> pFirst = m_pBtnBox->focusProxy();
    m_pBtnBox->setFocusProxy(nullptr);
    const bool isMoved = QDialog::focusNextPrevChild(next);
    if (pBtnBox)
        pBtnBox->setFocusProxy(pFirst);
    return isMoved;
}

void CustomInputDlg::initUI()
{
    auto* const pLayout = new QVBoxLayout(this);
    m_pFormLayout = new QFormLayout;
    pLayout->addLayout(m_pFormLayout, 1);
    pLayout->addStretch(0);
    m_pBtnBox = new QDialogButtonBox(this);
    pLayout->addWidget(m_pBtnBox);
}

} // namespace nsUI
