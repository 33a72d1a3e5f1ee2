// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <CCommon.h>
#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFileInfo>
#include <QLabel>
#include <QScopedPointer>
#include <QTemporaryDir>
#include <QtTest>

#include <algorithm>
#include <optional>

using nsUI::tagAppFont;
using nsUI::TesseraGlobal;
using TestSupport::contentOf;
using TestSupport::GlobalState;
using TestSupport::HostResources;
using TestSupport::MessageRecorder;

namespace {

const QString sDefaultRule = QStringLiteral("*{\n"
                                            "    font-family:\"JetBrains Mono\",\"Arial\";\n"
                                            "    font-size:10pt;\n"
                                            "    font-weight:normal;\n"
                                            "    font-style:normal;\n"
                                            "}\n");

//! The sheets of ":/qss" in the order in which the folder lists them.
QStringList listing()
{
    return QDir(QStringLiteral(":/qss")).entryList({QStringLiteral("*.qss")}, QDir::Files, QDir::NoSort);
}

//! What the sheets of these names add, in the folder's order.
QString contents(const QStringList& names)
{
    QString sText;
    for (const QString& sName : listing()) {
        if (names.contains(sName)) {
            sText += QString::fromUtf8(contentOf(QStringLiteral(":/qss/") + sName))
                         .replace(QLatin1String("\r\n"), QLatin1String("\n"));
        }
    }
    return sText;
}

QString line(const char* start, const QStringList& names)
{
    return QString::fromLatin1(start) + QStringLiteral(" \"") + names.join(QLatin1Char(',')) + QLatin1Char('"');
}

QString missLine(const QStringList& names)
{
    return line("warning: Miss qss File:", names);
}
QString failLine(const QStringList& names)
{
    return line("warning: Failed to load qss File:", names);
}
QString unusedLine(const QStringList& names)
{
    return line("info: Unused qss File:", names);
}
QString loadedLine(const QStringList& names)
{
    return line("info: Successfully to load qss File:", names);
}

QStringList without(QStringList names, const QStringList& taken)
{
    for (const QString& sName : taken) {
        names.removeAll(sName);
    }
    return names;
}

//! The wanted ones of the folder's sheets in the folder's order: how the log names them.
QStringList asListed(const QStringList& names)
{
    QStringList listed;
    for (const QString& sName : listing()) {
        if (names.contains(sName)) {
            listed << sName;
        }
    }
    return listed;
}

} // namespace

class tst_StyleSheets : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void needsNoGlobalObject();
    void putsTheFontRuleBeforeTheLibrarysSheet();
    void appliesTheFontRuleAloneWhenNoSheetIsWanted();
    void takesNullAndEmptyForTheResourceFolder();

    void wantsSheetsByName_data();
    void wantsSheetsByName();
    void logsUpToFourLinesInOrder();
    void logsOnlyWhatThereIsToSay();
    void logsTheNamesAsAQuotedString();
    void passesOverFoldersAndOtherSuffixes();

    void mergesInTheOrderOfTheFolder();
    void appendsTheSheetsWithNothingBetweenThem();
    void readsTheSheetsAsText_data();
    void readsTheSheetsAsText();
    void goesOnAfterASheetThatCannotBeRead();
    void replacesTheSheetOfTheLastCall();
    void reachesEveryWidget();

    void takesTheUsersFontOverTheLastOne_data();
    void takesTheUsersFontOverTheLastOne();
    void storesTheDefaultsWhenNothingWasStored();
    void storesTheFontInEffectAtEveryCall();

    void changesNothingForAnotherFolder();

private:
    QScopedPointer<MessageRecorder> m_pLog;
    std::optional<GlobalState> m_global;
};

void tst_StyleSheets::init()
{
    m_global.emplace();
    m_pLog.reset(new MessageRecorder);
}

void tst_StyleSheets::cleanup()
{
    m_pLog.reset(); // hands on what no test has looked at
    m_global.reset();
}

void tst_StyleSheets::needsNoGlobalObject()
{
    TesseraGlobal::loadStyleSheet({}, QString());
    QCOMPARE(m_pLog->take(), QStringList{unusedLine({QStringLiteral("Tessera.qss")})}); // and no line of a creation
}

