// SPDX-License-Identifier: MIT
#include "gui/Captioned.h"

#include "gui/ChangeWatcher.h"
#include "gui/Host.h"
#include "gui/TextLabel.h"

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
