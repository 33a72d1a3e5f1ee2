// SPDX-License-Identifier: MIT
#include "session/DeviceLoader.h"

#include <QCoreApplication>

namespace registers {

namespace {

constexpr int kPatienceMs = 150;
constexpr int kFrameMs = 16;

} // namespace

DeviceLoader::DeviceLoader(QObject* parent)
    : QObject(parent)
{
}

SvdResult DeviceLoader::load(const QString& fileName)
{
    if (m_loading) {
        SvdResult refused;
        refused.cancelled = true;
        return refused;
    }
    m_fileName = fileName;
    m_loading = true;
    m_cancelled = false;
    m_shown = false;
    m_sinceStart.start();
    m_sinceEvents.start();
    SvdResult result = readSvdFile(fileName, [this](qint64 done, qint64 total) { return proceed(done, total); });
    m_loading = false;
    if (m_shown) {
        Q_EMIT finished();
    }
    return result;
}

bool DeviceLoader::proceed(qint64 done, qint64 total)
{
    if (!m_shown && m_sinceStart.elapsed() >= kPatienceMs) {
        m_shown = true;
        Q_EMIT started(m_fileName);
    }
    if (m_shown && m_sinceEvents.elapsed() >= kFrameMs) {
        Q_EMIT progressed(done, total);
        QCoreApplication::processEvents();
        m_sinceEvents.restart();
    }
    return !m_cancelled;
}

void DeviceLoader::cancel()
{
    m_cancelled = true;
}

} // namespace registers
