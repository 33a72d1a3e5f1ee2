// SPDX-License-Identifier: MIT
#include "session/Session.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QTemporaryDir>
#include <QTest>

#include <algorithm>

using namespace registers;
using namespace svdtest;

namespace {

const QByteArray kPlain = "<device>\n <name>Dev</name>\n <peripherals>\n  <peripheral>\n   <name>P</name>\n"
                          "   <baseAddress>0x1000</baseAddress>\n   <registers>\n    <register>\n"
                          "     <name>R</name>\n     <addressOffset>4</addressOffset>\n    </register>\n"
                          "   </registers>\n  </peripheral>\n </peripherals>\n</device>\n";

/// Gives its bytes in small pieces and cannot be asked for its size, as a pipe.
class Pipe : public QIODevice
{
public:
    explicit Pipe(QByteArray bytes)
        : m_bytes(std::move(bytes))
    {
    }

    bool isSequential() const override { return true; }

protected:
    qint64 readData(char* data, qint64 maxSize) override
    {
        const qint64 size = std::min({maxSize, qint64(100), qint64(m_bytes.size() - m_place)});
        std::copy_n(m_bytes.constData() + m_place, size, data);
        m_place += int(size);
        return size;
    }
    qint64 writeData(const char*, qint64) override { return -1; }

private:
    QByteArray m_bytes;
    int m_place = 0;
};

QByteArray manyRegisters(int count)
{
    QByteArray xml;
    for (int i = 0; i < count; ++i) {
        xml += reg("R" + QByteArray::number(i), "<description>One of many</description>", field("F"));
    }
    return deviceOf(xml);
}

} // namespace

class tst_SvdReader : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void theDeviceSaysWhatItIs();
    void aDeviceWithoutRegistersIsFine();
    void anyEncodingIsRead_data();
    void anyEncodingIsRead();
    void anyLineEndIsRead_data();
    void anyLineEndIsRead();
    void elementsMayComeInAnyOrder();
    void commentsSectionsAndEntitiesAreRead();
    void namesAreTrimmedAndDescriptionsSimplified_data();
    void namesAreTrimmedAndDescriptionsSimplified();
    void elementNamesMayHaveAnyCase();
    void whatIsNotNeededIsReadPast();
    void anUndeclaredPrefixDoesNotMatter();
    void propertiesAreInherited_data();
    void propertiesAreInherited();
    void accessKeywordsAreForgiving_data();
    void accessKeywordsAreForgiving();
    void aFieldTakesTheAccessOfItsRegister();
    void aResetValueKeepsOnlyTheRegistersBits();
    void bitsAreStatedInAnyWay_data();
    void bitsAreStatedInAnyWay();
    void readActionsAreNoted_data();
    void readActionsAreNoted();
    void theEnumerationForReadingIsShown_data();
    void theEnumerationForReadingIsShown();
    void aValueWithoutNameIsCalledByItsNumber();
    void aDefaultValueNeedsNoNumber();
    void twoRegistersMayHaveOnePath();
    void aSequentialDeviceIsRead();
    void aFileIsRead();
    void theSampleShowsEverything();
    void progressRunsFromStartToEnd();
    void progressOfASequentialDeviceHasNoTotal();
    void readingCanBeCancelledAtAnyTime();
    void progressIsToldOften();
};

void tst_SvdReader::theDeviceSaysWhatItIs()
{
    const SvdResult result =
        read("<device><vendor>V</vendor><name>N</name><version>1.0</version><description>A device</description>"
             "<peripherals>" +
             peripheral("P", "") + "</peripherals></device>");
    VERIFY_READ(result);
    QCOMPARE(result.device->name, QStringLiteral("N"));
    QCOMPARE(result.device->vendor, QStringLiteral("V"));
    QCOMPARE(result.device->version, QStringLiteral("1.0"));
    QCOMPARE(result.device->description, QStringLiteral("A device"));
    QCOMPARE(result.device->sourceFile, QStringLiteral("test.svd"));
}

void tst_SvdReader::aDeviceWithoutRegistersIsFine()
{
    const SvdResult result = read(device(peripheral("P", "")));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerCount(), 0);
    QCOMPARE(result.device->nodes().size(), 2);
}

