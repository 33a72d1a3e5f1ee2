// SPDX-License-Identifier: MIT
#pragma once

#include <QVector>
#include <QWidget>

namespace registers {

class NumberBox;
struct Register;

/// The value of a register in three boxes: decimal, hexadecimal and binary.
class ValuePanel : public QWidget
{
    Q_OBJECT

public:
    explicit ValuePanel(const Register& reg, QWidget* parent = nullptr);

    void setValue(quint64 value);

    NumberBox* decimal() const { return m_decimal; }
    NumberBox* hexadecimal() const { return m_hexadecimal; }
    NumberBox* binary() const { return m_binary; }

Q_SIGNALS:
    void valueEdited(quint64 value);

private:
    NumberBox* m_decimal;
    NumberBox* m_hexadecimal;
    NumberBox* m_binary;
};

} // namespace registers
