// SPDX-License-Identifier: MIT
#pragma once

#include "cards/Card.h"

#include <Tessera/widgets/CScrollWdg.h>

#include <QVector>

QT_BEGIN_NAMESPACE
class QVBoxLayout;
QT_END_NAMESPACE

namespace gallery {

/// A page of cards, one below the other. It scrolls up and down only, its content being as wide as what is
/// seen of it, for as long as there is room enough.
class Page : public nsUI::CScrollWdg
{
    Q_OBJECT

public:
    explicit Page(QWidget* parent = nullptr);

    /// Appends a card. Boxes in @p sample take no notice of the mouse wheel unless they have the focus.
    void addCard(const CardText& text, QWidget* sample, Card::Arrangement arrangement = Card::CodeBeside);

    const QVector<Card*>& cards() const { return m_cards; }

    /// How much higher than now the page would have to be to show everything; negative when there is room to spare.
    int missingHeight() const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void chooseScrolling();

    QVBoxLayout* m_layout;
    QVector<Card*> m_cards;
};

} // namespace gallery
