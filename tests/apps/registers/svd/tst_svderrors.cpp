// SPDX-License-Identifier: MIT
#include "CommandLine.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QByteArrayList>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>

using namespace registers;
using namespace svdtest;

namespace {

// Rows that follow state what comes in a register R or around it, in lines whose numbers are easy to see.
QByteArray inRegister(const QByteArray& more)
{
    return "<device><name>D</name><peripherals>\n<peripheral><name>P</name><baseAddress>0</baseAddress>\n<registers>"
           "<register>\n<name>R</name><addressOffset>0</addressOffset>\n" +
           more + "\n</register></registers></peripheral></peripherals></device>";
}

QByteArray inField(const QByteArray& more)
{
    return inRegister("<fields><field><name>F</name>\n " + more + "</field></fields>");
}

} // namespace

class tst_SvdErrors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anErrorSaysWhereAndWhat_data();
    void anErrorSaysWhereAndWhat();
    void positionsAreExactThroughoutALargeFile();
    void anErrorsTextNamesFileLineAndColumn();
    void aFileThatCannotBeOpenedIsAnError();
    void absurdAmountsAreRefused_data();
    void absurdAmountsAreRefused();
    void noTruncatedDescriptionIsRead();
    void damageNeverCrashes();
};

void tst_SvdErrors::anErrorSaysWhereAndWhat_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<int>("line");
    QTest::addColumn<int>("column");
    QTest::addColumn<QStringList>("parts"); // all of them are in the message

    const auto row = [](const char* name, const QByteArray& xml, int line, int column,
                        std::initializer_list<const char*> parts) {
        QStringList texts;
        for (const char* part : parts) {
            texts.append(QString::fromUtf8(part));
        }
        QTest::newRow(name) << xml << line << column << texts;
    };

    // The document.
    row("an empty file", "", 1, 1, {"empty", "expected"});
    row("a file without XML", "hello", 1, 2, {"Start tag expected", "XML"});
    row("a file that is all white space", " \n ", 1, 1, {"no complete <device>"});
    row("tags that do not match", "<device>\n<name>D</nam></device>", 2, 14, {"mismatch", "well-formed XML"});
    row("a file that breaks off", "<device>\n<name>D", 2, 8, {"Premature end", "breaks off"});
    row("a file that breaks off within a tag", "<device><name>D</name><peri", 1, 28, {"Premature end"});
    row("something behind the end", "<device><name>D</name></device><more/>", 1, 39, {"Extra content"});
    row("an entity that is not declared", "<device><name>&nix;</name></device>", 1, 20, {"nix", "XML"});
    row("another root", "<?xml version=\"1.0\"?>\n<!-- c -->\n\n  <package a='1'/>", 4, 3,
        {"<package>", "<device> was expected"});
    row("another root, on the first line", "<html></html>", 1, 1, {"<html>", "<device>"});

    // Names and addresses.
    row("a device without name", "\n\n <device>\n</device>", 3, 2, {"<device>", "<name>"});
    row("a device with an empty name", "<device><name> </name></device>", 1, 1, {"<device>", "<name>"});
    row("a peripheral without name",
        "<device><name>D</name><peripherals>\n  <peripheral><baseAddress>0</baseAddress></peripheral></peripherals>"
        "</device>",
        2, 3, {"<peripheral>", "<name>"});
    row("a peripheral without address",
        "<device><name>D</name><peripherals>\n  <peripheral><name>P</name></peripheral></peripherals></device>", 2, 3,
        {"peripheral \"P\"", "<baseAddress>"});
    row("a register without name",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n\n<register><addressOffset>0"
               "</addressOffset></register></registers></peripheral>"),
        3, 1, {"<register>", "<name>"});
    row("a register without address",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n\n <register><name>R</name>"
               "</register></registers></peripheral>"),
        3, 2, {"register \"R\"", "<addressOffset>"});
    row("a cluster without address",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n <cluster><name>C</name>"
               "</cluster></registers></peripheral>"),
        2, 2, {"cluster \"C\"", "<addressOffset>"});
    row("a field without name", inRegister("<fields><field><bitOffset>0</bitOffset></field></fields>"), 5, 9,
        {"<field>", "<name>"});

    // Numbers and keywords.
    row("a bad address", inRegister("<addressOffset>0xZZ</addressOffset>"), 5, 1,
        {"<addressOffset>", "\"0xZZ\"", "number"});
    row("a number of more than 64 bits", inRegister("<resetValue>0x10000000000000000</resetValue>"), 5, 1,
        {"<resetValue>", "64 bits"});
    row("no number at all", inRegister("<size></size>"), 5, 1, {"<size>", "\"\""});
    row("an unknown access", inRegister("<access>maybe</access>"), 5, 1,
        {"<access>", "\"maybe\"", "read-only", "write-only", "read-write", "writeOnce", "read-writeOnce"});
    row("a register of no bits", inRegister("<size>0</size>"), 5, 1, {"\"P.R\"", "0 bits", "1 to 64"});
    row("a register of 65 bits", inRegister("<size>65</size>"), 5, 1, {"\"P.R\"", "65 bits", "1 to 64"});
    row("a size that is wrong where it is inherited from",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress>\n<size>128</size><registers>" + reg("R") +
               "</registers></peripheral>"),
        2, 1, {"\"P.R\"", "128 bits"});

    // Bits.
    row("a field without bits", inField(""), 5, 9, {"\"F\"", "<bitOffset>", "<bitRange>"});
    row("a field with a width only", inField("<bitWidth>2</bitWidth>"), 5, 9, {"\"F\"", "<bitOffset>"});
    row("a field with an lsb only", inField("<lsb>2</lsb>"), 5, 9, {"\"F\"", "<msb>"});
    row("a field with an msb only", inField("<msb>2</msb>"), 5, 9, {"\"F\"", "<lsb>"});
    row("an msb below the lsb", inField("<lsb>5</lsb><msb>4</msb>"), 5, 9, {"\"F\"", "msb not below the lsb"});
    row("a range with the msb below the lsb", inField("<bitRange>[4:5]</bitRange>"), 6, 2,
        {"\"[4:5]\"", "msb not below lsb"});
    row("a range with words", inField("<bitRange>[a:b]</bitRange>"), 6, 2, {"\"[a:b]\"", "[msb:lsb]"});
    row("a range of 65 bits", inField("<bitRange>[64:0]</bitRange>"), 6, 2, {"\"[64:0]\"", "at most 64 bits"});
    row("a range that begins at bit 64", inField("<bitRange>[64:64]</bitRange>"), 6, 2, {"lsb below 64"});
    row("a field that begins at bit 64", inField("<bitOffset>64</bitOffset>"), 6, 2, {"<bitOffset>", "0 to 63"});
    row("an lsb of 64", inField("<lsb>64</lsb><msb>65</msb>"), 6, 2, {"<lsb>", "0 to 63"});
    row("a field of 65 bits", inField("<bitOffset>0</bitOffset><bitWidth>65</bitWidth>"), 6, 26,
        {"<bitWidth>", "to 64"});
    row("a field of no bits", inField("<bitOffset>0</bitOffset><bitWidth>0</bitWidth>"), 5, 9,
        {"\"F\"", "0 bits wide", "1 to 64"});
    row("a field of 65 bits by its ends", inField("<lsb>0</lsb><msb>64</msb>"), 5, 9, {"\"F\"", "65 bits wide"});

    // Enumerations.
    const QByteArray begin = "<bitOffset>0</bitOffset><enumeratedValues>\n";
    row("an unknown usage", inField(begin + "<usage>often</usage></enumeratedValues>"), 7, 1,
        {"<usage>", "\"often\"", "read, write or read-write"});
    row("a bad value",
        inField(begin + "<enumeratedValue><name>A</name><value>1x</value></enumeratedValue></enumeratedValues>"), 7, 32,
        {"<value>", "\"1x\"", "#1x"});
    row("a bad default mark",
        inField(begin + "<enumeratedValue><isDefault>maybe</isDefault></enumeratedValue></enumeratedValues>"), 7, 18,
        {"<isDefault>", "\"maybe\"", "true, false, 1 or 0"});

    // Arrays.
    row("dim 0", inRegister("<dim>0</dim>"), 5, 1, {"\"R\"", "<dim> is 0", "at least 1"});
    row("a bad dim", inRegister("<dim>many</dim>"), 5, 1, {"<dim>", "\"many\"", "number"});
    row("no increment", inRegister("<dim>2</dim>"), 5, 1, {"\"R\"", "<dimIncrement>"});
    row("no dim", inRegister("<dimIncrement>4</dimIncrement>"), 5, 1, {"\"R\"", "<dim>"});
    row("too few indices", inRegister("<dim>3</dim><dimIncrement>4</dimIncrement>\n<dimIndex>A,B</dimIndex>"), 6, 1,
        {"\"A,B\"", "names 2", "3"});
    row("a range of indices that runs backwards",
        inRegister("<dim>4</dim><dimIncrement>4</dimIncrement>\n<dimIndex>3-0</dimIndex>"), 6, 1, {"\"3-0\"", "0-3"});
    row("a range of indices with an open end",
        inRegister("<dim>4</dim><dimIncrement>4</dimIncrement>\n<dimIndex>0-</dimIndex>"), 6, 1, {"\"0-\""});
    row("a list of indices with a gap",
        inRegister("<dim>3</dim><dimIncrement>4</dimIncrement>\n<dimIndex>A,,C</dimIndex>"), 6, 1, {"\"A,,C\""});
    row("copies of a field that leave the register",
        inRegister(
            "<fields>\n<field><dim>5</dim><name>F%s</name><bitOffset>0</bitOffset><bitWidth>16</bitWidth></field>"
            "</fields>"),
        6, 1, {"\"F4\"", "bit 64", "0 to 63"});

    // References.
    row("a peripheral derived from nothing there",
        device("\n<peripheral derivedFrom=\"NIX\"><name>P</name><baseAddress>0</baseAddress></peripheral>"), 2, 1,
        {"\"NIX\"", "peripheral"});
    row("a register derived from nothing there",
        device(peripheral("P", "\n  <register derivedFrom=\"P.NIX\"><name>R</name></register>")), 2, 3,
        {"\"P.NIX\"", "register"});
    row("a cluster derived from a register",
        device(peripheral("P", reg("R") + "\n<cluster derivedFrom=\"R\"><name>C</name></cluster>")), 2, 1,
        {"\"R\"", "cluster"});
    row("a field derived from nothing there",
        inRegister("<fields>\n<field derivedFrom=\"P.R.NIX\"><name>F</name></field>"
                   "</fields>"),
        6, 1, {"\"P.R.NIX\"", "<field>"});
    row("values derived from nothing there",
        inField("<bitOffset>0</bitOffset>\n<enumeratedValues derivedFrom=\"NIX\"/>"), 7, 1,
        {"\"NIX\"", "<enumeratedValues>"});
    row("a peripheral derived from itself",
        device("\n<peripheral derivedFrom=\"P\"><name>P</name><baseAddress>0</baseAddress></peripheral>"), 2, 1,
        {"\"P\"", "from itself"});
    row("registers derived from each other",
        device(peripheral("P", "<register derivedFrom=\"B\"><name>A</name></register>\n"
                               "<register derivedFrom=\"C\"><name>B</name></register>\n"
                               "<register derivedFrom=\"A\"><name>C</name></register>")),
        3, 1, {"\"A\"", "from itself"});
    row("a cluster derived from the one around it",
        device(peripheral("P", "<cluster><name>A</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.A\"><name>B</name></cluster></cluster>")),
        2, 1, {"\"P.A\"", "from itself"});
    row("clusters that contain each other",
        device(peripheral("P", "<cluster><name>A</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.B\"><name>A1</name></cluster></cluster>"
                               "<cluster><name>B</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.A\"><name>B1</name></cluster></cluster>")),
        2, 1, {"from itself"});
    row("fields derived from each other",
        inRegister("<fields><field derivedFrom=\"B\"><name>A</name></field>\n"
                   "<field derivedFrom=\"A\"><name>B</name></field></fields>"),
        6, 1, {"\"A\"", "leads back"});
    row("values derived from themselves",
        inField("<bitOffset>0</bitOffset>\n<enumeratedValues derivedFrom=\"E\"><name>E</name></enumeratedValues>"), 7,
        1, {"\"E\"", "leads back"});
}

