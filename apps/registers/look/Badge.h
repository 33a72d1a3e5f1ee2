// SPDX-License-Identifier: MIT
#pragma once

#include "look/Access.h"

#include <QWidget>

namespace registers {

/// A few words in a frame with round ends.
class Badge : public QWidget
{
    Q_OBJECT

public:
    explicit Badge(const Note& note, QWidget* parent = nullptr);

    QString text() const { return m_note.text; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QFont textFont() const;

    Note m_note;
};

} // namespace registers
