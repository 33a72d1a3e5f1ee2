// SPDX-License-Identifier: MIT
#include "CBitDialog.h"

#include "CBitModel.h"
#include "CDigitsEdit.h"

#include <CCommon.h>

#include <Tessera/Tessera.h>
#include <Tessera/views/TbView.h>
#include <Tessera/widgets/ButtonBox_p.h>

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHeaderView>
#include <QPalette>
#include <QPushButton>
#include <QVBoxLayout>

namespace nsUI {
namespace {

//! Where a change came from: what is not written back. None of them means from outside, and masks are made anew.
enum Source { FromTable = 0x1, FromHex = 0x2, FromBin = 0x4 };

QChar separator()
{
    return QLatin1Char(' ');
}

//! The grid's colours are light ones in every palette, so its text is dark in every palette.
void keepTextReadable(TbView* pView)
{
    const TesseraGlobal& global = TesseraGlobal::instance();
    QPalette palette = pView->palette();
    palette.setColor(QPalette::Text, global.getAdaptiveTextColor(global.getColor(e_Primary, e_L200)));
    pView->setPalette(palette);
}

} // namespace

struct Q_DECL_HIDDEN CBitDialog::PrivateData
{
    CDigitsEdit* pLEditHex = nullptr;
    CDigitsEdit* pLEditBin = nullptr;
    CBitModel* pModel = nullptr;
    TbView* pView = nullptr;
    QByteArray tResetValue;
    QDialogButtonBox* pBtnBox = nullptr;

    //! Lets the two texts take \a nBytes bytes; with none they are disabled and keep their masks.
    void setLength(int nBytes)
    {
        if (nBytes > 0) {
            pLEditHex->setByteCount(nBytes);
            pLEditBin->setByteCount(nBytes);
        }
        pLEditHex->setEnabled(nBytes > 0);
        pLEditBin->setEnabled(nBytes > 0);
    }
};

CBitDialog::CBitDialog(QWidget* parent)
    : QDialog(parent)
    , m_pData(std::make_unique<PrivateData>())
{
    initUI();
    initConnect();
}

CBitDialog::CBitDialog(const QByteArray& byteArray, const QMap<int, QString>& bitDescMap, QWidget* parent)
    : CBitDialog(parent)
{
    setByteArray(byteArray);
    setBitDescMap(bitDescMap);
}

CBitDialog::~CBitDialog() = default;

QByteArray CBitDialog::getByteArray(const QByteArray& byteArray, const QMap<int, QString>& bitDescMap, QWidget* parent,
                                    const QString& title)
{
    CBitDialog dialog(parent);
    dialog.setByteArray(byteArray);
    dialog.setBitDescMap(bitDescMap);
    if (!title.isEmpty())
        dialog.setWindowTitle(title);
    TesseraGlobal::resize(&dialog, 0.5, 0.5, 0, 0.5, 0.5);
    return dialog.exec() == QDialog::Accepted ? dialog.byteArray() : QByteArray();
}

void CBitDialog::setByteArray(const QByteArray& byteArray)
{
    m_pData->tResetValue = byteArray;
    slotBtnResetClicked();
}

const QByteArray& CBitDialog::byteArray() const
{
    return m_pData->pModel->byteArray();
}

void CBitDialog::setBitDescMap(const QMap<int, QString>& bitDescMap)
{
    m_pData->pModel->setBitDescMap(bitDescMap);
}

const QMap<int, QString>& CBitDialog::bitDescMap() const
{
    return m_pData->pModel->bitDescMap();
}

QDialogButtonBox* CBitDialog::buttonBox() const
{
    return m_pData->pBtnBox;
}

QPushButton* CBitDialog::button(QDialogButtonBox::StandardButton which) const
{
    return m_pData->pBtnBox->button(which);
}

void CBitDialog::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(m_pData->pBtnBox, which, enable);
}

void CBitDialog::showEvent(QShowEvent* event)
{
    QDialog::showEvent(event);
    m_pData->pView->resizeColumnsToContents();
    // The last column has got its contents' width like the others: it is stretched anew.
    m_pData->pView->horizontalHeader()->setStretchLastSection(false);
    m_pData->pView->horizontalHeader()->setStretchLastSection(true);
    // What is typed begins at the first digit: behind the last one a full mask takes nothing.
    m_pData->pLEditHex->home(false);
    m_pData->pLEditBin->home(false);
}

void CBitDialog::slotUpdateUI(const QByteArray& tByteArray, int nFlag)
{
    if (nFlag == 0)
        m_pData->setLength(static_cast<int>(tByteArray.size()));
    if ((nFlag & FromTable) == 0)
        m_pData->pModel->setByteArray(tByteArray);
    if ((nFlag & FromHex) == 0)
        m_pData->pLEditHex->setDigits(CCommon::byteAttryToHex(tByteArray, separator()));
    if ((nFlag & FromBin) == 0)
        m_pData->pLEditBin->setDigits(CCommon::byteAttryToBin(tByteArray, separator()));
}

void CBitDialog::slotBtnResetClicked()
{
    slotUpdateUI(m_pData->tResetValue, 0);
}

void CBitDialog::slotTableModelChanged(const QByteArray& tByteArray)
{
    slotUpdateUI(tByteArray, FromTable);
}

void CBitDialog::slotLEditHexTextChanged(const QString& sText)
{
    if (m_pData->pLEditHex->hasAcceptableInput())
        slotUpdateUI(QByteArray::fromHex(sText.toUtf8()), FromHex);
}

void CBitDialog::slotLEditBinTextChanged(const QString& sText)
{
    if (m_pData->pLEditBin->hasAcceptableInput())
        slotUpdateUI(CCommon::byteAttryFromBin(sText), FromBin);
}

void CBitDialog::initUI()
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Bit Settings"));

    m_pData->pLEditHex = new CDigitsEdit(16, this);
    m_pData->pLEditBin = new CDigitsEdit(2, this);
    auto* const pForm = new QFormLayout;
    pForm->addRow(tr("HEX:"), m_pData->pLEditHex);
    pForm->addRow(tr("BIN:"), m_pData->pLEditBin);

    m_pData->pModel = new CBitModel(this);
    m_pData->pView = new TbView(this);
    m_pData->pView->verticalHeader()->hide();
    m_pData->pView->setModel(m_pData->pModel);
    m_pData->pView->setTabKeyNavigation(false); // the arrows walk it
    // Enter is the dialog's; Space, F2 and a click turn a bit over.
    m_pData->pView->setEditTriggers(m_pData->pView->editTriggers() & ~QAbstractItemView::EditKeyPressed);
    m_pData->pView->horizontalHeader()->setStretchLastSection(true);
    keepTextReadable(m_pData->pView);

    m_pData->pBtnBox =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset, this);

    auto* const pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pForm, 0);
    pLayout->addWidget(m_pData->pView, 1);
    pLayout->addWidget(m_pData->pBtnBox, 0);
}

void CBitDialog::initConnect()
{
    connect(m_pData->pBtnBox->button(QDialogButtonBox::Reset), &QPushButton::clicked, this,
            &CBitDialog::slotBtnResetClicked);
    connect(m_pData->pModel, &CBitModel::sigByteArrayChanged, this, &CBitDialog::slotTableModelChanged);
    connect(m_pData->pLEditHex, &QLineEdit::textEdited, this, &CBitDialog::slotLEditHexTextChanged);
    connect(m_pData->pLEditBin, &QLineEdit::textEdited, this, &CBitDialog::slotLEditBinTextChanged);
    ButtonBox::connectTo(this, m_pData->pBtnBox);
}

} // namespace nsUI
