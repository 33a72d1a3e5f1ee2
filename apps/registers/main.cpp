// SPDX-License-Identifier: MIT
#include "CommandRun.h"
#include "common/QtArguments.h"
#include "common/Start.h"
#include "look/Icons.h"
#include "text/Quoted.h"
#include "window/MainWindow.h"
#include "window/Screenshot.h"
#include "window/Settings.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QTextStream>

#include <cstdio>
#include <optional>

using namespace registers;

namespace {

/// Carries out all that needs no window. Without an answer the window is wanted.
std::optional<int> runWithoutWindow(const CommandLine& commandLine)
{
    QTextStream output(stdout);
    QTextStream errors(stderr);
    switch (commandLine.action) {
    case CommandLine::Action::Fail:
        errors << QCoreApplication::applicationName() << ": " << plainLines(commandLine.text) << '\n';
        return kExitBadUse;
    case CommandLine::Action::ShowHelp:
    case CommandLine::Action::ShowVersion:
        output << commandLine.text;
        return kExitOk;
    case CommandLine::Action::Run:
        break;
    }
    if (commandLine.check) {
        return runCheck(commandLine, output, errors);
    }
    if (commandLine.wantsBatch() && commandLine.screenshotFile.isEmpty()) {
        return runBatch(commandLine, errors);
    }
    return std::nullopt;
}

int runWithWindow(const CommandLine& commandLine)
{
    QTextStream errors(stderr);
    if (commandLine.wantsBatch()) {
        return runBatch(commandLine, errors, renderScreenshot);
    }
    Session session;
    QString error;
    if (!openSession(commandLine, &session, &error)) {
        errors << QCoreApplication::applicationName() << ": " << plainLines(error) << '\n';
        return kExitBadUse;
    }
    if (session.remarkCount > 0) {
        errors << remarksLine(commandLine.descriptionFile(), session.remarkCount) << Qt::endl;
    }
    useChosenFont();
    MainWindow window;
    window.restoreLayout();
    window.show();
    window.setSession(std::move(session));
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("tessera-registers"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_REGISTERS_VERSION));
    CommandLine commandLine;
    bool platformChosen = false;
    {
        QCoreApplication core(argc, argv);
        const apps::QtArguments arguments(QCoreApplication::arguments());
        platformChosen = arguments.choosesPlatform();
        commandLine = parseCommandLine(arguments.others());
        if (const std::optional<int> exitCode = runWithoutWindow(commandLine)) {
            return *exitCode;
        }
    }
    if (commandLine.wantsBatch()) {
        apps::reportFailuresOnly();
    }
    apps::prepareScreen(platformChosen, commandLine.wantsBatch());
    QApplication app(argc, argv);
    QApplication::setWindowIcon(applicationIcon());
    nsUI::TesseraGlobal::instance();
    apps::useLibraryFontSize();
    return runWithWindow(commandLine);
}
