// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "common/QtArguments.h"
#include "common/Start.h"
#include "frame/MainWindow.h"
#include "frame/Screenshot.h"
#include "host/Host.h"

#include <QApplication>
#include <QIcon>
#include <QSaveFile>
#include <QSettings>
#include <QStyleFactory>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>

#include <cstdio>
#include <optional>

using namespace gallery;

namespace {

/// What is known before there is a screen.
struct Start
{
    CommandLine commandLine;
    bool platformChosen = false;
    bool styleChosen = false;
};

Start readArguments()
{
    const apps::QtArguments arguments(QCoreApplication::arguments());
    return {parseCommandLine(arguments.others()), arguments.choosesPlatform(), arguments.choosesStyle()};
}

/// Carries out all that needs no window. Without an answer the window is wanted.
std::optional<int> runWithoutWindow(const CommandLine& commandLine)
{
    switch (commandLine.action) {
    case CommandLine::Action::Fail:
        QTextStream(stderr) << QCoreApplication::applicationName() << ": " << commandLine.text << '\n';
        return kExitBadUse;
    case CommandLine::Action::ShowHelp:
    case CommandLine::Action::ShowVersion:
        QTextStream(stdout) << commandLine.text;
        return kExitOk;
    case CommandLine::Action::Run:
        break;
    }
    return std::nullopt;
}

/// Lets a batch run neither see nor change what the user has set.
void useSettingsIn(const QString& folder)
{
    QSettings::setDefaultFormat(QSettings::IniFormat);
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, folder);
}

/// Everything that Qt wants to know before the application's object is made.
void prepareScreen(const Start& start)
{
    apps::prepareScreen(start.platformChosen, start.commandLine.wantsBatch());
    if (!start.commandLine.scale.isEmpty()) {
        qputenv("QT_SCALE_FACTOR", start.commandLine.scale.toLatin1());
    }
}

/// Fusion follows every palette.
void chooseDefaults(const Start& start)
{
    if (!start.styleChosen) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    apps::useLibraryFontSize();
}

bool save(const QPixmap& picture, const QString& fileName, QString* error)
{
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || !picture.save(&file, "PNG") || !file.commit()) {
        *error = QStringLiteral("%1: %2").arg(fileName, file.errorString());
        return false;
    }
    return true;
}

int runBatch(const CommandLine& commandLine)
{
    const QPixmap picture =
        commandLine.dialog.isEmpty() ? pictureOfPage(commandLine.page) : pictureOfDialog(commandLine.dialog);
    QString error;
    if (!save(picture, commandLine.screenshotFile, &error)) {
        QTextStream(stderr) << QCoreApplication::applicationName() << ": " << error << '\n';
        return kExitBadUse;
    }
    return kExitOk;
}

int runWindow(const CommandLine& commandLine)
{
    MainWindow window;
    window.showPage(commandLine.page);
    window.show();
    if (!commandLine.dialog.isEmpty()) {
        QTimer::singleShot(0, &window, [&] { window.openDialog(commandLine.dialog); });
    }
    return QApplication::exec();
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("tessera-gallery"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TESSERA_GALLERY_VERSION));
    Start start;
    {
        QCoreApplication core(argc, argv);
        start = readArguments();
        if (const std::optional<int> exitCode = runWithoutWindow(start.commandLine)) {
            return *exitCode;
        }
    }
    const QTemporaryDir batchSettings;
    if (start.commandLine.wantsBatch()) {
        apps::reportFailuresOnly();
        useSettingsIn(batchSettings.path());
    }
    prepareScreen(start);
    QApplication app(argc, argv);
    chooseDefaults(start);
    Host host(start.commandLine.look);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/gallery/icon.svg")));
    return start.commandLine.wantsBatch() ? runBatch(start.commandLine) : runWindow(start.commandLine);
}
