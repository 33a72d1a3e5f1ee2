// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>
#include <QWidget>

QT_BEGIN_NAMESPACE
class QPainter;
QT_END_NAMESPACE

namespace registers {

/// The mark of what differs from its reset value: a dot. A ring stands for something that differs further down.
enum class MarkShape { None, Dot, Ring };

void paintMark(QPainter& painter, const QRectF& area, MarkShape shape, const QColor& color);

/// The mark as an icon, drawn anew for every size, palette and state. MarkShape::None keeps its place empty.
QIcon markIcon(MarkShape shape);

/// The mark as a widget, which keeps its place when it is not shown.
class ChangeMark : public QWidget
{
    Q_OBJECT

public:
    explicit ChangeMark(QWidget* parent = nullptr);

    bool isMarked() const { return m_marked; }
    void setMarked(bool marked, const QString& toolTip);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool m_marked = false;
};

} // namespace registers
