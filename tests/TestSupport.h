// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QMutex>
#include <QMutexLocker>
#include <QResource>
#include <QSettings>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVector>

//! What several tests need: the log as data, and settings that belong to one test alone.
namespace TestSupport {

//! One message as Qt's message handler receives it.
struct LogLine
{
    QtMsgType level = QtDebugMsg;
    QString text;
    QString file;     //!< empty where the message carries no context
    QString function; //!< empty where the message carries no context
};

inline QString levelName(QtMsgType level)
{
    switch (level) {
    case QtDebugMsg:
        return QStringLiteral("debug");
    case QtInfoMsg:
        return QStringLiteral("info");
    case QtWarningMsg:
        return QStringLiteral("warning");
    case QtCriticalMsg:
        return QStringLiteral("critical");
    case QtFatalMsg:
        break;
    }
    return QStringLiteral("fatal");
}

//! A list as the debug stream writes it; that of Qt 6 names the container.
inline QString debugOfList(const QStringList& items)
{
    const bool named = QT_VERSION >= QT_VERSION_CHECK(6, 0, 0);
    return QStringLiteral("%1(%2)").arg(named ? QStringLiteral("QList") : QString(), items.join(QLatin1String(", ")));
}

/*!
    Takes every message from its construction to its destruction, from any thread, instead of the handler that
    was installed before; recorders may be nested. The messages of Qt's offscreen platform are left out.
*/
class MessageRecorder
{
public:
    MessageRecorder()
        : m_pOuter(current())
    {
        current() = this;
        m_previous = qInstallMessageHandler(&MessageRecorder::handle);
    }

    ~MessageRecorder()
    {
        qInstallMessageHandler(m_previous);
        current() = m_pOuter;
    }

    //! The messages since the last call of takeLines() or take().
    QVector<LogLine> takeLines()
    {
        const QMutexLocker locker(&m_mutex);
        QVector<LogLine> lines;
        lines.swap(m_lines);
        return lines;
    }

    //! The same as "level: text", in order: what most tests compare.
    QStringList take()
    {
        QStringList texts;
        const QVector<LogLine> lines = takeLines();
        for (const LogLine& line : lines) {
            texts << levelName(line.level) + QStringLiteral(": ") + line.text;
        }
        return texts;
    }

private:
    Q_DISABLE_COPY(MessageRecorder)

    static MessageRecorder*& current()
    {
        static MessageRecorder* pCurrent = nullptr;
        return pCurrent;
    }

    static void handle(QtMsgType level, const QMessageLogContext& context, const QString& sText)
    {
        if (sText.startsWith(QLatin1String("This plugin does not support "))) {
            return;
        }
        MessageRecorder* const pRecorder = current();
        const QMutexLocker locker(&pRecorder->m_mutex);
        pRecorder->m_lines.append({level, sText, QString::fromUtf8(context.file), QString::fromUtf8(context.function)});
    }

    MessageRecorder* m_pOuter;
    QtMessageHandler m_previous = nullptr;
    QMutex m_mutex;
    QVector<LogLine> m_lines;
};

/*!
    An empty settings store of its own for as long as it lives: a temporary folder for all of QSettings'
    files, the INI format, and names for the organization and the application. Everything is put back at the
    end.
*/
class SettingsGuard
{
public:
    SettingsGuard()
        : m_sOrganization(QCoreApplication::organizationName())
        , m_sDomain(QCoreApplication::organizationDomain())
        , m_sApplication(QCoreApplication::applicationName())
        , m_defaultFormat(QSettings::defaultFormat())
    {
        for (const QSettings::Format format : {QSettings::NativeFormat, QSettings::IniFormat}) {
            for (const QSettings::Scope scope : {QSettings::UserScope, QSettings::SystemScope}) {
                m_locations.append({format, scope, locationOf(format, scope)});
                QSettings::setPath(format, scope,
                                   m_folder.filePath(scope == QSettings::UserScope ? QStringLiteral("user")
                                                                                   : QStringLiteral("system")));
            }
        }
        QSettings::setDefaultFormat(QSettings::IniFormat);
        QCoreApplication::setOrganizationName(QStringLiteral("TestOrganization"));
        QCoreApplication::setOrganizationDomain(QString());
        QCoreApplication::setApplicationName(QStringLiteral("TestApplication"));
    }

    ~SettingsGuard()
    {
        QCoreApplication::setOrganizationName(m_sOrganization);
        QCoreApplication::setOrganizationDomain(m_sDomain);
        QCoreApplication::setApplicationName(m_sApplication);
        QSettings::setDefaultFormat(m_defaultFormat);
        for (const Location& location : qAsConst(m_locations)) {
            QSettings::setPath(location.format, location.scope, location.sPath);
        }
    }

    //! The folder that the user's settings files lie in.
    QString folder() const { return m_folder.filePath(QStringLiteral("user")); }

private:
    Q_DISABLE_COPY(SettingsGuard)

    struct Location
    {
        QSettings::Format format;
        QSettings::Scope scope;
        QString sPath;
    };

    //! QSettings tells no path, but its file names end in /organization/application.suffix below it.
    static QString locationOf(QSettings::Format format, QSettings::Scope scope)
    {
        const QSettings probe(format, scope, QStringLiteral("o"), QStringLiteral("a"));
        return QFileInfo(probe.fileName()).dir().filePath(QStringLiteral(".."));
    }

    QTemporaryDir m_folder;
    QString m_sOrganization;
    QString m_sDomain;
    QString m_sApplication;
    QSettings::Format m_defaultFormat;
    QVector<Location> m_locations;
};

//! The whole content of a file; null when it cannot be read.
inline QByteArray contentOf(const QString& sPath)
{
    QFile file(sPath);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

//! Adds resources made by rcc --binary, as if they were a host's own, for as long as it lives.
class HostResources
{
public:
    explicit HostResources(const QByteArray& content)
        : m_content(content)
        , m_bRegistered(QResource::registerResource(data()))
    {
    }

    ~HostResources() { QResource::unregisterResource(data()); }

    bool isRegistered() const { return m_bRegistered; }

private:
    Q_DISABLE_COPY(HostResources)

    const uchar* data() const { return reinterpret_cast<const uchar*>(m_content.constData()); }

    QByteArray m_content;
    bool m_bRegistered;
};

} // namespace TestSupport
