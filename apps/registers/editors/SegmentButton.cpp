// SPDX-License-Identifier: MIT
#include "editors/SegmentButton.h"

#include "common/Theme.h"
#include "look/Theme.h"

#include <QPainter>
#include <QPainterPath>

namespace registers {

namespace {

constexpr int kSideMargin = 11;
constexpr int kTopMargin = 4;
constexpr double kRadius = 4.0;
constexpr double kChosenShare = 0.22;
constexpr double kHoverShare = 0.09;
constexpr double kFrameShare = 0.30;

} // namespace

SegmentButton::SegmentButton(const QString& text, Place place, QWidget* parent)
    : QAbstractButton(parent)
    , m_place(place)
{
    setText(text);
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

QFont SegmentButton::boldFont() const
{
    QFont bold = font();
    bold.setBold(true);
    return bold;
}

QSize SegmentButton::sizeHint() const
{
    const QFontMetrics metrics(boldFont());
    return {metrics.horizontalAdvance(text()) + 2 * kSideMargin, metrics.height() + 2 * kTopMargin};
}

void SegmentButton::paintEvent(QPaintEvent*)
{
    const QColor ground = cardColor(palette());
    const QColor accent = accentColor(palette(), Accent::Changed);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(rect());

    // Outer ends are round; inner ones run on beyond the widget, so that neighbours share a line.
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    const bool roundLeft = m_place == (mirrored ? Place::Last : Place::First);
    const bool roundRight = m_place == (mirrored ? Place::First : Place::Last);
    const QRectF shape =
        QRectF(rect()).adjusted(roundLeft ? 0.5 : -2 * kRadius, 0.5, roundRight ? -0.5 : 2 * kRadius, -0.5);
    QPainterPath outline;
    outline.addRoundedRect(shape, kRadius, kRadius);

    const double share = isChecked() ? kChosenShare : (underMouse() ? kHoverShare : 0.0);
    painter.fillPath(outline, apps::blended(accent, ground, share));
    painter.setPen(apps::blended(palette().color(QPalette::WindowText), ground, kFrameShare));
    painter.drawPath(outline);
    if (!roundLeft) {
        painter.drawLine(QPointF(0.5, 0.5), QPointF(0.5, height() - 0.5));
    }
    if (hasFocus()) {
        painter.setPen(QPen(accent, 1.0));
        painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), kRadius / 2, kRadius / 2);
    }
    painter.setFont(isChecked() ? boldFont() : font());
    painter.setPen(palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
}

} // namespace registers
