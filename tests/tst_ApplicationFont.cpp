// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <CCommon.h>
#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QFontDatabase>
#include <QProcess>
#include <QScopedPointer>
#include <QtTest>

#include <cstdio>
#include <optional>
#include <type_traits>

using nsUI::tagAppFont;
using nsUI::TesseraGlobal;
using TestSupport::contentOf;
using TestSupport::GlobalState;
using TestSupport::HostResources;
using TestSupport::MessageRecorder;

namespace {

const QString sGroup = QStringLiteral("SomeGroup");
const QString sOwnFamily = QStringLiteral("Tessera Test"); // that of the test's own font file

// The same weights in other numbers: those of Qt 5 end at 99, those of Qt 6 at 1000.
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
constexpr int c_nNormal = 50;
constexpr int c_nBold = 75;
#else
constexpr int c_nNormal = 400;
constexpr int c_nBold = 700;
#endif

QSharedPointer<QSettings> store()
{
    return CCommon::instance().getSettings(QString());
}

void put(const QVariantMap& values)
{
    const QSharedPointer<QSettings> pSettings = store();
    for (auto it = values.cbegin(); it != values.cend(); ++it) {
        pSettings->setValue(it.key(), it.value());
    }
}

tagAppFont font(const QStringList& families, int nSize, bool bBold, bool bItalic)
{
    tagAppFont result;
    result.families = families;
    result.pointSize = nSize;
    result.bold = bBold;
    result.italic = bItalic;
    return result;
}

//! The command line argument that makes this program use the library before there is an application.
const char* const g_early = "--before-the-application";

void print(QtMsgType level, const QMessageLogContext&, const QString& sText)
{
    // Qt 6 names the list's class before it.
    const bool isList = sText.startsWith(QLatin1Char('(')) || sText.startsWith(QLatin1String("QList("));
    const QString sShown = isList ? QStringLiteral("the list of fonts") : sText;
    std::puts(qPrintable(TestSupport::levelName(level) + QStringLiteral(": ") + sShown));
}

//! Prints what happens; the arguments are which application there is, if any, and the file of resources, if any.
int earlyUse(int argc, char* argv[])
{
    const HostResources host(*argv[3] != '\0' ? contentOf(QString::fromLocal8Bit(argv[3])) : QByteArray());
    qInstallMessageHandler(print);
    QScopedPointer<QCoreApplication> pCore;
    if (*argv[2] != '\0')
        pCore.reset(new QCoreApplication(argc, argv));
    std::puts(qPrintable(TesseraGlobal::instance().getColor(nsUI::e_Primary, nsUI::e_L500).name()));
    pCore.reset();
    qInstallMessageHandler(nullptr);

    const QApplication app(argc, argv);
    TesseraGlobal::initFont();
    std::puts(QFontDatabase().families().contains(sOwnFamily) ? "registered later" : "not registered");
    return 0;
}

} // namespace

class tst_ApplicationFont : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();
    void cleanupTestCase();

    void defaultsToJetBrainsMonoAndArialAtTenPoints();
    void isAPlainValue();

    void readsKeyByKeyOverWhatItHolds_data();
    void readsKeyByKeyOverWhatItHolds();
    void readsOneGroupOverAnother();
    void convertsValuesOfOtherTypes_data();
    void convertsValuesOfOtherTypes();
    void leavesTheSettingsInTheGroupTheyWereIn();
    void readsAndWritesWithinTheGroupTheSettingsAreIn();
    void writesItsFourKeysInTheirTypes();
    void readsBackWhatItWrote_data();
    void readsBackWhatItWrote();

    void makesAFontOfTheApplicationsFont_data();
    void makesAFontOfTheApplicationsFont();
    void keepsTheApplicationsFamilyWithoutFamilies();
    void keepsWhatTheRecordDoesNotTell();

    void writesTheRuleToTheCharacter_data();
    void writesTheRuleToTheCharacter();

    void currentFontIsTheDefaultBeforeAnythingIsStored();
    void currentFontReadsOnlyTheFontInEffect();
    void currentFontShowsTheChoiceAfterTheNextStyleSheet();
    void currentFontWritesNothing();

    void logsAnEmptyListWithoutFontFiles();
    void registersEveryFontFileAndLogsTheirList();
    void leavesTheApplicationsFontAlone();
    void isUsableBeforeThereIsAnApplication_data();
    void isUsableBeforeThereIsAnApplication();

