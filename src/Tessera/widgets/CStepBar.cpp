// SPDX-License-Identifier: MIT
#include "CStepBar.h"

#include <QCheckBox>
#include <QEvent>
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

//! The arrow that points along a layout. Where text runs from the right, a row runs the other way than it is called.
QString iconPath(const QBoxLayout& layout)
{
    const bool bMirrored = layout.parentWidget()->isRightToLeft();
    switch (layout.direction()) {
    case QBoxLayout::LeftToRight:
        return bMirrored ? QStringLiteral(":/svg/primary/arrow-back.svg")
                         : QStringLiteral(":/svg/primary/arrow-forward.svg");
    case QBoxLayout::RightToLeft:
        return bMirrored ? QStringLiteral(":/svg/primary/arrow-forward.svg")
                         : QStringLiteral(":/svg/primary/arrow-back.svg");
    case QBoxLayout::TopToBottom:
        return QStringLiteral(":/svg/primary/arrow-downward.svg");
    case QBoxLayout::BottomToTop:
        return QStringLiteral(":/svg/primary/arrow-upward.svg");
    }
    return QString();
}

//! An arrow of a bar with this layout; it turns round when the bar is mirrored.
class StepArrow : public QSvgWidget
{
public:
    StepArrow(const QBoxLayout* pLayout, QWidget* pParent)
        : QSvgWidget(iconPath(*pLayout), pParent)
        , m_pLayout(pLayout)
    {
    }

protected:
    void changeEvent(QEvent* event) override
    {
        QSvgWidget::changeEvent(event);
        if (event->type() == QEvent::LayoutDirectionChange)
            load(iconPath(*m_pLayout));
    }

private:
    const QBoxLayout* m_pLayout;
};

//! A step. One that is disabled while it is pressed is let go, and not clicked: QAbstractButton would say released().
class StepBox : public QCheckBox
{
public:
    using QCheckBox::QCheckBox;

protected:
    void changeEvent(QEvent* event) override
    {
        if (event->type() == QEvent::EnabledChange && !isEnabled())
            setDown(false);
        QCheckBox::changeEvent(event);
    }
};

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

    auto* const pIcon = new StepArrow(m_pLayout, this);
    auto* const pBox = new StepBox(text, this);
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
    return static_cast<int>(m_tBoxes.size());
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
    // A step that is squeezed must not shrink the arrows: the bar would need less room, get less, and so on for ever.
    const int nSide = std::max(pFirst->height(), std::min(pFirst->minimumSizeHint().height(), pFirst->maximumHeight()));
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
    const int nIndex = static_cast<int>(m_tBoxes.indexOf(pBox));
    if (nIndex >= 0)
        Q_EMIT sigStepClicked(nIndex);
}

QString CStepBar::getCurIconPath() const
{
    return iconPath(*m_pLayout);
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

/*!
    Where the arrow of a step stands in the layout, and its box before the arrow is there. Counted by the alignment that
    it was made with, a layout that has got another one can end before that.
*/
int CStepBar::layoutIndex(int nStep) const
{
    const int nPlace = 2 * nStep + (isStretchedBefore(m_nAlignment) ? 1 : 0);
    return std::min(nPlace, m_pLayout->count());
}

} // namespace nsUI
