// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

QT_BEGIN_NAMESPACE
class QAbstractSpinBox;
QT_END_NAMESPACE

namespace gallery {

/// Keeps @p box wide enough for @p widest, prefix and suffix included, in whatever font it has. The library's integer
/// boxes do not know how wide their range is.
void keepRoom(QAbstractSpinBox* box, const QString& widest);

} // namespace gallery