private:
    std::optional<GlobalState> m_global;
};

void tst_ApplicationFont::initTestCase()
{
    TesseraGlobal::instance();
}

void tst_ApplicationFont::init()
{
    m_global.emplace();
}

void tst_ApplicationFont::cleanup()
{
    m_global.reset();
}

void tst_ApplicationFont::cleanupTestCase()
{
    QFontDatabase::removeAllApplicationFonts();
}

void tst_ApplicationFont::defaultsToJetBrainsMonoAndArialAtTenPoints()
{
    const tagAppFont record;
    QCOMPARE(record.families, (QStringList{QStringLiteral("JetBrains Mono"), QStringLiteral("Arial")}));
    QCOMPARE(record.pointSize, 10);
    QCOMPARE(record.bold, false);
    QCOMPARE(record.italic, false);
}

void tst_ApplicationFont::isAPlainValue()
{
    QVERIFY(std::is_copy_constructible<tagAppFont>::value);
    QVERIFY(std::is_copy_assignable<tagAppFont>::value);
    QVERIFY(!std::is_polymorphic<tagAppFont>::value);
    QVERIFY(std::is_standard_layout<tagAppFont>::value);
    QVERIFY(offsetof(tagAppFont, families) < offsetof(tagAppFont, pointSize));
    QVERIFY(offsetof(tagAppFont, pointSize) < offsetof(tagAppFont, bold));
    QVERIFY(offsetof(tagAppFont, bold) < offsetof(tagAppFont, italic));
}

void tst_ApplicationFont::readsKeyByKeyOverWhatItHolds_data()
{
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic"); // read over "Mine", 33, true, true

    const QStringList mine{QStringLiteral("Mine")};
    const QStringList two{QStringLiteral("One, and only"), QStringLiteral("Two")};
    const QString sFamilies = sGroup + QStringLiteral("/Familys");
    const QString sSize = sGroup + QStringLiteral("/PointSize");
    const QString sBold = sGroup + QStringLiteral("/Bold");
    const QString sItalic = sGroup + QStringLiteral("/Italic");

    QTest::newRow("nothing") << QVariantMap{} << mine << 33 << true << true;
    QTest::newRow("families") << QVariantMap{{sFamilies, two}} << two << 33 << true << true;
    QTest::newRow("no families") << QVariantMap{{sFamilies, QStringList()}} << QStringList() << 33 << true << true;
    QTest::newRow("size") << QVariantMap{{sSize, 7}} << mine << 7 << true << true;
    QTest::newRow("bold") << QVariantMap{{sBold, false}} << mine << 33 << false << true;
    QTest::newRow("italic") << QVariantMap{{sItalic, false}} << mine << 33 << true << false;
    QTest::newRow("all") << QVariantMap{{sFamilies, two}, {sSize, 7}, {sBold, false}, {sItalic, false}} << two << 7
                         << false << false;
    QTest::newRow("the key is Familys") << QVariantMap{{sGroup + QStringLiteral("/Families"), two}} << mine << 33
                                        << true << true;
    QTest::newRow("another group") << QVariantMap{{QStringLiteral("OtherGroup/PointSize"), 7},
                                                  {QStringLiteral("PointSize"), 8}}
                                   << mine << 33 << true << true;
}

void tst_ApplicationFont::readsKeyByKeyOverWhatItHolds()
{
    QFETCH(const QVariantMap, stored);
    QFETCH(const QStringList, families);
    QFETCH(const int, pointSize);
    QFETCH(const bool, bold);
    QFETCH(const bool, italic);
    put(stored);
    tagAppFont record = font({QStringLiteral("Mine")}, 33, true, true);
    record.readSettings(store(), sGroup);
    QCOMPARE(record.families, families);
    QCOMPARE(record.pointSize, pointSize);
    QCOMPARE(record.bold, bold);
    QCOMPARE(record.italic, italic);
}

void tst_ApplicationFont::readsOneGroupOverAnother()
{
    put({{QStringLiteral("First/PointSize"), 5},
         {QStringLiteral("First/Bold"), true},
         {QStringLiteral("Second/PointSize"), 6},
         {QStringLiteral("Second/Italic"), true}});
    tagAppFont record;
    record.readSettings(store(), QStringLiteral("First"));
    record.readSettings(store(), QStringLiteral("Second"));
    QCOMPARE(record.families, tagAppFont().families);
    QCOMPARE(record.pointSize, 6);
    QCOMPARE(record.bold, true);
    QCOMPARE(record.italic, true);
}

