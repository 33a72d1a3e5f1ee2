// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "TestSupport.h"

#include <QCsvDocument.h>
#include <Tessera/Tessera.h>

#include <QStringList>
#include <QtTest>

using namespace nsUI;
using TestSupport::LogLine;
using TestSupport::MessageRecorder;

namespace {

QStringList g_asked; //!< the files that the library has asked for

} // namespace

//! Found before the host library's own, for the dynamic linker looks into the program first.
bool nsCsv::QCsvDocument::loadFile(const QString& sPath, QTextCodec*)
{
    g_asked << sPath;
    return false;
}

class tst_MissingPalette : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tellsWhichFileIsMissingBeforeTheCreationBegins();
    void hasNoColours();
    void handsOutRandomColoursAllTheSame();
};

void tst_MissingPalette::tellsWhichFileIsMissingBeforeTheCreationBegins()
{
    MessageRecorder recorder;
    TesseraGlobal::instance();
    QCOMPARE(g_asked, QStringList{QStringLiteral(":/csv/ColorInfo.csv")});
    const QVector<LogLine> lines = recorder.takeLines();
    QCOMPARE(lines.size(), 4);
    QCOMPARE(lines.at(0).level, QtCriticalMsg);
    QCOMPARE(lines.at(0).text, QStringLiteral("Failed to load :/csv/ColorInfo.csv!"));
    QVERIFY2(lines.at(0).function.contains(QLatin1String("initColorInfo")), qPrintable(lines.at(0).function));
    QCOMPARE(lines.at(1).text, QStringLiteral("Tessera Singleton Create Begin"));
    QCOMPARE(lines.at(3).text, QStringLiteral("Tessera Singleton Create End"));

    TesseraGlobal::instance(); // nothing is tried a second time
    QCOMPARE(g_asked.size(), 1);
    QCOMPARE(recorder.take(), QStringList());
}

void tst_MissingPalette::hasNoColours()
{
    for (int nType = e_Primary; nType <= e_Danger; ++nType) {
        for (int nLightness = e_L100; nLightness <= e_L900; ++nLightness)
            QVERIFY(!TesseraGlobal::instance().getColor(e_ColorType(nType), e_ColorLightness(nLightness)).isValid());
    }
}

void tst_MissingPalette::handsOutRandomColoursAllTheSame()
{
    const QColor first = TesseraGlobal::instance().getRandColor();
    QVERIFY(first.isValid());
    QVERIFY(TesseraGlobal::instance().getRandColor() != first);
}

TESSERA_TEST_MAIN(tst_MissingPalette)
#include "tst_MissingPalette.moc"
