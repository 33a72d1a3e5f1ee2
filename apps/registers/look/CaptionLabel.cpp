// SPDX-License-Identifier: MIT
#include "look/CaptionLabel.h"

#include "look/Theme.h"

#include <QEvent>
#include <QScopedValueRollback>

namespace registers {

CaptionLabel::CaptionLabel(const QString& text, QWidget* parent)
    : QLabel(text, parent)
{
}

bool CaptionLabel::event(QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::Polish || type == QEvent::PaletteChange || type == QEvent::ParentChange) {
        updateColor();
    }
    return QLabel::event(event);
}

void CaptionLabel::updateColor()
{
    if (m_updating || !parentWidget()) {
        return;
    }
    const QScopedValueRollback<bool> updating(m_updating, true);
    QPalette own;
    own.setColor(QPalette::WindowText, captionColor(parentWidget()->palette()));
    setPalette(own);
}

} // namespace registers