void tst_SvdErrors::anErrorSaysWhereAndWhat()
{
    QFETCH(QByteArray, xml);
    QFETCH(int, line);
    QFETCH(int, column);
    QFETCH(QStringList, parts);
    const SvdResult result = read(xml);
    QVERIFY(!result.isOk());
    QVERIFY(!result.cancelled);
    for (const QString& part : parts) {
        QVERIFY2(result.error.message.contains(part), qPrintable(result.error.text()));
    }
    QVERIFY2(result.error.line == line && result.error.column == column, qPrintable(result.error.text()));
    QCOMPARE(result.error.file, QStringLiteral("test.svd"));
}

void tst_SvdErrors::positionsAreExactThroughoutALargeFile()
{
    // What stands in front of an element differs, and so does the place within the pieces the file is read in.
    const QByteArrayList fillings = {"",
                                     " ",
                                     "\n",
                                     "\r\n\t",
                                     "<!-- c -->",
                                     "\n<!-- c\nd -->  ",
                                     "<?p i?>",
                                     "<x/>",
                                     "<x>text</x>\n",
                                     "<![CDATA[ ]]>",
                                     "&#32;",
                                     "\n <x a='1'\n b='2'/>"};
    constexpr int kRegisterCount = 2400;
    for (int bad = 0; bad < kRegisterCount; bad += 47) {
        QByteArray xml = "<device><name>D</name><peripherals><peripheral><name>P</name><baseAddress>0</baseAddress>"
                         "<registers>";
        int place = -1;
        for (int i = 0; i < kRegisterCount; ++i) {
            xml += "<register><name>R</name>" + fillings.at(i % fillings.size());
            place = i == bad ? static_cast<int>(xml.size()) : place;
            xml += QByteArray("<addressOffset>") + (i == bad ? "zz" : "0") + "</addressOffset></register>";
        }
        xml += "</registers></peripheral></peripherals></device>";
        const SvdResult result = read(xml);
        QCOMPARE(result.error.line, qint64(xml.left(place).count('\n') + 1));
        QCOMPARE(result.error.column, qint64(place - xml.lastIndexOf('\n', place)));
    }
}

