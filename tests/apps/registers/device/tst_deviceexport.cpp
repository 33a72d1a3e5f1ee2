// SPDX-License-Identifier: MIT
#include "device/DeviceExport.h"
#include "device/DeviceState.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"
#include "text/Numbers.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

using namespace registers;
using namespace svdtest;

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("cannot be read");
}

QStringList entries(const QTemporaryDir& dir)
{
    return QDir(dir.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
}

} // namespace

class tst_DeviceExport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theTextIsExact();
    void aDeviceWithoutRegistersIsExported();
    void hexadecimalNumbersAreUpperCaseAndPadded_data();
    void hexadecimalNumbersAreUpperCaseAndPadded();
    void digitsFollowTheSize_data();
    void digitsFollowTheSize();
    void largeFieldValuesAreStrings_data();
    void largeFieldValuesAreStrings();
    void valuesAreTheEditedOnes();
    void anEnumerationForWritingNamesNothing();
    void stringsAreEscaped();
    void aFieldBeyondItsRegisterKeepsItsBits();
    void registersOfOnePathAreAllExported();
    void aFileIsWritten();
    void anExistingFileIsReplacedAsAWhole();
    void nothingIsWrittenWhereItCannotBe();
    void severalFilesAreWrittenTogetherOrNotAtAll();
};

void tst_DeviceExport::theTextIsExact()
{
    const QByteArray names = "<enumeratedValues><enumeratedValue><name>Slow</name><value>0</value></enumeratedValue>"
                             "<enumeratedValue><name>Rest</name><isDefault>1</isDefault></enumeratedValue>"
                             "</enumeratedValues>";
    const SvdResult result =
        read(device("<peripheral><name>GPIOA</name><baseAddress>0x40010800</baseAddress><registers>"
                    "<register><name>CRL</name><addressOffset>0</addressOffset><resetValue>0x4444444C</resetValue>"
                    "<fields>" +
                    field("MODE0", "<bitRange>[1:0]</bitRange>", names) +
                    field("CNF0", "<bitRange>[3:2]</bitRange>", names) + field("TOP", "<bitRange>[31:28]</bitRange>") +
                    "</fields></register><register><name>ID</name><addressOffset>4</addressOffset><size>12</size>"
                    "<access>read-only</access></register></registers></peripheral>"));
    VERIFY_READ(result);
    QCOMPARE(
        exportJson(DeviceState(result.device)),
        QByteArray("{\"device\": \"Dev\", \"registers\": [\n"
                   "{\"path\": \"GPIOA.CRL\", \"address\": \"0x40010800\", \"size\": 32, \"access\": \"read-write\", "
                   "\"reset\": \"0x4444444C\", \"value\": \"0x4444444C\", \"fields\": ["
                   "{\"name\": \"MODE0\", \"lsb\": 0, \"width\": 2, \"value\": 0, \"enum\": \"Slow\"}, "
                   "{\"name\": \"CNF0\", \"lsb\": 2, \"width\": 2, \"value\": 3, \"enum\": \"Rest\"}, "
                   "{\"name\": \"TOP\", \"lsb\": 28, \"width\": 4, \"value\": 4, \"enum\": null}]},\n"
                   "{\"path\": \"GPIOA.ID\", \"address\": \"0x40010804\", \"size\": 12, \"access\": \"read-only\", "
                   "\"reset\": \"0x000\", \"value\": \"0x000\", \"fields\": []}\n"
                   "]}\n"));
}

void tst_DeviceExport::aDeviceWithoutRegistersIsExported()
{
    const SvdResult result = read(device(peripheral("P", "")));
    VERIFY_READ(result);
    QCOMPARE(exportJson(DeviceState(result.device)), QByteArray("{\"device\": \"Dev\", \"registers\": []}\n"));
}

