// SPDX-License-Identifier: MIT
#include "session/Session.h"

// Has to be called from the global namespace; a static library's resources are not there by themselves.
static void initializeResources()
{
    Q_INIT_RESOURCE(registers);
}

namespace registers {

Session sessionOf(const SvdResult& read)
{
    Session session;
    session.device = read.device;
    session.state = std::make_unique<DeviceState>(read.device);
    session.remarks = read.remarks;
    session.remarkCount = read.remarkCount;
    return session;
}

QString sampleFileName()
{
    initializeResources();
    return QStringLiteral(":/registers/sample.svd");
}

} // namespace registers
