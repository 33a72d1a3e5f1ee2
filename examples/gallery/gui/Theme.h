// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace gallery {

/// True for a palette with light text on a dark ground.
bool isDark(const QPalette& palette);

/// The ground of a card: one that the boxes on it stand out from.
QColor cardColor(const QPalette& palette);

/// The ground of code.
QColor codeColor(const QPalette& palette);

/// For lines between things.
QColor lineColor(const QPalette& palette);

/// For text of less weight; still of a good contrast.
QColor captionColor(const QPalette& palette);

} // namespace gallery
