// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "gui/Host.h"
#include "gui/MainWindow.h"
#include "gui/QtArguments.h"
#include "gui/Screenshot.h"

#include <Tessera/Tessera.h>

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
    const QtArguments arguments(QCoreApplication::arguments());
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

/// A batch run has one thing to say, if anything: what went wrong. Progress messages of the library and notes of
/// the platform are not part of it.
void reportFailuresOnly(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        QTextStream(stderr) << text << '\n';
    }
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
    // A batch run opens no window, so a display that cannot be reached must not stop it.
    if (!start.platformChosen && (start.commandLine.wantsBatch() || !hasDisplay())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    if (!start.commandLine.scale.isEmpty()) {
        qputenv("QT_SCALE_FACTOR", start.commandLine.scale.toLatin1());
    }
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
}

/// Fusion follows every palette. Without a desktop nobody has chosen a font, and Qt's own is large.
void chooseDefaults(const Start& start)
{
    if (!start.styleChosen) {
        QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    }
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QFont font = QApplication::font();
        font.setPointSize(nsUI::tagAppFont().pointSize);
        QApplication::setFont(font);
    }
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
        qInstallMessageHandler(reportFailuresOnly);
        useSettingsIn(batchSettings.path());
    }
    prepareScreen(start);
    QApplication app(argc, argv);
    chooseDefaults(start);
    Host host(start.commandLine.look);
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/gallery/icon.svg")));
    return start.commandLine.wantsBatch() ? runBatch(start.commandLine) : runWindow(start.commandLine);
}
