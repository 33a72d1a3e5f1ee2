// SPDX-License-Identifier: MIT
#include "CProgressDlg.h"

#include "ui_CProgressDlg.h"

#include <Tessera/widgets/ButtonBox_p.h>

#include <QKeyEvent>

namespace nsUI {

CProgressDlg::CProgressDlg(QWidget* parent)
    : QDialog(parent)
    , m_pUi(std::make_unique<Ui::CProgressDlg>())
{
    m_pUi->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowCloseButtonHint, false);
    setFormat(QStringLiteral("%p%"));
    hide();
}

CProgressDlg::~CProgressDlg() = default;

QLabel* CProgressDlg::label()
{
    return m_pUi->pLab;
}

QProgressBar* CProgressDlg::bar()
{
    return m_pUi->pBar;
}

QDialogButtonBox* CProgressDlg::buttonBox()
{
    return m_pUi->pBtnBox;
}

QPushButton* CProgressDlg::button(QDialogButtonBox::StandardButton which)
{
    return m_pUi->pBtnBox->button(which);
}

void CProgressDlg::setText(const QString& text)
{
    m_pUi->pLab->setText(text);
}

void CProgressDlg::setFormat(const QString& format)
{
    m_pUi->pBar->setFormat(format);
}

void CProgressDlg::setMinimum(int value)
{
    m_pUi->pBar->setMinimum(value);
}

void CProgressDlg::setMaximum(int value)
{
    m_pUi->pBar->setMaximum(value);
}

void CProgressDlg::setValue(int value)
{
    m_pUi->pBar->setValue(value);
}

void CProgressDlg::addValue(int delta)
{
    // Unsigned, so that a sum beyond the type's ends is defined.
    setValue(static_cast<int>(static_cast<unsigned>(value()) + static_cast<unsigned>(delta)));
}

int CProgressDlg::value() const
{
    return m_pUi->pBar->value();
}

void CProgressDlg::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(buttonBox(), which, enable);
}

bool CProgressDlg::btnEnable(QDialogButtonBox::StandardButton which)
{
    const QPushButton* const pButton = button(which);
    return pButton != nullptr && pButton->isEnabled();
}

void CProgressDlg::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Cancel))
        event->ignore();
    else
        keyPressEvent(event); // virtually, and not QDialog's: the key is a subclass's affair
}

} // namespace nsUI