void tst_ApplicationFont::convertsValuesOfOtherTypes_data()
{
    QTest::addColumn<QString>("key");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<QVariant>("read");

    const QString sFamilies = QStringLiteral("Familys");
    const QString sSize = QStringLiteral("PointSize");
    const QString sBold = QStringLiteral("Bold");
    const QString sItalic = QStringLiteral("Italic");
    QTest::newRow("one family as text") << sFamilies << QVariant(QStringLiteral("Solo"))
                                        << QVariant(QStringList{QStringLiteral("Solo")});
    QTest::newRow("a size as text") << sSize << QVariant(QStringLiteral("12")) << QVariant(12);
    QTest::newRow("a size that is no number") << sSize << QVariant(QStringLiteral("large")) << QVariant(0);
    QTest::newRow("a floating-point size") << sSize << QVariant(12.5) << QVariant(13);
    QTest::newRow("bold as text") << sBold << QVariant(QStringLiteral("true")) << QVariant(true);
    QTest::newRow("bold as false text") << sBold << QVariant(QStringLiteral("false")) << QVariant(false);
    QTest::newRow("bold as number") << sBold << QVariant(1) << QVariant(true);
    QTest::newRow("italic as number") << sItalic << QVariant(0) << QVariant(false);
    QTest::newRow("italic as another word") << sItalic << QVariant(QStringLiteral("yes")) << QVariant(true);
}

void tst_ApplicationFont::convertsValuesOfOtherTypes()
{
    QFETCH(const QString, key);
    QFETCH(const QVariant, value);
    QFETCH(const QVariant, read);
    put({{sGroup + QLatin1Char('/') + key, value}});
    for (const bool bBefore : {false, true}) {
        tagAppFont record = font({QStringLiteral("Mine")}, 33, bBefore, bBefore);
        record.readSettings(store(), sGroup);
        const QVariantMap fields{{QStringLiteral("Familys"), record.families},
                                 {QStringLiteral("PointSize"), record.pointSize},
                                 {QStringLiteral("Bold"), record.bold},
                                 {QStringLiteral("Italic"), record.italic}};
        QCOMPARE(fields.value(key), read);
    }
}

void tst_ApplicationFont::leavesTheSettingsInTheGroupTheyWereIn()
{
    const QSharedPointer<QSettings> pSettings = store();
    tagAppFont record;
    record.writeSettings(pSettings, sGroup);
    QCOMPARE(pSettings->group(), QString());
    record.readSettings(pSettings, sGroup);
    QCOMPARE(pSettings->group(), QString());
}

void tst_ApplicationFont::readsAndWritesWithinTheGroupTheSettingsAreIn()
{
    const QSharedPointer<QSettings> pSettings = store();
    pSettings->beginGroup(QStringLiteral("Outer"));
    font({}, 21, true, true).writeSettings(pSettings, sGroup);
    QCOMPARE(pSettings->group(), QStringLiteral("Outer"));
    tagAppFont record;
    record.readSettings(pSettings, sGroup);
    QCOMPARE(pSettings->group(), QStringLiteral("Outer"));
    pSettings->endGroup();
    QCOMPARE(record.pointSize, 21);
    QCOMPARE(pSettings->value(QStringLiteral("Outer/SomeGroup/PointSize")).toInt(), 21);
}

void tst_ApplicationFont::writesItsFourKeysInTheirTypes()
{
    const QSharedPointer<QSettings> pSettings = store();
    font({QStringLiteral("One"), QStringLiteral("Two")}, 9, true, false).writeSettings(pSettings, sGroup);
    QStringList keys = pSettings->allKeys();
    keys.sort();
    QCOMPARE(keys, (QStringList{sGroup + QStringLiteral("/Bold"), sGroup + QStringLiteral("/Familys"),
                                sGroup + QStringLiteral("/Italic"), sGroup + QStringLiteral("/PointSize")}));
    const auto stored = [&pSettings](const char* key) {
        return pSettings->value(sGroup + QLatin1Char('/') + QString::fromLatin1(key));
    };
    QCOMPARE(stored("Familys"), QVariant(QStringList{QStringLiteral("One"), QStringLiteral("Two")}));
    QCOMPARE(stored("Familys").userType(), int(QMetaType::QStringList));
    QCOMPARE(stored("PointSize"), QVariant(9));
    QCOMPARE(stored("PointSize").userType(), int(QMetaType::Int));
    QCOMPARE(stored("Bold"), QVariant(true));
    QCOMPARE(stored("Bold").userType(), int(QMetaType::Bool));
    QCOMPARE(stored("Italic"), QVariant(false));
    QCOMPARE(stored("Italic").userType(), int(QMetaType::Bool));
}

