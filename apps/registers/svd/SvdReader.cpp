// SPDX-License-Identifier: MIT
#include "svd/SvdReader.h"

#include "svd/SvdEnumerationResolver.h"
#include "svd/SvdExpander.h"
#include "svd/SvdFieldResolver.h"
#include "svd/SvdNodeResolver.h"
#include "svd/SvdParser.h"
#include "svd/SvdProgressMeter.h"
#include "svd/SvdRemarks.h"
#include "text/Quoted.h"

#include <QFile>
#include <QIODevice>

namespace registers {

namespace {

SvdResult failedBefore(const QString& fileName, const QString& reason)
{
    SvdResult result;
    result.error = {fileName, 0, 0, QStringLiteral("cannot be read: %1; a CMSIS-SVD file was expected").arg(reason),
                    QString()};
    return result;
}

/// @p problem, or without one what a cancelled reading gives.
SvdResult failed(const QString& fileName, const std::optional<SvdProblem>& problem)
{
    SvdResult result;
    result.cancelled = !problem;
    if (problem) {
        result.error = {fileName, problem->position.line, problem->position.column, problem->message, QString()};
    }
    return result;
}

SvdResult readOpen(QIODevice& input, const QString& fileName, SvdProgressMeter* meter)
{
    SvdDescription description;
    SvdRemarks remarks;
    SvdParser parser(input, *meter, remarks);
    if (!parser.parse(&description)) {
        return failed(fileName, meter->isCancelled() ? std::nullopt : std::make_optional(parser.problem()));
    }
    SvdNodeResolver nodes(&description, &remarks, meter);
    if (!nodes.resolve()) {
        return failed(fileName, nodes.problem());
    }
    SvdFieldResolver fields(&description, &nodes, &remarks, meter);
    if (!fields.resolve()) {
        return failed(fileName, fields.problem() ? fields.problem() : nodes.problem());
    }
    SvdEnumerationResolver enumerations(&description, &nodes, &fields, &remarks, meter);
    if (!enumerations.resolve()) {
        return failed(fileName, fields.problem() ? fields.problem() : nodes.problem());
    }
    const auto device = QSharedPointer<Device>::create();
    device->sourceFile = fileName;
    SvdExpander expander(&description, &remarks, meter);
    if (!expander.expand(device.data())) {
        return failed(fileName, expander.problem());
    }
    meter->finished();
    SvdResult result;
    result.cancelled = meter->isCancelled();
    if (!result.cancelled) {
        result.device = device;
        result.remarks = remarks.messages(description, *device);
        result.remarkCount = remarks.count();
    }
    return result;
}

} // namespace

QString SvdMessage::text() const
{
    const QString place =
        line > 0 ? file + QStringLiteral(":%1:%2: ").arg(line).arg(column) : file + QStringLiteral(": ");
    return plainLine(place + message);
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
