// SPDX-License-Identifier: MIT
#include "common/Card.h"

#include "common/Theme.h"

#include <QPainter>
#include <QWidget>

namespace apps {

namespace {

constexpr double kRadius = 6.0;

} // namespace

void paintCard(QWidget& widget, const QColor& ground)
{
    QPainter painter(&widget);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(lineColor(widget.palette()));
    painter.setBrush(ground);
    painter.drawRoundedRect(QRectF(widget.rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

} // namespace apps
