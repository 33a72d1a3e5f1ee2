// SPDX-License-Identifier: MIT
#include "look/ChangeMark.h"

#include "look/PaintedIconEngine.h"
#include "look/Theme.h"

#include <QApplication>
#include <QPainter>

namespace registers {

namespace {

constexpr int kMarkSide = 12;
constexpr double kDotShare = 0.27; ///< of the area's side, as the radius
constexpr double kRingWidth = 1.4;

class MarkIconEngine : public PaintedIconEngine
{
public:
    explicit MarkIconEngine(MarkShape shape)
        : m_shape(shape)
    {
    }

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const QPalette palette = QApplication::palette();
        const QColor color =
            mode == QIcon::Selected ? palette.color(QPalette::HighlightedText) : accentColor(palette, Accent::Changed);
        paintMark(*painter, rect, m_shape, color);
    }

    QIconEngine* clone() const override { return new MarkIconEngine(m_shape); }

private:
    MarkShape m_shape;
};

} // namespace

void paintMark(QPainter& painter, const QRectF& area, MarkShape shape, const QColor& color)
{
    if (shape == MarkShape::None) {
        return;
    }
    const double radius = qMin(area.width(), area.height()) * kDotShare;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (shape == MarkShape::Dot) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(color);
    } else {
        painter.setPen(QPen(color, kRingWidth));
        painter.setBrush(Qt::NoBrush);
    }
    painter.drawEllipse(area.center(), radius, radius);
    painter.restore();
}

QIcon markIcon(MarkShape shape)
{
    return QIcon(new MarkIconEngine(shape));
}

ChangeMark::ChangeMark(QWidget* parent)
    : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ChangeMark::setMarked(bool marked, const QString& toolTip)
{
    m_marked = marked;
    setToolTip(marked ? toolTip : QString());
    setAccessibleName(toolTip);
    update();
}

QSize ChangeMark::sizeHint() const
{
    return {kMarkSide, kMarkSide};
}

void ChangeMark::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintMark(painter, rect(), m_marked ? MarkShape::Dot : MarkShape::None, accentColor(palette(), Accent::Changed));
}

} // namespace registers
