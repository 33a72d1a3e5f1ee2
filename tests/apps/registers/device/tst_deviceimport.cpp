// SPDX-License-Identifier: MIT
#include "device/DeviceExport.h"
#include "device/DeviceImport.h"
#include "session/Session.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"
#include "text/Numbers.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace registers;
using namespace svdtest;

Q_DECLARE_METATYPE(registers::DevicePtr)

namespace {

/// A file of the registers @p entries.
QByteArray fileOf(const QByteArray& entries)
{
    return "{\"device\": \"Dev\", \"registers\": [" + entries + "]}";
}

QByteArray entry(const QByteArray& path, const QByteArray& value)
{
    return "{\"path\": \"" + path + "\", \"value\": " + value + "}";
}

/// Each value as "index=0x...".
QStringList values(const ImportResult& result)
{
    QStringList texts;
    for (const RegisterValue& one : result.values) {
        texts.append(QStringLiteral("%1=%2").arg(QString::number(one.registerIndex), hexNumber(one.value, 1)));
    }
    return texts;
}

/// Registers of several sizes and kinds of access, and two of one path.
QByteArray testDevice()
{
    return deviceOf(reg("BYTE", "<size>8</size><resetValue>0x5A</resetValue>") +
                    reg("ID", "<size>8</size><access>read-only</access><resetValue>0x42</resetValue>") +
                    reg("MIXED", "<size>8</size><access>read-only</access><resetValue>0xF0</resetValue>",
                        field("LOW", "<bitRange>[3:0]</bitRange>", "<access>read-write</access>") +
                            field("HIGH", "<bitRange>[7:4]</bitRange>")) +
                    reg("TWICE", "<size>8</size>") + reg("TWICE", "<size>16</size>") +
                    reg("CMD", "<size>8</size><access>write-only</access>") + reg("WIDE", "<size>64</size>"));
}

constexpr quint64 kPattern = 0xA5C3F00DDEADBEEF;

/// Gives every register a value of its own, wherever it may be written.
void edit(DeviceState* state)
{
    for (int i = 0; i < state->device().registerCount(); ++i) {
        if (isWritable(state->device().registerAt(i).access)) {
            state->setValue(i, kPattern * quint64(i + 1));
        }
    }
}

} // namespace

class tst_DeviceImport : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void anExportLoadsBackWhole_data();
    void anExportLoadsBackWhole();
    void anEditedFieldOfAReadOnlyRegisterLoadsBack();
    void allValuesOfASizeLoadBack_data();
    void allValuesOfASizeLoadBack();
    void aValueIsRead_data();
    void aValueIsRead();
    void aRegisterIsLeftOut_data();
    void aRegisterIsLeftOut();
    void anEntryWithoutAPathIsNamedByItsPosition();
    void theOthersOfAPathKeepTheirPlaces();
    void theDeviceOfTheFileIsTold_data();
    void theDeviceOfTheFileIsTold();
    void readingChangesNothing();
    void thePresentValueOfAReadOnlyRegisterCounts();
    void aBadFileIsAnError_data();
    void aBadFileIsAnError();
    void anErrorNamesTheFile();
    void aFileThatCannotBeReadIsAnError();
    void unplacedRegistersAreListed();
    void aLargeFileIsReadFast_data();
    void aLargeFileIsReadFast();

private:
    DevicePtr m_device;
};

void tst_DeviceImport::initTestCase()
{
    const SvdResult result = read(testDevice());
    VERIFY_READ(result);
    m_device = result.device;
}

void tst_DeviceImport::anExportLoadsBackWhole_data()
{
    QTest::addColumn<DevicePtr>("device");

    const SvdResult sample = readSvdFile(sampleFileName());
    VERIFY_READ(sample);
    QVERIFY(sample.device->registerCount() > 100);
    QTest::newRow("the sample") << sample.device;
    QTest::newRow("registers of one path") << m_device;
    const SvdResult oddNames = read(device(peripheral("P&#10;\"Q\\", reg("R\u00E9\U0001F600") + reg("A.B"))));
    VERIFY_READ(oddNames);
    QTest::newRow("names with odd characters") << oddNames.device;
    const SvdResult empty = read(device(peripheral("P", "")));
    VERIFY_READ(empty);
    QTest::newRow("no registers") << empty.device;
}

