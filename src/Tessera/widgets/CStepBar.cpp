// SPDX-License-Identifier: MIT
#include "CStepBar.h"

#include <QCheckBox>
#include <QLayoutItem>
#include <QSvgWidget>

#include <algorithm>
#include <memory>

namespace nsUI {
namespace {

bool isStretchedBefore(CStepBar::Alignment nAlignment)
{
    return nAlignment != CStepBar::AlignStart;
}

bool isStretchedBehind(CStepBar::Alignment nAlignment)
{
    return nAlignment != CStepBar::AlignEnd;
}

} // namespace

CStepBar::CStepBar(QWidget* parent)
    : QWidget(parent)
    , m_pLayout(new QBoxLayout(QBoxLayout::LeftToRight, this))
{
    m_pLayout->setSpacing(0);
    m_pLayout->addStretch(0);
    m_pLayout->addStretch(0);
}

CStepBar::~CStepBar() = default;

void CStepBar::addStep(const QString& text)
{
    insertStep(count(), text);
}

void CStepBar::addStep(const QStringList& texts)
{
    for (const QString& sText : texts)
        insertStep(count(), sText);
}

void CStepBar::insertStep(int index, const QString& text)
{
    const int nStep = std::max(0, std::min(index, count()));

    auto* const pIcon = new QSvgWidget(getCurIconPath(), this);
    auto* const pBox = new QCheckBox(text, this);
    pBox->setEnabled(m_bStepEnabled);
    pBox->setFocusPolicy(Qt::NoFocus);
    connect(pBox, &QAbstractButton::released, this, &CStepBar::slotStepClicked);

    m_tIcons.insert(nStep, pIcon);
    m_tBoxes.insert(nStep, pBox);
    m_pLayout->insertWidget(layoutIndex(nStep), pBox, 0, Qt::AlignCenter);
    m_pLayout->insertWidget(layoutIndex(nStep), pIcon, 0, Qt::AlignCenter);
    updateIconVisible();
}

void CStepBar::remove(int index)
{
    if (index < 0 || index >= count())
        return;
    m_tIcons.removeAt(index);
    m_tBoxes.removeAt(index);
    for (int i = 0; i < 2; ++i) { // the arrow, then the box behind it
        const std::unique_ptr<QLayoutItem> pItem(m_pLayout->takeAt(layoutIndex(index)));
        if (pItem != nullptr)
            delete pItem->widget();
    }
    updateIconVisible();
}

int CStepBar::count() const
{
    return m_tBoxes.size();
}

int CStepBar::currentIndex()
{
    for (int i = 0; i < count(); ++i) {
        if (!m_tBoxes.at(i).isNull() && m_tBoxes.at(i)->isChecked())
            return i;
    }
    return -1;
}

QString CStepBar::stepText(int index) const
{
    const QCheckBox* const pBox = m_tBoxes.value(index);
    return pBox != nullptr ? pBox->text() : QString();
}

void CStepBar::setStepEnabled(bool enabled)
{
    if (enabled == m_bStepEnabled)
        return;
    m_bStepEnabled = enabled;
    for (QCheckBox* const pBox : qAsConst(m_tBoxes)) {
        if (pBox != nullptr)
            pBox->setEnabled(enabled);
    }
}

void CStepBar::setStepEnabled(int index, bool enabled)
{
    QCheckBox* const pBox = m_tBoxes.value(index);
    if (pBox != nullptr && m_bStepEnabled)
        pBox->setEnabled(enabled);
}

void CStepBar::setDirection(QBoxLayout::Direction direction)
{
    if (direction == m_pLayout->direction())
        return;
    m_pLayout->setDirection(direction);
    updateIcon();
}

void CStepBar::setAlignment(Alignment alignment)
{
    if (alignment == m_nAlignment)
        return;
    if (isStretchedBehind(m_nAlignment))
        delete m_pLayout->takeAt(m_pLayout->count() - 1);
    if (isStretchedBefore(m_nAlignment))
        delete m_pLayout->takeAt(0);
    if (isStretchedBehind(alignment))
        m_pLayout->addStretch(0);
    if (isStretchedBefore(alignment))
        m_pLayout->insertStretch(0, 0);
}

void CStepBar::slotSetCurrentStep(int index)
{
    for (int i = 0; i < count(); ++i) {
        if (!m_tBoxes.at(i).isNull())
            m_tBoxes.at(i)->setChecked(i == index);
    }
}

void CStepBar::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    const QCheckBox* const pFirst = m_tBoxes.value(0);
    if (pFirst == nullptr)
        return;
    const int nSide = pFirst->height();
    for (QSvgWidget* const pIcon : qAsConst(m_tIcons)) {
        if (pIcon != nullptr)
            pIcon->setFixedSize(nSide, nSide);
    }
}

void CStepBar::slotStepClicked()
{
    auto* const pBox = qobject_cast<QCheckBox*>(sender());
    if (pBox == nullptr)
        return;
    pBox->setChecked(!pBox->isChecked());
    const int nIndex = m_tBoxes.indexOf(pBox);
    if (nIndex >= 0)
        Q_EMIT sigStepClicked(nIndex);
}

QString CStepBar::getCurIconPath() const
{
    switch (m_pLayout->direction()) {
    case QBoxLayout::LeftToRight:
        return QStringLiteral(":/svg/primary/arrow-forward.svg");
    case QBoxLayout::RightToLeft:
        return QStringLiteral(":/svg/primary/arrow-back.svg");
    case QBoxLayout::TopToBottom:
        return QStringLiteral(":/svg/primary/arrow-downward.svg");
    case QBoxLayout::BottomToTop:
        return QStringLiteral(":/svg/primary/arrow-upward.svg");
    }
    return QString();
}

void CStepBar::updateIcon()
{
    const QString sPath = getCurIconPath();
    for (QSvgWidget* const pIcon : qAsConst(m_tIcons)) {
        if (pIcon != nullptr)
            pIcon->load(sPath);
    }
}

//! No arrow stands before the first step; the second may have been the first until now.
void CStepBar::updateIconVisible()
{
    if (QSvgWidget* const pFirst = m_tIcons.value(0))
        pFirst->hide();
    if (QSvgWidget* const pSecond = m_tIcons.value(1))
        pSecond->show();
}

//! Where the arrow of a step stands in the layout, and its box before the arrow is there.
int CStepBar::layoutIndex(int nStep) const
{
    return 2 * nStep + (isStretchedBefore(m_nAlignment) ? 1 : 0);
}

} // namespace nsUI
