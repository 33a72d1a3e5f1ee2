// SPDX-License-Identifier: MIT
#pragma once

#include "CommandLine.h"
#include "device/Device.h"
#include "device/DeviceState.h"
#include "session/Session.h"
#include "svd/SvdReader.h"

#include <QString>
#include <QVector>

#include <functional>

class QTextStream;

namespace registers {

constexpr int kExitOk = 0;
constexpr int kExitRemarks = 1; ///< of --check
constexpr int kExitBadUse = 2;

/// Loads the values of an export, all of them or none: nobody can be asked about those that have no place.
bool applyLoad(DeviceState& state, const QString& fileName, QString* error);

/// Applies @p sets in their order, all of them or none.
bool applySets(const Device& device, DeviceState& state, const QVector<SetRequest>& sets, QString* error);

/// Opens the description and carries out --load, --set and --select, in this order. On failure @p session stays as
/// it was.
bool openSession(const CommandLine& commandLine, Session* session, QString* error, const SvdProgress& progress = {});

/// Draws the window of a session as a PNG file's bytes.
using ScreenshotRenderer = std::function<bool(const Session& session, QByteArray* png, QString* error)>;

/// One line that says how many remarks there are on a description; empty without any.
QString remarksLine(const QString& fileName, qint64 count);

/// Does what --check asks for: every remark in a line of @p output. Returns the program's exit code; a refusal is
/// explained on @p errors.
int runCheck(const CommandLine& commandLine, QTextStream& output, QTextStream& errors);

/// Does what --export and --screenshot ask for: everything is checked and produced before the first file is
/// written. Returns the program's exit code; a failure is explained on @p errors, and how many remarks there are is
/// told there.
int runBatch(const CommandLine& commandLine, QTextStream& errors, const ScreenshotRenderer& renderer = {});

} // namespace registers
