// SPDX-License-Identifier: MIT
#include "look/Badge.h"

#include "common/Theme.h"

#include <QFontMetrics>
#include <QPainter>

namespace registers {

namespace {

constexpr int kSideMargin = 7;
constexpr int kTopMargin = 2;
constexpr double kFontShare = 0.88;
constexpr double kFillShare = 0.10;
constexpr double kFrameShare = 0.55;

} // namespace

Badge::Badge(const Note& note, QWidget* parent)
    : QWidget(parent)
    , m_note(note)
{
    setToolTip(note.explanation);
    setAccessibleName(note.text);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont Badge::textFont() const
{
    QFont small = font();
    if (small.pointSizeF() > 0) {
        small.setPointSizeF(small.pointSizeF() * kFontShare);
    }
    return small;
}

QSize Badge::sizeHint() const
{
    const QFontMetrics metrics(textFont());
    return {metrics.horizontalAdvance(m_note.text) + 2 * kSideMargin, metrics.height() + 2 * kTopMargin};
}

void Badge::paintEvent(QPaintEvent*)
{
    const QColor color = accentColor(palette(), m_note.accent);
    const QColor ground = palette().color(backgroundRole());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(apps::blended(color, ground, kFrameShare));
    painter.setBrush(apps::blended(color, ground, kFillShare));
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.drawRoundedRect(frame, frame.height() / 2, frame.height() / 2);
    painter.setPen(color);
    painter.setFont(textFont());
    painter.drawText(rect(), Qt::AlignCenter, m_note.text);
}

} // namespace registers