void tst_SvdReader::anyEncodingIsRead_data()
{
    QTest::addColumn<QByteArray>("bytes");

    const QString body = QStringLiteral("<device><name>Gr\u00F6\u00DFe</name><peripherals>") +
                         QString::fromLatin1(peripheral("P", "")) + QStringLiteral("</peripherals></device>");
    const auto declared = [&body](const char* name) {
        return QStringLiteral("<?xml version=\"1.0\" encoding=\"%1\"?>").arg(QLatin1String(name)) + body;
    };
    const auto utf16 = [](const QString& text) {
        const QString marked = QChar(QChar::ByteOrderMark) + text;
        return QByteArray(reinterpret_cast<const char*>(marked.utf16()), 2 * static_cast<int>(marked.size()));
    };
    QTest::newRow("UTF-8 without declaration") << body.toUtf8();
    QTest::newRow("UTF-8 with declaration") << declared("utf-8").toUtf8();
    QTest::newRow("UTF-8 with byte order mark") << "\xEF\xBB\xBF" + declared("UTF-8").toUtf8();
    QTest::newRow("UTF-16 with byte order mark") << utf16(declared("UTF-16"));
    QTest::newRow("Latin-1 with declaration") << declared("ISO-8859-1").toLatin1();
}

void tst_SvdReader::anyEncodingIsRead()
{
    QFETCH(QByteArray, bytes);
    const SvdResult result = read(bytes);
    VERIFY_READ(result);
    QCOMPARE(result.device->name, QStringLiteral("Gr\u00F6\u00DFe"));
}

void tst_SvdReader::anyLineEndIsRead_data()
{
    QTest::addColumn<QByteArray>("lineEnd");

    QTest::newRow("line feed") << QByteArray("\n");
    QTest::newRow("carriage return and line feed") << QByteArray("\r\n");
    QTest::newRow("carriage return") << QByteArray("\r");
}

void tst_SvdReader::anyLineEndIsRead()
{
    QFETCH(QByteArray, lineEnd);
    const SvdResult result = read(QByteArray(kPlain).replace("\n", lineEnd));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), QStringList{QStringLiteral("P.R@1004")});

    const SvdResult remarked = read(QByteArray(kPlain).replace("0x1000", "zzz").replace("\n", lineEnd));
    QCOMPARE(remarked.remarks.size(), 1);
    QCOMPARE(remarked.remarks.at(0).line, qint64(6));
    QCOMPARE(remarked.remarks.at(0).column, qint64(4));
}

void tst_SvdReader::elementsMayComeInAnyOrder()
{
    const SvdResult result = read("<device><peripherals><peripheral><registers><register><fields><field>"
                                  "<bitWidth>2</bitWidth><enumeratedValues><enumeratedValue><value>1</value>"
                                  "<name>One</name></enumeratedValue><name>E</name></enumeratedValues>"
                                  "<bitOffset>3</bitOffset><name>F</name></field></fields>"
                                  "<resetValue>8</resetValue><addressOffset>8</addressOffset><name>R</name>"
                                  "</register></registers><baseAddress>16</baseAddress><name>P</name></peripheral>"
                                  "</peripherals><size>16</size><name>Dev</name></device>");
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), QStringList{QStringLiteral("P.R@18")});
    const Register& only = result.device->registerAt(0);
    QCOMPARE(int(only.size), 16);
    QCOMPARE(fieldPlaces(only), QStringList{QStringLiteral("F[4:3]")});
    QCOMPARE(only.fields.at(0).readName(1)->name, QStringLiteral("One"));
}

void tst_SvdReader::commentsSectionsAndEntitiesAreRead()
{
    const SvdResult result =
        read("<?xml version=\"1.0\"?>\n<!-- before -->\n<!DOCTYPE device [<!ENTITY unit \"the unit\">]>\n"
             "<device><name>D<!-- within -->EV</name>"
             "<description>a &lt; b &amp;&amp; <![CDATA[c > <d>]]> of &unit; &#x41;</description><peripherals>" +
             peripheral("P", "") + "</peripherals></device>");
    VERIFY_READ(result);
    QCOMPARE(result.device->name, QStringLiteral("DEV"));
    QCOMPARE(result.device->description, QStringLiteral("a < b && c > <d> of the unit A"));
}