void tst_StyleSheets::putsTheFontRuleBeforeTheLibrarysSheet()
{
    TesseraGlobal::loadStyleSheet({QStringLiteral("Tessera")}, QString());
    QCOMPARE(qApp->styleSheet(), sDefaultRule + contents({QStringLiteral("Tessera.qss")}));
    QCOMPARE(m_pLog->take(), QStringList{loadedLine({QStringLiteral("Tessera.qss")})});
}

void tst_StyleSheets::appliesTheFontRuleAloneWhenNoSheetIsWanted()
{
    qApp->setStyleSheet(QStringLiteral("QLabel { color: red; }"));
    TesseraGlobal::loadStyleSheet({}, QString());
    QCOMPARE(qApp->styleSheet(), sDefaultRule);
    QCOMPARE(m_pLog->take(), QStringList{unusedLine({QStringLiteral("Tessera.qss")})});

    qApp->setStyleSheet(QString());
    TesseraGlobal::loadStyleSheet({QStringLiteral("nowhere")}, QString());
    QCOMPARE(qApp->styleSheet(), sDefaultRule);
    QCOMPARE(m_pLog->take(),
             (QStringList{missLine({QStringLiteral("nowhere.qss")}), unusedLine({QStringLiteral("Tessera.qss")})}));
}

void tst_StyleSheets::takesNullAndEmptyForTheResourceFolder()
{
    // The current folder holds a sheet too; it is not looked at.
    const QTemporaryDir folder;
    QFile sheet(folder.filePath(QStringLiteral("local.qss")));
    QVERIFY(sheet.open(QIODevice::WriteOnly));
    sheet.write("QLabel { color: red; }\n");
    sheet.close();
    QVERIFY(QDir::setCurrent(folder.path()));
    QStringList log;
    QStringList sheets;
    for (const QString& sDirPath : {QString(), QStringLiteral("")}) {
        qApp->setStyleSheet(QString());
        TesseraGlobal::loadStyleSheet({QStringLiteral("Tessera"), QStringLiteral("local")}, sDirPath);
        log << m_pLog->take();
        sheets << qApp->styleSheet();
    }
    const QString sSheet = sDefaultRule + contents({QStringLiteral("Tessera.qss")});
    QCOMPARE(sheets, (QStringList{sSheet, sSheet}));
    const QStringList once{missLine({QStringLiteral("local.qss")}), loadedLine({QStringLiteral("Tessera.qss")})};
    QCOMPARE(log, once + once);
}

void tst_StyleSheets::wantsSheetsByName_data()
{
    QTest::addColumn<QStringList>("names");
    QTest::addColumn<QStringList>("missing"); // as logged
    QTest::addColumn<QStringList>("loaded");  // in any order

    const QString sAlpha = QStringLiteral("alpha.qss");
    const QString sBeta = QStringLiteral("beta.qss");
    QTest::newRow("none") << QStringList{} << QStringList{} << QStringList{};
    QTest::newRow("without suffix") << QStringList{QStringLiteral("alpha")} << QStringList{} << QStringList{sAlpha};
    QTest::newRow("with suffix") << QStringList{sAlpha} << QStringList{} << QStringList{sAlpha};
    QTest::newRow("twice, once with suffix")
        << QStringList{QStringLiteral("alpha"), sAlpha} << QStringList{} << QStringList{sAlpha};
    QTest::newRow("twice the same missing one") << QStringList{QStringLiteral("a"), QStringLiteral("a.qss")}
                                                << QStringList{QStringLiteral("a.qss")} << QStringList{};
    QTest::newRow("two suffixes") << QStringList{QStringLiteral("alpha.qss.qss")}
                                  << QStringList{QStringLiteral("alpha.qss.qss")} << QStringList{};
    QTest::newRow("the suffix in another case is none")
        << QStringList{QStringLiteral("UPPER.QSS")} << QStringList{QStringLiteral("UPPER.QSS.qss")} << QStringList{};
    QTest::newRow("the name in another case is another name")
        << QStringList{QStringLiteral("Alpha"), QStringLiteral("alpha")} << QStringList{QStringLiteral("Alpha.qss")}
        << QStringList{sAlpha};
    QTest::newRow("the missing in the order of their first naming")
        << QStringList{QStringLiteral("z"), QStringLiteral("b.qss"), sAlpha,
                       QStringLiteral("m"), QStringLiteral("z.qss"), QStringLiteral("b")}
        << QStringList{QStringLiteral("z.qss"), QStringLiteral("b.qss"), QStringLiteral("m.qss")}
        << QStringList{sAlpha};
    QTest::newRow("an empty name") << QStringList{QString()} << QStringList{QStringLiteral(".qss")} << QStringList{};
    QTest::newRow("a path is no name") << QStringList{QStringLiteral(":/qss/alpha.qss")}
                                       << QStringList{QStringLiteral(":/qss/alpha.qss")} << QStringList{};
    QTest::newRow("a pattern is no name")
        << QStringList{QStringLiteral("*")} << QStringList{QStringLiteral("*.qss")} << QStringList{};
    QTest::newRow("an empty sheet is loaded too") << QStringList{QStringLiteral("empty"), sBeta} << QStringList{}
                                                  << QStringList{QStringLiteral("empty.qss"), sBeta};
}

