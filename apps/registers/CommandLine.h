// SPDX-License-Identifier: MIT
#pragma once

#include "device/Device.h"
#include "device/DeviceState.h"
#include "session/Session.h"
#include "svd/SvdReader.h"

#include <QString>
#include <QStringList>
#include <QVector>

#include <functional>

class QTextStream;

namespace registers {

constexpr int kExitOk = 0;
constexpr int kExitBadUse = 2;

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

    /// True when the program shall write files and end, without a window that stays.
    bool wantsBatch() const { return !exportFile.isEmpty() || !screenshotFile.isEmpty(); }
    /// The description to open: the one named, or else the built-in sample.
    QString descriptionFile() const;
};

/// Only looks at @p arguments, the first of which is the program. Prints nothing, opens nothing.
CommandLine parseCommandLine(const QStringList& arguments);

/// Loads the values of an export, all of them or none: nobody can be asked about those that have no place.
bool applyLoad(DeviceState& state, const QString& fileName, QString* error);

/// Applies @p sets in their order, all of them or none.
bool applySets(const Device& device, DeviceState& state, const QVector<SetRequest>& sets, QString* error);

/// Opens the description and carries out --load, --set and --select, in this order. On failure @p session stays as
/// it was.
bool openSession(const CommandLine& commandLine, Session* session, QString* error, const SvdProgress& progress = {});

/// Draws the window of a session as a PNG file's bytes.
using ScreenshotRenderer = std::function<bool(const Session& session, QByteArray* png, QString* error)>;

/// Does what --export and --screenshot ask for: everything is checked and produced before the first file is
/// written. Returns the program's exit code; a failure is explained on @p errors.
int runBatch(const CommandLine& commandLine, QTextStream& errors, const ScreenshotRenderer& renderer = {});

} // namespace registers
