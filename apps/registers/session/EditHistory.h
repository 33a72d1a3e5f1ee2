// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"

#include <QObject>
#include <QString>
#include <QVector>

#include <vector>

namespace registers {

/// One edit: what the registers that it changes held before, and hold after it.
struct EditStep
{
    PathTarget target; ///< what was edited; invalid for an edit of many registers
    QVector<RegisterValue> before;
    QVector<RegisterValue> after;
    QString text; ///< such as "change of PORTA.OUT"
    int gesture = 0;
};

/// The edits of a device's values in their order. The first index() of them are done, the others are undone.
///
/// Edits of one target that follow one another count as one until endGesture() is called.
class EditHistory : public QObject
{
    Q_OBJECT

public:
    /// @p state must live as long as this object.
    explicit EditHistory(DeviceState& state, QObject* parent = nullptr);

    int count() const { return static_cast<int>(m_steps.size()); }
    int index() const { return m_index; }
    bool canUndo() const { return m_index > 0; }
    bool canRedo() const { return m_index < count(); }
    QString undoText() const { return canUndo() ? m_steps[size_t(m_index) - 1].text : QString(); }
    QString redoText() const { return canRedo() ? m_steps[size_t(m_index)].text : QString(); }

    /// Sets @p values, which must differ from what the registers hold. Edits that were undone are forgotten.
    void push(const PathTarget& target, const QVector<RegisterValue>& values, const QString& text);

    /// Do nothing where nothing is left to be undone or redone.
    void undo();
    void redo();
    /// Undoes or redoes until the first @p index edits are done.
    void setIndex(int index);

    /// The next edit is one of its own, whatever it changes.
    void endGesture() { ++m_gesture; }

Q_SIGNALS:
    /// An edit of @p target has been undone or redone. An edit of many registers names none.
    void stepped(const PathTarget& target);
    /// What would be undone or redone is another edit now. Sent after stepped().
    void changed();

private:
    bool merge(const EditStep& next);
    void apply(const QVector<RegisterValue>& values);
    void finishStep(const PathTarget& target, int index);

    DeviceState& m_state;
    std::vector<EditStep> m_steps;
    int m_index = 0;
    int m_gesture = 0;
};

} // namespace registers
