// SPDX-License-Identifier: MIT
#include "cards/Captioned.h"

#include "cards/TextLabel.h"
#include "host/ChangeWatcher.h"
#include "host/Host.h"

#include <QFormLayout>

namespace gallery {

Captioned::Captioned(QWidget* parent)
    : QWidget(parent)
    , m_layout(new QFormLayout(this))
{
    m_layout->setContentsMargins(0, 0, 0, 0);
}

void Captioned::add(const char* caption, QWidget* widget)
{
    m_layout->addRow(new TextLabel(caption), widget);
    retranslate(widget, [widget, caption] { widget->setAccessibleName(text(caption)); });
}

void Captioned::add(const QString& caption, QWidget* widget)
{
    m_layout->addRow(new TextLabel(caption), widget);
    widget->setAccessibleName(caption);
}

} // namespace gallery
