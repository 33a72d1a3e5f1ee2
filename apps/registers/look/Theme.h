// SPDX-License-Identifier: MIT
#pragma once

#include <QColor>
#include <QFont>
#include <QPalette>

QT_BEGIN_NAMESPACE
class QWidget;
QT_END_NAMESPACE

namespace registers {

/// What a colour is to tell. It never tells it alone: a word or a shape stands beside it.
enum class Accent { Changed, Caution, Current, Plain };

/// A colour of the library's palette that reads well on the ground of @p palette.
QColor accentColor(const QPalette& palette, Accent accent);

/// For text of less weight, such as captions; still of a good contrast.
QColor captionColor(const QPalette& palette);

/// The ground of a card: one that the boxes on it stand out from.
QColor cardColor(const QPalette& palette);

/// Where a text begins in the direction of @p widget, whatever the direction of the text itself.
Qt::Alignment leadingAlignment(const QWidget* widget);

/// The fixed-pitch font in the size of @p font.
QFont numberFont(const QFont& font);

} // namespace registers
