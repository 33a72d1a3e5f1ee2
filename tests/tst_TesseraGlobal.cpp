// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFontDatabase>
#include <QResource>
#include <QtEndian>
#include <QTranslator>
#include <QtTest>
#include <QVector>

#include <atomic>
#include <thread>
#include <type_traits>
#include <vector>

using namespace nsUI;
using TestSupport::contentOf;
using TestSupport::LogLine;
using TestSupport::MessageRecorder;

namespace {

const QStringList& bundlePaths()
{
    static const QStringList paths{QStringLiteral(":/csv/ColorInfo.csv"), QStringLiteral(":/qm/Tessera_en.qm"),
                                   QStringLiteral(":/qm/Tessera_zh_CN.qm"), QStringLiteral(":/qss/Tessera.qss")};
    return paths;
}

//! All files of the resource system but for Qt's own.
QStringList ownResources()
{
    QStringList paths;
    for (const QString& sFolder : QDir(QStringLiteral(":/")).entryList(QDir::AllEntries)) {
        if (sFolder == QLatin1String("qt-project.org") || sFolder == QLatin1String("qpdf") ||
            sFolder == QLatin1String("qgradient")) {
            continue;
        }
        QDirIterator it(QStringLiteral(":/") + sFolder, QDir::Files, QDirIterator::Subdirectories);
        while (it.hasNext()) {
            paths << it.next();
        }
    }
    paths.sort();
    return paths;
}

// Before main(): the libraries are loaded, nothing of this program has run.
const QStringList g_resourcesBeforeMain = ownResources();

//! The sections of a .qm file, by their tags.
QList<int> sectionsOf(const QByteArray& catalogue)
{
    constexpr int nMagic = 16;
    constexpr int nHeader = 5;
    QList<int> tags;
    for (int nAt = nMagic; nAt + nHeader <= catalogue.size();) {
        const char* const pSection = catalogue.constData() + nAt;
        tags << quint8(*pSection);
        nAt += nHeader + int(qFromBigEndian<quint32>(pSection + 1));
    }
    return tags;
}

struct Message
{
    const char* context;
    const char* source;
    const char* chinese;
};

const QVector<Message>& messages()
{
    static const QVector<Message> all{
        {"FontSettingDlg", "Font Settings", "字体设置"},
        {"FontSettingDlg", "Font Size:", "字号："},
        {"FontSettingDlg", "Italic", "倾斜"},
        {"FontSettingDlg", "Bold", "加粗"},
        {"FontSettingDlg", "Example", "示例"},
        {"nsUI::FontSettingDlg", "Example Text", "示例文本"},
        {"Translator", "True", "是"},
        {"Translator", "False", "否"},
        {"Translator", "Undefined", "未定义"},
        {"nsUI::CBitDialog", "Bit Settings", "位设置"},
        {"nsUI::CBitDialog", "HEX:", "HEX:"},
        {"nsUI::CBitDialog", "BIN:", "BIN:"},
        {"nsUI::CBitModel", "Bit Position", "位序号"},
        {"nsUI::CBitModel", "Bit Value", "位值"},
        {"nsUI::CBitModel", "Description", "描述"},
        {"nsUI::CPenDialog", "Pen Settings", "画笔设置"},
        {"nsUI::CPenDialog", "Color:", "颜色："},
        {"nsUI::CPenDialog", "Line Width:", "线宽："},
        {"nsUI::CPenDialog", "Style:", "样式："},
        {"nsUI::CPenDialog", "NoPen", "无画笔"},
        {"nsUI::CPenDialog", "SolidLine", "实线"},
        {"nsUI::CPenDialog", "DashLine", "虚线"},
        {"nsUI::CPenDialog", "DotLine", "点线"},
        {"nsUI::CPenDialog", "DashDotLine", "虚点线"},
        {"nsUI::CPenDialog", "DashDotDotLine", "虚点点线"},
        {"nsUI::CPenDialog", "Undefine", "未定义"},
        {"nsUI::CustomTextBrowser", "Clear", "清除"},
    };
    return all;
}

} // namespace

