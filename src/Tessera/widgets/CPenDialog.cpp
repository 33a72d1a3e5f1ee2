// SPDX-License-Identifier: MIT
#include "CPenDialog.h"

#include <Tessera/widgets/ButtonBox_p.h>
#include <Tessera/widgets/CDataComboBox.h>

#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QIcon>
#include <QPushButton>
#include <QVBoxLayout>

namespace nsUI {

CPenDialog::CPenDialog(QWidget* parent)
    : QDialog(parent)
{
    initUI();
    initConnect();
}

CPenDialog::CPenDialog(const QPen& pen, QWidget* parent)
    : CPenDialog(parent)
{
    setCurrentPen(pen);
}

CPenDialog::~CPenDialog()
{
    // QDialog's destructor hides the window: the width loses the focus, and says so when there is no pen any more.
    m_pDSpxWidth->disconnect(this);
}

QPen CPenDialog::getPen(bool* ok, const QPen& initial, QWidget* parent, const QString& title)
{
    CPenDialog dialog(initial, parent);
    if (!title.isEmpty())
        dialog.setWindowTitle(title);
    const bool accepted = dialog.exec() == QDialog::Accepted;
    if (ok != nullptr)
        *ok = accepted;
    return accepted ? dialog.selectedPen() : dialog.currentPen();
}

QString CPenDialog::getPenStyleDesc(Qt::PenStyle style)
{
    switch (style) {
    case Qt::NoPen:
        return tr("NoPen");
    case Qt::SolidLine:
        return tr("SolidLine");
    case Qt::DashLine:
        return tr("DashLine");
    case Qt::DotLine:
        return tr("DotLine");
    case Qt::DashDotLine:
        return tr("DashDotLine");
    case Qt::DashDotDotLine:
        return tr("DashDotDotLine");
    default:
        return tr("Undefine");
    }
}

QPen CPenDialog::currentPen() const
{
    return m_tCurrentPen;
}

QPen CPenDialog::selectedPen() const
{
    QPen pen = m_tCurrentPen;
    QBrush brush = pen.brush(); // QPen::setColor() would make it solid
    brush.setColor(getBtnColor());
    pen.setBrush(brush);
    pen.setWidthF(m_pDSpxWidth->value());
    pen.setStyle(static_cast<Qt::PenStyle>(m_pCbxStyle->currentData(Qt::UserRole).toInt()));
    return pen;
}

void CPenDialog::setCurrentPen(const QPen& pen)
{
    if (pen == m_tCurrentPen)
        return;
    m_tCurrentPen = pen;
    updateUI(pen);
}

QDialogButtonBox* CPenDialog::buttonBox() const
{
    return m_pBtnBox;
}

QPushButton* CPenDialog::button(QDialogButtonBox::StandardButton which) const
{
    return m_pBtnBox->button(which);
}

void CPenDialog::setBtnEnable(QDialogButtonBox::StandardButton which, bool enable)
{
    ButtonBox::setEnabled(m_pBtnBox, which, enable);
}

void CPenDialog::slotBtnColorClicked()
{
    const QColor color = QColorDialog::getColor(getBtnColor(), this, QString(), QColorDialog::ShowAlphaChannel);
    if (color.isValid())
        setBtnColor(color);
}

void CPenDialog::initUI()
{
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    setWindowTitle(tr("Pen Settings"));

    m_pBtnColor = new QPushButton(this);
    m_pBtnColor->setAutoFillBackground(true);
    m_pBtnColor->setFlat(true);

    m_pDSpxWidth = new QDoubleSpinBox(this);

    m_pCbxStyle = new CDataComboBox(this);
    for (const Qt::PenStyle style :
         {Qt::NoPen, Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine}) {
        m_pCbxStyle->addItem(QIcon(), getPenStyleDesc(style), int(style));
    }

    m_pBtnBox = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel | QDialogButtonBox::Reset, this);

    auto* const pForm = new QFormLayout;
    pForm->addRow(tr("Color:"), m_pBtnColor);
    pForm->addRow(tr("Line Width:"), m_pDSpxWidth);
    pForm->addRow(tr("Style:"), m_pCbxStyle);

    auto* const pLayout = new QVBoxLayout(this);
    pLayout->addLayout(pForm, 1);
    pLayout->addWidget(m_pBtnBox);

    updateUI(m_tCurrentPen);
}

void CPenDialog::initConnect()
{
    const auto showSelected = [this] { updateUI(selectedPen()); };
    connect(m_pBtnColor, &QPushButton::clicked, this, &CPenDialog::slotBtnColorClicked);
    connect(m_pDSpxWidth, &QDoubleSpinBox::editingFinished, this, showSelected);
    connect(m_pCbxStyle, qOverload<int>(&QComboBox::currentIndexChanged), this, showSelected);
    connect(m_pBtnBox->button(QDialogButtonBox::Reset), &QPushButton::clicked, this,
            [this] { updateUI(m_tCurrentPen); });
    ButtonBox::connectTo(this, m_pBtnBox);
}

QColor CPenDialog::getBtnColor() const
{
    return m_pBtnColor->palette().color(QPalette::Button);
}

void CPenDialog::setBtnColor(const QColor& color)
{
    if (getBtnColor() == color)
        return;
    QPalette palette = m_pBtnColor->palette();
    palette.setBrush(QPalette::All, QPalette::Button, QBrush(color));
    m_pBtnColor->setPalette(palette);
    updateUI(selectedPen());
}

void CPenDialog::updateUI(const QPen& pen)
{
    setBtnColor(pen.color());
    m_pDSpxWidth->setValue(pen.widthF());
    m_pCbxStyle->setCurrentData(int(pen.style()), Qt::UserRole);
}

} // namespace nsUI
