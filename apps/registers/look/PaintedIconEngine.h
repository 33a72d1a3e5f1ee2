// SPDX-License-Identifier: MIT
#pragma once

#include <QIconEngine>
#include <QPainter>
#include <QPixmap>

namespace registers {

/// An icon that is painted anew for every size and state: paint() is all that it needs to be told.
class PaintedIconEngine : public QIconEngine
{
public:
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }
};

} // namespace registers
