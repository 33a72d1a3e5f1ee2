// SPDX-License-Identifier: MIT
#pragma once

#include "host/Look.h"

#include <QString>
#include <QStringList>

namespace gallery {

constexpr int kExitOk = 0;
constexpr int kExitBadUse = 2;

/// What the arguments ask for.
struct CommandLine
{
    enum class Action { Run, ShowHelp, ShowVersion, Fail };

    Action action = Action::Run;
    QString text;   ///< for ShowHelp and ShowVersion what to print; for Fail what was wrong
    QString page;   ///< one of pageNames()
    QString dialog; ///< one of dialogNames(); empty for none
    QString scale;  ///< as given, a number within the limits; empty for the screen's own
    QString screenshotFile;
    Look look;

    /// True when the program shall write a picture and end, without a window that stays.
    bool wantsBatch() const { return !screenshotFile.isEmpty(); }
};

/// Only looks at @p arguments, the first of which is the program. Prints nothing, opens nothing.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace gallery
