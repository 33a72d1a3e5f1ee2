// SPDX-License-Identifier: MIT
#pragma once

#include <QWidget>

namespace registers {

/// A part of a form: its ground, framed, with round corners.
class Card : public QWidget
{
    Q_OBJECT

public:
    explicit Card(QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace registers
