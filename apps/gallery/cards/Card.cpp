// SPDX-License-Identifier: MIT
#include "cards/Card.h"

#include "cards/SnippetView.h"
#include "cards/TextLabel.h"
#include "cards/Theme.h"
#include "common/Card.h"

#include <QBoxLayout>

namespace gallery {

namespace {

constexpr int kMargin = 16;
constexpr int kSpacing = 10;
constexpr int kGap = 20;

/// The sample at its own size, at the top of its place.
QVBoxLayout* placeOf(QWidget* sample)
{
    auto* place = new QVBoxLayout;
    place->addWidget(sample);
    place->addStretch(1);
    return place;
}

QBoxLayout* bodyOf(QWidget* sample, QWidget* code, Card::Arrangement arrangement)
{
    auto* body = new QBoxLayout(arrangement == Card::CodeBeside ? QBoxLayout::LeftToRight : QBoxLayout::TopToBottom);
    body->setSpacing(arrangement == Card::CodeBeside ? kGap : kSpacing);
    if (arrangement == Card::CodeBelow) {
        if (sample) {
            body->addWidget(sample);
        }
        body->addWidget(code);
        return body;
    }
    auto* codePlace = new QVBoxLayout;
    codePlace->addWidget(code);
    codePlace->addStretch(1);
    body->addLayout(placeOf(sample), 1);
    body->addLayout(codePlace, 2);
    return body;
}

} // namespace

Card::Card(const CardText& text, QWidget* sample, Arrangement arrangement, QWidget* parent)
    : QWidget(parent)
    , m_title(text.title)
{
    if (sample && sample->accessibleName().isEmpty()) {
        sample->setAccessibleName(text.title);
    }
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    layout->setSpacing(kSpacing);
    layout->addWidget(new TextLabel(text.title, TextLabel::Title));
    layout->addWidget(new TextLabel(text.description, TextLabel::Wrapped));
    layout->addLayout(bodyOf(sample, new SnippetView(codeOf(text.snippet)), arrangement));
    if (text.note) {
        layout->addWidget(new TextLabel(text.note, TextLabel::Note));
    }
}

void Card::paintEvent(QPaintEvent*)
{
    apps::paintCard(*this, cardColor(palette()));
}

} // namespace gallery