void tst_DeviceExport::hexadecimalNumbersAreUpperCaseAndPadded_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<int>("digits");
    QTest::addColumn<QString>("expected");

    QTest::newRow("padded") << quint64(0xab) << 8 << QStringLiteral("0x000000AB");
    QTest::newRow("longer than asked for") << quint64(0x123456789A) << 8 << QStringLiteral("0x123456789A");
    QTest::newRow("zero") << quint64(0) << 1 << QStringLiteral("0x0");
    QTest::newRow("all ones") << ~quint64(0) << 16 << QStringLiteral("0xFFFFFFFFFFFFFFFF");
}

void tst_DeviceExport::hexadecimalNumbersAreUpperCaseAndPadded()
{
    QFETCH(quint64, value);
    QFETCH(int, digits);
    QFETCH(QString, expected);
    QCOMPARE(hexNumber(value, digits), expected);
}

void tst_DeviceExport::digitsFollowTheSize_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("expected");

    QTest::newRow("1 bit") << 1 << QStringLiteral("0x1");
    QTest::newRow("4 bits") << 4 << QStringLiteral("0x1");
    QTest::newRow("5 bits") << 5 << QStringLiteral("0x01");
    QTest::newRow("8 bits") << 8 << QStringLiteral("0x01");
    QTest::newRow("16 bits") << 16 << QStringLiteral("0x0001");
    QTest::newRow("24 bits") << 24 << QStringLiteral("0x000001");
    QTest::newRow("32 bits") << 32 << QStringLiteral("0x00000001");
    QTest::newRow("33 bits") << 33 << QStringLiteral("0x000000001");
    QTest::newRow("64 bits") << 64 << QStringLiteral("0x0000000000000001");
}

void tst_DeviceExport::digitsFollowTheSize()
{
    QFETCH(int, size);
    QFETCH(QString, expected);
    const SvdResult result =
        read(deviceOf(reg("R", "<resetValue>1</resetValue><size>" + QByteArray::number(size) + "</size>")));
    VERIFY_READ(result);
    const QJsonObject exported = QJsonDocument::fromJson(exportJson(DeviceState(result.device)))
                                     .object()[QLatin1String("registers")]
                                     .toArray()[0]
                                     .toObject();
    QCOMPARE(exported[QLatin1String("reset")].toString(), expected);
    QCOMPARE(exported[QLatin1String("value")].toString(), expected);
    QCOMPARE(exported[QLatin1String("size")].toInt(), size);
    QCOMPARE(exported[QLatin1String("address")].toString(), QStringLiteral("0x00001000"));
}

void tst_DeviceExport::largeFieldValuesAreStrings_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QByteArray>("expected");

    QTest::newRow("the last exact number") << ((quint64(1) << 53) - 1) << QByteArray("\"value\": 9007199254740991,");
    QTest::newRow("the first that is not") << (quint64(1) << 53) << QByteArray("\"value\": \"9007199254740992\",");
    QTest::newRow("the largest") << ~quint64(0) << QByteArray("\"value\": \"18446744073709551615\",");
}

void tst_DeviceExport::largeFieldValuesAreStrings()
{
    QFETCH(quint64, value);
    QFETCH(QByteArray, expected);
    const SvdResult result = read(deviceOf(reg("R", "<size>64</size>", field("F", "<bitRange>[63:0]</bitRange>"))));
    VERIFY_READ(result);
    DeviceState state(result.device);
    state.setValue(0, value);
    QVERIFY(exportJson(state).contains(expected));
}

void tst_DeviceExport::valuesAreTheEditedOnes()
{
    const SvdResult result =
        read(deviceOf(reg("R", "<size>8</size><resetValue>0xA5</resetValue><resetMask>0</resetMask>")));
    VERIFY_READ(result);
    DeviceState state(result.device);
    state.setValue(0, 0x3C);
    QVERIFY(exportJson(state).contains("\"reset\": \"0xA5\", \"value\": \"0x3C\""));
}

