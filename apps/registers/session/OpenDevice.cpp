// SPDX-License-Identifier: MIT
#include "session/OpenDevice.h"

#include "device/DeviceExport.h"

#include <utility>

namespace registers {

OpenDevice::OpenDevice(Session session)
    : m_session(std::move(session))
    , m_edits(*m_session.state)
    , m_savedValues(m_session.state->values())
{
}

bool OpenDevice::isSample() const
{
    return device().sourceFile.startsWith(QLatin1Char(':'));
}

bool OpenDevice::save(const QString& fileName, QString* error)
{
    if (!saveExport(fileName, exportJson(state()), error)) {
        return false;
    }
    m_edits.endGesture();
    m_savedValues = state().values();
    m_wasSaved = true;
    return true;
}

ImportResult OpenDevice::readValues(const QString& fileName) const
{
    return readExportFile(fileName, state());
}

bool OpenDevice::isOfAnother(const ImportResult& values) const
{
    return !values.deviceName.isEmpty() && values.deviceName != device().name;
}

bool OpenDevice::take(const ImportResult& values, const QString& source)
{
    const int before = m_edits.history().index();
    m_edits.setAll(values.values, source);
    return m_edits.history().index() != before;
}

} // namespace registers
