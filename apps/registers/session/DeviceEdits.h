// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"
#include "session/EditHistory.h"

#include <QObject>
#include <QString>
#include <QVector>

namespace registers {

/// Every edit that a user makes to a device's values, to be undone and redone.
///
/// An edit that changes nothing leaves no trace. Edits of one register or field that follow one another count as one
/// until endGesture() is called: a number that is typed digit by digit is undone at once.
class DeviceEdits : public QObject
{
    Q_OBJECT

public:
    /// @p state must live as long as this object.
    explicit DeviceEdits(DeviceState& state, QObject* parent = nullptr);

    const DeviceState& state() const { return m_state; }
    const Device& device() const { return m_state.device(); }
    EditHistory& history() { return m_history; }

    /// Bits beyond the register's size are dropped.
    void setRegister(int registerIndex, quint64 value);
    /// Bits beyond the field's width are dropped.
    void setField(int registerIndex, int fieldIndex, quint64 value);
    /// Sets a register, or a field when the target is one.
    void set(const PathTarget& target, quint64 value);

    void reset(int registerIndex);
    void resetAll();
    /// Sets many registers at once; @p source says in the history where the values come from.
    void setAll(const QVector<RegisterValue>& values, const QString& source);

    /// The next edit is one of its own, whatever it changes.
    void endGesture() { m_history.endGesture(); }

Q_SIGNALS:
    /// An edit of @p target has been undone or redone. An edit of many registers names none.
    void stepped(const registers::PathTarget& target);

private:
    void push(const PathTarget& target, const QVector<RegisterValue>& after, const QString& text);

    DeviceState& m_state;
    EditHistory m_history;
};

} // namespace registers
