// SPDX-License-Identifier: MIT
#pragma once

#include <QPixmap>
#include <QString>

namespace gallery {

/// A picture of the gallery with all of the page of that name.
QPixmap pictureOfPage(const QString& name);

/// A picture of one of the dialogs.
QPixmap pictureOfDialog(const QString& name);

} // namespace gallery
