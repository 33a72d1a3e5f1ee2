// SPDX-License-Identifier: MIT
#include "gui/WheelGuard.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>
#include <QLineEdit>

namespace gallery {

namespace {

bool isBox(const QWidget* widget)
{
    return qobject_cast<const QAbstractSpinBox*>(widget) || qobject_cast<const QComboBox*>(widget);
}

/// The box that @p widget is, or is the line edit of; null when it is neither.
QWidget* boxOf(QWidget* widget)
{
    if (isBox(widget)) {
        return widget;
    }
    QWidget* parent = widget->parentWidget();
    return qobject_cast<QLineEdit*>(widget) && isBox(parent) ? parent : nullptr;
}

void scrollPage(const QWidget* box, QEvent* event)
{
    for (QWidget* above = box->parentWidget(); above; above = above->parentWidget()) {
        if (const auto* area = qobject_cast<QAbstractScrollArea*>(above)) {
            QCoreApplication::sendEvent(area->viewport(), event);
            return;
        }
    }
}

} // namespace

void WheelGuard::protectBoxesIn(QWidget* widget)
{
    auto* guard = new WheelGuard(widget);
    const QList<QWidget*> inside = QList<QWidget*>{widget} + widget->findChildren<QWidget*>();
    for (QWidget* one : inside) {
        if (boxOf(one)) {
            one->setFocusPolicy(Qt::StrongFocus); // a wheel does not give it the focus
            one->installEventFilter(guard);
        }
    }
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Wheel) {
        return QObject::eventFilter(watched, event);
    }
    const QWidget* box = boxOf(static_cast<QWidget*>(watched));
    if (!box || box->hasFocus()) {
        return false;
    }
    scrollPage(box, event);
    return true;
}

} // namespace gallery
