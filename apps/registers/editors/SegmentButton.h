// SPDX-License-Identifier: MIT
#pragma once

#include <QAbstractButton>

namespace registers {

/// One of several buttons side by side of which one is chosen. The chosen one is filled and bold.
class SegmentButton : public QAbstractButton
{
    Q_OBJECT

public:
    enum class Place { First, Middle, Last };

    SegmentButton(const QString& text, Place place, QWidget* parent = nullptr);

    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont boldFont() const;

    Place m_place;
};

} // namespace registers
