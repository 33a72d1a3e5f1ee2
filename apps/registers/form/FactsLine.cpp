// SPDX-License-Identifier: MIT
#include "form/FactsLine.h"

#include "look/CaptionLabel.h"
#include "look/Theme.h"

#include <QGridLayout>

namespace registers {

namespace {

constexpr int kFactGap = 26;
constexpr int kCaptionGap = 1;

} // namespace

FactsLine::FactsLine(QWidget* parent)
    : QWidget(parent)
    , m_grid(new QGridLayout(this))
{
    m_grid->setContentsMargins(0, 0, 0, 0);
    m_grid->setHorizontalSpacing(kFactGap);
    m_grid->setVerticalSpacing(kCaptionGap);
}

void FactsLine::addFact(const QString& caption, const QString& text, Kind kind)
{
    auto* value = new QLabel(this);
    value->setTextFormat(Qt::PlainText);
    value->setText(text);
    value->setAlignment(leadingAlignment(this));
    value->setTextInteractionFlags(Qt::TextSelectableByMouse);
    if (kind == Kind::Number) {
        value->setFont(numberFont(font()));
    }
    m_grid->addWidget(new CaptionLabel(caption, this), 0, m_count);
    m_grid->addWidget(value, 1, m_count);
    m_grid->setColumnStretch(m_count, 0);
    ++m_count;
    m_grid->setColumnStretch(m_count, 1);
}

} // namespace registers
