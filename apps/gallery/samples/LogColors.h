// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>

namespace gallery {

// Colours of the library's palette that read well on the ground of the application's palette: the dark steps on a
// light one, the light steps on a dark one.

QColor successColor();
QColor warningColor();
QColor dangerColor();

} // namespace gallery
