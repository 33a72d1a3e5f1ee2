// SPDX-License-Identifier: MIT
#include "common/Screenshot.h"

#include <QCoreApplication>
#include <QPointer>
#include <QWidget>

namespace apps {

namespace {

/// What the window deletes later would still be seen.
void deleteLeftovers(QWidget* window)
{
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    const QVector<QPointer<QWidget>> guarded(children.cbegin(), children.cend());
    for (const QPointer<QWidget>& child : guarded) {
        if (child) {
            QCoreApplication::sendPostedEvents(child, QEvent::DeferredDelete);
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace

void showUnseen(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setWindowModality(Qt::NonModal);
    window->show();
}

QPixmap pictureOf(QWidget* window)
{
    showUnseen(window);
    deleteLeftovers(window);
    const QPixmap picture = window->grab();
    window->hide();
    return picture;
}

} // namespace apps