void tst_DeviceImport::anExportLoadsBackWhole()
{
    QFETCH(DevicePtr, device);
    DeviceState edited(device);
    edit(&edited);
    const QByteArray exported = exportJson(edited);

    DeviceState loaded(device);
    const ImportResult result = readExport(exported, loaded);
    QCOMPARE(result.error, QString());
    QCOMPARE(unplacedText(result.unplaced), QString());
    QCOMPARE(result.deviceName, device->name);
    QCOMPARE(result.values.size(), device->registerCount());
    loaded.setValues(result.values);
    QCOMPARE(exportJson(loaded), exported);
    QCOMPARE(loaded.modifiedCount(), edited.modifiedCount());
}

void tst_DeviceImport::anEditedFieldOfAReadOnlyRegisterLoadsBack()
{
    DeviceState edited(m_device);
    const int mixed = m_device->findRegister(QStringLiteral("P.MIXED"));
    QVERIFY(edited.setField(mixed, 0, 0x9));
    DeviceState loaded(m_device);
    const ImportResult result = readExport(exportJson(edited), loaded);
    QCOMPARE(unplacedText(result.unplaced), QString());
    loaded.setValues(result.values);
    QCOMPARE(loaded.value(mixed), quint64(0xF9));
}

void tst_DeviceImport::allValuesOfASizeLoadBack_data()
{
    QTest::addColumn<int>("size");

    for (const int size : {1, 8, 22, 63, 64}) {
        QTest::addRow("%d bits", size) << size;
    }
}

void tst_DeviceImport::allValuesOfASizeLoadBack()
{
    QFETCH(int, size);
    const SvdResult device =
        read(deviceOf(reg("R", "<size>" + QByteArray::number(size) + "</size><resetValue>1</resetValue>")));
    VERIFY_READ(device);
    const quint64 highest = quint64(1) << (size - 1);
    for (const quint64 value :
         {quint64(0), quint64(1), kPattern & bitMask(size), highest, bitMask(size) - 1, bitMask(size)}) {
        DeviceState edited(device.device);
        edited.setValue(0, value);
        const ImportResult result = readExport(exportJson(edited), DeviceState(device.device));
        QVERIFY2(result.isOk(), qPrintable(result.error));
        QCOMPARE(values(result), QStringList{QStringLiteral("0=") + hexNumber(value, 1)});
    }
}

void tst_DeviceImport::aValueIsRead_data()
{
    QTest::addColumn<QByteArray>("registerEntry");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* name, const QByteArray& registerEntry, const char* expected) {
        QTest::newRow(name) << registerEntry << QString::fromLatin1(expected);
    };
    row("hexadecimal", entry("P.BYTE", "\"0x3C\""), "0=0x3C");
    row("hexadecimal in small letters", entry("P.BYTE", "\"0x3c\""), "0=0x3C");
    row("decimal", entry("P.BYTE", "\"60\""), "0=0x3C");
    row("binary", entry("P.BYTE", "\"0b111100\""), "0=0x3C");
    row("a JSON number", entry("P.BYTE", "60"), "0=0x3C");
    row("a JSON number with an exponent", entry("P.BYTE", "6e1"), "0=0x3C");
    row("more digits than needed", entry("P.BYTE", "\"0x0000003C\""), "0=0x3C");
    row("the largest one", entry("P.BYTE", "\"0xFF\""), "0=0xFF");
    row("64 bits as text", entry("P.WIDE", "\"18446744073709551615\""), "6=0xFFFFFFFFFFFFFFFF");
    row("a number beyond the exact ones as text", entry("P.WIDE", "\"9007199254740993\""), "6=0x20000000000001");
    row("the largest JSON number", entry("P.WIDE", "9007199254740991"), "6=0x1FFFFFFFFFFFFF");
    row("a write-only register", entry("P.CMD", "1"), "5=0x1");
    row("what a read-only register holds already", entry("P.ID", "\"0x42\""), "1=0x42");
    row("a writable field of a read-only register", entry("P.MIXED", "\"0xF5\""), "2=0xF5");
    row("another size into which the value fits", R"({"path": "P.BYTE", "size": 32, "value": "0x0000003C"})", "0=0x3C");
    row("other keys do not count",
        R"({"path": "P.BYTE", "address": 5, "size": "wide", "reset": null, "fields": 1, "value": 60})", "0=0x3C");
}

