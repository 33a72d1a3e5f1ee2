// SPDX-License-Identifier: MIT
#include "gui/Card.h"

#include "gui/Theme.h"

#include <QPainter>

namespace registers {

namespace {

constexpr double kRadius = 6.0;

} // namespace

Card::Card(QWidget* parent)
    : QWidget(parent)
{
}

void Card::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(lineColor(palette()));
    painter.setBrush(cardColor(palette()));
    painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

} // namespace registers
