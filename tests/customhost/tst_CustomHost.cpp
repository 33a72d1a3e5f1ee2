// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <CCommon.h>
#include <Tessera/CISpinBox/CI8SpinBox.h>
#include <Tessera/CISpinBox/CU64SpinBox.h>
#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QTemporaryDir>
#include <QtTest>

#include <limits>
#include <optional>

using namespace nsUI;
using TestSupport::LogLine;
using TestSupport::MessageRecorder;

class tst_CustomHost : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanupTestCase();

    void logsTheColourTableBeforeTheCreationBegins();
    void goesOnWithoutColours();
    void logsNothingTwice();
    void writesDigitsAsTheHostDoes();
    void takesSettingsFromTheHost();

private:
    QVector<LogLine> m_creation;
    QTemporaryDir m_folder;
    std::optional<TestSupport::GlobalState> m_global;
};

void tst_CustomHost::initTestCase()
{
    m_global.emplace();
    QVERIFY(QDir::setCurrent(m_folder.path()));
    MessageRecorder recorder;
    TesseraGlobal::instance();
    m_creation = recorder.takeLines();
}

void tst_CustomHost::cleanupTestCase()
{
    m_global.reset();
}

void tst_CustomHost::logsTheColourTableBeforeTheCreationBegins()
{
    QStringList lines;
    for (const LogLine& line : qAsConst(m_creation)) {
        lines << TestSupport::levelName(line.level) + QStringLiteral(": ") + line.text;
    }
    QCOMPARE(lines, (QStringList{QStringLiteral("critical: Failed to load :/csv/ColorInfo.csv!"),
                                 QStringLiteral("debug: Tessera Singleton Create Begin"),
                                 QStringLiteral("debug: ") + TestSupport::debugOfList({}),
                                 QStringLiteral("debug: Tessera Singleton Create End")}));
    QVERIFY(m_creation.first().function.contains(QLatin1String("initColorInfo")));
}

void tst_CustomHost::goesOnWithoutColours()
{
    for (int nType = e_Primary; nType <= e_Danger; ++nType) {
        for (int nLightness = e_L100; nLightness <= e_L900; ++nLightness) {
            QVERIFY(!TesseraGlobal::instance().getColor(e_ColorType(nType), e_ColorLightness(nLightness)).isValid());
        }
    }
    QVERIFY(TesseraGlobal::instance().getRandColor().isValid());
}

void tst_CustomHost::logsNothingTwice()
{
    MessageRecorder recorder;
    TesseraGlobal::instance();
    QCOMPARE(recorder.take(), QStringList());
}

void tst_CustomHost::writesDigitsAsTheHostDoes()
{
    CU64SpinBox wide;
    wide.setMaximum(std::numeric_limits<unsigned long long>::max());
    wide.setDisplayIntegerBase(16);
    wide.setValue(0xABCDEF);
    QCOMPARE(wide.text(), QStringLiteral("abcdef"));
    wide.setValue(0);
    QCOMPARE(wide.text(), QStringLiteral("0"));

    CI8SpinBox narrow;
    narrow.setMinimum(-1);
    narrow.setDisplayIntegerBase(16);
    narrow.setValue(-1);
    QCOMPARE(narrow.text(), QStringLiteral("ff"));
    narrow.setDisplayIntegerBase(2);
    QCOMPARE(narrow.text(), QStringLiteral("11111111"));
}

void tst_CustomHost::takesSettingsFromTheHost()
{
    CCommon& host = CCommon::instance();
    host.getSettings(QString())->setValue(QStringLiteral("AppFont/PointSize"), 31);
    host.m_sLastName = QStringLiteral("not asked");
    const int nAsked = host.m_nAsked;
    QCOMPARE(TesseraGlobal::instance().getCurrentAppFont().pointSize(), 31);
    QVERIFY(host.m_nAsked > nAsked);
    QCOMPARE(host.m_sLastName, QString());

    host.getSettings(QString())->setValue(QStringLiteral("Setting_AppFont/PointSize"), 32);
    TestSupport::expectMessage(QtInfoMsg, QStringLiteral("Unused qss File: \"Tessera.qss\""));
    TesseraGlobal::loadStyleSheet({}, QString());
    QVERIFY(qApp->styleSheet().contains(QLatin1String("font-size:32pt;")));
    QCOMPARE(host.getSettings(QString())->value(QStringLiteral("AppFont/PointSize")).toInt(), 32);
}

TESSERA_TEST_MAIN(tst_CustomHost)
#include "tst_CustomHost.moc"