void tst_DeviceImport::aValueIsRead()
{
    QFETCH(QByteArray, registerEntry);
    QFETCH(QString, expected);
    const ImportResult result = readExport(fileOf(registerEntry), DeviceState(m_device));
    QCOMPARE(result.error, QString());
    QCOMPARE(unplacedText(result.unplaced), QString());
    QCOMPARE(values(result), QStringList{expected});
}

void tst_DeviceImport::aRegisterIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("registerEntry");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* name, const QByteArray& registerEntry, const char* expected) {
        QTest::newRow(name) << registerEntry << QString::fromLatin1(expected);
    };
    row("an unknown peripheral", entry("OLD.CTRL", "1"), "OLD.CTRL: the device \"Dev\" has no peripheral \"OLD\"");
    row("an unknown register", entry("P.OLD", "1"), "P.OLD: the peripheral \"P\" has no register or cluster \"OLD\"");
    row("a peripheral", entry("P", "1"), "P: \"P\" is a peripheral, and a register or a field was expected");
    row("a field", entry("P.MIXED.LOW", "1"), "P.MIXED.LOW: is a field, and a register was expected");
    row("no value", R"({"path": "P.BYTE"})", "P.BYTE: has no value");
    const char* const noNumber =
        "P.BYTE: its value is not a number; a decimal number, 0x... or 0b... of at most 64 bits was expected";
    row("null", entry("P.BYTE", "null"), noNumber);
    row("a bool", entry("P.BYTE", "true"), noNumber);
    row("a list", entry("P.BYTE", "[1]"), noNumber);
    row("a word", entry("P.BYTE", "\"on\""),
        "P.BYTE: its value \"on\" is not a number; a decimal number, 0x... or 0b... of at most 64 bits was expected");
    row("an empty text", entry("P.BYTE", "\"\""),
        "P.BYTE: its value \"\" is not a number; a decimal number, 0x... or 0b... of at most 64 bits was expected");
    row("more than 64 bits", entry("P.WIDE", "\"0x10000000000000000\""),
        "P.WIDE: its value \"0x10000000000000000\" is not a number; a decimal number, 0x... or 0b... of at most 64 "
        "bits was expected");
    const char* const noWholeNumber = "P.WIDE: its value is not a whole number from 0 to 9007199254740991; larger ones "
                                      "have to be written as text";
    row("a fraction", entry("P.WIDE", "1.5"), noWholeNumber);
    row("a negative number", entry("P.WIDE", "-1"), noWholeNumber);
    row("the first JSON number that is not exact", entry("P.WIDE", "9007199254740992"), noWholeNumber);
    row("a huge JSON number", entry("P.WIDE", "1e300"), noWholeNumber);
    row("a value too large by one", entry("P.BYTE", "\"0x100\""),
        "P.BYTE: 0x100 does not fit; the register holds at most 0xFF");
    row("another value for a read-only register", entry("P.ID", "\"0x43\""),
        "P.ID: is read-only and holds 0x42, which cannot become 0x43");
    row("another value for a read-only field", entry("P.MIXED", "\"0xE0\""),
        "P.MIXED: is read-only and holds 0xF0, which cannot become 0xE0");
    row("a path twice", entry("P.BYTE", "1") + "," + entry("P.BYTE", "2"),
        "P.BYTE: the file has it more often than the device");
    row("a path three times that the device has twice",
        entry("P.TWICE", "1") + "," + entry("P.TWICE", "2") + "," + entry("P.TWICE", "3"),
        "P.TWICE: the file has it more often than the device");
}

