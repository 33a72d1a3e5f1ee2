// SPDX-License-Identifier: MIT
#include "form/Heading.h"

#include "form/FactsLine.h"
#include "look/Badge.h"
#include "look/CaptionLabel.h"
#include "look/ChangeMark.h"
#include "look/Theme.h"

#include <QVBoxLayout>

namespace registers {

namespace {

constexpr int kLineGap = 6;
constexpr int kFactsGap = 4;
constexpr double kTitleScale = 1.55;

void makeReadable(QLabel* label, const QString& text)
{
    label->setTextFormat(Qt::PlainText);
    label->setText(text);
    label->setAlignment(leadingAlignment(label));
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
}

} // namespace

Heading::Heading(const Texts& texts, QWidget* parent)
    : QWidget(parent)
    , m_layout(new QVBoxLayout(this))
    , m_facts(new FactsLine(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
    m_layout->setSpacing(kLineGap);
    addTitle(texts);
    if (!texts.description.isEmpty()) {
        auto* description = new QLabel(this);
        makeReadable(description, texts.description);
        description->setWordWrap(true);
        m_layout->addWidget(description);
    }
    m_layout->addSpacing(kFactsGap);
    m_layout->addWidget(m_facts);
}

void Heading::addTitle(const Texts& texts)
{
    auto* path = new CaptionLabel(QString(), this);
    path->setObjectName(QStringLiteral("path"));
    makeReadable(path, texts.path);
    m_layout->addWidget(path);

    auto* name = new QLabel(this);
    makeReadable(name, texts.name);
    QFont large = font();
    large.setPointSizeF(large.pointSizeF() * kTitleScale);
    large.setBold(true);
    name->setFont(large);
    m_mark = new ChangeMark(this);

    auto* line = new QHBoxLayout;
    line->addWidget(name);
    line->addWidget(m_mark);
    line->addStretch();
    for (const Note& note : texts.notes) {
        line->addWidget(new Badge(note, this));
    }
    m_layout->addLayout(line);
}

void Heading::setMarked(bool marked, const QString& toolTip)
{
    m_mark->setMarked(marked, toolTip);
}

} // namespace registers
