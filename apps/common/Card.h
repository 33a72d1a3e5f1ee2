// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

QT_BEGIN_NAMESPACE
class QColor;
class QWidget;
QT_END_NAMESPACE

namespace apps {

/// Paints @p widget as a card: @p ground, framed, with round corners. To be called from its paintEvent().
void paintCard(QWidget& widget, const QColor& ground);

} // namespace apps
