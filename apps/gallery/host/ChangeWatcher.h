// SPDX-License-Identifier: MIT
#pragma once

#include <QEvent>
#include <QObject>
#include <QVector>

#include <functional>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/// Calls a function when a widget is told of a change, of the language say. It belongs to the widget.
class ChangeWatcher : public QObject
{
    Q_OBJECT

public:
    /// Calls @p answer at every event of @p types, before @p widget itself sees it, but not now.
    static void watch(QWidget* widget, const QVector<QEvent::Type>& types, std::function<void()> answer);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    ChangeWatcher(QWidget* widget, const QVector<QEvent::Type>& types, std::function<void()> answer);

    QVector<QEvent::Type> m_types;
    std::function<void()> m_answer;
};

/// Calls @p apply now and at every change of the language.
void retranslate(QWidget* widget, const std::function<void()>& apply);

} // namespace gallery
