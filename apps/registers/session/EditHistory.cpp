// SPDX-License-Identifier: MIT
#include "session/EditHistory.h"

#include <algorithm>
#include <utility>

namespace registers {

EditHistory::EditHistory(DeviceState& state, QObject* parent)
    : QObject(parent)
    , m_state(state)
{
}

void EditHistory::push(const PathTarget& target, const QVector<RegisterValue>& values, const QString& text)
{
    EditStep step{target, {}, values, text, m_gesture};
    step.before.reserve(values.size());
    for (const RegisterValue& one : values) {
        step.before.append({one.registerIndex, m_state.value(one.registerIndex)});
    }
    apply(step.after);
    m_steps.resize(size_t(m_index));
    if (!merge(step)) {
        m_steps.push_back(std::move(step));
        ++m_index;
    }
    Q_EMIT changed();
}

/// Takes @p next into the last step where both are of one gesture. A step that then changes nothing is forgotten.
bool EditHistory::merge(const EditStep& next)
{
    if (m_steps.empty() || !next.target.isValid()) {
        return false;
    }
    EditStep& last = m_steps.back();
    if (next.gesture != last.gesture || next.target.registerIndex != last.target.registerIndex ||
        next.target.fieldIndex != last.target.fieldIndex) {
        return false;
    }
    last.after = next.after;
    if (last.after.first().value == last.before.first().value) {
        m_steps.pop_back();
        --m_index;
    }
    return true;
}

void EditHistory::undo()
{
    if (canUndo()) {
        const EditStep step = m_steps[size_t(m_index) - 1];
        apply(step.before);
        finishStep(step.target, m_index - 1);
    }
}

void EditHistory::redo()
{
    if (canRedo()) {
        const EditStep step = m_steps[size_t(m_index)];
        apply(step.after);
        finishStep(step.target, m_index + 1);
    }
}

void EditHistory::finishStep(const PathTarget& target, int index)
{
    m_index = index;
    endGesture();
    Q_EMIT stepped(target);
    Q_EMIT changed();
}

void EditHistory::setIndex(int index)
{
    const int wanted = std::clamp(index, 0, count());
    while (m_index > wanted) {
        undo();
    }
    while (m_index < wanted) {
        redo();
    }
}

void EditHistory::apply(const QVector<RegisterValue>& values)
{
    if (values.size() == 1) {
        m_state.setValue(values.first().registerIndex, values.first().value);
    } else {
        m_state.setValues(values);
    }
}

} // namespace registers