class tst_TesseraGlobal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();

    void bundleIsThereBeforeTheProgramStarts();
    void bundleHoldsFourFilesOfExactSizes_data();
    void bundleHoldsFourFilesOfExactSizes();
    void colourTableIsPlainCsv();
    void styleSheetHoldsTheRulesOfTheProgressBarAndTheStepBar_data();
    void styleSheetHoldsTheRulesOfTheProgressBarAndTheStepBar();
    void styleSheetHoldsNoOtherRule();

    void threadsThatRaceForItGetOneObject();
    void logsItsCreationOnceInOrder();
    void logsWithItsPlaceInTheSources();
    void everyCallReturnsTheSameObject();
    void creationInstallsNoTranslatorFontOrStyleSheet();
    void cannotBeMadeOrCopiedByOthers();

    void cataloguesHold27Messages();
    void cataloguesHoldEveryMessage_data();
    void cataloguesHoldEveryMessage();
    void cataloguesNameNoLanguage_data();
    void cataloguesNameNoLanguage();
    void translatesOnceTheHostInstallsACatalogue();

private:
    std::vector<TesseraGlobal*> m_raced;
    QVector<LogLine> m_creationLog;
    QStringList m_familiesBefore;
    QFont m_fontBefore;
};

void tst_TesseraGlobal::initTestCase()
{
    m_familiesBefore = QFontDatabase().families();
    m_fontBefore = QApplication::font();

    MessageRecorder recorder;
    constexpr std::size_t nThreads = 8;
    m_raced.assign(nThreads, nullptr);
    std::atomic<bool> go{false};
    std::vector<std::thread> threads;
    for (std::size_t n = 0; n < nThreads; ++n) {
        threads.emplace_back([this, n, &go] {
            while (!go) {
                std::this_thread::yield();
            }
            m_raced[n] = &TesseraGlobal::instance();
        });
    }
    go = true;
    for (std::thread& thread : threads) {
        thread.join();
    }
    m_creationLog = recorder.takeLines();
}

void tst_TesseraGlobal::bundleIsThereBeforeTheProgramStarts()
{
    QCOMPARE(g_resourcesBeforeMain, bundlePaths());
    QCOMPARE(ownResources(), bundlePaths());
}

void tst_TesseraGlobal::bundleHoldsFourFilesOfExactSizes_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<qint64>("size");

    QTest::newRow("colour table") << QStringLiteral(":/csv/ColorInfo.csv") << qint64(441);
    QTest::newRow("style sheet") << QStringLiteral(":/qss/Tessera.qss") << qint64(546);
    QTest::newRow("English") << QStringLiteral(":/qm/Tessera_en.qm") << qint64(1900);
    QTest::newRow("Chinese") << QStringLiteral(":/qm/Tessera_zh_CN.qm") << qint64(1593);
}

void tst_TesseraGlobal::bundleHoldsFourFilesOfExactSizes()
{
    QFETCH(const QString, path);
    QFETCH(const qint64, size);
    QCOMPARE(QFileInfo(path).size(), size);
    QCOMPARE(qint64(contentOf(path).size()), size);
    const QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);
    QVERIFY(resource.lastModified().isValid()); // format 2 of the resource compiler carries the time, format 1 does not
}

void tst_TesseraGlobal::colourTableIsPlainCsv()
{
    const QByteArray content = contentOf(QStringLiteral(":/csv/ColorInfo.csv"));
    QVERIFY(!content.contains('\r'));
    QVERIFY(!content.contains('"'));
    QVERIFY(!content.endsWith('\n'));
    const QList<QByteArray> rows = content.split('\n');
    QCOMPARE(rows.size(), 10);
    QCOMPARE(rows.first(), QByteArray("lightness,primary,success,info,warning,danger"));
    QCOMPARE(rows.at(5), QByteArray("500,#136796,#3C8C0E,#0374C4,#DD7308,#E01A2E"));
    QCOMPARE(rows.last(), QByteArray("900,#031E48,#0A4302,#00215E,#6A2101,#6B0434"));
    for (int nRow = 1; nRow < rows.size(); ++nRow) {
        const QList<QByteArray> cells = rows.at(nRow).split(',');
        QCOMPARE(cells.size(), 6);
        QCOMPARE(cells.first(), QByteArray::number(100 * nRow));
    }
}

