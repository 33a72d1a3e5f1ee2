// SPDX-License-Identifier: MIT
#include "gui/DeviceEdits.h"

#include <QUndoCommand>

#include <utility>

namespace registers {

/// Sets some registers; knows what they held before.
class DeviceEdits::Command : public QUndoCommand
{
public:
    Command(DeviceEdits& edits, const PathTarget& target, QVector<RegisterValue> after, const QString& text)
        : QUndoCommand(text)
        , m_edits(edits)
        , m_target(target)
        , m_gesture(edits.m_gesture)
        , m_after(std::move(after))
    {
        m_before.reserve(m_after.size());
        for (const RegisterValue& one : qAsConst(m_after)) {
            m_before.append({one.registerIndex, m_edits.m_state.value(one.registerIndex)});
        }
    }

    void redo() override
    {
        apply(m_after);
        if (std::exchange(m_isDone, true)) {
            m_edits.endGesture();
            Q_EMIT m_edits.stepped(m_target);
        }
    }

    void undo() override
    {
        apply(m_before);
        m_edits.endGesture();
        Q_EMIT m_edits.stepped(m_target);
    }

    int id() const override { return m_target.isValid() ? 1 : -1; }

    bool mergeWith(const QUndoCommand* other) override
    {
        const auto* next = static_cast<const Command*>(other);
        if (next->m_gesture != m_gesture || next->m_target.registerIndex != m_target.registerIndex ||
            next->m_target.fieldIndex != m_target.fieldIndex) {
            return false;
        }
        m_after = next->m_after;
        setObsolete(m_after.first().value == m_before.first().value);
        return true;
    }

private:
    void apply(const QVector<RegisterValue>& values)
    {
        if (values.size() == 1) {
            m_edits.m_state.setValue(values.first().registerIndex, values.first().value);
        } else {
            m_edits.m_state.setValues(values);
        }
    }

    DeviceEdits& m_edits;
    PathTarget m_target;
    int m_gesture;
    QVector<RegisterValue> m_before;
    QVector<RegisterValue> m_after;
    bool m_isDone = false; ///< the first redo() is the edit itself
};

DeviceEdits::DeviceEdits(DeviceState& state, QObject* parent)
    : QObject(parent)
    , m_state(state)
{
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
        m_stack.push(new Command(*this, target, std::move(changes), text));
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
