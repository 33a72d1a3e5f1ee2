// SPDX-License-Identifier: MIT
#include "Pictures.h"
#include "Setting.h"
#include "support/TestMain.h"

#include <QApplication>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <QTest>

using namespace looks;

namespace {

QImage pictureOfText(const QString& text, QFont::HintingPreference hinting, const QPointF& offset = {})
{
    QImage picture(600, 400, QImage::Format_RGB32);
    // At some resolutions full hinting makes words wider, and this is about edges alone.
    constexpr int kDotsPerMeter = 3937; // 100 in an inch
    picture.setDotsPerMeterX(kDotsPerMeter);
    picture.setDotsPerMeterY(kDotsPerMeter);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    QFont font(QStringLiteral("DejaVu Sans"), 10);
    font.setHintingPreference(hinting);
    painter.setFont(font);
    painter.fillRect(20, 300, 120, 40, QColor(0xe0, 0xe4, 0xe8)); // a button
    for (int y = 20; y < 280; y += 20) {
        painter.drawText(QPointF(20, y) + offset, text);
    }
    painter.end();
    return picture.scaled(300, 200, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
        .convertToFormat(QImage::Format_RGB32);
}

QImage pictureOfText(QFont::HintingPreference hinting = QFont::PreferFullHinting, const QPointF& offset = {})
{
    return pictureOfText(QStringLiteral("The quick brown fox jumps over the lazy dog, 0123456789"), hinting, offset);
}

QImage filled(QImage picture, const QRect& rect, const QColor& color)
{
    QPainter(&picture).fillRect(rect, color);
    return picture;
}

} // namespace

/// Pictures are compared by structure and colour, and nothing else.
class tst_Pictures : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void aChangedPictureIsReported_data();
    void aChangedPictureIsReported();
    void noiseAtTheEdgesOfGlyphsIsNotReported_data();
    void noiseAtTheEdgesOfGlyphsIsNotReported();
    void aPictureSurvivesItsPalette();
    void aDifferenceIsShown();
    void aPictureThatIsNotKeptIsReported();
    void settingsAreSixteenAndFourHavePictures();
};

void tst_Pictures::initTestCase()
{
    const QString missing = pinLooks();
    QVERIFY2(missing.isEmpty(), qPrintable(missing));
}

void tst_Pictures::aChangedPictureIsReported_data()
{
    QTest::addColumn<QImage>("changed");
    const QImage picture = pictureOfText();
    QTest::newRow("a line of text is gone") << filled(picture, QRect(0, 62, 300, 10), Qt::white);
    QTest::newRow("a word is gone") << filled(picture, QRect(20, 62, 40, 10), Qt::white);
    QTest::newRow("a text appears") << filled(picture, QRect(200, 160, 40, 3), Qt::gray);
    QTest::newRow("a button has another colour") << filled(picture, QRect(10, 150, 60, 20), QColor(0xc8, 0xcc, 0xd0));
    QTest::newRow("an icon appears") << filled(picture, QRect(200, 160, 12, 12), Qt::darkGreen);
    QTest::newRow("another text") << pictureOfText(
        QStringLiteral("HEXADECIMAL NUMBERS ONLY, WITHOUT ANY SPACES IN THEM"), QFont::PreferFullHinting);
    QTest::newRow("all is moved by a line") << pictureOfText(QFont::PreferFullHinting, QPointF(0, 10));
    QTest::newRow("another size") << picture.copy(0, 0, 280, 200);
    QImage inverted = picture;
    inverted.invertPixels();
    QTest::newRow("another palette") << inverted;
}

void tst_Pictures::aChangedPictureIsReported()
{
    QFETCH(QImage, changed);
    QVERIFY(!differenceOf(pictureOfText(), changed).reason.isEmpty());
}

