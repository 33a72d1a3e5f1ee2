// SPDX-License-Identifier: MIT
#include <CCommon.h>

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QtDebug>
#include <QTimer>

namespace nsUI {
namespace {

constexpr int c_nPollInterval = 1000; // ms

QString suffix()
{
    return QStringLiteral(".qss");
}

//! The wanted file names, each once, in the order of their first mention.
QStringList fileNames(const QStringList& names)
{
    QStringList wanted;
    for (const QString& sName : names) {
        const QString sFile = sName.endsWith(suffix()) ? sName : sName + suffix();
        if (!wanted.contains(sFile))
            wanted.append(sFile);
    }
    return wanted;
}

//! The rule of the font in effect, which is stored back.
QString fontRule()
{
    const QSharedPointer<QSettings> settings = CCommon::instance().getSettings(QString());
    tagAppFont font;
    font.readSettings(settings, QStringLiteral("AppFont"));
    font.readSettings(settings, QStringLiteral("Setting_AppFont"));
    font.writeSettings(settings, QStringLiteral("AppFont"));
    return font.toStyleSheet();
}

QString joined(const QStringList& names)
{
    return names.join(QLatin1Char(','));
}

void report(const QStringList& missing, const QStringList& failed, const QStringList& unused, const QStringList& loaded)
{
    if (!missing.isEmpty())
        qWarning() << "Miss qss File:" << joined(missing);
    if (!failed.isEmpty())
        qWarning() << "Failed to load qss File:" << joined(failed);
    if (!unused.isEmpty())
        qInfo() << "Unused qss File:" << joined(unused);
    if (!loaded.isEmpty())
        qInfo() << "Successfully to load qss File:" << joined(loaded);
}

QString composed(const QDir& dir, const QStringList& wanted)
{
    QString sSheet = fontRule();
    QStringList missing = wanted;
    QStringList loaded;
    QStringList failed;
    QStringList unused;
    const QFileInfoList files = dir.entryInfoList(QDir::Files, QDir::NoSort);
    for (const QFileInfo& info : files) {
        const QString sName = info.fileName();
        if (!missing.removeOne(sName)) {
            unused.append(sName);
            continue;
        }
        QFile file(info.filePath());
        if (file.open(QIODevice::ReadOnly | QIODevice::Text)) {
            sSheet += QString::fromUtf8(file.readAll());
            loaded.append(sName);
        } else {
            failed.append(sName);
        }
    }
    report(missing, failed, unused, loaded);
    return sSheet;
}

//! Applies the sheet when it differs from the one that polling applied last.
void poll(const QDir& dir, const QStringList& wanted)
{
    static QString sLast;
    const QString sSheet = composed(dir, wanted);
    if (sSheet == sLast)
        return;
    qApp->setStyleSheet(sSheet);
    sLast = sSheet;
}

} // namespace

void TesseraGlobal::loadStyleSheet(const QStringList& names, const QString& dirPath)
{
    QDir dir(dirPath);
    if (dirPath.isEmpty())
        dir.setPath(QStringLiteral(":/qss"));
    dir.setNameFilters({QLatin1Char('*') + suffix()});
    const QStringList wanted = fileNames(names);
    if (dirPath.isEmpty()) {
        qApp->setStyleSheet(composed(dir, wanted));
        return;
    }

    // Polling is off until somebody starts the timer, and nobody does as yet: a folder is never applied at once.
    static QTimer pollTimer;
    if (pollTimer.isActive()) {
        QObject::connect(&pollTimer, &QTimer::timeout, [dir, wanted] { poll(dir, wanted); });
        pollTimer.start(c_nPollInterval);
    }
}

} // namespace nsUI