void tst_StyleSheets::wantsSheetsByName()
{
    QFETCH(const QStringList, names);
    QFETCH(const QStringList, missing);
    QFETCH(const QStringList, loaded);
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    TesseraGlobal::loadStyleSheet(names, QString());
    QCOMPARE(qApp->styleSheet(), sDefaultRule + contents(loaded));
    QStringList log;
    if (!missing.isEmpty()) {
        log << missLine(missing);
    }
    log << unusedLine(without(listing(), loaded));
    if (!loaded.isEmpty()) {
        log << loadedLine(asListed(loaded));
    }
    QCOMPARE(m_pLog->take(), log);
}

void tst_StyleSheets::logsUpToFourLinesInOrder()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QByteArray damaged = contentOf(QStringLiteral(BROKEN_RESOURCES));
    const auto nContent = damaged.indexOf("\x78\xDA"); // where zlib's data begins
    QVERIFY(nContent > 0);
    damaged[nContent + 2] = char(~damaged.at(nContent + 2));
    const HostResources broken(damaged);
    QVERIFY(host.isRegistered() && broken.isRegistered());
    QVERIFY(listing().contains(QStringLiteral("broken.qss")));

    TesseraGlobal::loadStyleSheet({QStringLiteral("missing"), QStringLiteral("broken"), QStringLiteral("beta"),
                                   QStringLiteral("alpha"), QStringLiteral("lost")},
                                  QString());
    const QStringList wanted{QStringLiteral("alpha.qss"), QStringLiteral("beta.qss"), QStringLiteral("broken.qss")};
    QStringList log = m_pLog->take();
    log.erase(std::remove_if(log.begin(), log.end(),
                             [](const QString& sLine) { return sLine.contains(QLatin1String("QResource: ")); }),
              log.end()); // Qt's own complaint
    QCOMPARE(log, (QStringList{missLine({QStringLiteral("missing.qss"), QStringLiteral("lost.qss")}),
                               failLine({QStringLiteral("broken.qss")}), unusedLine(without(listing(), wanted)),
                               loadedLine(asListed({QStringLiteral("alpha.qss"), QStringLiteral("beta.qss")}))}));
}

void tst_StyleSheets::logsOnlyWhatThereIsToSay()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    QStringList all = listing();
    all.removeAll(QStringLiteral("UPPER.QSS")); // cannot be asked for: its name always gets the suffix
    TesseraGlobal::loadStyleSheet(all, QString());
    QCOMPARE(m_pLog->take(), (QStringList{unusedLine({QStringLiteral("UPPER.QSS")}), loadedLine(all)}));
}

void tst_StyleSheets::logsTheNamesAsAQuotedString()
{
    TesseraGlobal::loadStyleSheet({QStringLiteral("Tessera"), QStringLiteral("a \"b\""), QStringLiteral("c\\d,e")},
                                  QString());
    QCOMPARE(m_pLog->take(), (QStringList{QStringLiteral("warning: Miss qss File: \"a \\\"b\\\".qss,c\\\\d,e.qss\""),
                                          loadedLine({QStringLiteral("Tessera.qss")})}));
}

