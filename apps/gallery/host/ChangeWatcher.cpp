// SPDX-License-Identifier: MIT
#include "host/ChangeWatcher.h"

#include <QWidget>

#include <utility>

namespace gallery {

ChangeWatcher::ChangeWatcher(QWidget* widget, const QVector<QEvent::Type>& types, std::function<void()> answer)
    : QObject(widget)
    , m_types(types)
    , m_answer(std::move(answer))
{
    widget->installEventFilter(this);
}

void ChangeWatcher::watch(QWidget* widget, const QVector<QEvent::Type>& types, std::function<void()> answer)
{
    new ChangeWatcher(widget, types, std::move(answer));
}

bool ChangeWatcher::eventFilter(QObject* watched, QEvent* event)
{
    if (m_types.contains(event->type())) {
        m_answer();
    }
    return QObject::eventFilter(watched, event);
}

void retranslate(QWidget* widget, const std::function<void()>& apply)
{
    apply();
    ChangeWatcher::watch(widget, {QEvent::LanguageChange}, apply);
}

} // namespace gallery
