// SPDX-License-Identifier: MIT
#pragma once

#include "device/DeviceImport.h"
#include "session/DeviceEdits.h"
#include "session/Session.h"

#include <QString>
#include <QVector>

namespace registers {

/// A device that is being worked on: its values, their edits, and which values count as saved.
class OpenDevice
{
public:
    /// The values of @p session count as saved.
    explicit OpenDevice(Session session);

    const Session& session() const { return m_session; }
    const Device& device() const { return *m_session.device; }
    const DeviceState& state() const { return *m_session.state; }
    DeviceEdits& edits() { return m_edits; }

    /// True for the device that is built in, which has no file of its own.
    bool isSample() const;
    /// True when values would be lost: they differ from those that were opened, or saved last.
    bool isEdited() const { return m_session.state->values() != m_savedValues; }
    /// True when values were saved since the device was opened.
    bool wasSaved() const { return m_wasSaved; }

    /// Writes the values of all registers and fields as JSON. On failure, which @p error tells, all stays as it was.
    bool save(const QString& fileName, QString* error);

    /// Reads the values that @p fileName holds for this device. Changes nothing.
    ImportResult readValues(const QString& fileName) const;
    /// True for values that were saved of another device.
    bool isOfAnother(const ImportResult& values) const;
    /// Sets @p values as one edit, with @p source as where they come from. Returns whether any value changed.
    bool take(const ImportResult& values, const QString& source);

private:
    Session m_session;
    DeviceEdits m_edits; ///< of the session's state
    QVector<quint64> m_savedValues;
    bool m_wasSaved = false;
};

} // namespace registers
