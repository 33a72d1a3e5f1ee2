// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "device/DeviceExport.h"
#include "device/DeviceImport.h"
#include "text/Numbers.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFileInfo>
#include <QTextStream>

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

CommandLine failedCommandLine(const QString& reason)
{
    CommandLine result;
    result.action = CommandLine::Action::Fail;
    result.text = reason;
    return result;
}

std::optional<SetRequest> splitSet(const QString& text)
{
    const auto equals = text.indexOf(QLatin1Char('='));
    if (equals < 1) {
        return std::nullopt;
    }
    return SetRequest{text.left(equals), text.mid(equals + 1)};
}

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

struct Options
{
    QCommandLineOption load{QStringLiteral("load"),
                            QStringLiteral("Load the values that --export wrote to IN.json, before any --set."),
                            QStringLiteral("IN.json")};
    QCommandLineOption set{QStringLiteral("set"),
                           QStringLiteral("Set a register or a field; NUMBER is decimal, 0x... or 0b.... May be "
                                          "given again and again."),
                           QStringLiteral("PATH=NUMBER")};
    QCommandLineOption exportFile{QStringLiteral("export"), QStringLiteral("Write all registers to OUT.json and end."),
                                  QStringLiteral("OUT.json")};
    QCommandLineOption screenshot{QStringLiteral("screenshot"),
                                  QStringLiteral("Write a picture of the window to OUT.png and end."),
                                  QStringLiteral("OUT.png")};
    QCommandLineOption select{QStringLiteral("select"), QStringLiteral("Select a register or a field."),
                              QStringLiteral("PATH")};
};

void describe(QCommandLineParser* parser, const Options& options)
{
    parser->setApplicationDescription(
        QStringLiteral("Shows and edits the registers that a CMSIS-SVD file describes.\n\n"
                       "A PATH is PERIPHERAL.REGISTER, PERIPHERAL.CLUSTER.REGISTER, or either of them followed "
                       "by .FIELD."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addOptions({options.load, options.set, options.exportFile, options.screenshot, options.select});
    parser->addPositionalArgument(QStringLiteral("FILE.svd"),
                                  QStringLiteral("The description to open; a sample device without it."),
                                  QStringLiteral("[FILE.svd]"));
}

/// The value of an option that may be given once and must not be empty.
bool takeSingle(const QCommandLineParser& parser, const QCommandLineOption& option, QString* value, QString* error)
{
    const QStringList given = parser.values(option);
    const QString name = option.names().constFirst();
    if (given.size() > 1) {
        *error = QStringLiteral("--%1 may be given only once").arg(name);
    } else if (!given.isEmpty() && given.constFirst().isEmpty()) {
        *error = QStringLiteral("--%1 needs a value").arg(name);
    } else if (!given.isEmpty()) {
        *value = given.constFirst();
    }
    return error->isEmpty();
}

bool takeSets(const QStringList& given, QVector<SetRequest>* sets, QString* error)
{
    for (const QString& text : given) {
        const std::optional<SetRequest> request = splitSet(text);
        if (!request) {
            *error = QStringLiteral("--set \"%1\": PATH=NUMBER was expected").arg(text);
            return false;
        }
        sets->append(*request);
    }
    return true;
}

bool takeFile(const QStringList& given, QString* fileName, QString* error)
{
    if (given.size() > 1) {
        *error = QStringLiteral("unexpected argument \"%1\"; one file at most was expected").arg(given.at(1));
        return false;
    }
    *fileName = given.value(0);
    return true;
}

QString versionText()
{
    return QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
}

bool areOneFile(const QString& first, const QString& second)
{
    return !first.isEmpty() && !second.isEmpty() &&
           QFileInfo(first).absoluteFilePath() == QFileInfo(second).absoluteFilePath();
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

QString CommandLine::descriptionFile() const
{
    return fileName.isEmpty() ? sampleFileName() : fileName;
}

CommandLine parseCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    describe(&parser, options);
    CommandLine result;
    if (!parser.parse(arguments)) {
        return failedCommandLine(parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"))) {
        result.action = CommandLine::Action::ShowHelp;
        result.text = parser.helpText();
        return result;
    }
    if (parser.isSet(QStringLiteral("version"))) {
        result.action = CommandLine::Action::ShowVersion;
        result.text = versionText();
        return result;
    }
    QString error;
    const bool isUsable = takeFile(parser.positionalArguments(), &result.fileName, &error) &&
                          takeSingle(parser, options.load, &result.loadFile, &error) &&
                          takeSets(parser.values(options.set), &result.sets, &error) &&
                          takeSingle(parser, options.exportFile, &result.exportFile, &error) &&
                          takeSingle(parser, options.screenshot, &result.screenshotFile, &error) &&
                          takeSingle(parser, options.select, &result.selectPath, &error);
    if (isUsable && areOneFile(result.exportFile, result.screenshotFile)) {
        error = QStringLiteral("--export and --screenshot name one file; two were expected");
    }
    return error.isEmpty() ? result : failedCommandLine(error);
}

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
    const SvdResult read = readSvdFile(commandLine.descriptionFile(), progress);
    if (!read.isOk()) {
        *error = read.cancelled ? QStringLiteral("reading was cancelled") : read.error.text();
        return false;
    }
    Session opened;
    opened.device = read.device;
    opened.state = std::make_unique<DeviceState>(read.device);
    if (!commandLine.loadFile.isEmpty() && !applyLoad(*opened.state, commandLine.loadFile, error)) {
        return false;
    }
    if (!applySets(*opened.device, *opened.state, commandLine.sets, error)) {
        return false;
    }
    if (!commandLine.selectPath.isEmpty()) {
        opened.selection = findTarget(*opened.device, commandLine.selectPath, error);
        if (!opened.selection.isValid()) {
            return false;
        }
    }
    *session = std::move(opened);
    return true;
}

int runBatch(const CommandLine& commandLine, QTextStream& errors, const ScreenshotRenderer& renderer)
{
    Session session;
    QVector<OutputFile> outputs;
    QString error;
    const bool isDone = openSession(commandLine, &session, &error) &&
                        produceOutputs(commandLine, session, renderer, &outputs, &error) && saveFiles(outputs, &error);
    if (!isDone) {
        errors << "tessera-registers: " << error << '\n';
        errors.flush();
    }
    return isDone ? kExitOk : kExitBadUse;
}

} // namespace registers
