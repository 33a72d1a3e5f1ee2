// SPDX-License-Identifier: MIT
#include "session/Session.h"

// Has to be called from the global namespace; a static library's resources are not there by themselves.
static void initializeResources()
{
    Q_INIT_RESOURCE(registers);
}

namespace registers {

QString sampleFileName()
{
    initializeResources();
    return QStringLiteral(":/registers/sample.svd");
}

} // namespace registers
