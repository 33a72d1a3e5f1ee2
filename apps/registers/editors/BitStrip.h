// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

namespace registers {

struct Register;

/// The bits of a register as a picture, the most significant one at the left, with the fields they belong to. A
/// click on a bit that can be written turns it over.
class BitStrip : public QWidget
{
    Q_OBJECT

public:
    /// @p reg must live as long as this widget.
    explicit BitStrip(const Register& reg, QWidget* parent = nullptr);

    void setValue(quint64 value);

    /// Where a bit is drawn.
    QRectF bitRect(int bit) const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user has turned a bit over.
    void valueEdited(quint64 value);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

private:
    int lineCount() const;
    int bitsPerLine() const;
    int lineHeight() const;
    double cellWidth() const;
    int numberStep() const;
    int bitAt(const QPoint& position) const;
    bool isWritableBit(int bit) const;
    void setHovered(int bit);
    QString bitToolTip(int bit) const;
    void paintBit(QPainter& painter, int bit) const;
    void paintSpans(QPainter& painter, int line) const;

    const Register& m_register;
    QVector<int> m_fieldOfBit; ///< the field shown at a bit, or -1
    quint64 m_value = 0;
    int m_hovered = -1;
};

} // namespace registers
