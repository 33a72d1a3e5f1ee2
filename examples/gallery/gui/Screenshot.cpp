// SPDX-License-Identifier: MIT
#include "gui/Screenshot.h"

#include "gui/DialogCatalog.h"
#include "gui/MainWindow.h"

#include <QCoreApplication>
#include <QDialog>
#include <QPointer>

#include <memory>

namespace gallery {

namespace {

constexpr int kSettlingRounds = 3; // a page's height follows its width, and that the scroll bar

void showUnseen(QWidget* window)
{
    window->setAttribute(Qt::WA_DontShowOnScreen);
    window->setAttribute(Qt::WA_ShowWithoutActivating);
    window->setWindowModality(Qt::NonModal);
    window->show();
}

/// What the window deletes later would still be seen.
void deleteLeftovers(QWidget* window)
{
    const QList<QWidget*> children = window->findChildren<QWidget*>();
    for (const QPointer<QWidget> child : children) {
        if (child) {
            QCoreApplication::sendPostedEvents(child, QEvent::DeferredDelete);
        }
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
}

} // namespace

QPixmap pictureOf(QWidget* window)
{
    showUnseen(window);
    deleteLeftovers(window);
    const QPixmap picture = window->grab();
    window->hide();
    return picture;
}

QPixmap pictureOfPage(const QString& name)
{
    MainWindow window;
    window.showPage(name);
    showUnseen(&window);
    for (int i = 0; i < kSettlingRounds; ++i) {
        QCoreApplication::processEvents();
        window.fitPage();
    }
    QCoreApplication::processEvents();
    return window.grab();
}

QPixmap pictureOfDialog(const QString& name)
{
    const std::unique_ptr<QDialog> dialog(dialogNamed(name).make(nullptr));
    return pictureOf(dialog.get());
}

} // namespace gallery
