// SPDX-License-Identifier: MIT
// Not a test by itself: tst_MessageGuard runs its functions and looks at what becomes of them.
#include "../TestSupport.h"
#include "TestMain.h"

#include <QLoggingCategory>
#include <QtTest>

#include <thread>

using TestSupport::expectMessage;
using TestSupport::MessageRecorder;

namespace {

bool g_isLoudAtTheEnd = false;

} // namespace

class Noisy : public QObject
{
    Q_OBJECT

public:
    ~Noisy() override
    {
        if (g_isLoudAtTheEnd)
            qWarning("from the destructor");
    }

private Q_SLOTS:
    void silent() {}
    void warns() { qWarning("a warning"); }
    void isCritical() { qCritical("a critical message"); }
    void informs() { qInfo("an information"); }
    void debugs() { qDebug("a debug message"); }
    void warnsInACategory()
    {
        const QLoggingCategory category("some.category");
        qCWarning(category, "of a category");
    }
    void debugsInACategory()
    {
        const QLoggingCategory category("some.category");
        qCDebug(category, "of a category");
    }
    void warnsAsThePlatform() { qWarning("This plugin does not support raise()"); }
    void warnsThenFails()
    {
        qWarning("a warning");
        QFAIL("a failure of its own");
    }

    void announces()
    {
        expectMessage(QtWarningMsg, QStringLiteral("a (warning)"));
        expectMessage(QtInfoMsg, QRegularExpression(QStringLiteral("^an? info")));
        qInfo("an information");
        qWarning("a (warning)");
    }
    void announcesOnceAndWarnsTwice()
    {
        expectMessage(QtWarningMsg, QStringLiteral("a warning"));
        qWarning("a warning");
        qWarning("a warning");
    }
    void announcesAnotherLevel()
    {
        expectMessage(QtWarningMsg, QStringLiteral("a message"));
        qCritical("a message");
    }
    void announcesAPartOfIt()
    {
        expectMessage(QtWarningMsg, QStringLiteral("a warning"));
        qWarning("a warning and more");
    }
    void announcesInVain() { expectMessage(QtWarningMsg, QStringLiteral("a warning")); }
    void announcesForTheNext_data()
    {
        QTest::addColumn<bool>("announces");
        QTest::newRow("first") << true;
        QTest::newRow("second") << false;
    }
    void announcesForTheNext()
    {
        QFETCH(bool, announces);
        if (announces) {
            expectMessage(QtWarningMsg, QStringLiteral("a warning"));
            return;
        }
        qWarning("a warning");
    }

    void allows()
    {
        TestSupport::allowMessages(QtInfoMsg, QRegularExpression(QStringLiteral("^an? info")));
        qInfo("an information");
        qInfo("an information");
    }
    void allowsAnotherLevel()
    {
        TestSupport::allowMessages(QtInfoMsg, QRegularExpression(QStringLiteral("^a message")));
        qWarning("a message");
    }

    void recordsAndLooks()
    {
        MessageRecorder log;
        qWarning("a warning");
        QCOMPARE(log.take(), QStringList{QStringLiteral("warning: a warning")});
    }
    void recordsAndForgets()
    {
        const MessageRecorder log;
        qWarning("a forgotten warning");
    }

    void warnsInAThread()
    {
        std::thread([] { qWarning("from a thread"); }).join();
    }
    void warnsAtTheEnd() { g_isLoudAtTheEnd = true; }
};

TESSERA_TEST_MAIN(Noisy)
#include "noisy.moc"
