// SPDX-License-Identifier: MIT
#include "gui/Icons.h"

#include "gui/Theme.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QTransform>

namespace registers {

namespace {

constexpr double kSide = 24.0; ///< of the square that the paths are drawn in
constexpr double kStroke = 1.8;
constexpr double kDisabledShare = 0.38;

QPainterPath openPath()
{
    QPainterPath path;
    path.moveTo(3.5, 18.5);
    path.lineTo(3.5, 5.5);
    path.lineTo(9, 5.5);
    path.lineTo(11, 8);
    path.lineTo(18.5, 8);
    path.lineTo(18.5, 11);
    path.moveTo(3.5, 18.5);
    path.lineTo(6.5, 11);
    path.lineTo(21.5, 11);
    path.lineTo(18.5, 18.5);
    path.closeSubpath();
    return path;
}

QPainterPath exportPath()
{
    QPainterPath path;
    path.moveTo(12, 3.5);
    path.lineTo(12, 15);
    path.moveTo(7.5, 10.5);
    path.lineTo(12, 15);
    path.lineTo(16.5, 10.5);
    path.moveTo(4, 15);
    path.lineTo(4, 20);
    path.lineTo(20, 20);
    path.lineTo(20, 15);
    return path;
}

/// exportPath() with the arrow turned round.
QPainterPath loadPath()
{
    QPainterPath path;
    path.moveTo(12, 15);
    path.lineTo(12, 3.5);
    path.moveTo(7.5, 8);
    path.lineTo(12, 3.5);
    path.lineTo(16.5, 8);
    path.moveTo(4, 15);
    path.lineTo(4, 20);
    path.lineTo(20, 20);
    path.lineTo(20, 15);
    return path;
}

QPainterPath undoPath()
{
    QPainterPath path;
    path.moveTo(8.5, 4.5);
    path.lineTo(4, 9);
    path.lineTo(8.5, 13.5);
    path.moveTo(4, 9);
    path.lineTo(14, 9);
    path.arcTo(QRectF(9, 9, 10, 10), 90, -180);
    path.lineTo(9, 19);
    return path;
}

QPainterPath redoPath()
{
    return QTransform(-1, 0, 0, 1, kSide, 0).map(undoPath());
}

/// A byte as a row of cells, some of them set.
QPainterPath bitsPath()
{
    QPainterPath path;
    path.addRect(2, 8, 20, 8);
    for (const double x : {7.0, 12.0, 17.0}) {
        path.moveTo(x, 8);
        path.lineTo(x, 16);
    }
    for (const double x : {4.5, 14.5}) {
        path.moveTo(x, 11);
        path.lineTo(x, 13);
    }
    return path;
}

/// Rows, one of them with a dot.
QPainterPath changesPath()
{
    QPainterPath path;
    for (const double y : {6.0, 12.0, 18.0}) {
        path.moveTo(10, y);
        path.lineTo(20, y);
    }
    path.addEllipse(QPointF(5, 12), 1.6, 1.6);
    return path;
}

void addTurn(QPainterPath& path, const QRectF& circle)
{
    path.arcMoveTo(circle, 140);
    path.arcTo(circle, 140, 290);
    const QPointF start(circle.left() + circle.width() * 0.117, circle.top() + circle.height() * 0.179);
    path.moveTo(start + QPointF(-0.6, -4.4));
    path.lineTo(start);
    path.lineTo(start + QPointF(4.4, -0.2));
}

QPainterPath resetPath()
{
    QPainterPath path;
    addTurn(path, QRectF(4.5, 4.5, 15, 15));
    return path;
}

QPainterPath resetAllPath()
{
    QPainterPath path;
    addTurn(path, QRectF(4.5, 4.5, 15, 15));
    path.addEllipse(QPointF(12, 12), 1.6, 1.6);
    return path;
}

QPainterPath searchPath()
{
    QPainterPath path;
    path.addEllipse(QPointF(10.5, 10.5), 5.5, 5.5);
    path.moveTo(14.6, 14.6);
    path.lineTo(20, 20);
    return path;
}

QPainterPath iconPath(LineIcon icon)
{
    switch (icon) {
    case LineIcon::Open:
        return openPath();
    case LineIcon::Load:
        return loadPath();
    case LineIcon::Export:
        return exportPath();
    case LineIcon::Undo:
        return undoPath();
    case LineIcon::Redo:
        return redoPath();
    case LineIcon::Reset:
        return resetPath();
    case LineIcon::ResetAll:
        return resetAllPath();
    case LineIcon::Bits:
        return bitsPath();
    case LineIcon::Changes:
        return changesPath();
    case LineIcon::Search:
        break;
    }
    return searchPath();
}

class LineIconEngine : public QIconEngine
{
public:
    explicit LineIconEngine(LineIcon icon)
        : m_icon(icon)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QApplication::palette();
        const double share = mode == QIcon::Disabled ? kDisabledShare : 0.85;
        const QColor color = mode == QIcon::Selected
                                 ? palette.color(QPalette::HighlightedText)
                                 : blended(palette.color(QPalette::WindowText), palette.color(QPalette::Window), share);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / kSide, rect.height() / kSide);
        painter->setPen(QPen(color, kStroke, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(iconPath(m_icon));
        painter->restore();
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new LineIconEngine(m_icon); }

private:
    LineIcon m_icon;
};

QPixmap applicationPixmap(int side)
{
    constexpr int kCells = 4;
    constexpr bool kBits[kCells * kCells] = {true, false, true,  true, false, true,  false, true,
                                             true, true,  false, true, false, false, true,  false};
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QColor accent = accentColor(QPalette(Qt::white), Accent::Changed);
    const double cell = side / static_cast<double>(kCells);
    for (int i = 0; i < kCells * kCells; ++i) {
        painter.setBrush(kBits[i] ? accent : blended(accent, Qt::white, 0.3));
        painter.drawRoundedRect(QRectF(i % kCells * cell, i / kCells * cell, cell, cell)
                                    .adjusted(cell * 0.08, cell * 0.08, -cell * 0.08, -cell * 0.08),
                                cell * 0.2, cell * 0.2);
    }
    return pixmap;
}

} // namespace

QIcon lineIcon(LineIcon icon)
{
    return QIcon(new LineIconEngine(icon));
}

QIcon applicationIcon()
{
    QIcon icon;
    for (const int side : {16, 24, 32, 48, 64, 128}) {
        icon.addPixmap(applicationPixmap(side));
    }
    return icon;
}

} // namespace registers
