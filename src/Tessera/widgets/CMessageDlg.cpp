// SPDX-License-Identifier: MIT
#include "CMessageDlg.h"

#include <Tessera/widgets/ButtonBox_p.h>
#include <Tessera/widgets/CustomTextBrowser.h>

#include <QVBoxLayout>

namespace nsUI {

CMessageDlg::CMessageDlg(QWidget* parent)
    : QDialog(parent)
{
    initUI();
    initConnect();
    hide();
}

CustomTextBrowser* CMessageDlg::textBrowser()
{
    return m_pTextBrowser;
}

QDialogButtonBox* CMessageDlg::buttonBox()
{
    return m_pBtnBox;
}

QPushButton* CMessageDlg::button(QDialogButtonBox::StandardButton which)
{
    return m_pBtnBox->button(which);
}

void CMessageDlg::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(m_pBtnBox, which, enable);
}

void CMessageDlg::appendColorText(const QString& text, const QColor& color)
{
    m_pTextBrowser->appendColorText(text, color);
}

void CMessageDlg::initUI()
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowCloseButtonHint, false);

    m_pTextBrowser = new CustomTextBrowser(this);
    m_pTextBrowser->setOpenLinks(false);
    m_pBtnBox = new QDialogButtonBox(QDialogButtonBox::Ok, this);

    auto* const pLayout = new QVBoxLayout(this);
    pLayout->addWidget(m_pTextBrowser, 1);
    pLayout->addWidget(m_pBtnBox, 0);
}

void CMessageDlg::initConnect()
{
    connect(m_pBtnBox, &QDialogButtonBox::accepted, this, &CMessageDlg::close);
}

} // namespace nsUI