void tst_SvdReader::namesAreTrimmedAndDescriptionsSimplified_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    QTest::newRow("white space around") << QByteArray(" \n a b \t") << QStringLiteral("a b");
    QTest::newRow("several lines") << QByteArray("a,\r\n\t  b\n\nc") << QStringLiteral("a, b c");
    QTest::newRow("line ends written as backslash n") << QByteArray("a\\n\n  b\\n\\nc\\n") << QStringLiteral("a b c");
    QTest::newRow("a backslash before another letter stays") << QByteArray("a\\tb \\") << QStringLiteral("a\\tb \\");
    QTest::newRow("tags within are passed over") << QByteArray("a <b>bold</b> word") << QStringLiteral("a bold word");
    QTest::newRow("nothing") << QByteArray() << QString();
    QTest::newRow("white space only") << QByteArray(" \n ") << QString();
}

void tst_SvdReader::namesAreTrimmedAndDescriptionsSimplified()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const SvdResult result = read(deviceOf(reg("\n R \t", "<description>" + text + "</description>")));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).path, QStringLiteral("P.R"));
    QCOMPARE(result.device->registerAt(0).description, expected);
}

void tst_SvdReader::elementNamesMayHaveAnyCase()
{
    const SvdResult result =
        read("<Device><NAME>Dev</NAME><Peripherals><peripheral><name>P</name><baseaddress>1</baseaddress>"
             "<registers><register><name>R</name><AddressOffset>2</AddressOffset></register></registers>"
             "</peripheral></Peripherals></Device>");
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), QStringList{QStringLiteral("P.R@3")});
}

void tst_SvdReader::whatIsNotNeededIsReadPast()
{
    const SvdResult result =
        read("<device><name>Dev</name><cpu><name>CPU</name><revision>r1</revision></cpu><width>32</width><peripherals>"
             "<peripheral><name>P</name><prependToName>X_</prependToName><appendToName>_Y</appendToName>"
             "<baseAddress>0</baseAddress><addressBlock><offset>0</offset><size>0x999</size><name>bad</name>"
             "</addressBlock><interrupt><name>IRQ</name><value>zzz</value></interrupt><registers>"
             "<register><name>R</name><alternateRegister>Q</alternateRegister><addressOffset>0</addressOffset>"
             "<modifiedWriteValues>oneToClear</modifiedWriteValues><writeConstraint><range><minimum>0</minimum>"
             "<maximum>5</maximum></range></writeConstraint><protection>s</protection></register></registers>"
             "</peripheral></peripherals><vendorExtensions><size>3</size><name>Other</name><peripherals><peripheral/>"
             "</peripherals></vendorExtensions></device>");
    VERIFY_READ(result);
    QCOMPARE(result.device->name, QStringLiteral("Dev"));
    QCOMPARE(paths(*result.device), QStringList{QStringLiteral("P.R")});
    QCOMPARE(int(result.device->registerAt(0).size), 32);
}

void tst_SvdReader::anUndeclaredPrefixDoesNotMatter()
{
    const SvdResult result =
        read("<device xs:noNamespaceSchemaLocation=\"CMSIS-SVD.xsd\" schemaVersion=\"1.3\"><name>N</name>"
             "<peripherals>" +
             peripheral("P", "") + "</peripherals></device>");
    VERIFY_READ(result);
    QCOMPARE(result.device->name, QStringLiteral("N"));
}