void tst_Pictures::noiseAtTheEdgesOfGlyphsIsNotReported_data()
{
    QTest::addColumn<QImage>("present");
    QTest::newRow("the same") << pictureOfText();
    QTest::newRow("no hinting") << pictureOfText(QFont::PreferNoHinting);
    QTest::newRow("light hinting") << pictureOfText(QFont::PreferVerticalHinting);
    QTest::newRow("half a pixel") << pictureOfText(QFont::PreferFullHinting, QPointF(0.5, 0.5));
    QTest::newRow("a pixel") << pictureOfText(QFont::PreferFullHinting, QPointF(1, 0));
}

void tst_Pictures::noiseAtTheEdgesOfGlyphsIsNotReported()
{
    QFETCH(QImage, present);
    const Difference difference = differenceOf(pictureOfText(), present);
    QVERIFY2(difference.reason.isEmpty(), qPrintable(difference.reason));
}

void tst_Pictures::aPictureSurvivesItsPalette()
{
    const QImage picture = pictureOfText();
    const QImage kept = inFewColors(picture);
    QCOMPARE(int(kept.format()), int(QImage::Format_Indexed8));
    QVERIFY(kept.colorCount() <= 128);
    QCOMPARE(kept.pixel(0, 0), picture.pixel(0, 0));
    QCOMPARE(kept.pixel(30, 160), picture.pixel(30, 160));
    QCOMPARE(differenceOf(kept.convertToFormat(QImage::Format_RGB32), picture).blocks.size(), 0);
}

void tst_Pictures::aDifferenceIsShown()
{
    const QTemporaryDir folder;
    const QImage picture = pictureOfText();
    QVERIFY(inFewColors(picture).save(folder.filePath(QStringLiteral("window.png")), "PNG"));
    const QString differences = folder.filePath(QStringLiteral("differences"));
    const QString shown = differences + QStringLiteral("/window.png");
    QCOMPARE(compareWithKept(picture, QStringLiteral("window"), folder.path(), differences), QString());
    QVERIFY(!QFile::exists(shown));

    const QImage changed = filled(picture, QRect(200, 150, 40, 40), Qt::red);
    const QString reason = compareWithKept(changed, QStringLiteral("window"), folder.path(), differences);
    QVERIFY2(reason.startsWith(QLatin1String("window: ")) && reason.contains(shown), qPrintable(reason));
    const QImage both(shown);
    QCOMPARE(both.size(), QSize(608, 200));
    QCOMPARE(both.pixelColor(220, 170), QColor(Qt::white));
    QCOMPARE(both.pixelColor(308 + 220, 170), QColor(Qt::red));
    QCOMPARE(both.pixelColor(200, 152), QColor(Qt::red)); // the frame of a block
}

void tst_Pictures::aPictureThatIsNotKeptIsReported()
{
    const QTemporaryDir folder;
    const QString reason = compareWithKept(pictureOfText(), QStringLiteral("none"), folder.path(), folder.path());
    QVERIFY2(reason.contains(QLatin1String("none.png")) && reason.contains(QLatin1String("scripts/pictures")),
             qPrintable(reason));
}

void tst_Pictures::settingsAreSixteenAndFourHavePictures()
{
    QStringList names;
    QStringList kept;
    for (const int scale : {1, 2}) {
        const QVector<Setting> settings = settingsOfProcess();
        for (Setting setting : settings) {
            setting.scale = scale;
            names.append(setting.name());
            kept += setting.hasPictures() ? QStringList(setting.name()) : QStringList();
        }
    }
    names.removeDuplicates();
    QCOMPARE(names.size(), 16);
    QCOMPARE(kept, (QStringList{QStringLiteral("en-light-ltr-1x"), QStringLiteral("zh_CN-dark-rtl-1x"),
                                QStringLiteral("en-dark-ltr-2x"), QStringLiteral("zh_CN-light-rtl-2x")}));
}

int main(int argc, char* argv[])
{
    prepareApplication();
    return TestSupport::testMain<QApplication, tst_Pictures>(argc, argv);
}

#include "tst_Pictures.moc"
