// SPDX-License-Identifier: MIT
#include "CommandLine.h"

#include "host/Names.h"

#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>

namespace gallery {

namespace {

constexpr double kSmallestScale = 0.5;
constexpr double kLargestScale = 4.0;

QString listed(const QStringList& names)
{
    return names.mid(0, names.size() - 1).join(QStringLiteral(", ")) + QStringLiteral(" or ") + names.last();
}

struct Options
{
    QCommandLineOption page{QStringLiteral("page"), QStringLiteral("Open on a page: %1.").arg(listed(pageNames())),
                            QStringLiteral("NAME")};
    QCommandLineOption dialog{QStringLiteral("dialog"),
                              QStringLiteral("Open a dialog in front: %1.").arg(listed(dialogNames())),
                              QStringLiteral("NAME")};
    QCommandLineOption language{QStringLiteral("language"), QStringLiteral("%1.").arg(listed(languageNames())),
                                QStringLiteral("NAME")};
    QCommandLineOption palette{QStringLiteral("palette"), QStringLiteral("%1.").arg(listed(shadeNames())),
                               QStringLiteral("NAME")};
    QCommandLineOption sheet{QStringLiteral("sheet"), QStringLiteral("Style sheets: %1.").arg(listed(sheetNames())),
                             QStringLiteral("NAME")};
    QCommandLineOption direction{QStringLiteral("direction"),
                                 QStringLiteral("Layout direction: %1.").arg(listed(directionNames())),
                                 QStringLiteral("NAME")};
    QCommandLineOption scale{QStringLiteral("scale"), QStringLiteral("Scale everything; a number from 0.5 to 4."),
                             QStringLiteral("FACTOR")};
    QCommandLineOption screenshot{QStringLiteral("screenshot"),
                                  QStringLiteral("Write a picture of the whole page, or of the dialog, to OUT.png and "
                                                 "end."),
                                  QStringLiteral("OUT.png")};
};

void describe(QCommandLineParser* parser, const Options& options)
{
    parser->setApplicationDescription(QStringLiteral("Shows every public class of Tessera, with the code that makes "
                                                     "it."));
    parser->addHelpOption();
    parser->addVersionOption();
    parser->addOptions({options.page, options.dialog, options.language, options.palette, options.sheet,
                        options.direction, options.scale, options.screenshot});
}

QString versionText()
{
    return QStringLiteral("%1 %2\n").arg(QCoreApplication::applicationName(), QCoreApplication::applicationVersion());
}

/// Takes the options one after the other, up to the first that is no good.
class OptionReader
{
public:
    explicit OptionReader(const QCommandLineParser& parser)
        : m_parser(parser)
    {
    }

    const QString& error() const { return m_error; }

    /// The value of an option that may be given once and must not be empty.
    void takeText(const QCommandLineOption& option, QString* text)
    {
        const QStringList given = m_error.isEmpty() ? m_parser.values(option) : QStringList();
        if (given.size() > 1) {
            m_error = QStringLiteral("--%1 may be given only once").arg(nameOf(option));
        } else if (!given.isEmpty() && given.constFirst().isEmpty()) {
            m_error = QStringLiteral("--%1 needs a value").arg(nameOf(option));
        } else if (!given.isEmpty()) {
            *text = given.constFirst();
        }
    }

    void takeName(const QCommandLineOption& option, const QStringList& names, QString* name)
    {
        QString given;
        takeText(option, &given);
        if (given.isEmpty()) {
            return;
        }
        if (!names.contains(given)) {
            m_error = QStringLiteral("--%1 \"%2\": %3 was expected").arg(nameOf(option), given, listed(names));
            return;
        }
        *name = given;
    }

    template <class Value, class Find>
    void takeValue(const QCommandLineOption& option, const QStringList& names, Find find, Value* value)
    {
        QString name;
        takeName(option, names, &name);
        if (!name.isEmpty()) {
            *value = *find(name);
        }
    }

    void takeScale(const QCommandLineOption& option, QString* scale)
    {
        QString given;
        takeText(option, &given);
        if (given.isEmpty()) {
            return;
        }
        bool isNumber = false;
        const double factor = given.toDouble(&isNumber);
        if (!isNumber || !(factor >= kSmallestScale && factor <= kLargestScale)) {
            m_error = QStringLiteral("--scale \"%1\": a number from 0.5 to 4 was expected").arg(given);
            return;
        }
        *scale = given;
    }

    void takeNothingElse()
    {
        const QStringList others = m_parser.positionalArguments();
        if (m_error.isEmpty() && !others.isEmpty()) {
            m_error = QStringLiteral("unexpected argument \"%1\"").arg(others.constFirst());
        }
    }

private:
    static QString nameOf(const QCommandLineOption& option) { return option.names().constFirst(); }

    const QCommandLineParser& m_parser;
    QString m_error;
};

CommandLine textAnswer(CommandLine::Action action, const QString& text)
{
    CommandLine result;
    result.action = action;
    result.text = text;
    return result;
}

CommandLine readOptions(const QCommandLineParser& parser, const Options& options)
{
    CommandLine result;
    result.page = pageNames().constFirst();
    OptionReader reader(parser);
    reader.takeName(options.page, pageNames(), &result.page);
    reader.takeName(options.dialog, dialogNames(), &result.dialog);
    reader.takeValue(options.language, languageNames(), languageNamed, &result.look.language);
    reader.takeValue(options.palette, shadeNames(), shadeNamed, &result.look.shade);
    reader.takeValue(options.sheet, sheetNames(), sheetNamed, &result.look.sheet);
    reader.takeValue(options.direction, directionNames(), directionNamed, &result.look.direction);
    reader.takeScale(options.scale, &result.scale);
    reader.takeText(options.screenshot, &result.screenshotFile);
    reader.takeNothingElse();
    return reader.error().isEmpty() ? result : textAnswer(CommandLine::Action::Fail, reader.error());
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments)
{
    const Options options;
    QCommandLineParser parser;
    describe(&parser, options);
    if (!parser.parse(arguments)) {
        return textAnswer(CommandLine::Action::Fail, parser.errorText());
    }
    if (parser.isSet(QStringLiteral("help")) || parser.isSet(QStringLiteral("help-all"))) {
        return textAnswer(CommandLine::Action::ShowHelp, parser.helpText());
    }
    if (parser.isSet(QStringLiteral("version"))) {
        return textAnswer(CommandLine::Action::ShowVersion, versionText());
    }
    return readOptions(parser, options);
}

} // namespace gallery