void tst_ApplicationFont::readsBackWhatItWrote_data()
{
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");

    QTest::newRow("defaults") << tagAppFont().families << 10 << false << false;
    QTest::newRow("no family") << QStringList() << 1 << true << false;
    QTest::newRow("one family") << QStringList{QStringLiteral("DejaVu Sans")} << 72 << false << true;
    QTest::newRow("odd names") << QStringList{QStringLiteral("a, b"), QStringLiteral("\"c\""), QStringLiteral("字体"),
                                              QStringLiteral("@d")}
                               << 12 << true << true;
}

void tst_ApplicationFont::readsBackWhatItWrote()
{
    QFETCH(const QStringList, families);
    QFETCH(const int, pointSize);
    QFETCH(const bool, bold);
    QFETCH(const bool, italic);
    font(families, pointSize, bold, italic).writeSettings(store(), sGroup);
    tagAppFont record = font({QStringLiteral("Mine")}, 33, !bold, !italic);
    record.readSettings(store(), sGroup);
    QCOMPARE(record.families, families);
    QCOMPARE(record.pointSize, pointSize);
    QCOMPARE(record.bold, bold);
    QCOMPARE(record.italic, italic);
}

void tst_ApplicationFont::makesAFontOfTheApplicationsFont_data()
{
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("weight");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<int>("style");

    QTest::newRow("plain") << false << c_nNormal << false << int(QFont::StyleNormal);
    QTest::newRow("bold") << true << c_nBold << false << int(QFont::StyleNormal);
    QTest::newRow("italic") << false << c_nNormal << true << int(QFont::StyleItalic);
    QTest::newRow("both") << true << c_nBold << true << int(QFont::StyleItalic);
}

void tst_ApplicationFont::makesAFontOfTheApplicationsFont()
{
    QFETCH(const bool, bold);
    QFETCH(const int, weight);
    QFETCH(const bool, italic);
    QFETCH(const int, style);
    QFont applicationFont(QStringLiteral("DejaVu Sans"), 15, QFont::Black);
    applicationFont.setStyle(QFont::StyleOblique);
    QApplication::setFont(applicationFont);
    const QFont result = font({QStringLiteral("Family A"), QStringLiteral("Family B")}, 17, bold, italic).toFont();
    QCOMPARE(result.family(), QStringLiteral("Family A"));
    QCOMPARE(result.pointSize(), 17);
    QCOMPARE(int(result.weight()), weight);
    QCOMPARE(int(result.style()), style);
}