void tst_DeviceImport::aRegisterIsLeftOut()
{
    QFETCH(QByteArray, registerEntry);
    QFETCH(QString, expected);
    const ImportResult result = readExport(fileOf(registerEntry + "," + entry("P.CMD", "1")), DeviceState(m_device));
    QCOMPARE(result.error, QString());
    QCOMPARE(unplacedText(result.unplaced), expected);
    QCOMPARE(values(result).constLast(), QStringLiteral("5=0x1")); // its neighbour is not left out
}

void tst_DeviceImport::anEntryWithoutAPathIsNamedByItsPosition()
{
    const QByteArray entries =
        entry("P.CMD", "1") + R"(, 7, {"value": 1}, null, {"path": 5, "value": 1}, {"path": "", "value": 1}, {})";
    const ImportResult result = readExport(fileOf(entries), DeviceState(m_device));
    QCOMPARE(result.error, QString());
    QCOMPARE(unplacedText(result.unplaced), QStringLiteral("register 2 of the file: is not an object\n"
                                                           "register 3 of the file: has no path\n"
                                                           "register 4 of the file: is not an object\n"
                                                           "register 5 of the file: has no path\n"
                                                           "register 6 of the file: has no path\n"
                                                           "register 7 of the file: has no path"));
    QCOMPARE(values(result), QStringList{QStringLiteral("5=0x1")});
}

void tst_DeviceImport::theOthersOfAPathKeepTheirPlaces()
{
    const QByteArray entries = entry("P.TWICE", "\"0x1FF\"") + "," + entry("P.TWICE", "\"0x1FE\"");
    const ImportResult result = readExport(fileOf(entries), DeviceState(m_device));
    QCOMPARE(unplacedText(result.unplaced),
             QStringLiteral("P.TWICE: 0x1FF does not fit; the register holds at most 0xFF"));
    QCOMPARE(values(result), QStringList{QStringLiteral("4=0x1FE")});
}

void tst_DeviceImport::theDeviceOfTheFileIsTold_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("expected");

    QTest::newRow("this one") << QByteArray(R"({"device": "Dev", "registers": []})") << QStringLiteral("Dev");
    QTest::newRow("another one") << QByteArray(R"({"device": "Other", "registers": []})") << QStringLiteral("Other");
    QTest::newRow("none") << QByteArray(R"({"registers": []})") << QString();
    QTest::newRow("no text") << QByteArray(R"({"device": 5, "registers": []})") << QString();
}

void tst_DeviceImport::theDeviceOfTheFileIsTold()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, expected);
    const ImportResult result = readExport(json, DeviceState(m_device));
    QVERIFY2(result.isOk(), qPrintable(result.error));
    QCOMPARE(result.deviceName, expected);
    QVERIFY(result.values.isEmpty());
    QVERIFY(result.unplaced.isEmpty());
}

void tst_DeviceImport::readingChangesNothing()
{
    const DeviceState state(m_device);
    const ImportResult result = readExport(fileOf(entry("P.BYTE", "1")), state);
    QCOMPARE(values(result), QStringList{QStringLiteral("0=0x1")});
    QCOMPARE(state.modifiedCount(), 0);
}

void tst_DeviceImport::thePresentValueOfAReadOnlyRegisterCounts()
{
    DeviceState state(m_device);
    state.setValue(1, 0x17);
    const QByteArray json = fileOf(entry("P.ID", "\"0x17\""));
    QCOMPARE(values(readExport(json, state)), QStringList{QStringLiteral("1=0x17")});
    QCOMPARE(readExport(json, DeviceState(m_device)).unplaced.size(), 1);
}