void tst_SvdReader::propertiesAreInherited_data()
{
    QTest::addColumn<QByteArray>("onDevice");
    QTest::addColumn<QByteArray>("onPeripheral");
    QTest::addColumn<QByteArray>("onCluster");
    QTest::addColumn<QByteArray>("onRegister");
    QTest::addColumn<int>("size");
    QTest::addColumn<QString>("access");
    QTest::addColumn<quint64>("resetValue");
    QTest::addColumn<quint64>("resetMask");

    const QByteArray all = "<size>8</size><access>read-only</access><resetValue>0x12</resetValue>"
                           "<resetMask>0x0F</resetMask>";
    const QByteArray other = "<size>16</size><access>write-only</access><resetValue>0x3456</resetValue>"
                             "<resetMask>0xFF00</resetMask>";
    QTest::newRow("nothing is stated") << QByteArray() << QByteArray() << QByteArray() << QByteArray() << 32
                                       << QStringLiteral("read-write") << quint64(0) << quint64(0xFFFFFFFF);
    QTest::newRow("the device states all") << all << QByteArray() << QByteArray() << QByteArray() << 8
                                           << QStringLiteral("read-only") << quint64(0x12) << quint64(0x0F);
    QTest::newRow("the peripheral wins over the device")
        << all << other << QByteArray() << QByteArray() << 16 << QStringLiteral("write-only") << quint64(0x3456)
        << quint64(0xFF00);
    QTest::newRow("the cluster wins over the peripheral")
        << QByteArray() << all << other << QByteArray() << 16 << QStringLiteral("write-only") << quint64(0x3456)
        << quint64(0xFF00);
    QTest::newRow("the register wins over the cluster")
        << QByteArray() << QByteArray() << all << other << 16 << QStringLiteral("write-only") << quint64(0x3456)
        << quint64(0xFF00);
    QTest::newRow("each property comes by itself")
        << QByteArray("<size>64</size>") << QByteArray("<access>writeOnce</access>")
        << QByteArray("<resetValue>0xFFFFFFFFFFFFFFFE</resetValue>") << QByteArray("<resetMask>1</resetMask>") << 64
        << QStringLiteral("writeOnce") << quint64(0xFFFFFFFFFFFFFFFE) << quint64(1);
}

void tst_SvdReader::propertiesAreInherited()
{
    QFETCH(QByteArray, onDevice);
    QFETCH(QByteArray, onPeripheral);
    QFETCH(QByteArray, onCluster);
    QFETCH(QByteArray, onRegister);
    QFETCH(int, size);
    QFETCH(QString, access);
    QFETCH(quint64, resetValue);
    QFETCH(quint64, resetMask);
    const QByteArray cluster =
        "<cluster><name>C</name><addressOffset>0</addressOffset>" + onCluster + reg("R", onRegister) + "</cluster>";
    const SvdResult result = read(device(peripheral("P", cluster, onPeripheral), onDevice));
    VERIFY_READ(result);
    const Register& only = result.device->registerAt(0);
    QCOMPARE(int(only.size), size);
    QCOMPARE(QString(accessName(only.access)), access);
    QCOMPARE(only.resetValue, resetValue);
    QCOMPARE(only.resetMask, resetMask);
}

void tst_SvdReader::accessKeywordsAreForgiving_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* text, const char* expected) {
        QTest::newRow(text) << QByteArray(text) << QString::fromLatin1(expected);
    };
    row("read-only", "read-only");
    row("write-only", "write-only");
    row("read-write", "read-write");
    row("writeOnce", "writeOnce");
    row("read-writeOnce", "read-writeOnce");
    row("Read-Only", "read-only");
    row("readonly", "read-only");
    row("readOnly", "read-only");
    row("READ-WRITE", "read-write");
    row("readWrite", "read-write");
    row("write-once", "writeOnce");
    row("read-writeonce", "read-writeOnce");
    row("read-write-once", "read-writeOnce");
    row(" write-only\n", "write-only");
}

void tst_SvdReader::accessKeywordsAreForgiving()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, expected);
    const SvdResult result = read(deviceOf(reg("R", "<access>" + text + "</access>")));
    VERIFY_READ(result);
    QCOMPARE(QString(accessName(result.device->registerAt(0).access)), expected);
}

void tst_SvdReader::aFieldTakesTheAccessOfItsRegister()
{
    const SvdResult result =
        read(deviceOf(reg("R", "<access>read-only</access>",
                          field("A") + field("B", "<bitOffset>1</bitOffset>", "<access>write-only</access>"))));
    VERIFY_READ(result);
    const QVector<Field>& fields = result.device->registerAt(0).fields;
    QCOMPARE(int(fields.at(0).access), int(Access::ReadOnly));
    QCOMPARE(int(fields.at(1).access), int(Access::WriteOnly));
}

