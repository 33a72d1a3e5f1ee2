// SPDX-License-Identifier: MIT
#include "TestMain.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>
#include <QRegularExpression>
#include <QtTest>

class tst_MessageGuard : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void failsOnWhatNobodyExpects_data();
    void failsOnWhatNobodyExpects();
    void failsWhereNoFunctionCan_data();
    void failsWhereNoFunctionCan();
    void stopsNothing();
    void everyTestHasIt();

private:
    //! Runs functions of the noisy program; m_output is then what it prints.
    void run(const QStringList& functions)
    {
        QProcess process;
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(NOISY_PROGRAM), functions);
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitStatus(), QProcess::NormalExit);
        m_exitCode = process.exitCode();
        m_output = QString::fromUtf8(process.readAll());
    }

    int m_exitCode = -1;
    QString m_output;
};

void tst_MessageGuard::failsOnWhatNobodyExpects_data()
{
    QTest::addColumn<QString>("failure"); // none where the function passes
    const auto row = [](const char* function, const char* failure = "") {
        QTest::newRow(function) << QString::fromLatin1(failure);
    };
    row("silent");
    row("warns", "unexpected warning: a warning");
    row("isCritical", "unexpected critical: a critical message");
    row("informs", "unexpected info: an information");
    row("debugs", "unexpected debug: a debug message");
    row("warnsInACategory", "unexpected warning: of a category");
    row("debugsInACategory");
    row("warnsAsThePlatform");
    row("announces");
    row("announcesOnceAndWarnsTwice", "unexpected warning: a warning");
    row("announcesAnotherLevel", "unexpected critical: a message");
    row("announcesAPartOfIt", "unexpected warning: a warning and more");
    row("announcesInVain", "Not all expected messages were received");
    row("announcesForTheNext", "unexpected warning: a warning");
    row("allows");
    row("allowsAnotherLevel", "unexpected warning: a message");
    row("recordsAndLooks");
    row("recordsAndForgets", "unexpected warning: a forgotten warning");
}

void tst_MessageGuard::failsOnWhatNobodyExpects()
{
    QFETCH(QString, failure);
    const QString function = QString::fromLatin1(QTest::currentDataTag());
    run({function});
    if (failure.isEmpty()) {
        QVERIFY2(m_exitCode == 0 && !m_output.contains(QLatin1String("FAIL")), qPrintable(m_output));
        return;
    }
    QVERIFY2(m_exitCode != 0, qPrintable(m_output));
    const QRegularExpression line(QStringLiteral("FAIL!  : Noisy::%1\\(.*\\) %2(\n|$)").arg(function, failure));
    QVERIFY2(line.match(m_output).hasMatch(), qPrintable(m_output));
}

void tst_MessageGuard::failsWhereNoFunctionCan_data()
{
    QTest::addColumn<QString>("failure");
    QTest::newRow("warnsInAThread") << QStringLiteral(
        "FAIL!  : warnsInAThread() in another thread: unexpected warning: from a thread");
    QTest::newRow("warnsAtTheEnd") << QStringLiteral(
        "FAIL!  : outside of the test functions: unexpected warning: from the destructor");
}

void tst_MessageGuard::failsWhereNoFunctionCan()
{
    QFETCH(QString, failure);
    run({QString::fromLatin1(QTest::currentDataTag())});
    QVERIFY2(m_output.contains(QLatin1String(" 0 failed")), qPrintable(m_output)); // for QTest all is well
    QVERIFY2(m_output.contains(failure), qPrintable(m_output));
    QCOMPARE(m_exitCode, 1);
}

//! What comes after the message runs all the same, the function's own checks and other functions.
void tst_MessageGuard::stopsNothing()
{
    run({QStringLiteral("warnsThenFails"), QStringLiteral("silent")});
    QVERIFY2(m_output.contains(QLatin1String("unexpected warning: a warning")), qPrintable(m_output));
    QVERIFY2(m_output.contains(QLatin1String("a failure of its own")), qPrintable(m_output));
    QVERIFY2(m_output.contains(QLatin1String("PASS   : Noisy::silent()")), qPrintable(m_output));
}

void tst_MessageGuard::everyTestHasIt()
{
    const QRegularExpression own(
        QStringLiteral("\\b(QTEST_(GUILESS_|APPLESS_)?MAIN|qExec|ignoreMessage|qInstallMessageHandler)\\b *\\("));
    // The guard and the recorder; and a program that a test runs to see what it prints before there is an application.
    const QStringList allowed{QStringLiteral("support/MessageGuard.cpp"), QStringLiteral("support/MessageGuard.h"),
                              QStringLiteral("TestSupport.h"), QStringLiteral("tst_ApplicationFont.cpp")};
    const QDir tests(QStringLiteral(TESTS_DIR));
    QDirIterator files(tests.path(), {QStringLiteral("*.cpp"), QStringLiteral("*.h")}, QDir::Files,
                       QDirIterator::Subdirectories);
    int guarded = 0;
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(file.readAll());
        guarded += text.contains(QLatin1String("TESSERA_TEST_")) || text.contains(QLatin1String("testMain<")) ? 1 : 0;
        const QString name = tests.relativeFilePath(file.fileName());
        const QString found = own.match(text).captured();
        QVERIFY2(found.isEmpty() || allowed.contains(name), qPrintable(name + QStringLiteral(" has ") + found));
    }
    QVERIFY(guarded > 60);
}

TESSERA_TEST_MAIN(tst_MessageGuard)
#include "tst_MessageGuard.moc"
