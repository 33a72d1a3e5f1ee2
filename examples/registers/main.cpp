// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "gui/Icons.h"
#include "gui/MainWindow.h"
#include "gui/QtArguments.h"
#include "gui/Screenshot.h"
#include "gui/Settings.h"

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
        errors << QCoreApplication::applicationName() << ": " << commandLine.text << '\n';
        return kExitBadUse;
    case CommandLine::Action::ShowHelp:
    case CommandLine::Action::ShowVersion:
        output << commandLine.text;
        return kExitOk;
    case CommandLine::Action::Run:
        break;
    }
    if (commandLine.wantsBatch() && commandLine.screenshotFile.isEmpty()) {
        return runBatch(commandLine, errors);
    }
    return std::nullopt;
}

/// A batch run has one thing to say, if anything: what went wrong. Progress messages of the library and notes of
/// the platform are not part of it.
void reportFailuresOnly(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        QTextStream(stderr) << text << '\n';
    }
}

bool hasDesktop()
{
    return QGuiApplication::platformName() != QLatin1String("offscreen");
}

/// Without a desktop nobody has chosen a font, and Qt's own is large.
void useLibraryFontSize()
{
    QFont font = QApplication::font();
    font.setPointSize(nsUI::tagAppFont().pointSize);
    QApplication::setFont(font);
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
        errors << QCoreApplication::applicationName() << ": " << error << '\n';
        return kExitBadUse;
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
        const QtArguments arguments(QCoreApplication::arguments());
        platformChosen = arguments.choosesPlatform();
        commandLine = parseCommandLine(arguments.others());
        if (const std::optional<int> exitCode = runWithoutWindow(commandLine)) {
            return *exitCode;
        }
    }
    if (commandLine.wantsBatch()) {
        qInstallMessageHandler(reportFailuresOnly);
    }
    // A batch run opens no window, so a display that cannot be reached must not stop it.
    if (!platformChosen && (commandLine.wantsBatch() || !hasDisplay())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    QApplication app(argc, argv);
    QApplication::setWindowIcon(applicationIcon());
    nsUI::TesseraGlobal::instance();
    if (!hasDesktop()) {
        useLibraryFontSize();
    }
    return runWithWindow(commandLine);
}
