// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace gallery {

/// A picture of @p window as it looks when it has been shown. Nothing appears on the screen, and @p window is hidden
/// afterwards.
QPixmap pictureOf(QWidget* window);

/// A picture of the gallery with all of the page of that name.
QPixmap pictureOfPage(const QString& name);

/// A picture of one of the dialogs.
QPixmap pictureOfDialog(const QString& name);

} // namespace gallery
