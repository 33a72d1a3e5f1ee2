// SPDX-License-Identifier: MIT
#include "pages/Page.h"

#include "host/ChangeWatcher.h"

#include <Tessera/services/CWheelGuard.h>

#include <QVBoxLayout>

namespace gallery {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 14;

} // namespace

Page::Page(QWidget* parent)
    : nsUI::CScrollWdg(parent)
{
    setFrameShape(QFrame::NoFrame);
    auto* content = new QWidget;
    m_layout = new QVBoxLayout(content);
    m_layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    m_layout->setSpacing(kSpacing);
    m_layout->addStretch(1);
    setWidget(content);
    setWidthAdaptiveType(AdaptiveViewport);
    ChangeWatcher::watch(content, {QEvent::LayoutRequest}, [this] { chooseScrolling(); });
    new nsUI::CWheelGuard(this);
}

void Page::addCard(const CardText& text, QWidget* sample, Card::Arrangement arrangement)
{
    auto* card = new Card(text, sample, arrangement);
    m_cards.append(card);
    m_layout->insertWidget(m_layout->count() - 1, card);
}

void Page::resizeEvent(QResizeEvent* event)
{
    nsUI::CScrollWdg::resizeEvent(event);
    chooseScrolling();
}

void Page::chooseScrolling()
{
    const bool hasRoom = m_layout->totalMinimumSize().width() <= viewport()->width();
    setWidthAdaptiveType(hasRoom ? AdaptiveViewport : AdaptiveNone);
}

int Page::missingHeight() const
{
    return m_layout->totalHeightForWidth(viewport()->width()) - viewport()->height();
}

} // namespace gallery