void tst_StyleSheets::passesOverFoldersAndOtherSuffixes()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    QVERIFY(QFileInfo(QStringLiteral(":/qss/folder.qss")).isDir());
    QVERIFY(QFileInfo(QStringLiteral(":/qss/notes.txt")).isFile());
    TesseraGlobal::loadStyleSheet({QStringLiteral("folder"), QStringLiteral("inner"), QStringLiteral("notes.txt")},
                                  QString());
    QCOMPARE(qApp->styleSheet(), sDefaultRule);
    const QStringList log = m_pLog->take();
    QCOMPARE(log.size(), 2);
    QCOMPARE(log.first(),
             missLine({QStringLiteral("folder.qss"), QStringLiteral("inner.qss"), QStringLiteral("notes.txt.qss")}));
    QVERIFY(!log.last().contains(QLatin1String("folder")) && !log.last().contains(QLatin1String("notes")));
}

void tst_StyleSheets::mergesInTheOrderOfTheFolder()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    const QStringList wanted{QStringLiteral("alpha.qss"), QStringLiteral("beta.qss"), QStringLiteral("crlf.qss"),
                             QStringLiteral("umlaut.qss"), QStringLiteral("Tessera.qss")};
    const QStringList listed = asListed(wanted);
    QVERIFY(listed != wanted); // else this test would show nothing
    QStringList backwards = wanted;
    std::reverse(backwards.begin(), backwards.end());
    QString sExpected = sDefaultRule;
    for (const QString& sName : listed) {
        sExpected += contents({sName});
    }
    for (const QStringList& names : {wanted, backwards}) {
        TesseraGlobal::loadStyleSheet(names, QString());
        QCOMPARE(qApp->styleSheet(), sExpected);
        QCOMPARE(m_pLog->take().last(), loadedLine(listed));
    }
}

void tst_StyleSheets::appendsTheSheetsWithNothingBetweenThem()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    TesseraGlobal::loadStyleSheet({QStringLiteral("beta"), QStringLiteral("alpha")}, QString());
    m_pLog->take();
    const QString sAlpha = QStringLiteral("QLabel { color: #010203; }\n");
    const QString sBeta = QStringLiteral("/* no line feed at the end */ QLabel { margin: 1px; }");
    const bool bAlphaFirst =
        asListed({QStringLiteral("alpha.qss"), QStringLiteral("beta.qss")}).first() == QLatin1String("alpha.qss");
    QCOMPARE(qApp->styleSheet(), sDefaultRule + (bAlphaFirst ? sAlpha + sBeta : sBeta + sAlpha));
}

void tst_StyleSheets::readsTheSheetsAsText_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("text");

    QTest::newRow("line feeds only") << QStringLiteral("crlf")
                                     << QStringLiteral("QLabel { color: red; }\nQLabel { padding: 2px; }\n");
    QTest::newRow("in UTF-8") << QStringLiteral("umlaut") << QStringLiteral("/* Größe, 字号 */\n");
}

void tst_StyleSheets::readsTheSheetsAsText()
{
    QFETCH(const QString, name);
    QFETCH(const QString, text);
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    TesseraGlobal::loadStyleSheet({name}, QString());
    m_pLog->take();
    QCOMPARE(qApp->styleSheet(), sDefaultRule + text);
}

void tst_StyleSheets::goesOnAfterASheetThatCannotBeRead()
{
    QByteArray damaged = contentOf(QStringLiteral(BROKEN_RESOURCES));
    const auto nContent = damaged.indexOf("\x78\xDA");
    QVERIFY(nContent > 0);
    damaged[nContent + 2] = char(~damaged.at(nContent + 2));
    const HostResources broken(damaged);
    QVERIFY(broken.isRegistered());
    TesseraGlobal::loadStyleSheet({QStringLiteral("broken"), QStringLiteral("Tessera")}, QString());
    m_pLog->take();
    QCOMPARE(qApp->styleSheet(), sDefaultRule + contents({QStringLiteral("Tessera.qss")}));

    TesseraGlobal::loadStyleSheet({QStringLiteral("broken")}, QString());
    m_pLog->take();
    QCOMPARE(qApp->styleSheet(), sDefaultRule);
}

