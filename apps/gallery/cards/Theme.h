// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QPalette>

namespace gallery {

/// The ground of a card: one that the boxes on it stand out from.
QColor cardColor(const QPalette& palette);

/// The ground of code.
QColor codeColor(const QPalette& palette);

/// For text of less weight; still of a good contrast.
QColor captionColor(const QPalette& palette);

} // namespace gallery
