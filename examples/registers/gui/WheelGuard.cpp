// SPDX-License-Identifier: MIT
#include "gui/WheelGuard.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>

namespace registers {

WheelGuard::WheelGuard(QWidget* box)
    : QObject(box)
    , m_box(box)
{
    m_box->setFocusPolicy(Qt::StrongFocus);
    m_box->installEventFilter(this);
    if (auto* edit = m_box->findChild<QLineEdit*>()) {
        edit->setFocusPolicy(Qt::StrongFocus);
        edit->installEventFilter(this);
    }
}

void WheelGuard::protect(QWidget* box)
{
    new WheelGuard(box);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel) {
        return QObject::eventFilter(watched, event);
    }
    if (!m_box->hasFocus()) {
        scrollForm(event);
        return true;
    }
    if (watched == m_box) {
        return false;
    }
    // The line edit of a box with the focus: the box steps.
    QCoreApplication::sendEvent(m_box, event);
    return true;
}

void WheelGuard::scrollForm(QEvent* event) const
{
    for (QWidget* above = m_box->parentWidget(); above; above = above->parentWidget()) {
        if (const auto* area = qobject_cast<QAbstractScrollArea*>(above)) {
            QCoreApplication::sendEvent(area->viewport(), event);
            return;
        }
    }
    event->ignore();
}

} // namespace registers
