// SPDX-License-Identifier: MIT
#include "common/Start.h"

#include "common/QtArguments.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QTextStream>

#include <cstdio>

namespace apps {

namespace {

void writeFailures(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type == QtCriticalMsg || type == QtFatalMsg) {
        QTextStream(stderr) << text << '\n';
    }
}

} // namespace

void reportFailuresOnly()
{
    qInstallMessageHandler(writeFailures);
}

void prepareScreen(bool isPlatformChosen, bool isBatch)
{
    if (!isPlatformChosen && (isBatch || !hasDisplay())) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0) // Qt 6 always does both
    QApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

void useLibraryFontSize()
{
    if (QGuiApplication::platformName() == QLatin1String("offscreen")) {
        QFont font = QApplication::font();
        font.setPointSize(nsUI::tagAppFont().pointSize);
        QApplication::setFont(font);
    }
}

} // namespace apps
