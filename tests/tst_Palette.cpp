// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/Tessera.h>

#include <QApplication>
#include <QColor>
#include <QProcess>
#include <QSet>
#include <QtTest>

#include <cmath>
#include <cstdio>
#include <type_traits>

using namespace nsUI;

namespace {

constexpr int nRandomColors = 510;

//! Columns primary, success, info, warning, danger; rows 100 to 900.
const char* const g_palette[9][5] = {
    {"#CEF4F9", "#E7F9CC", "#CAF2FC", "#FDEECC", "#FDDCD0"}, {"#9FE5F4", "#CCF39B", "#96E1F9", "#FBD99A", "#FBB2A2"},
    {"#6AC4DF", "#9FDC65", "#61C3ED", "#F4BC67", "#F57E73"}, {"#429AC0", "#72BA3C", "#39A1DB", "#EA9E41", "#EC4F51"},
    {"#136796", "#3C8C0E", "#0374C4", "#DD7308", "#E01A2E"}, {"#0D5081", "#2B780A", "#025AA8", "#BE5905", "#C01334"},
    {"#093C6C", "#1D6407", "#01438D", "#9F4204", "#A10D37"}, {"#062A57", "#125104", "#002F71", "#802E02", "#810835"},
    {"#031E48", "#0A4302", "#00215E", "#6A2101", "#6B0434"}};

const char* const g_families[5] = {"primary", "success", "info", "warning", "danger"};

//! The command line argument that makes this program print its first colours instead of testing.
const char* const g_printColors = "--print-random-colors";

QString name(const QColor& color)
{
    return color.name(QColor::HexArgb);
}

} // namespace

class tst_Palette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void numbersItsFamiliesAndSteps();
    void holdsTheWholeTable_data();
    void holdsTheWholeTable();
    void hasNoOtherColours_data();
    void hasNoOtherColours();

    void picksBlackOrWhiteByLuminance_data();
    void picksBlackOrWhiteByLuminance();
    void ignoresAlpha_data();
    void ignoresAlpha();
    void picksBlackForGreysFrom76Up();
    void takesColoursOfAnyModel();

    void handsOut510DifferentColours();
    void repeatsTheSameOrderForEver();
    void shufflesTheColours();
    void shufflesAnewInAnotherProcess();
};

void tst_Palette::numbersItsFamiliesAndSteps()
{
    QCOMPARE(int(e_Primary), 0);
    QCOMPARE(int(e_Success), 1);
    QCOMPARE(int(e_Info), 2);
    QCOMPARE(int(e_Warning), 3);
    QCOMPARE(int(e_Danger), 4);
    const QList<int> steps{e_L100, e_L200, e_L300, e_L400, e_L500, e_L600, e_L700, e_L800, e_L900};
    QCOMPARE(steps, (QList<int>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    QVERIFY((std::is_same<std::underlying_type<e_ColorType>::type, quint8>::value));
    QVERIFY((std::is_same<std::underlying_type<e_ColorLightness>::type, quint8>::value));
}

void tst_Palette::holdsTheWholeTable_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("lightness");
    QTest::addColumn<QString>("color");

    for (int nStep = 0; nStep < 9; ++nStep) {
        for (int nFamily = 0; nFamily < 5; ++nFamily) {
            QTest::addRow("%s %d", g_families[nFamily], 100 * (nStep + 1))
                << nFamily << nStep << QString::fromLatin1(g_palette[nStep][nFamily]);
        }
    }
}

void tst_Palette::holdsTheWholeTable()
{
    QFETCH(const int, type);
    QFETCH(const int, lightness);
    QFETCH(const QString, color);
    const QColor found = TesseraGlobal::instance().getColor(e_ColorType(type), e_ColorLightness(lightness));
    QVERIFY(found.isValid());
    QCOMPARE(found.name().toUpper(), color);
    QCOMPARE(found.alpha(), 255);
}

void tst_Palette::hasNoOtherColours_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("lightness");

    QTest::newRow("a family behind the last") << 5 << int(e_L500);
    QTest::newRow("a step behind the last") << int(e_Primary) << 9;
    QTest::newRow("both behind the last") << 5 << 9;
    QTest::newRow("the largest values") << 255 << 255;
}

void tst_Palette::hasNoOtherColours()
{
    QFETCH(const int, type);
    QFETCH(const int, lightness);
    for (int nCall = 0; nCall < 2; ++nCall) { // asking does not put anything there
        QVERIFY(!TesseraGlobal::instance().getColor(e_ColorType(type), e_ColorLightness(lightness)).isValid());
    }
}

void tst_Palette::picksBlackOrWhiteByLuminance_data()
{
    QTest::addColumn<QColor>("background");
    QTest::addColumn<QColor>("text");

    const QColor black(Qt::black);
    const QColor white(Qt::white);
    const auto row = [](const char* color, const QColor& text) {
        QTest::newRow(color) << QColor(QLatin1String(color)) << text;
    };
    row("#FFFFFF", black);
    row("#000000", white);
    row("#136796", white);
    row("#FDEECC", black);
    row("#757575", white); // luminance 0.1779
    row("#767676", black); // luminance 0.1812
    row("#FF0000", black);
    row("#00FF00", black);
    row("#0000FF", white);
    // The least of one channel that turns the text black, the others being as they are.
    row("#EC0000", white);
    row("#ED0000", black);
    row("#008900", white);
    row("#008A00", black);
    row("#006BFF", white);
    row("#006CFF", black);
    row("#886C88", white);
    row("#886D88", black);
    row("#C044A0", white);
    row("#C044A1", black);
    row("#BE5905", black); // luminance 0.1810
    row("#E01A2E", white); // luminance 0.1678

    // Around the threshold itself, with channels of 16 bits: this grey has the luminance 0.179.
    const double dGrey = 1.055 * std::pow(0.179, 1 / 2.4) - 0.055;
    const auto grey = [](double d) {
        const auto channel = static_cast<float>(d);
        return QColor::fromRgbF(channel, channel, channel);
    };
    QTest::newRow("a grey just below 0.179") << grey(dGrey - 0.0001) << white;
    QTest::newRow("a grey just above 0.179") << grey(dGrey + 0.0001) << black;
    QTest::newRow("an invalid colour, which is black") << QColor() << white;
}

