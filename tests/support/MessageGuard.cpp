// SPDX-License-Identifier: MIT
#include "MessageGuard.h"

#include <QMutexLocker>
#include <QStringList>
#include <QThread>
#include <QtTest>

#include <algorithm>
#include <cstdio>
#include <iterator>

namespace TestSupport {

namespace {

MessageGuard* g_guard = nullptr;

QString levelText(QtMsgType level)
{
    static const char* const names[] = {"debug", "warning", "critical", "fatal", "info"}; // in QtMsgType's order
    return QString::fromLatin1(names[level]);
}

QString currentFunction()
{
    const char* const function = QTest::currentTestFunction();
    const char* const row = QTest::currentDataTag();
    if (!function)
        return {};
    return QStringLiteral("%1(%2)").arg(QString::fromUtf8(function), QString::fromUtf8(row ? row : ""));
}

//! What the library's global object tells where a test is the first to use it; the list is that of a host without fonts.
bool isCreation(QtMsgType level, const QString& text)
{
    static const QStringList lines{QStringLiteral("Tessera Singleton Create Begin"), QStringLiteral("()"),
                                   QStringLiteral("QList()"), QStringLiteral("Tessera Singleton Create End")};
    return level == QtDebugMsg && lines.contains(text);
}

} // namespace

bool isPlatformNoise(QtMsgType level, const QString& text)
{
    static const QLatin1String starts[] = {
        QLatin1String("This plugin does not support "), // offscreen, what only a window manager or a keyboard could do
        QLatin1String("QStandardPaths: XDG_RUNTIME_DIR not set"), // a machine on which nobody is logged in
    };
    return level == QtWarningMsg && std::any_of(std::begin(starts), std::end(starts),
                                                [&text](QLatin1String start) { return text.startsWith(start); });
}

void expectMessage(QtMsgType level, const QString& text)
{
    const QString exactly = QStringLiteral("\\A%1\\z").arg(QRegularExpression::escape(text));
    expectMessage(level, QRegularExpression(exactly));
}

void expectMessage(QtMsgType level, const QRegularExpression& pattern)
{
    QTest::ignoreMessage(level, pattern); // swallows it, and fails the function when it does not come
    if (!g_guard)
        return;
    const QMutexLocker locker(&g_guard->m_mutex);
    g_guard->m_expected.append({currentFunction(), level, pattern});
}

void allowMessages(QtMsgType level, const QRegularExpression& pattern)
{
    if (!g_guard)
        return;
    const QMutexLocker locker(&g_guard->m_mutex);
    g_guard->m_allowed.append({level, pattern});
}

MessageGuard::MessageGuard()
    : m_thread(QThread::currentThreadId())
{
    Q_ASSERT(!g_guard);
    g_guard = this;
    m_outer = qInstallMessageHandler(&MessageGuard::handle);
    m_behind = m_outer;
}

MessageGuard::~MessageGuard()
{
    qInstallMessageHandler(m_outer);
    g_guard = nullptr;
}

int MessageGuard::run(QObject& test, int argc, char* argv[])
{
    QTest::qInit(&test, argc, argv); // QTest's handler takes the place of this one
    m_behind = qInstallMessageHandler(&MessageGuard::handle);
    const int result = QTest::qRun();
    qInstallMessageHandler(m_behind);
    m_behind = m_outer;
    QTest::qCleanup();
    return result;
}

int MessageGuard::exitCode(int result) const
{
    const QMutexLocker locker(&m_mutex);
    for (const QString& line : m_untold)
        std::fprintf(stderr, "FAIL!  : %s\n", qPrintable(line));
    return result == 0 && !m_untold.isEmpty() ? 1 : result;
}

bool MessageGuard::isAllowed(QtMsgType level, const QString& text) const
{
    const QMutexLocker locker(&m_mutex);
    return std::any_of(m_allowed.begin(), m_allowed.end(), [&](const Allowed& allowed) {
        return allowed.level == level && allowed.pattern.match(text).hasMatch();
    });
}

bool MessageGuard::takeExpected(QtMsgType level, const QString& text)
{
    const QString function = currentFunction();
    const QMutexLocker locker(&m_mutex);
    for (int i = 0; i < m_expected.size(); ++i) {
        const Expected& expected = m_expected.at(i);
        if (expected.function == function && expected.level == level && expected.pattern.match(text).hasMatch()) {
            m_expected.removeAt(i);
            return true;
        }
    }
    return false;
}

void MessageGuard::complain(QtMsgType level, const QMessageLogContext& context, const QString& text)
{
    const QString line = QStringLiteral("unexpected %1: %2").arg(levelText(level), text);
    const QString function = currentFunction();
    const bool isOwnThread = QThread::currentThreadId() == m_thread;
    if (isOwnThread && !function.isEmpty()) {
        QTest::qFail(qPrintable(line), context.file, context.line);
        return;
    }
    const QString place = function.isEmpty() ? QStringLiteral("outside of the test functions") : function;
    const QMutexLocker locker(&m_mutex);
    m_untold
        << QStringLiteral("%1%2: %3").arg(place, isOwnThread ? QString() : QStringLiteral(" in another thread"), line);
}

void MessageGuard::handle(QtMsgType level, const QMessageLogContext& context, const QString& text)
{
    MessageGuard& guard = *g_guard;
    if (isPlatformNoise(level, text) || isCreation(level, text) || guard.isAllowed(level, text))
        return;
    const bool isExpected = guard.takeExpected(level, text);
    if (guard.m_behind)
        guard.m_behind(level, context, text);
    const bool isPlain = !context.category || qstrcmp(context.category, "default") == 0;
    const bool counts = level == QtWarningMsg || level == QtCriticalMsg || isPlain;
    if (!isExpected && counts && level != QtFatalMsg) // a fatal message ends the program by itself
        guard.complain(level, context, text);
}

} // namespace TestSupport
