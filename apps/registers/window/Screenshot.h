// SPDX-License-Identifier: MIT
#pragma once

#include "session/Session.h"

#include <QByteArray>
#include <QString>

namespace registers {

/// A picture of the window with @p session, as it opens for the first time, as a PNG file's bytes. Nothing appears on
/// the screen.
bool renderScreenshot(const Session& session, QByteArray* png, QString* error);

} // namespace registers