void tst_ApplicationFont::keepsTheApplicationsFamilyWithoutFamilies()
{
    QApplication::setFont(QFont(QStringLiteral("DejaVu Serif"), 15));
    const QFont result = font({}, 17, false, false).toFont();
    QCOMPARE(result.family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(result.pointSize(), 17);
}

void tst_ApplicationFont::keepsWhatTheRecordDoesNotTell()
{
    QFont applicationFont(QStringLiteral("DejaVu Sans"), 15);
    applicationFont.setUnderline(true);
    applicationFont.setLetterSpacing(QFont::AbsoluteSpacing, 3);
    QApplication::setFont(applicationFont);
    const QFont result = tagAppFont().toFont();
    QVERIFY(result.underline());
    QCOMPARE(result.letterSpacing(), 3.0);
    QCOMPARE(result.family(), QStringLiteral("JetBrains Mono"));
}

void tst_ApplicationFont::writesTheRuleToTheCharacter_data()
{
    QTest::addColumn<QStringList>("families");
    QTest::addColumn<int>("pointSize");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<bool>("italic");
    QTest::addColumn<QString>("rule");

    QTest::newRow("defaults") << tagAppFont().families << 10 << false << false
                              << QStringLiteral("*{\n"
                                                "    font-family:\"JetBrains Mono\",\"Arial\";\n"
                                                "    font-size:10pt;\n"
                                                "    font-weight:normal;\n"
                                                "    font-style:normal;\n"
                                                "}\n");
    QTest::newRow("bold") << QStringList{QStringLiteral("A")} << 8 << true << false
                          << QStringLiteral("*{\n    font-family:\"A\";\n    font-size:8pt;\n    font-weight:bold;\n"
                                            "    font-style:normal;\n}\n");
    QTest::newRow("italic") << QStringList{QStringLiteral("A"), QStringLiteral("B"), QStringLiteral("C")} << 100
                            << false << true
                            << QStringLiteral("*{\n    font-family:\"A\",\"B\",\"C\";\n    font-size:100pt;\n"
                                              "    font-weight:normal;\n    font-style:italic;\n}\n");
    QTest::newRow("no families") << QStringList() << 12 << true << true
                                 << QStringLiteral("*{\n    font-size:12pt;\n    font-weight:bold;\n"
                                                   "    font-style:italic;\n}\n");
    QTest::newRow("an empty family is a family")
        << QStringList{QString()} << 12 << false << false
        << QStringLiteral("*{\n    font-family:\"\";\n    font-size:12pt;\n"
                          "    font-weight:normal;\n    font-style:normal;\n}\n");
    QTest::newRow("a family with a place marker")
        << QStringList{QStringLiteral("%1"), QStringLiteral("%2 %3")} << 12 << false << false
        << QStringLiteral("*{\n    font-family:\"%1\",\"%2 %3\";\n    font-size:12pt;\n    font-weight:normal;\n"
                          "    font-style:normal;\n}\n");
    QTest::newRow("no size") << QStringList() << 0 << false << false
                             << QStringLiteral("*{\n    font-size:0pt;\n    font-weight:normal;\n"
                                               "    font-style:normal;\n}\n");
}

void tst_ApplicationFont::writesTheRuleToTheCharacter()
{
    QFETCH(const QStringList, families);
    QFETCH(const int, pointSize);
    QFETCH(const bool, bold);
    QFETCH(const bool, italic);
    QFETCH(const QString, rule);
    QCOMPARE(font(families, pointSize, bold, italic).toStyleSheet(), rule);
}

void tst_ApplicationFont::currentFontIsTheDefaultBeforeAnythingIsStored()
{
    const QFont current = TesseraGlobal::instance().getCurrentAppFont();
    QCOMPARE(current.family(), QStringLiteral("JetBrains Mono"));
    QCOMPARE(current.pointSize(), 10);
    QCOMPARE(int(current.weight()), c_nNormal);
    QCOMPARE(current.style(), QFont::StyleNormal);
}

void tst_ApplicationFont::currentFontReadsOnlyTheFontInEffect()
{
    put({{QStringLiteral("AppFont/Bold"), true},
         {QStringLiteral("AppFont/Italic"), true},
         {QStringLiteral("AppFont/Familys"), QStringList{QStringLiteral("DejaVu Serif"), QStringLiteral("Arial")}},
         {QStringLiteral("Setting_AppFont/PointSize"), 40},
         {QStringLiteral("Setting_AppFont/Bold"), false},
         {QStringLiteral("Setting_AppFont/Italic"), false},
         {QStringLiteral("Setting_AppFont/Familys"), QStringList{QStringLiteral("DejaVu Sans Mono")}}});
    const QFont current = TesseraGlobal::instance().getCurrentAppFont();
    QCOMPARE(current.family(), QStringLiteral("DejaVu Serif"));
    QCOMPARE(current.pointSize(), 10);
    QCOMPARE(int(current.weight()), c_nBold);
    QCOMPARE(current.style(), QFont::StyleItalic);
}

void tst_ApplicationFont::currentFontShowsTheChoiceAfterTheNextStyleSheet()
{
    put({{QStringLiteral("Setting_AppFont/PointSize"), 40}});
    QCOMPARE(TesseraGlobal::instance().getCurrentAppFont().pointSize(), 10);
    TestSupport::expectMessage(QtInfoMsg, QStringLiteral("Unused qss File: \"Tessera.qss\""));
    TesseraGlobal::loadStyleSheet({}, QString());
    QCOMPARE(TesseraGlobal::instance().getCurrentAppFont().pointSize(), 40);
}

void tst_ApplicationFont::currentFontWritesNothing()
{
    TesseraGlobal::instance().getCurrentAppFont();
    QCOMPARE(store()->allKeys(), QStringList());
}

void tst_ApplicationFont::logsAnEmptyListWithoutFontFiles()
{
    QVERIFY(!QDir(QStringLiteral(":/ttf")).exists());
    const QStringList before = QFontDatabase().families();
    MessageRecorder log;
    TesseraGlobal::initFont();
    QCOMPARE(log.take(), QStringList{QStringLiteral("debug: ") + TestSupport::debugOfList({})});
    QCOMPARE(QFontDatabase().families(), before);
}

void tst_ApplicationFont::registersEveryFontFileAndLogsTheirList()
{
    QVERIFY(!QFontDatabase().families().contains(sOwnFamily));
    const HostResources host(contentOf(QStringLiteral(FONT_RESOURCES)));
    QVERIFY(host.isRegistered());
    const QDir folder(QStringLiteral(":/ttf"));
    QCOMPARE(folder.entryList(QDir::Files, QDir::Name),
             (QStringList{QStringLiteral("Broken.ttf"), QStringLiteral("OtherSuffix.otf"),
                          QStringLiteral("TesseraTest.ttf"), QStringLiteral("readme.txt")}));
    QStringList listed;
    for (const QString& sName : folder.entryList({QStringLiteral("*.ttf")}, QDir::Files, QDir::NoSort)) {
        listed << QStringLiteral("QFileInfo(:/ttf/%1)").arg(sName);
    }
    QCOMPARE(listed.size(), 2);

    MessageRecorder log;
    TesseraGlobal::initFont();
    QCOMPARE(log.take(), QStringList{QStringLiteral("debug: ") + TestSupport::debugOfList(listed)});
    QVERIFY(QFontDatabase().families().contains(sOwnFamily)); // in spite of the broken file beside it
}

void tst_ApplicationFont::leavesTheApplicationsFontAlone()
{
    const QFont before = QApplication::font();
    const HostResources host(contentOf(QStringLiteral(FONT_RESOURCES)));
    QVERIFY(host.isRegistered());
    MessageRecorder log;
    TesseraGlobal::initFont();
    QCOMPARE(log.take().size(), 1);
    QCOMPARE(QApplication::font(), before);
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_ApplicationFont::isUsableBeforeThereIsAnApplication_data()
{
    QTest::addColumn<QString>("application");
    QTest::addColumn<bool>("hasFonts");
    QTest::newRow("none, with fonts") << QString() << true;
    QTest::newRow("one without a display, with fonts") << QStringLiteral("core") << true;
    QTest::newRow("none, without fonts") << QString() << false;
}

void tst_ApplicationFont::isUsableBeforeThereIsAnApplication()
{
    QFETCH(const QString, application);
    QFETCH(const bool, hasFonts);
    QProcess process;
    process.start(QCoreApplication::applicationFilePath(),
                  {QString::fromLatin1(g_early), application, hasFonts ? QStringLiteral(FONT_RESOURCES) : QString()});
    QVERIFY(process.waitForFinished());
    QCOMPARE(process.exitStatus(), QProcess::NormalExit);
    QCOMPARE(process.exitCode(), 0);
    QStringList expected{QStringLiteral("debug: Tessera Singleton Create Begin"),
                         QStringLiteral("debug: the list of fonts")};
    if (hasFonts)
        expected << QStringLiteral("warning: The fonts of :/ttf are not registered: there is no QGuiApplication yet. "
                                   "Call TesseraGlobal::initFont() when there is one.");
    expected << QStringLiteral("debug: Tessera Singleton Create End") << QStringLiteral("#136796")
             << (hasFonts ? QStringLiteral("registered later") : QStringLiteral("not registered"));
    const QString sPrinted = QString::fromUtf8(process.readAllStandardOutput());
    QCOMPARE(sPrinted.split(QLatin1Char('\n'), Qt::SkipEmptyParts), expected);
}

int main(int argc, char* argv[])
{
    if (argc == 4 && qstrcmp(argv[1], g_early) == 0)
        return earlyUse(argc, argv);
    return TestSupport::testMain<QApplication, tst_ApplicationFont>(argc, argv);
}

#include "tst_ApplicationFont.moc"
