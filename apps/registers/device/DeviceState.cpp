// SPDX-License-Identifier: MIT
#include "device/DeviceState.h"

#include <utility>

namespace registers {

DeviceState::DeviceState(DevicePtr device, QObject* parent)
    : QObject(parent)
    , m_device(std::move(device))
{
    m_values.reserve(m_device->registerCount());
    for (const Register& reg : m_device->registers()) {
        m_values.append(reg.resetValue);
    }
}

quint64 DeviceState::fieldValue(int registerIndex, int fieldIndex) const
{
    return registers::fieldValue(m_device->registerAt(registerIndex).fields.at(fieldIndex), value(registerIndex));
}

bool DeviceState::store(int registerIndex, quint64 value)
{
    const quint64 masked = value & m_device->registerAt(registerIndex).valueMask();
    if (masked == m_values.at(registerIndex)) {
        return false;
    }
    m_modifiedCount -= isModified(registerIndex) ? 1 : 0;
    m_values[registerIndex] = masked;
    m_modifiedCount += isModified(registerIndex) ? 1 : 0;
    return true;
}

bool DeviceState::setValue(int registerIndex, quint64 value)
{
    if (!store(registerIndex, value)) {
        return false;
    }
    Q_EMIT registerChanged(registerIndex);
    return true;
}

bool DeviceState::setValues(const QVector<RegisterValue>& values)
{
    bool isChanged = false;
    for (const RegisterValue& one : values) {
        isChanged |= store(one.registerIndex, one.value);
    }
    if (isChanged) {
        Q_EMIT allChanged();
    }
    return isChanged;
}

bool DeviceState::setField(int registerIndex, int fieldIndex, quint64 value)
{
    const Field& field = m_device->registerAt(registerIndex).fields.at(fieldIndex);
    return setValue(registerIndex, withFieldValue(field, m_values.at(registerIndex), value));
}

bool DeviceState::isModified(int registerIndex) const
{
    return m_values.at(registerIndex) != m_device->registerAt(registerIndex).resetValue;
}

bool DeviceState::isFieldModified(int registerIndex, int fieldIndex) const
{
    const Register& reg = m_device->registerAt(registerIndex);
    return fieldValue(registerIndex, fieldIndex) != registers::fieldValue(reg.fields.at(fieldIndex), reg.resetValue);
}

bool DeviceState::reset(int registerIndex)
{
    return setValue(registerIndex, m_device->registerAt(registerIndex).resetValue);
}

bool DeviceState::resetField(int registerIndex, int fieldIndex)
{
    const Register& reg = m_device->registerAt(registerIndex);
    return setField(registerIndex, fieldIndex, registers::fieldValue(reg.fields.at(fieldIndex), reg.resetValue));
}

void DeviceState::resetAll()
{
    if (m_modifiedCount == 0) {
        return;
    }
    for (int i = 0; i < m_values.size(); ++i) {
        m_values[i] = m_device->registerAt(i).resetValue;
    }
    m_modifiedCount = 0;
    Q_EMIT allChanged();
}

} // namespace registers
