// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"

#include <QObject>
#include <QVector>

namespace registers {

/// A value for one register.
struct RegisterValue
{
    int registerIndex = -1;
    quint64 value = 0;
};

/// The edited values of one device. Every register starts at its reset value.
class DeviceState : public QObject
{
    Q_OBJECT

public:
    explicit DeviceState(DevicePtr device, QObject* parent = nullptr);

    const Device& device() const { return *m_device; }
    const DevicePtr& devicePtr() const { return m_device; }

    quint64 value(int registerIndex) const { return m_values.at(registerIndex); }
    /// Of all registers, in their order.
    const QVector<quint64>& values() const { return m_values; }
    quint64 fieldValue(int registerIndex, int fieldIndex) const;

    /// Sets a register; bits beyond its size are dropped. Returns whether the value changed.
    bool setValue(int registerIndex, quint64 value);
    /// Sets many registers at once, as setValue() does; of several values for one register the last counts. Returns
    /// whether any value changed; allChanged() tells of it.
    bool setValues(const QVector<RegisterValue>& values);
    /// Sets the bits of one field; bits beyond its width, or beyond the register, are dropped.
    bool setField(int registerIndex, int fieldIndex, quint64 value);

    /// True when the value differs from the reset value.
    bool isModified(int registerIndex) const;
    bool isFieldModified(int registerIndex, int fieldIndex) const;
    int modifiedCount() const { return m_modifiedCount; }

    bool reset(int registerIndex);
    bool resetField(int registerIndex, int fieldIndex);
    void resetAll();

Q_SIGNALS:
    /// One register has a new value.
    void registerChanged(int registerIndex);
    /// Any number of registers may have new values; registerChanged() is not emitted for them.
    void allChanged();

private:
    bool store(int registerIndex, quint64 value);

    DevicePtr m_device;
    QVector<quint64> m_values;
    int m_modifiedCount = 0;
};

} // namespace registers
