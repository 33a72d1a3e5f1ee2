// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace apps {

/// True for a palette with light text on a dark ground.
bool isDark(const QPalette& palette);

/// @p front over @p back, with @p share of it from 0 to 1.
QColor blended(const QColor& front, const QColor& back, double share);

/// The text's colour over @p back, with @p share of it from 0 to 1.
QColor tinted(const QPalette& palette, const QColor& back, double share);

/// For lines between things.
QColor lineColor(const QPalette& palette);

/// The ground of a card: one that the boxes on it stand out from. On a dark ground it has @p darkShare of the text.
QColor cardColor(const QPalette& palette, double darkShare);

} // namespace apps
