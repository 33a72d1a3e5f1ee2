// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace apps {

/// Lays @p window out as if it were shown. Nothing appears on the screen.
void showUnseen(QWidget* window);

/// A picture of @p window as it looks when it has been shown. Nothing appears on the screen, and @p window is hidden
/// afterwards.
QPixmap pictureOf(QWidget* window);

} // namespace apps