void tst_Palette::picksBlackOrWhiteByLuminance()
{
    QFETCH(const QColor, background);
    QFETCH(const QColor, text);
    QCOMPARE(TesseraGlobal::getAdaptiveTextColor(background), text);
}

void tst_Palette::ignoresAlpha_data()
{
    picksBlackOrWhiteByLuminance_data();
}

void tst_Palette::ignoresAlpha()
{
    QFETCH(QColor, background);
    QFETCH(const QColor, text);
    for (const int nAlpha : {0, 1, 128}) {
        if (background.isValid()) {
            background.setAlpha(nAlpha);
        }
        QCOMPARE(TesseraGlobal::getAdaptiveTextColor(background), text);
    }
}

void tst_Palette::picksBlackForGreysFrom76Up()
{
    for (int nGrey = 0; nGrey < 256; ++nGrey) {
        QCOMPARE(TesseraGlobal::getAdaptiveTextColor(QColor(nGrey, nGrey, nGrey)),
                 QColor(nGrey >= 0x76 ? Qt::black : Qt::white));
    }
}

void tst_Palette::takesColoursOfAnyModel()
{
    for (const QColor& color : {QColor(0xED, 0, 0), QColor(0xEC, 0, 0)}) {
        const QColor text = TesseraGlobal::getAdaptiveTextColor(color);
        QCOMPARE(TesseraGlobal::getAdaptiveTextColor(color.toHsv()), text);
        QCOMPARE(TesseraGlobal::getAdaptiveTextColor(color.toHsl()), text);
        QCOMPARE(TesseraGlobal::getAdaptiveTextColor(color.toCmyk()), text);
    }
}

void tst_Palette::handsOut510DifferentColours()
{
    const QSet<int> levels{0xFF, 0xDD, 0xBB, 0x88, 0x66, 0x44, 0x22, 0x00};
    QSet<QRgb> seen;
    for (int n = 0; n < nRandomColors; ++n) {
        const QColor color = TesseraGlobal::instance().getRandColor();
        QVERIFY(color.isValid());
        QCOMPARE(color.alpha(), 255);
        QVERIFY(levels.contains(color.red()) && levels.contains(color.green()) && levels.contains(color.blue()));
        seen.insert(color.rgba());
    }
    QCOMPARE(seen.size(), nRandomColors);
    QVERIFY(!seen.contains(0xFF000000U));
    QVERIFY(!seen.contains(0xFFFFFFFFU));
}

void tst_Palette::repeatsTheSameOrderForEver()
{
    QStringList first;
    for (int n = 0; n < nRandomColors; ++n) {
        first << name(TesseraGlobal::instance().getRandColor());
    }
    for (int nRound = 0; nRound < 3; ++nRound) {
        for (int n = 0; n < nRandomColors; ++n) {
            QCOMPARE(name(TesseraGlobal::instance().getRandColor()), first.at(n));
        }
    }
}

void tst_Palette::shufflesTheColours()
{
    // In the order of the levels every colour would be followed by the one that is next in blue, green or red;
    // shuffled, that is so for about one of them.
    QVector<QRgb> ordered;
    const QVector<uint> levels{0xFF, 0xDD, 0xBB, 0x88, 0x66, 0x44, 0x22, 0x00};
    for (const uint nRed : levels) {
        for (const uint nGreen : levels) {
            for (const uint nBlue : levels) {
                ordered << (0xFF000000U | nRed << 16 | nGreen << 8 | nBlue);
            }
        }
    }
    ordered.removeAll(0xFF000000U);
    ordered.removeAll(0xFFFFFFFFU);
    int nFollowing = 0;
    auto nAt = ordered.indexOf(TesseraGlobal::instance().getRandColor().rgba());
    for (int n = 0; n < nRandomColors; ++n) {
        const auto nNext = ordered.indexOf(TesseraGlobal::instance().getRandColor().rgba());
        nFollowing += nNext == nAt + 1 ? 1 : 0;
        nAt = nNext;
    }
    QVERIFY2(nFollowing < 20, qPrintable(QString::number(nFollowing)));
}

void tst_Palette::shufflesAnewInAnotherProcess()
{
    QList<QByteArray> orders;
    for (int n = 0; n < 2; ++n) {
        QProcess process;
        process.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(g_printColors)});
        QVERIFY(process.waitForFinished());
        QCOMPARE(process.exitCode(), 0);
        orders << process.readAllStandardOutput();
        QCOMPARE(orders.last().count('\n'), 20);
    }
    QVERIFY(orders.first() != orders.last());
}

int main(int argc, char* argv[])
{
    if (argc == 2 && qstrcmp(argv[1], g_printColors) == 0) {
        const QApplication app(argc, argv);
        for (int n = 0; n < 20; ++n) {
            std::puts(qPrintable(name(TesseraGlobal::instance().getRandColor())));
        }
        return 0;
    }
    return TestSupport::testMain<QApplication, tst_Palette>(argc, argv);
}

#include "tst_Palette.moc"
