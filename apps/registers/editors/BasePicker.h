// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QButtonGroup;
QT_END_NAMESPACE

namespace registers {

/// Lets pick decimal, hexadecimal or binary with one click.
class BasePicker : public QWidget
{
    Q_OBJECT

public:
    explicit BasePicker(NumberBase base, QWidget* parent = nullptr);

    void setBase(NumberBase base);

Q_SIGNALS:
    /// The user has picked a base.
    void picked(NumberBase base);

private:
    QButtonGroup* m_buttons;
};

} // namespace registers