void tst_SvdReader::aResetValueKeepsOnlyTheRegistersBits()
{
    const SvdResult result =
        read(deviceOf(reg("R", "<size>12</size><resetValue>0xABCDE</resetValue><resetMask>0xFFFFFFFF</resetMask>")));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).resetValue, quint64(0xCDE));
    QCOMPARE(result.device->registerAt(0).resetMask, quint64(0xFFF));
}

void tst_SvdReader::bitsAreStatedInAnyWay_data()
{
    QTest::addColumn<QByteArray>("bits");
    QTest::addColumn<int>("lsb");
    QTest::addColumn<int>("width");
    QTest::addColumn<int>("size");

    const auto row = [](const char* name, const char* bits, int lsb, int width, int size = 32) {
        QTest::newRow(name) << QByteArray(bits) << lsb << width << size;
    };
    row("offset and width", "<bitOffset>4</bitOffset><bitWidth>3</bitWidth>", 4, 3);
    row("width before offset", "<bitWidth>3</bitWidth><bitOffset>4</bitOffset>", 4, 3);
    row("offset only means one bit", "<bitOffset>31</bitOffset>", 31, 1);
    row("lsb and msb", "<lsb>8</lsb><msb>15</msb>", 8, 8);
    row("msb before lsb", "<msb>15</msb><lsb>8</lsb>", 8, 8);
    row("range", "<bitRange>[7:4]</bitRange>", 4, 4);
    row("range of one bit", "<bitRange>[9:9]</bitRange>", 9, 1);
    row("range with white space", "<bitRange> [ 7 : 4 ]\n</bitRange>", 4, 4);
    row("all 64 bits", "<bitRange>[63:0]</bitRange>", 0, 64);
    row("hexadecimal numbers", "<bitOffset>0x1F</bitOffset><bitWidth>#10</bitWidth>", 31, 2);
    row("a field that reaches beyond its register stays as it is stated", "<bitRange>[35:28]</bitRange>", 28, 8);
    row("a field that reaches beyond 64 bits stays as it is stated", "<lsb>60</lsb><msb>70</msb>", 60, 11, 64);
}

void tst_SvdReader::bitsAreStatedInAnyWay()
{
    QFETCH(QByteArray, bits);
    QFETCH(int, lsb);
    QFETCH(int, width);
    QFETCH(int, size);
    const SvdResult result =
        read(deviceOf(reg("R", "<size>" + QByteArray::number(size) + "</size>", field("F", bits))));
    VERIFY_READ(result);
    const Field& only = result.device->registerAt(0).fields.at(0);
    QCOMPARE(int(only.lsb), lsb);
    QCOMPARE(int(only.width), width);
}

void tst_SvdReader::readActionsAreNoted_data()
{
    QTest::addColumn<QByteArray>("onRegister");
    QTest::addColumn<QByteArray>("onField");
    QTest::addColumn<bool>("registerHas");
    QTest::addColumn<bool>("fieldHas");

    QTest::newRow("none") << QByteArray() << QByteArray() << false << false;
    QTest::newRow("of the register") << QByteArray("<readAction>clear</readAction>") << QByteArray() << true << false;
    QTest::newRow("of a field counts for the register too")
        << QByteArray() << QByteArray("<readAction>modify</readAction>") << true << true;
    QTest::newRow("in any case") << QByteArray("<readAction>ModifyExternal</readAction>")
                                 << QByteArray("<readAction>SET</readAction>") << true << true;
}

void tst_SvdReader::readActionsAreNoted()
{
    QFETCH(QByteArray, onRegister);
    QFETCH(QByteArray, onField);
    QFETCH(bool, registerHas);
    QFETCH(bool, fieldHas);
    const SvdResult result = read(deviceOf(reg("R", onRegister, field("F", "<bitOffset>0</bitOffset>", onField))));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).hasReadAction, registerHas);
    QCOMPARE(result.device->registerAt(0).fields.at(0).hasReadAction, fieldHas);
}

