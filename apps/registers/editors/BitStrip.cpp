// SPDX-License-Identifier: MIT
#include "editors/BitStrip.h"

#include "common/Theme.h"
#include "device/Device.h"
#include "look/Access.h"
#include "look/Theme.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>

namespace registers {

namespace {

constexpr int kLongestLine = 32;
constexpr int kNoField = -1;
constexpr double kWidestCell = 26.0;
constexpr double kNarrowestCell = 11.0;
constexpr int kBitMargin = 3;
constexpr int kLineGap = 8;
constexpr int kShortestElided = 4;
constexpr double kSmallFont = 0.78;
constexpr double kFieldFill = 0.07;
constexpr double kOneFill = 0.26;
constexpr double kHoverFill = 0.16;

QFont smallFont(const QFont& font)
{
    QFont small = font;
    if (small.pointSizeF() > 0) {
        small.setPointSizeF(small.pointSizeF() * kSmallFont);
    }
    return small;
}

/// @p name, elided or left out when @p width is too narrow for it.
QString fittingName(const QString& name, const QFontMetrics& metrics, double width)
{
    const int room = static_cast<int>(width);
    if (metrics.horizontalAdvance(name) <= room) {
        return name;
    }
    return room < metrics.horizontalAdvance(QString(kShortestElided, QLatin1Char('N')))
               ? QString()
               : metrics.elidedText(name, Qt::ElideRight, room);
}

} // namespace

BitStrip::BitStrip(const Register& reg, QWidget* parent)
    : QWidget(parent)
    , m_register(reg)
    , m_fieldOfBit(reg.size, kNoField)
{
    for (int i = static_cast<int>(reg.fields.size()) - 1; i >= 0; --i) {
        const Field& field = reg.fields.at(i);
        for (int bit = field.lsb; bit < std::min<int>(field.lsb + field.width, reg.size); ++bit) {
            m_fieldOfBit[bit] = i;
        }
    }
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void BitStrip::setValue(quint64 value)
{
    if (value != m_value) {
        m_value = value;
        update();
    }
}

int BitStrip::lineCount() const
{
    return (m_register.size + kLongestLine - 1) / kLongestLine;
}

int BitStrip::bitsPerLine() const
{
    return std::min<int>(m_register.size, kLongestLine);
}

int BitStrip::lineHeight() const
{
    const QFontMetrics small(smallFont(font()));
    return 2 * small.height() + fontMetrics().height() + 4 * kBitMargin;
}

double BitStrip::cellWidth() const
{
    return std::clamp(static_cast<double>(width() - 1) / bitsPerLine(), kNarrowestCell, kWidestCell);
}

int BitStrip::numberStep() const
{
    return cellWidth() >= QFontMetrics(smallFont(font())).horizontalAdvance(QStringLiteral("000")) ? 1 : 4;
}

QSize BitStrip::sizeHint() const
{
    return {static_cast<int>(kWidestCell * bitsPerLine()) + 1,
            lineCount() * lineHeight() + (lineCount() - 1) * kLineGap};
}

QSize BitStrip::minimumSizeHint() const
{
    return {static_cast<int>(kNarrowestCell * bitsPerLine()) + 1, sizeHint().height()};
}

QRectF BitStrip::bitRect(int bit) const
{
    // The last line holds the lowest bits; a first line that is not full is aligned with it at the right.
    const int line = lineCount() - 1 - bit / kLongestLine;
    const int column = bitsPerLine() - 1 - bit % kLongestLine;
    const QFontMetrics small(smallFont(font()));
    const double left = layoutDirection() == Qt::RightToLeft ? width() - 1 - cellWidth() * bitsPerLine() : 0.0;
    return {0.5 + left + column * cellWidth(), 0.5 + line * (lineHeight() + kLineGap) + small.height(), cellWidth(),
            static_cast<double>(fontMetrics().height() + 2 * kBitMargin)};
}

int BitStrip::bitAt(const QPoint& position) const
{
    for (int bit = 0; bit < m_register.size; ++bit) {
        if (bitRect(bit).contains(position)) {
            return bit;
        }
    }
    return -1;
}

bool BitStrip::isWritableBit(int bit) const
{
    const int field = m_fieldOfBit.at(bit);
    return isWritable(field == kNoField ? m_register.access : m_register.fields.at(field).access);
}

void BitStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    for (int bit = 0; bit < m_register.size; ++bit) {
        paintBit(painter, bit);
    }
    for (int line = 0; line < lineCount(); ++line) {
        paintSpans(painter, line);
    }
}

void BitStrip::paintBit(QPainter& painter, int bit) const
{
    const QRectF cell = bitRect(bit);
    const QColor ground = cardColor(palette());
    const QColor accent = accentColor(palette(), Accent::Changed);
    const bool isOne = (m_value >> bit) & 1U;
    const int field = m_fieldOfBit.at(bit);
    const bool hovered =
        m_hovered >= 0 && (bit == m_hovered || (field != kNoField && field == m_fieldOfBit.at(m_hovered)));

    double fill = field == kNoField ? 0.0 : kFieldFill;
    fill = isOne ? kOneFill : fill;
    fill += hovered ? kHoverFill : 0.0;
    painter.fillRect(cell, apps::blended(accent, ground, fill));
    painter.setPen(apps::lineColor(palette()));
    painter.drawRect(cell);

    QFont digitFont = numberFont(font());
    const bool changed = ((m_value ^ m_register.resetValue) >> bit) & 1U;
    digitFont.setBold(changed);
    painter.setFont(digitFont);
    painter.setPen(isOne || changed ? palette().color(QPalette::Text) : captionColor(palette()));
    painter.drawText(cell, Qt::AlignCenter, isOne ? QStringLiteral("1") : QStringLiteral("0"));
    if (bit % numberStep() == 0) {
        painter.setFont(smallFont(font()));
        painter.setPen(captionColor(palette()));
        const double height = QFontMetrics(smallFont(font())).height();
        const double margin = cellWidth(); // a number may be wider than its cell
        painter.drawText(QRectF(cell.left() - margin, cell.top() - height, cell.width() + 2 * margin, height),
                         Qt::AlignCenter, QString::number(bit));
    }
    if (changed) {
        painter.fillRect(QRectF(cell.left() + 1, cell.bottom() - 2, cell.width() - 2, 2), accent);
    }
}

void BitStrip::paintSpans(QPainter& painter, int line) const
{
    const int lowest = (lineCount() - 1 - line) * kLongestLine;
    const int end = std::min<int>(lowest + kLongestLine, m_register.size);
    const QFontMetrics small(smallFont(font()));
    painter.setFont(smallFont(font()));
    for (int bit = lowest; bit < end;) {
        const int field = m_fieldOfBit.at(bit);
        int last = bit;
        while (last + 1 < end && m_fieldOfBit.at(last + 1) == field) {
            ++last;
        }
        const QRectF span = bitRect(last).united(bitRect(bit));
        const QRectF below(span.left() + 1, span.bottom() + 1, span.width() - 2, small.height());
        if (field != kNoField) {
            painter.setPen(palette().color(QPalette::Text));
            painter.drawText(below, Qt::AlignCenter,
                             fittingName(m_register.fields.at(field).name, small, below.width()));
        }
        painter.setPen(captionColor(palette()));
        painter.drawRect(span);
        bit = last + 1;
    }
}

QString BitStrip::bitToolTip(int bit) const
{
    const int index = m_fieldOfBit.at(bit);
    if (index == kNoField) {
        return tr("Bit %1: in no field").arg(bit);
    }
    const Field& field = m_register.fields.at(index);
    return tr("Bit %1 of %2 %3").arg(bit).arg(field.name, bitRangeText(field.msb(), field.lsb));
}

bool BitStrip::event(QEvent* event)
{
    if (event->type() == QEvent::ToolTip) {
        auto* help = static_cast<QHelpEvent*>(event);
        const int bit = bitAt(help->pos());
        if (bit < 0) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(help->globalPos(), bitToolTip(bit), this);
        }
        return true;
    }
    return QWidget::event(event);
}

void BitStrip::setHovered(int bit)
{
    if (bit != m_hovered) {
        m_hovered = bit;
        update();
    }
}

void BitStrip::mouseMoveEvent(QMouseEvent* event)
{
    const int bit = bitAt(event->pos());
    setHovered(bit);
    setCursor(bit >= 0 && isWritableBit(bit) ? Qt::PointingHandCursor : Qt::ArrowCursor);
}

void BitStrip::mousePressEvent(QMouseEvent* event)
{
    const int bit = bitAt(event->pos());
    if (event->button() == Qt::LeftButton && bit >= 0 && isWritableBit(bit)) {
        Q_EMIT valueEdited(m_value ^ (quint64(1) << bit));
    }
}

void BitStrip::mouseReleaseEvent(QMouseEvent* event)
{
    event->accept(); // it belongs to the press
}

void BitStrip::leaveEvent(QEvent*)
{
    setHovered(-1);
}

} // namespace registers