void tst_TesseraGlobal::styleSheetHoldsTheRulesOfTheProgressBarAndTheStepBar_data()
{
    QTest::addColumn<QString>("selector");
    QTest::addColumn<QStringList>("declarations");

    const auto row = [](const char* selector, const QStringList& declarations) {
        QTest::newRow(selector) << QString::fromLatin1(selector) << declarations;
    };
    row("QProgressBar", {QStringLiteral("text-align: center;")});
    row("QProgressBar::chunk", {QStringLiteral("background-color: #136796;")});
    row("nsUI--CStepBar QCheckBox", {QStringLiteral("spacing:0px;")});
    row("nsUI--CStepBar QCheckBox::indicator", {QStringLiteral("width: 0px;"), QStringLiteral("height: 0px;")});
    row("nsUI--CStepBar QCheckBox:checked", {QStringLiteral("color: #3C8C0E;")});
    row("nsUI--CStepBar QCheckBox:unchecked", {QStringLiteral("color: #136796;")});
    row("nsUI--CStepBar QCheckBox:hover", {QStringLiteral("color: #61C3ED;")});
    row("nsUI--CStepBar QCheckBox:pressed", {QStringLiteral("color: #9FDC65;")});
    row("nsUI--CStepBar QSvgWidget", {QStringLiteral("border:3px;")});
}

void tst_TesseraGlobal::styleSheetHoldsTheRulesOfTheProgressBarAndTheStepBar()
{
    QFETCH(const QString, selector);
    QFETCH(const QStringList, declarations);
    const QString sSheet = QString::fromUtf8(contentOf(QStringLiteral(":/qss/Tessera.qss")));
    const QRegularExpression rule(QStringLiteral("^%1\\s*\\{([^}]*)\\}").arg(QRegularExpression::escape(selector)),
                                  QRegularExpression::MultilineOption);
    QRegularExpressionMatchIterator matches = rule.globalMatch(sSheet);
    QVERIFY(matches.hasNext());
    const QRegularExpressionMatch match = matches.next();
    QVERIFY(!matches.hasNext());
    QStringList lines;
    for (const QString& sLine : match.captured(1).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
        lines << sLine.trimmed();
    }
    QCOMPARE(lines, declarations);

    const QString sFence = QStringLiteral("/********CStepBar********/");
    const bool bStepBar = selector.startsWith(QLatin1String("nsUI--CStepBar"));
    QCOMPARE(sSheet.count(sFence), 2);
    QCOMPARE(match.capturedStart() > sSheet.indexOf(sFence), bStepBar);
    QVERIFY(match.capturedEnd() < sSheet.lastIndexOf(sFence));
}

void tst_TesseraGlobal::styleSheetHoldsNoOtherRule()
{
    QCOMPARE(contentOf(QStringLiteral(":/qss/Tessera.qss")).count('{'), 9);
}

void tst_TesseraGlobal::threadsThatRaceForItGetOneObject()
{
    for (const TesseraGlobal* pObject : m_raced) {
        QVERIFY(pObject);
        QCOMPARE(pObject, m_raced.front());
    }
}

void tst_TesseraGlobal::logsItsCreationOnceInOrder()
{
    QStringList lines;
    for (const LogLine& line : qAsConst(m_creationLog)) {
        lines << TestSupport::levelName(line.level) + QLatin1String(": ") + line.text;
    }
    // Between the two stands the list of the host's font files; this program has none.
    QCOMPARE(lines, (QStringList{QStringLiteral("debug: Tessera Singleton Create Begin"),
                                 QStringLiteral("debug: ") + TestSupport::debugOfList({}),
                                 QStringLiteral("debug: Tessera Singleton Create End")}));
}

void tst_TesseraGlobal::logsWithItsPlaceInTheSources()
{
    QVERIFY(!m_creationLog.isEmpty());
    for (const LogLine& line : qAsConst(m_creationLog)) {
        QVERIFY2(line.function.contains(QLatin1String("TesseraGlobal::")), qPrintable(line.function));
        QVERIFY2(line.file.endsWith(QLatin1String(".cpp")), qPrintable(line.file));
        QVERIFY2(QFileInfo(line.file).isRelative(), qPrintable(line.file)); // the same wherever the tree is built
    }
}

void tst_TesseraGlobal::everyCallReturnsTheSameObject()
{
    MessageRecorder log;
    TesseraGlobal& first = TesseraGlobal::instance();
    TesseraGlobal& second = TesseraGlobal::instance();
    QCOMPARE(&first, &second);
    QCOMPARE(&first, m_raced.front());
    QCOMPARE(log.take(), QStringList());
}