void tst_SvdReader::theEnumerationForReadingIsShown_data()
{
    QTest::addColumn<QStringList>("usages"); // of the enumerations E0, E1 and so on; empty: not stated
    QTest::addColumn<QString>("shown");
    QTest::addColumn<bool>("forWritingOnly");

    const auto row = [](const char* name, const QStringList& usages, const char* shown, bool forWritingOnly) {
        QTest::newRow(name) << usages << QString::fromLatin1(shown) << forWritingOnly;
    };
    const QString read = QStringLiteral("read");
    const QString write = QStringLiteral("write");
    const QString both = QStringLiteral("read-write");
    row("none", {}, "", false);
    row("without a usage", {QString()}, "E0", false);
    row("for reading before the one for writing", {read, write}, "E0", false);
    row("for reading behind the one for writing", {write, read}, "E1", false);
    row("for both", {write, both}, "E1", false);
    row("for reading rather than for both", {both, read}, "E1", false);
    row("for writing when there is no other", {write}, "E0", true);
    row("the keyword in any case", {QStringLiteral("Write"), QStringLiteral("READ")}, "E1", false);
}

void tst_SvdReader::theEnumerationForReadingIsShown()
{
    QFETCH(QStringList, usages);
    QFETCH(QString, shown);
    QFETCH(bool, forWritingOnly);
    QByteArray xml;
    for (int i = 0; i < usages.size(); ++i) {
        const QByteArray usage = usages.at(i).toLatin1();
        xml += "<enumeratedValues><name>E" + QByteArray::number(i) + "</name>" +
               (usage.isEmpty() ? QByteArray() : "<usage>" + usage + "</usage>") +
               "<enumeratedValue><name>V</name><value>0</value></enumeratedValue></enumeratedValues>";
    }
    const SvdResult result = read(deviceOfFields(field("F", "<bitOffset>0</bitOffset>", xml)));
    VERIFY_READ(result);
    const Field& only = result.device->registerAt(0).fields.at(0);
    QCOMPARE(only.enumeration ? only.enumeration->name : QString(), shown);
    QCOMPARE(only.enumeration && only.enumeration->forWritingOnly, forWritingOnly);
    const bool hasReadName = only.readName(0) != nullptr;
    QCOMPARE(hasReadName, !shown.isEmpty() && !forWritingOnly);
}

void tst_SvdReader::aValueWithoutNameIsCalledByItsNumber()
{
    const SvdResult result = read(deviceOfFields(
        field("F", "<bitRange>[3:0]</bitRange>",
              "<enumeratedValues><enumeratedValue><value> #10x </value></enumeratedValue></enumeratedValues>")));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).fields.at(0).readName(5)->name, QStringLiteral("#10x"));
}

void tst_SvdReader::aDefaultValueNeedsNoNumber()
{
    const SvdResult result = read(deviceOfFields(
        field("F", "<bitRange>[3:0]</bitRange>",
              "<enumeratedValues><enumeratedValue><name>Rest</name><isDefault>TRUE</isDefault></enumeratedValue>"
              "<enumeratedValue><name>One</name><value>1</value><isDefault>0</isDefault></enumeratedValue>"
              "</enumeratedValues>")));
    VERIFY_READ(result);
    const Field& only = result.device->registerAt(0).fields.at(0);
    QCOMPARE(only.readName(1)->name, QStringLiteral("One"));
    QCOMPARE(only.readName(2)->name, QStringLiteral("Rest"));
    QVERIFY(!only.enumeration->values.at(0).hasValue);
}

void tst_SvdReader::twoRegistersMayHaveOnePath()
{
    const SvdResult result = read(deviceOf(reg("R", "<size>8</size>") + reg("R", "<size>16</size>") + reg("Q")));
    VERIFY_READ(result);
    QCOMPARE(paths(*result.device), (QStringList{QStringLiteral("P.R"), QStringLiteral("P.R"), QStringLiteral("P.Q")}));
    QCOMPARE(result.device->findRegister(QStringLiteral("P.R")), 0);
}

void tst_SvdReader::aSequentialDeviceIsRead()
{
    Pipe pipe(kPlain);
    const SvdResult result = readSvd(pipe, QStringLiteral("pipe")); // not open yet
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), QStringList{QStringLiteral("P.R@1004")});
}

void tst_SvdReader::aFileIsRead()
{
    QTemporaryDir dir;
    const QString path = dir.filePath(QStringLiteral("device.svd"));
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(kPlain);
    file.close();
    const SvdResult result = readSvdFile(path);
    VERIFY_READ(result);
    QCOMPARE(result.device->sourceFile, path);
}

