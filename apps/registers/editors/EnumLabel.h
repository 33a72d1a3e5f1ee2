// SPDX-License-Identifier: MIT
#pragma once

#include "editors/ValueEditor.h"
#include "text/EnumText.h"

QT_BEGIN_NAMESPACE
class QLineEdit;
QT_END_NAMESPACE

namespace registers {

/// The name and number of an enumerated field that cannot be written, as text to be read and copied.
class EnumLabel : public ValueEditor
{
    Q_OBJECT

public:
    EnumLabel(EnumText names, NumberBase base, QWidget* parent = nullptr);

    quint64 value() const override;
    void setValue(quint64 value) override;
    void setBase(NumberBase base) override;

private:
    void showValue();

    EnumText m_names;
    QLineEdit* m_edit;
    quint64 m_value = 0;
    NumberBase m_base;
};

} // namespace registers