void tst_StyleSheets::replacesTheSheetOfTheLastCall()
{
    const HostResources host(contentOf(QStringLiteral(HOST_RESOURCES)));
    QVERIFY(host.isRegistered());
    TesseraGlobal::loadStyleSheet({QStringLiteral("alpha")}, QString());
    TesseraGlobal::loadStyleSheet({QStringLiteral("beta")}, QString());
    m_pLog->take();
    QCOMPARE(qApp->styleSheet(), sDefaultRule + contents({QStringLiteral("beta.qss")}));
}

void tst_StyleSheets::reachesEveryWidget()
{
    CCommon::instance().getSettings(QString())->setValue(QStringLiteral("Setting_AppFont/PointSize"), 23);
    QLabel label;
    TesseraGlobal::loadStyleSheet({}, QString());
    m_pLog->take();
    label.ensurePolished();
    QCOMPARE(label.font().pointSize(), 23);
}

void tst_StyleSheets::takesTheUsersFontOverTheLastOne_data()
{
    QTest::addColumn<QVariantMap>("stored");
    QTest::addColumn<QString>("rule");
    QTest::addColumn<QVariantMap>("effective"); // the group "AppFont" afterwards

    const auto font = [](const QStringList& families, int nSize, bool bBold, bool bItalic) {
        return QVariantMap{{QStringLiteral("Familys"), families},
                           {QStringLiteral("PointSize"), nSize},
                           {QStringLiteral("Bold"), bBold},
                           {QStringLiteral("Italic"), bItalic}};
    };
    const QStringList defaults{QStringLiteral("JetBrains Mono"), QStringLiteral("Arial")};
    const QStringList serif{QStringLiteral("DejaVu Serif")};

    QTest::newRow("nothing stored") << QVariantMap{} << sDefaultRule << font(defaults, 10, false, false);
    QTest::newRow("the user's size alone")
        << QVariantMap{{QStringLiteral("AppFont/Familys"), serif},
                       {QStringLiteral("AppFont/PointSize"), 8},
                       {QStringLiteral("AppFont/Bold"), true},
                       {QStringLiteral("AppFont/Italic"), true},
                       {QStringLiteral("Setting_AppFont/PointSize"), 14}}
        << QStringLiteral("*{\n    font-family:\"DejaVu Serif\";\n    font-size:14pt;\n    font-weight:bold;\n"
                          "    font-style:italic;\n}\n")
        << font(serif, 14, true, true);
    QTest::newRow("the user's families alone")
        << QVariantMap{{QStringLiteral("AppFont/PointSize"), 8}, {QStringLiteral("Setting_AppFont/Familys"), serif}}
        << QStringLiteral("*{\n    font-family:\"DejaVu Serif\";\n    font-size:8pt;\n    font-weight:normal;\n"
                          "    font-style:normal;\n}\n")
        << font(serif, 8, false, false);
    QTest::newRow("the user's weight alone")
        << QVariantMap{{QStringLiteral("AppFont/Bold"), true}, {QStringLiteral("Setting_AppFont/Bold"), false}}
        << sDefaultRule << font(defaults, 10, false, false);
    QTest::newRow("the user's style alone")
        << QVariantMap{{QStringLiteral("AppFont/Bold"), true}, {QStringLiteral("Setting_AppFont/Italic"), true}}
        << QStringLiteral("*{\n    font-family:\"JetBrains Mono\",\"Arial\";\n    font-size:10pt;\n"
                          "    font-weight:bold;\n    font-style:italic;\n}\n")
        << font(defaults, 10, true, true);
    QTest::newRow("no families at all")
        << QVariantMap{{QStringLiteral("Setting_AppFont/Familys"), QStringList()}}
        << QStringLiteral("*{\n    font-size:10pt;\n    font-weight:normal;\n    font-style:normal;\n}\n")
        << font({}, 10, false, false);
    QTest::newRow("the last font without a choice of the user")
        << QVariantMap{{QStringLiteral("AppFont/PointSize"), 30}}
        << QStringLiteral("*{\n    font-family:\"JetBrains Mono\",\"Arial\";\n    font-size:30pt;\n"
                          "    font-weight:normal;\n    font-style:normal;\n}\n")
        << font(defaults, 30, false, false);
}