void tst_SvdErrors::anErrorsTextNamesFileLineAndColumn()
{
    const SvdResult result = read("<device>\n  <size>big</size></device>");
    QCOMPARE(result.error.text(),
             QStringLiteral("test.svd:2:3: <size> is \"big\", and a number such as 64, 0x40 or #1000000, of at most "
                            "64 bits was expected"));
}

void tst_SvdErrors::aFileThatCannotBeOpenedIsAnError()
{
    const SvdResult result = readSvdFile(QStringLiteral("/no/such/device.svd"));
    QVERIFY(!result.isOk());
    QCOMPARE(result.error.line, qint64(0));
    QVERIFY(result.error.text().startsWith(QStringLiteral("/no/such/device.svd: ")));

    QTemporaryDir dir;
    QVERIFY(!readSvdFile(dir.path()).isOk());
}

void tst_SvdErrors::absurdAmountsAreRefused_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("part");

    const QByteArray wide = "<dim>1000</dim><dimIncrement>4</dimIncrement><addressOffset>0</addressOffset>";
    QTest::newRow("a dim of a billion")
        << deviceOf("<register><name>R%s</name><dim>1000000000</dim><dimIncrement>4</dimIncrement><addressOffset>0"
                    "</addressOffset></register>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("arrays within arrays")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<cluster><name>B%s</name>" + wide +
                    "<register><name>R%s</name>" + wide + "</register></cluster></cluster>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("arrays of groups without registers")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<cluster><name>B%s</name>" + wide + "</cluster></cluster>")
        << QStringLiteral("at most 1000000");
    QTest::newRow("too many fields")
        << deviceOf("<cluster><name>A%s</name>" + wide + "<register><name>R%s</name>" +
                    "<dim>100</dim><dimIncrement>4</dimIncrement><addressOffset>0</addressOffset><fields>"
                    "<field><name>F%s</name><dim>16</dim><bitOffset>0</bitOffset></field></fields></register>"
                    "</cluster>")
        << QStringLiteral("at most 1000000");

    QByteArray doubling = "<cluster><name>C0</name><addressOffset>0</addressOffset>" + reg("R") + "</cluster>";
    for (int i = 1; i < 40; ++i) {
        const QByteArray base = "P.C" + QByteArray::number(i - 1);
        doubling += "<cluster><name>C" + QByteArray::number(i) + "</name><addressOffset>0</addressOffset>" +
                    "<cluster derivedFrom=\"" + base + "\"><name>X</name></cluster>" + "<cluster derivedFrom=\"" +
                    base + "\"><name>Y</name></cluster></cluster>";
    }
    QTest::newRow("clusters that double and double again") << deviceOf(doubling) << QStringLiteral("at most 1000000");

    QByteArray nested;
    for (int i = 0; i < 65; ++i) {
        nested += "<cluster><name>C</name><addressOffset>0</addressOffset>";
    }
    for (int i = 0; i < 65; ++i) {
        nested += "</cluster>";
    }
    QTest::newRow("65 nested clusters") << deviceOf(nested) << QStringLiteral("nested more than 64");

    QByteArray chain;
    for (int i = 0; i < 5000; ++i) {
        chain +=
            "<cluster><name>C" + QByteArray::number(i) + "</name><addressOffset>0</addressOffset>" +
            (i + 1 < 5000 ? "<cluster derivedFrom=\"P.C" + QByteArray::number(i + 1) + "\"><name>X</name></cluster>"
                          : QByteArray()) +
            "</cluster>";
    }
    QTest::newRow("clusters nested 5000 deep by derivation")
        << deviceOf(chain) << QStringLiteral("nested more than 64");

    QByteArray tags = "<device><name>D</name>";
    for (int i = 0; i < 100000; ++i) {
        tags += "<x>";
    }
    QTest::newRow("100000 nested tags") << tags << QStringLiteral("nested more than");
}

