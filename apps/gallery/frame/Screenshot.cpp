// SPDX-License-Identifier: MIT
#include "frame/Screenshot.h"

#include "common/Screenshot.h"
#include "frame/MainWindow.h"
#include "pages/DialogCatalog.h"

#include <QCoreApplication>
#include <QDialog>

#include <memory>

namespace gallery {

namespace {

constexpr int kSettlingRounds = 3; // a page's height follows its width, and that the scroll bar

} // namespace

QPixmap pictureOfPage(const QString& name)
{
    MainWindow window;
    window.showPage(name);
    apps::showUnseen(&window);
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
    return apps::pictureOf(dialog.get());
}

} // namespace gallery