void tst_TesseraGlobal::creationInstallsNoTranslatorFontOrStyleSheet()
{
    QCOMPARE(QCoreApplication::translate("Translator", "True"), QStringLiteral("True"));
    QCOMPARE(QFontDatabase().families(), m_familiesBefore);
    QCOMPARE(QApplication::font(), m_fontBefore);
    QCOMPARE(qApp->styleSheet(), QString());
}

void tst_TesseraGlobal::cannotBeMadeOrCopiedByOthers()
{
    QVERIFY(!std::is_default_constructible<TesseraGlobal>::value);
    QVERIFY(!std::is_copy_constructible<TesseraGlobal>::value);
    QVERIFY(!std::is_copy_assignable<TesseraGlobal>::value);
    QVERIFY(std::is_destructible<TesseraGlobal>::value);
    QCOMPARE(sizeof(TesseraGlobal), sizeof(void*)); // the private data is its one member
}

void tst_TesseraGlobal::cataloguesHold27Messages()
{
    QCOMPARE(messages().size(), 27);
    // Every message has one entry of eight bytes, a hash and an offset, in the section of hashes.
    constexpr int nHashes = 0x42;
    for (const char* path : {":/qm/Tessera_en.qm", ":/qm/Tessera_zh_CN.qm"}) {
        const QByteArray catalogue = contentOf(QString::fromLatin1(path));
        const auto nTag = catalogue.indexOf(char(nHashes), 16);
        QCOMPARE(nTag, 16);
        QCOMPARE(qFromBigEndian<quint32>(catalogue.constData() + nTag + 1), 27U * 8U);
    }
}

void tst_TesseraGlobal::cataloguesHoldEveryMessage_data()
{
    QTest::addColumn<QString>("catalogue");
    QTest::addColumn<QByteArray>("context");
    QTest::addColumn<QByteArray>("source");
    QTest::addColumn<QString>("translation");

    for (const Message& message : messages()) {
        QTest::addRow("English, %s, %s", message.context, message.source)
            << QStringLiteral(":/qm/Tessera_en.qm") << QByteArray(message.context) << QByteArray(message.source)
            << QString::fromUtf8(message.source);
        QTest::addRow("Chinese, %s, %s", message.context, message.source)
            << QStringLiteral(":/qm/Tessera_zh_CN.qm") << QByteArray(message.context) << QByteArray(message.source)
            << QString::fromUtf8(message.chinese);
    }
}

void tst_TesseraGlobal::cataloguesHoldEveryMessage()
{
    QFETCH(const QString, catalogue);
    QFETCH(const QByteArray, context);
    QFETCH(const QByteArray, source);
    QFETCH(const QString, translation);
    QTranslator translator;
    QVERIFY(translator.load(catalogue));
    QCOMPARE(translator.translate(context.constData(), source.constData()), translation);
    QCOMPARE(translator.translate("a context of nobody", source.constData()), QString());
}

void tst_TesseraGlobal::cataloguesNameNoLanguage_data()
{
    QTest::addColumn<QString>("catalogue");

    QTest::newRow("English") << QStringLiteral(":/qm/Tessera_en.qm");
    QTest::newRow("Chinese") << QStringLiteral(":/qm/Tessera_zh_CN.qm");
}

void tst_TesseraGlobal::cataloguesNameNoLanguage()
{
    QFETCH(const QString, catalogue);
    constexpr int nLanguage = 0xA7;
    const QList<int> sections = sectionsOf(contentOf(catalogue));
    QVERIFY(sections.size() >= 2);
    QVERIFY(!sections.contains(nLanguage));
}

void tst_TesseraGlobal::translatesOnceTheHostInstallsACatalogue()
{
    TestSupport::GlobalState global;
    QVERIFY(global.install(QStringLiteral(":/qm/Tessera_zh_CN.qm")));
    const QString sTrue = QCoreApplication::translate("Translator", "True");
    global.removeCatalogues();
    QCOMPARE(sTrue, QStringLiteral("是"));
    QCOMPARE(QCoreApplication::translate("Translator", "True"), QStringLiteral("True"));
}

TESSERA_TEST_MAIN(tst_TesseraGlobal)
#include "tst_TesseraGlobal.moc"
