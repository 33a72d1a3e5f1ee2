// SPDX-License-Identifier: MIT
#include "CommandRun.h"

#include "device/DeviceExport.h"
#include "device/DeviceImport.h"
#include "text/Numbers.h"
#include "text/Quoted.h"

#include <QTextStream>

#include <optional>
#include <utility>

namespace registers {

namespace {

constexpr int kMostUnplacedNamed = 20;

/// A --set that is known to be possible.
struct Setting
{
    PathTarget target;
    quint64 value = 0;
};

PathTarget findTarget(const Device& device, const QString& path, QString* error)
{
    const PathTarget target = device.find(path);
    if (!target.isValid()) {
        *error = QStringLiteral("unknown path \"%1\": %2").arg(path, device.explainMissing(path));
    }
    return target;
}

/// What a target allows: its access, and the largest value that fits.
struct TargetLimits
{
    Access access = Access::ReadWrite;
    quint64 largest = 0;
};

TargetLimits limitsOf(const Device& device, const PathTarget& target)
{
    const Register& reg = device.registerAt(target.registerIndex);
    if (!target.isField()) {
        return {reg.access, reg.valueMask()};
    }
    const Field& field = reg.fields.at(target.fieldIndex);
    return {field.access, largestFieldValue(reg, field)};
}

std::optional<Setting> checkSet(const Device& device, const SetRequest& request, QString* error)
{
    const PathTarget target = findTarget(device, request.path, error);
    if (!target.isValid()) {
        return std::nullopt;
    }
    const TargetLimits limits = limitsOf(device, target);
    if (!isWritable(limits.access)) {
        *error = QStringLiteral("\"%1\" is read-only and cannot be set").arg(request.path);
        return std::nullopt;
    }
    const std::optional<quint64> value = parsePlainNumber(request.number);
    if (!value) {
        *error = QStringLiteral("\"%1\" for \"%2\" is not a number; a decimal number, 0x... or 0b... of at most "
                                "64 bits was expected")
                     .arg(request.number, request.path);
        return std::nullopt;
    }
    if (*value > limits.largest) {
        *error = QStringLiteral("%1 does not fit into \"%2\", which holds at most %3")
                     .arg(request.number, request.path, hexNumber(limits.largest, 1));
        return std::nullopt;
    }
    return Setting{target, *value};
}

QString couldNotLoad(const QString& fileName, const QVector<Unplaced>& unplaced)
{
    QString text =
        QStringLiteral("%1: %2 of its registers cannot be loaded:\n").arg(fileName, QString::number(unplaced.size())) +
        unplacedText(unplaced.mid(0, kMostUnplacedNamed));
    if (unplaced.size() > kMostUnplacedNamed) {
        text += QStringLiteral("\nand %1 more").arg(unplaced.size() - kMostUnplacedNamed);
    }
    return text;
}

/// Reads the description; a refusal is explained.
bool readDescription(const CommandLine& commandLine, const SvdProgress& progress, SvdResult* read, QString* error)
{
    *read = readSvdFile(commandLine.descriptionFile(), progress);
    if (!read->isOk()) {
        *error = read->cancelled ? QStringLiteral("reading was cancelled") : read->error.text();
    } else if (commandLine.strict && !read->remarks.isEmpty()) {
        *error = read->remarks.constFirst().text();
    }
    return error->isEmpty();
}

/// Carries out what is to be done with a description that is read.
bool prepareSession(const CommandLine& commandLine, Session* session, QString* error)
{
    if (!commandLine.loadFile.isEmpty() && !applyLoad(*session->state, commandLine.loadFile, error)) {
        return false;
    }
    if (!applySets(*session->device, *session->state, commandLine.sets, error)) {
        return false;
    }
    if (!commandLine.selectPath.isEmpty()) {
        session->selection = findTarget(*session->device, commandLine.selectPath, error);
    }
    return error->isEmpty();
}

/// A failure, plain for a terminal.
void tell(QTextStream& errors, const QString& error)
{
    errors << "tessera-registers: " << plainLines(error) << '\n';
    errors.flush();
}

/// Everything that is to be written, none of it written yet.
bool produceOutputs(const CommandLine& commandLine, const Session& session, const ScreenshotRenderer& renderer,
                    QVector<OutputFile>* outputs, QString* error)
{
    if (!commandLine.exportFile.isEmpty()) {
        outputs->append({commandLine.exportFile, exportJson(*session.state)});
    }
    if (commandLine.screenshotFile.isEmpty()) {
        return true;
    }
    QByteArray png;
    if (!renderer) {
        *error = QStringLiteral("%1: screenshots are not possible here").arg(commandLine.screenshotFile);
        return false;
    }
    if (!renderer(session, &png, error)) {
        return false;
    }
    outputs->append({commandLine.screenshotFile, png});
    return true;
}

} // namespace

bool applyLoad(DeviceState& state, const QString& fileName, QString* error)
{
    const ImportResult read = readExportFile(fileName, state);
    if (!read.isOk()) {
        *error = read.error;
        return false;
    }
    if (!read.unplaced.isEmpty()) {
        *error = couldNotLoad(fileName, read.unplaced);
        return false;
    }
    state.setValues(read.values);
    return true;
}

bool applySets(const Device& device, DeviceState& state, const QVector<SetRequest>& sets, QString* error)
{
    QVector<Setting> settings;
    settings.reserve(sets.size());
    for (const SetRequest& request : sets) {
        const std::optional<Setting> setting = checkSet(device, request, error);
        if (!setting) {
            return false;
        }
        settings.append(*setting);
    }
    for (const Setting& setting : settings) {
        if (setting.target.isField()) {
            state.setField(setting.target.registerIndex, setting.target.fieldIndex, setting.value);
        } else {
            state.setValue(setting.target.registerIndex, setting.value);
        }
    }
    return true;
}

bool openSession(const CommandLine& commandLine, Session* session, QString* error, const SvdProgress& progress)
{
    error->clear();
    SvdResult read;
    if (!readDescription(commandLine, progress, &read, error)) {
        return false;
    }
    Session opened = sessionOf(read);
    if (!prepareSession(commandLine, &opened, error)) {
        const QString remarks = remarksLine(commandLine.descriptionFile(), read.remarkCount);
        *error += remarks.isEmpty() ? remarks : QLatin1Char('\n') + remarks; // what is missing may be left out
        return false;
    }
    *session = std::move(opened);
    return true;
}

QString remarksLine(const QString& fileName, qint64 count)
{
    if (count == 0) {
        return QString();
    }
    return plainLine(fileName) + (count == 1 ? QStringLiteral(": 1 remark; --check lists it")
                                             : QStringLiteral(": %1 remarks; --check lists them").arg(count));
}

int runCheck(const CommandLine& commandLine, QTextStream& output, QTextStream& errors)
{
    SvdResult read;
    QString error;
    if (!readDescription(commandLine, {}, &read, &error)) {
        tell(errors, error);
        return kExitBadUse;
    }
    for (const SvdMessage& remark : qAsConst(read.remarks)) {
        output << remark.text() << '\n';
    }
    const qint64 notKept = read.remarkCount - read.remarks.size();
    if (notKept > 0) {
        output << plainLine(commandLine.descriptionFile()) << ": and " << notKept << " more\n";
    }
    output.flush();
    return read.remarkCount == 0 ? kExitOk : kExitRemarks;
}

int runBatch(const CommandLine& commandLine, QTextStream& errors, const ScreenshotRenderer& renderer)
{
    Session session;
    QVector<OutputFile> outputs;
    QString error;
    const bool isDone = openSession(commandLine, &session, &error) &&
                        produceOutputs(commandLine, session, renderer, &outputs, &error) && saveFiles(outputs, &error);
    if (!isDone) {
        tell(errors, error);
    } else if (session.remarkCount > 0) {
        errors << remarksLine(commandLine.descriptionFile(), session.remarkCount) << '\n';
        errors.flush();
    }
    return isDone ? kExitOk : kExitBadUse;
}

} // namespace registers
