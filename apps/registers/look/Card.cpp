// SPDX-License-Identifier: MIT
#include "look/Card.h"

#include "common/Card.h"
#include "look/Theme.h"

namespace registers {

Card::Card(QWidget* parent)
    : QWidget(parent)
{
}

void Card::paintEvent(QPaintEvent*)
{
    apps::paintCard(*this, cardColor(palette()));
}

} // namespace registers
