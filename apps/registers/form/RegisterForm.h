// SPDX-License-Identifier: MIT
#pragma once

#include "text/NumberText.h"

#include <QWidget>

QT_BEGIN_NAMESPACE
class QPushButton;
QT_END_NAMESPACE

namespace registers {

class BasePicker;
class BitStrip;
class DeviceEdits;
class DeviceState;
class FieldTable;
class Heading;
class ValuePanel;
struct Register;

/// One register of a device: what it is, its value, and its fields.
///
/// Every edit goes through DeviceEdits to the device's state, and only the state's signals change what is shown; so
/// all editors agree and none answers another.
class RegisterForm : public QWidget
{
    Q_OBJECT

public:
    /// @p edits must live as long as this widget.
    RegisterForm(DeviceEdits& edits, int registerIndex, NumberBase fieldBase, QWidget* parent = nullptr);

    int registerIndex() const { return m_index; }
    ValuePanel* values() const { return m_values; }
    /// Null for a register without fields.
    FieldTable* fields() const { return m_fields; }
    BitStrip* bits() const { return m_bits; }

    void setFieldBase(NumberBase base);

Q_SIGNALS:
    void fieldBasePicked(NumberBase base);

private:
    const Register& reg() const;
    Heading* makeHeading();
    QWidget* makeValueCard();
    QWidget* makeFieldCard(NumberBase fieldBase);
    void showValue();
    void showIfMine(int registerIndex);
    void setRegister(quint64 value);
    void flipBit(quint64 value);
    void setField(int fieldIndex, quint64 value);

    DeviceEdits& m_edits;
    const DeviceState& m_state;
    int m_index;
    Heading* m_heading = nullptr;
    ValuePanel* m_values = nullptr;
    BitStrip* m_bits = nullptr;
    QPushButton* m_reset = nullptr;
    BasePicker* m_basePicker = nullptr;
    FieldTable* m_fields = nullptr;
};

} // namespace registers