void tst_SvdErrors::absurdAmountsAreRefused()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, part);
    const SvdResult result = read(xml);
    QVERIFY(!result.isOk());
    QVERIFY2(result.error.message.contains(part), qPrintable(result.error.text()));
    QVERIFY(result.error.line > 0);
}

void tst_SvdErrors::noTruncatedDescriptionIsRead()
{
    QFile file(sampleFileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll().trimmed();
    const SvdResult complete = read(whole);
    VERIFY_READ(complete);
    for (int size = 0; size < whole.size(); size += 211) {
        const SvdResult result = read(whole.left(size));
        QVERIFY(!result.isOk());
        QVERIFY(result.error.line > 0 && result.error.column > 0);
        QVERIFY(!result.error.message.isEmpty());
    }
}

void tst_SvdErrors::damageNeverCrashes()
{
    QFile file(sampleFileName());
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray whole = file.readAll();
    quint32 random = 12345;
    int readable = 0;
    for (int round = 0; round < 300; ++round) {
        QByteArray damaged = whole;
        for (int i = 0; i < 3; ++i) {
            random = random * 1664525u + 1013904223u;
            const int place = int((random >> 4) % quint32(whole.size()));
            damaged[place] = char(' ' + int((random >> 20) % 95));
        }
        const SvdResult result = read(damaged);
        readable += result.isOk() ? 1 : 0;
        QVERIFY(result.isOk() != (result.error.line > 0));
    }
    // Much of it hits remarks and blanks, much of it does not.
    QVERIFY(readable > 0 && readable < 300);
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdErrors)
#include "tst_svderrors.moc"
