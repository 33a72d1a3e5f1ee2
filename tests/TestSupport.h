// SPDX-License-Identifier: MIT
#pragma once

#include "support/GlobalState.h"
#include "support/MessageGuard.h"

#include <QDebug>
#include <QFile>
#include <QMutex>
#include <QMutexLocker>
#include <QResource>
#include <QString>
#include <QStringList>
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
    was installed before; recorders may be nested. The messages of Qt's offscreen platform are left out. What nobody
    has taken from it goes on to that handler at the end, which is the test's guard and fails it.
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
        for (const LogLine& line : qAsConst(m_lines)) {
            const QByteArray file = line.file.toUtf8();
            const QByteArray function = line.function.toUtf8();
            m_previous(line.level, {file.constData(), 0, function.constData(), "default"}, line.text);
        }
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
        if (isPlatformNoise(level, sText)) {
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