void tst_StyleSheets::takesTheUsersFontOverTheLastOne()
{
    QFETCH(const QVariantMap, stored);
    QFETCH(const QString, rule);
    QFETCH(const QVariantMap, effective);
    for (auto it = stored.cbegin(); it != stored.cend(); ++it) {
        CCommon::instance().getSettings(QString())->setValue(it.key(), it.value());
    }
    TesseraGlobal::loadStyleSheet({}, QString());
    m_pLog->take();
    QCOMPARE(qApp->styleSheet(), rule);

    const QSharedPointer<QSettings> pSettings = CCommon::instance().getSettings(QString());
    pSettings->beginGroup(QStringLiteral("AppFont"));
    QStringList keys = pSettings->allKeys();
    keys.sort();
    QCOMPARE(keys, QStringList(effective.keys()));
    QCOMPARE(pSettings->value(QStringLiteral("Familys")).toStringList(),
             effective.value(QStringLiteral("Familys")).toStringList());
    QCOMPARE(pSettings->value(QStringLiteral("PointSize")).toInt(),
             effective.value(QStringLiteral("PointSize")).toInt());
    QCOMPARE(pSettings->value(QStringLiteral("Bold")).toBool(), effective.value(QStringLiteral("Bold")).toBool());
    QCOMPARE(pSettings->value(QStringLiteral("Italic")).toBool(), effective.value(QStringLiteral("Italic")).toBool());
    pSettings->endGroup();

    // The user's choice itself is read only.
    pSettings->beginGroup(QStringLiteral("Setting_AppFont"));
    for (const QString& sKey : pSettings->allKeys()) {
        QVERIFY(stored.contains(QStringLiteral("Setting_AppFont/") + sKey));
    }
}

void tst_StyleSheets::storesTheDefaultsWhenNothingWasStored()
{
    TesseraGlobal::loadStyleSheet({}, QString());
    m_pLog->take();
    QSettings store;
    QCOMPARE(store.childGroups(), QStringList{QStringLiteral("AppFont")});
    tagAppFont font;
    font.families.clear();
    font.pointSize = 1;
    font.bold = font.italic = true;
    font.readSettings(CCommon::instance().getSettings(QString()), QStringLiteral("AppFont"));
    QCOMPARE(font.families, (QStringList{QStringLiteral("JetBrains Mono"), QStringLiteral("Arial")}));
    QCOMPARE(font.pointSize, 10);
    QCOMPARE(font.bold, false);
    QCOMPARE(font.italic, false);
}

void tst_StyleSheets::storesTheFontInEffectAtEveryCall()
{
    for (const int nSize : {11, 12}) {
        CCommon::instance().getSettings(QString())->setValue(QStringLiteral("Setting_AppFont/PointSize"), nSize);
        TesseraGlobal::loadStyleSheet({}, QString());
        m_pLog->take();
        QCOMPARE(CCommon::instance().getSettings(QString())->value(QStringLiteral("AppFont/PointSize")).toInt(), nSize);
    }
    // Without the user's choice the last size stays.
    CCommon::instance().getSettings(QString())->remove(QStringLiteral("Setting_AppFont"));
    TesseraGlobal::loadStyleSheet({}, QString());
    m_pLog->take();
    QVERIFY(qApp->styleSheet().contains(QLatin1String("font-size:12pt;")));
}

void tst_StyleSheets::changesNothingForAnotherFolder()
{
    const QString sSheet = QStringLiteral("QLabel { color: red; }");
    qApp->setStyleSheet(sSheet);
    CCommon::instance().getSettings(QString())->setValue(QStringLiteral("Setting_AppFont/PointSize"), 14);
    // A folder with sheets, one that is not there, and a blank; each twice.
    for (const char* folder : {":/qss", ":/qss", "/nonexistent/folder", "/nonexistent/folder", " ", " "}) {
        TesseraGlobal::loadStyleSheet({QStringLiteral("Tessera"), QStringLiteral("missing")},
                                      QString::fromLatin1(folder));
        QCOMPARE(qApp->styleSheet(), sSheet);
    }
    QTest::qWait(1200); // longer than the interval of the poll, which is not under way
    QCOMPARE(qApp->styleSheet(), sSheet);
    QCOMPARE(m_pLog->take(), QStringList());
    QVERIFY(!QSettings().childGroups().contains(QStringLiteral("AppFont")));
}

TESSERA_TEST_MAIN(tst_StyleSheets)
#include "tst_StyleSheets.moc"
