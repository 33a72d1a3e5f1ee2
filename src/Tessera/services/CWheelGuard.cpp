// SPDX-License-Identifier: MIT
#include "CWheelGuard.h"

#include <QAbstractScrollArea>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QChildEvent>
#include <QComboBox>
#include <QPointer>
#include <QScrollBar>
#include <QTabBar>
#include <QWheelEvent>

namespace nsUI {
namespace {

//! Whether the wheel changes more than what is seen of something: a scroll bar is a slider, too.
bool isChangedByWheel(const QObject* pObject)
{
    return qobject_cast<const QAbstractSpinBox*>(pObject) != nullptr ||
           qobject_cast<const QComboBox*>(pObject) != nullptr || qobject_cast<const QTabBar*>(pObject) != nullptr ||
           (qobject_cast<const QAbstractSlider*>(pObject) != nullptr &&
            qobject_cast<const QScrollBar*>(pObject) == nullptr);
}

bool holdsFocus(const QWidget* pWidget)
{
    const QWidget* const pFocus = QApplication::focusWidget();
    return pFocus == pWidget || pWidget->isAncestorOf(pFocus);
}

void denyWheelFocus(QWidget* pWidget)
{
    if (isChangedByWheel(pWidget) && pWidget->focusPolicy() == Qt::WheelFocus)
        pWidget->setFocusPolicy(Qt::StrongFocus);
}

//! Whether a scroll area could use the wheel, which it then has done.
bool scroll(const QAbstractScrollArea* pArea, const QWheelEvent* pEvent)
{
    QWidget* const pViewport = pArea->viewport();
    if (!pViewport->isEnabled())
        return false;
    const QPointF global = pEvent->globalPosition();
    QWheelEvent event(pViewport->mapFromGlobal(global.toPoint()), global, pEvent->pixelDelta(), pEvent->angleDelta(),
                      pEvent->buttons(), pEvent->modifiers(), pEvent->phase(), pEvent->inverted(), pEvent->source());
    event.setTimestamp(pEvent->timestamp());
    QCoreApplication::sendEvent(pViewport, &event);
    return event.isAccepted();
}

/*!
    Lets the scroll areas around a widget have its wheel, the nearest first. By hand, though Qt lets parents have what
    a widget ignores: it does so neither for an event that a program has sent nor in the middle of a touchpad's gesture.
*/
void passOn(QWidget* pWidget, QWheelEvent* pEvent)
{
    const QPointer<QWidget> pOrigin = pWidget;
    QPointer<QWidget> pAbove = pWidget;
    while (!pAbove.isNull() && !pAbove->isWindow() && !pAbove->testAttribute(Qt::WA_NoMousePropagation)) {
        pAbove = pAbove->parentWidget();
        const auto* const pArea = qobject_cast<QAbstractScrollArea*>(pAbove.data());
        if (pArea != nullptr && scroll(pArea, pEvent)) {
            pEvent->accept();
            return;
        }
    }
    // Qt goes on with the widget when its event was ignored: with none, that must not look so.
    pEvent->setAccepted(pOrigin.isNull());
}

} // namespace

CWheelGuard::CWheelGuard(QObject* watched)
    : QObject(watched)
{
    if (watched == nullptr)
        return;
    if (watched->isWidgetType()) {
        m_bFollowsChildren = true;
        watch(watched);
    } else if (watched == QCoreApplication::instance()) {
        watched->installEventFilter(this);
        const QWidgetList widgets = QApplication::allWidgets();
        for (QWidget* const pWidget : widgets)
            denyWheelFocus(pWidget);
    }
}

bool CWheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Wheel:
        if (!isChangedByWheel(watched) || holdsFocus(static_cast<QWidget*>(watched)))
            return false;
        passOn(static_cast<QWidget*>(watched), static_cast<QWheelEvent*>(event));
        return true;
    case QEvent::Polish: // whatever was added under construction has become a spin box, say, by now
        if (watched->isWidgetType())
            denyWheelFocus(static_cast<QWidget*>(watched));
        return false;
    case QEvent::ChildAdded:
        if (m_bFollowsChildren)
            watch(static_cast<QChildEvent*>(event)->child());
        return false;
    case QEvent::ChildRemoved:
        if (m_bFollowsChildren)
            unwatch(static_cast<QChildEvent*>(event)->child());
        return false;
    default:
        return false;
    }
}

void CWheelGuard::watch(QObject* pObject)
{
    if (!pObject->isWidgetType())
        return;
    pObject->installEventFilter(this);
    denyWheelFocus(static_cast<QWidget*>(pObject));
    for (QObject* const pChild : pObject->children())
        watch(pChild);
}

void CWheelGuard::unwatch(QObject* pObject)
{
    pObject->removeEventFilter(this);
    for (QObject* const pChild : pObject->children())
        unwatch(pChild);
}

} // namespace nsUI