void tst_SvdReader::theSampleShowsEverything()
{
    const SvdResult result = readSvdFile(sampleFileName());
    VERIFY_READ(result);
    const Device& sample = *result.device;
    QCOMPARE(sample.vendor, QStringLiteral("Tessera"));
    QVector<bool> accesses(kAccessCount, false);
    QVector<int> sizes;
    bool hasReadAction = false;
    bool hasWriteNames = false;
    bool hasDefault = false;
    bool hasOpenBits = false;
    for (const Register& each : sample.registers()) {
        accesses[int(each.access)] = true;
        sizes.append(each.size);
        hasReadAction = hasReadAction || each.hasReadAction;
        for (const Field& f : each.fields) {
            QVERIFY2(f.msb() < each.size, qPrintable(each.path + QLatin1Char('.') + f.name));
            QVERIFY(!f.description.isEmpty());
            hasWriteNames = hasWriteNames || (f.enumeration && f.enumeration->forWritingOnly);
            for (const EnumValue& entry : f.enumeration ? f.enumeration->values : QVector<EnumValue>()) {
                hasDefault = hasDefault || entry.isDefault;
                hasOpenBits = hasOpenBits || ~entry.mask != 0;
            }
        }
    }
    QVERIFY(!accesses.contains(false));
    for (const int size : {8, 16, 32, 64}) {
        QVERIFY(sizes.contains(size));
    }
    QVERIFY(hasReadAction && hasWriteNames && hasDefault && hasOpenBits);
    QVERIFY(sample.find(QStringLiteral("DMA.CH[7].TO.ADDRESS")).isValid());
    QVERIFY(sample.find(QStringLiteral("TIMER2.CHANNEL[3].MODE.OUTPUT")).isField());
    QVERIFY(sample.find(QStringLiteral("SYS.SCRATCH_D")).isValid());
    QCOMPARE(paths(sample).removeDuplicates(), 0);
}

void tst_SvdReader::progressRunsFromStartToEnd()
{
    const QByteArray xml = manyRegisters(3000);
    QVector<qint64> steps;
    const SvdResult result = read(xml, [&](qint64 done, qint64 total) {
        steps.append(done);
        return total == xml.size();
    });
    VERIFY_READ(result);
    QVERIFY(steps.size() > 20);
    QVERIFY(std::is_sorted(steps.cbegin(), steps.cend()));
    QVERIFY(steps.constFirst() < xml.size() / 2);
    QCOMPARE(steps.constLast(), qint64(xml.size()));
}

void tst_SvdReader::progressOfASequentialDeviceHasNoTotal()
{
    Pipe pipe(manyRegisters(500));
    qint64 last = 0;
    qint64 totals = 0;
    const SvdResult result = readSvd(pipe, QStringLiteral("pipe"), [&](qint64 done, qint64 total) {
        last = done;
        totals += total;
        return true;
    });
    VERIFY_READ(result);
    QVERIFY(last > 0);
    QCOMPARE(totals, qint64(0));
}

void tst_SvdReader::readingCanBeCancelledAtAnyTime()
{
    const QByteArray xml = manyRegisters(1000);
    int calls = 0;
    const SvdResult whole = read(xml, [&](qint64, qint64) { return ++calls > 0; });
    VERIFY_READ(whole);
    for (int last = 1; last <= calls; ++last) {
        int count = 0;
        const SvdResult result = read(xml, [&](qint64, qint64) { return ++count < last; });
        QVERIFY(result.cancelled);
        QVERIFY(!result.isOk());
        QVERIFY(result.error.message.isEmpty());
        QCOMPARE(count, last); // and it is not asked again
    }
}

void tst_SvdReader::progressIsToldOften()
{
    // Expansion makes much of little, so it has to tell too.
    const QByteArray xml = deviceOf("<register><dim>100000</dim><dimIncrement>4</dimIncrement><name>R%s</name>"
                                    "<addressOffset>0</addressOffset></register>");
    int calls = 0;
    const SvdResult result = read(xml, [&](qint64, qint64) { return ++calls > 0; });
    VERIFY_READ(result);
    QCOMPARE(result.device->registerCount(), 100000);
    QVERIFY(calls > 100);
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdReader)
#include "tst_svdreader.moc"