void tst_DeviceExport::anEnumerationForWritingNamesNothing()
{
    const SvdResult result = read(
        deviceOfFields(field("F", "<bitOffset>0</bitOffset>",
                             "<enumeratedValues><usage>write</usage><enumeratedValue><name>Go</name><value>0</value>"
                             "</enumeratedValue></enumeratedValues>")));
    VERIFY_READ(result);
    QVERIFY(exportJson(DeviceState(result.device)).contains("\"enum\": null"));
}

void tst_DeviceExport::stringsAreEscaped()
{
    const QString name = QStringLiteral("a\"b\\c\u00E9\u20AC\U0001F600");
    const QByteArray xml = "<device><name>" + name.toHtmlEscaped().toUtf8() + "&#9;&#127;</name><peripherals>" +
                           peripheral("P&#10;Q", reg("R")) + "</peripherals></device>";
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    const QByteArray text = exportJson(DeviceState(result.device));
    QVERIFY(text.contains("a\\\"b\\\\c\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80"));
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    QCOMPARE(error.error, QJsonParseError::NoError);
    QCOMPARE(document.object()[QLatin1String("device")].toString(), result.device->name);
    QCOMPARE(document.object()[QLatin1String("registers")].toArray()[0].toObject()[QLatin1String("path")].toString(),
             QStringLiteral("P\nQ.R"));
}

void tst_DeviceExport::aFieldBeyondItsRegisterKeepsItsBits()
{
    const SvdResult result = read(
        deviceOf(reg("R", "<size>8</size><resetValue>0xFF</resetValue>", field("F", "<bitRange>[11:4]</bitRange>"))));
    VERIFY_READ(result);
    QVERIFY(exportJson(DeviceState(result.device))
                .contains("{\"name\": \"F\", \"lsb\": 4, \"width\": 8, \"value\": 15, \"enum\": null}"));
}

void tst_DeviceExport::registersOfOnePathAreAllExported()
{
    const SvdResult result = read(deviceOf(reg("R", "<size>8</size>") + reg("R", "<size>16</size>")));
    VERIFY_READ(result);
    QCOMPARE(exportJson(DeviceState(result.device)).count("\"path\": \"P.R\""), 2);
}

void tst_DeviceExport::aFileIsWritten()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("out.json"));
    QString error;
    QVERIFY(saveExport(path, "text", &error));
    QVERIFY(error.isEmpty());
    QCOMPARE(readAll(path), QByteArray("text"));
    QCOMPARE(entries(dir), QStringList{QStringLiteral("out.json")});
}

void tst_DeviceExport::anExistingFileIsReplacedAsAWhole()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("out.json"));
    QString error;
    QVERIFY(saveExport(path, "a longer text than the next one", &error));
    QVERIFY(saveExport(path, "short", &error));
    QCOMPARE(readAll(path), QByteArray("short"));
}

void tst_DeviceExport::nothingIsWrittenWhereItCannotBe()
{
    QTemporaryDir dir;
    QString error;
    QVERIFY(!saveExport(dir.filePath(QStringLiteral("no/such/dir/out.json")), "text", &error));
    QVERIFY(error.contains(QStringLiteral("no/such/dir/out.json")));
    error.clear();
    QVERIFY(!saveExport(dir.path(), "text", &error));
    QVERIFY(!error.isEmpty());
    QVERIFY(entries(dir).isEmpty());
}

void tst_DeviceExport::severalFilesAreWrittenTogetherOrNotAtAll()
{
    QTemporaryDir dir;
    const QString good = dir.filePath(QStringLiteral("good"));
    QString error;
    QVERIFY(!saveFiles({{good, "1"}, {dir.filePath(QStringLiteral("no/dir")), "2"}}, &error));
    QVERIFY(entries(dir).isEmpty());
    QVERIFY(saveFiles({{good, "1"}, {dir.filePath(QStringLiteral("other")), "2"}}, &error));
    QCOMPARE(entries(dir), (QStringList{QStringLiteral("good"), QStringLiteral("other")}));
}

TESSERA_TEST_GUILESS_MAIN(tst_DeviceExport)
#include "tst_deviceexport.moc"
