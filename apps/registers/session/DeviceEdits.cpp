// SPDX-License-Identifier: MIT
#include "session/DeviceEdits.h"

namespace registers {

DeviceEdits::DeviceEdits(DeviceState& state, QObject* parent)
    : QObject(parent)
    , m_state(state)
    , m_history(state)
{
    connect(&m_history, &EditHistory::stepped, this, &DeviceEdits::stepped);
}

void DeviceEdits::push(const PathTarget& target, const QVector<RegisterValue>& after, const QString& text)
{
    QVector<RegisterValue> changes;
    for (const RegisterValue& one : after) {
        const quint64 value = one.value & device().registerAt(one.registerIndex).valueMask();
        if (value != m_state.value(one.registerIndex)) {
            changes.append({one.registerIndex, value});
        }
    }
    if (!changes.isEmpty()) {
        m_history.push(target, changes, text);
    }
}

void DeviceEdits::setRegister(int registerIndex, quint64 value)
{
    push({registerIndex, -1}, {{registerIndex, value}},
         tr("change of %1").arg(device().registerAt(registerIndex).path));
}

void DeviceEdits::setField(int registerIndex, int fieldIndex, quint64 value)
{
    const Register& reg = device().registerAt(registerIndex);
    const Field& field = reg.fields.at(fieldIndex);
    push({registerIndex, fieldIndex}, {{registerIndex, withFieldValue(field, m_state.value(registerIndex), value)}},
         tr("change of %1").arg(reg.path + QLatin1Char('.') + field.name));
}

void DeviceEdits::set(const PathTarget& target, quint64 value)
{
    if (target.isField()) {
        setField(target.registerIndex, target.fieldIndex, value);
    } else {
        setRegister(target.registerIndex, value);
    }
}

void DeviceEdits::reset(int registerIndex)
{
    endGesture();
    const Register& reg = device().registerAt(registerIndex);
    push({registerIndex, -1}, {{registerIndex, reg.resetValue}}, tr("reset of %1").arg(reg.path));
    endGesture();
}

void DeviceEdits::resetAll()
{
    QVector<RegisterValue> values;
    for (int i = 0; i < device().registerCount(); ++i) {
        if (m_state.isModified(i)) {
            values.append({i, device().registerAt(i).resetValue});
        }
    }
    push({}, values, tr("reset of all registers"));
}

void DeviceEdits::setAll(const QVector<RegisterValue>& values, const QString& source)
{
    push({}, values, tr("values from %1").arg(source));
}

} // namespace registers
