// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "session/Session.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QFileInfo>

#include <optional>

namespace registers {

namespace {

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
    QCommandLineOption check{QStringLiteral("check"),
                             QStringLiteral("List all remarks on the description, one a line, and end: 0 without any, "
                                            "1 with some, 2 if it cannot be read.")};
    QCommandLineOption strict{QStringLiteral("strict"), QStringLiteral("Refuse a description at its first remark.")};
};

void describe(QCommandLineParser* parser, const Options& options)
{
    parser->setApplicationDescription(
        QStringLiteral("Shows and edits the registers that a CMSIS-SVD file describes.\n\n"
                       "A PATH is PERIPHERAL.REGISTER, PERIPHERAL.CLUSTER.REGISTER, or either of them followed "
                       "by .FIELD.\n\n"
                       "What is wrong in a description and leaves the rest readable is a remark, and the file "
                       "opens."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addOptions({options.load, options.set, options.exportFile, options.screenshot, options.select,
                        options.check, options.strict});
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

/// Why the options do not go together, or nothing.
QString conflictOf(const CommandLine& commandLine)
{
    if (areOneFile(commandLine.exportFile, commandLine.screenshotFile)) {
        return QStringLiteral("--export and --screenshot name one file; two were expected");
    }
    const bool doesMore = commandLine.wantsBatch() || !commandLine.loadFile.isEmpty() || !commandLine.sets.isEmpty() ||
                          !commandLine.selectPath.isEmpty();
    return commandLine.check && doesMore
               ? QStringLiteral("--check reads the description and does nothing else; only --strict goes with it")
               : QString();
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
    result.check = parser.isSet(options.check);
    result.strict = parser.isSet(options.strict);
    if (isUsable) {
        error = conflictOf(result);
    }
    return error.isEmpty() ? result : failedCommandLine(error);
}

} // namespace registers
