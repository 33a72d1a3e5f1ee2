// SPDX-License-Identifier: MIT
#include "FontSettingDlg.h"

#include "ui_FontSettingDlg.h"

#include <CCommon.h>

#include <Tessera/Tessera.h>
#include <Tessera/widgets/ButtonBox_p.h>

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace nsUI {
namespace {

QString settingsGroup()
{
    return QStringLiteral("Setting_AppFont");
}

//! Shows a family that nobody has picked. Silently: Qt 6 takes every text that the box tells of for its font.
void showFamily(QFontComboBox* pCbxFont, const QString& sFamily)
{
    const QSignalBlocker blocker(pCbxFont);
    pCbxFont->setCurrentText(sFamily);
}

} // namespace

FontSettingDlg::FontSettingDlg(QWidget* parent)
    : QDialog(parent)
    , m_pUi(std::make_unique<Ui::FontSettingDlg>())
    , m_pFont(std::make_unique<tagAppFont>())
{
    m_pUi->setupUi(this);
    initUI();
    initConnect();
}

FontSettingDlg::~FontSettingDlg() = default;

void FontSettingDlg::setExampleWdg(QWidget* widget)
{
    if (widget == nullptr || widget == m_pExampleWdg)
        return;
    if (!m_pExampleWdg.isNull()) {
        m_pExampleWdg->hide(); // a dialog that runs meanwhile would go on showing it
        m_pExampleWdg->deleteLater();
    }
    m_pExampleWdg = widget;
    m_pExampleLayout->addWidget(widget);
    styleExample();
}

QDialogButtonBox* FontSettingDlg::buttonBox() const
{
    return m_pUi->buttonBox;
}

QPushButton* FontSettingDlg::button(QDialogButtonBox::StandardButton which) const
{
    return m_pUi->buttonBox->button(which);
}

void FontSettingDlg::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(buttonBox(), which, enable);
}

void FontSettingDlg::initUI()
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowFlag(Qt::WindowMaximizeButtonHint, false);

    m_pExampleWdg = new QLabel(tr("Example Text"), this);
    m_pExampleLayout = new QVBoxLayout(m_pUi->pGrxExamples);
    m_pExampleLayout->addWidget(m_pExampleWdg);

    m_pFont->readSettings(CCommon::instance().getSettings(QString()), settingsGroup());
    const QStringList& families = m_pFont->families;
    m_pUi->pListWdgFont->addItems(families);
    showFamily(m_pUi->pCbxFont, families.isEmpty() ? m_pUi->pCbxFont->currentFont().family() : families.first());
    m_pUi->pISpxSize->setValue(m_pFont->pointSize);
    m_pUi->pCkxBold->setChecked(m_pFont->bold);
    m_pUi->pCkxItalic->setChecked(m_pFont->italic);
    slotUpdateExample();
}

void FontSettingDlg::initConnect()
{
    connect(m_pUi->pBtnAdd, &QToolButton::clicked, this, &FontSettingDlg::slotBtnAddClicked);
    connect(m_pUi->pBtnDel, &QToolButton::clicked, this, &FontSettingDlg::slotBtnDelClicked);
    connect(m_pUi->pISpxSize, qOverload<int>(&QSpinBox::valueChanged), this, &FontSettingDlg::slotUpdateExample);
    connect(m_pUi->pCkxBold, &QCheckBox::clicked, this, &FontSettingDlg::slotUpdateExample);
    connect(m_pUi->pCkxItalic, &QCheckBox::clicked, this, &FontSettingDlg::slotUpdateExample);
    ButtonBox::connectTo(this, buttonBox(), &FontSettingDlg::slotAccept);
}

//! Leaves each family in the list once, at its first place, and answers what is left.
QStringList FontSettingDlg::updateListWdg()
{
    QListWidget* const pList = m_pUi->pListWdgFont;
    QStringList families;
    for (int nRow = 0; nRow < pList->count();) {
        const QString sFamily = pList->item(nRow)->text();
        if (families.contains(sFamily)) {
            delete pList->takeItem(nRow);
        } else {
            families.append(sFamily);
            ++nRow;
        }
    }
    m_pUi->pBtnDel->setEnabled(pList->count() > 0);
    return families;
}

void FontSettingDlg::slotBtnAddClicked()
{
    m_pUi->pListWdgFont->insertItem(0, m_pUi->pCbxFont->currentFont().family());
    slotUpdateExample();
}

void FontSettingDlg::slotBtnDelClicked()
{
    QListWidget* const pList = m_pUi->pListWdgFont;
    if (pList->count() == 0)
        return;
    const int nRow = pList->currentRow();
    delete pList->takeItem(nRow < 0 ? pList->count() - 1 : nRow);
    slotUpdateExample();
}

void FontSettingDlg::slotUpdateExample()
{
    m_pFont->families = updateListWdg();
    m_pFont->pointSize = m_pUi->pISpxSize->value();
    m_pFont->bold = m_pUi->pCkxBold->isChecked();
    m_pFont->italic = m_pUi->pCkxItalic->isChecked();
    styleExample();
}

void FontSettingDlg::slotAccept()
{
    m_pFont->writeSettings(CCommon::instance().getSettings(QString()), settingsGroup());
    accept();
}

void FontSettingDlg::styleExample()
{
    if (!m_pExampleWdg.isNull())
        m_pExampleWdg->setStyleSheet(m_pFont->toStyleSheet());
}

} // namespace nsUI
