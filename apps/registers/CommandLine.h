// SPDX-License-Identifier: MIT
#pragma once

#include <QString>
#include <QStringList>
#include <QVector>

namespace registers {

/// One --set PATH=NUMBER, not looked at yet.
struct SetRequest
{
    QString path;
    QString number;
};

/// What the arguments ask for.
struct CommandLine
{
    enum class Action { Run, ShowHelp, ShowVersion, Fail };

    Action action = Action::Run;
    QString text; ///< for ShowHelp and ShowVersion what to print; for Fail what was wrong
    QString fileName;
    QString loadFile;
    QVector<SetRequest> sets;
    QString exportFile;
    QString screenshotFile;
    QString selectPath;
    bool check = false;  ///< list the remarks and end
    bool strict = false; ///< refuse a description with remarks

    /// True when the program shall write files and end, without a window that stays.
    bool wantsBatch() const { return !exportFile.isEmpty() || !screenshotFile.isEmpty(); }
    /// The description to open: the one named, or else the built-in sample.
    QString descriptionFile() const;
};

/// Only looks at @p arguments, the first of which is the program. Prints nothing, opens nothing.
CommandLine parseCommandLine(const QStringList& arguments);

} // namespace registers