void tst_DeviceImport::aBadFileIsAnError_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("begin");

    const auto row = [](const char* name, const QByteArray& json, const char* begin) {
        QTest::newRow(name) << json << QString::fromLatin1(begin);
    };
    row("nothing", "", "is empty; ");
    row("white space", " \n\t", "is empty; ");
    row("text", "hello", "1:2: ");
    row("an end that is missing", "{\"registers\": [\n{\"path\": \"P.R\"}", "2:16: ");
    row("a mistake in the third line", "{\n\"registers\": [\n  {\"path\" \"P.R\"}]}", "3:12: ");
    row("an accent before the mistake", "{\"\xC3\xA9\": nix}", "1:8: ");
    row("something behind the end", "{\"registers\": []} more", "1:19: ");
    row("nested too deeply", QByteArray(2000, '['), "1:1026: ");
    row("a list", "[]", "holds no list \"registers\"; ");
    row("no registers", R"({"device": "Dev"})", "holds no list \"registers\"; ");
    row("registers that are no list", R"({"registers": {}})", "holds no list \"registers\"; ");
}

void tst_DeviceImport::aBadFileIsAnError()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, begin);
    const ImportResult result = readExport(json, DeviceState(m_device));
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.startsWith(begin), qPrintable(result.error));
    QVERIFY2(result.error.endsWith(QStringLiteral("; an export of registers was expected")), qPrintable(result.error));
    QVERIFY(result.values.isEmpty());
    QVERIFY(result.unplaced.isEmpty());
}

void tst_DeviceImport::anErrorNamesTheFile()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("in.json"));
    QString error;
    const auto errorOf = [&](const QByteArray& json) {
        return saveExport(path, json, &error) ? readExportFile(path, DeviceState(m_device)).error : error;
    };
    QVERIFY2(errorOf("{\n oops").startsWith(path + QStringLiteral(":2:")), qPrintable(errorOf("{\n oops")));
    QVERIFY2(errorOf("{}").startsWith(path + QStringLiteral(": holds no")), qPrintable(errorOf("{}")));
    QCOMPARE(errorOf(fileOf(entry("P.BYTE", "1"))), QString());
}

void tst_DeviceImport::aFileThatCannotBeReadIsAnError()
{
    QTemporaryDir dir;
    for (const QString& path : {dir.filePath(QStringLiteral("none.json")), dir.path()}) {
        const ImportResult result = readExportFile(path, DeviceState(m_device));
        QVERIFY2(result.error.startsWith(path + QStringLiteral(": cannot be read: ")), qPrintable(result.error));
    }
}

void tst_DeviceImport::unplacedRegistersAreListed()
{
    QCOMPARE(unplacedText({}), QString());
    QCOMPARE(unplacedText({{QStringLiteral("A"), QStringLiteral("one")}, {QStringLiteral("B"), QStringLiteral("two")}}),
             QStringLiteral("A: one\nB: two"));
}

void tst_DeviceImport::aLargeFileIsReadFast_data()
{
    QTest::addColumn<QByteArray>("registerName"); // in the file; in the device it is R%s
    QTest::addColumn<int>("placed");

    QTest::newRow("registers of the device") << QByteArray("R%s") << 65536;
    QTest::newRow("registers of another device") << QByteArray("S%s") << 0;
}

void tst_DeviceImport::aLargeFileIsReadFast()
{
    QFETCH(QByteArray, registerName);
    QFETCH(int, placed);
    const QByteArray many = "<dim>65536</dim><dimIncrement>4</dimIncrement>";
    const SvdResult present = read(deviceOf(reg("R%s", many)));
    const SvdResult written = read(deviceOf(reg(registerName, many)));
    VERIFY_READ(present);
    VERIFY_READ(written);
    const QByteArray json = exportJson(DeviceState(written.device));
    QVERIFY(json.size() > 8'000'000);
    const DeviceState state(present.device);
    QElapsedTimer timer;
    timer.start();
    const ImportResult result = readExport(json, state);
    const qint64 duration = timer.elapsed();
    QCOMPARE(result.values.size(), placed);
    QCOMPARE(result.unplaced.size(), 65536 - placed);
    QVERIFY2(duration < 10'000, qPrintable(QString::number(duration))); // about 200 ms, without a sanitizer
}

TESSERA_TEST_GUILESS_MAIN(tst_DeviceImport)
#include "tst_deviceimport.moc"
