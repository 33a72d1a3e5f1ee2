// SPDX-License-Identifier: MIT
#include "svd/SvdReader.h"

#include "svd/SvdExpander.h"
#include "svd/SvdFieldResolver.h"
#include "svd/SvdNodeResolver.h"
#include "svd/SvdParser.h"
#include "svd/SvdProgressMeter.h"

#include <QFile>
#include <QIODevice>

namespace registers {

namespace {

SvdResult failedBefore(const QString& fileName, const QString& reason)
{
    SvdResult result;
    result.error = {fileName, 0, 0, QStringLiteral("cannot be read: %1; a CMSIS-SVD file was expected").arg(reason)};
    return result;
}

/// @p problem, or without one what a cancelled reading gives.
SvdResult failed(const QString& fileName, const std::optional<SvdProblem>& problem)
{
    SvdResult result;
    result.cancelled = !problem;
    if (problem) {
        result.error = {fileName, problem->position.line, problem->position.column, problem->message};
    }
    return result;
}

SvdResult readOpen(QIODevice& input, const QString& fileName, SvdProgressMeter* meter)
{
    SvdDescription description;
    SvdParser parser(input, *meter);
    if (!parser.parse(&description)) {
        return failed(fileName, meter->isCancelled() ? std::nullopt : std::make_optional(parser.problem()));
    }
    SvdNodeResolver nodes(&description, meter);
    if (!nodes.resolve()) {
        return failed(fileName, nodes.problem());
    }
    SvdFieldResolver fields(&description, &nodes, meter);
    if (!fields.resolve()) {
        return failed(fileName, fields.problem() ? fields.problem() : nodes.problem());
    }
    const auto device = QSharedPointer<Device>::create();
    device->sourceFile = fileName;
    SvdExpander expander(&description, meter);
    if (!expander.expand(device.data())) {
        return failed(fileName, expander.problem());
    }
    meter->finished();
    SvdResult result;
    result.cancelled = meter->isCancelled();
    if (!result.cancelled) {
        result.device = device;
    }
    return result;
}

} // namespace

QString SvdError::text() const
{
    return line > 0 ? QStringLiteral("%1:%2:%3: ").arg(file).arg(line).arg(column) + message
                    : file + QStringLiteral(": ") + message;
}

SvdResult readSvd(QIODevice& input, const QString& fileName, const SvdProgress& progress)
{
    if (!input.isReadable() && !input.open(QIODevice::ReadOnly)) {
        return failedBefore(fileName, input.errorString());
    }
    SvdProgressMeter meter(input, progress);
    return readOpen(input, fileName, &meter);
}

SvdResult readSvdFile(const QString& fileName, const SvdProgress& progress)
{
    QFile file(fileName);
    return readSvd(file, fileName, progress);
}

} // namespace registers
