// SPDX-License-Identifier: MIT

// What is wrong with a description and leaves the rest of it readable: it is told, and the file is read.

#include "session/Session.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QByteArrayList>
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

/// What is told of a description that is read, without the name of its file.
QStringList remarksOf(const SvdResult& result)
{
    QStringList texts;
    for (const SvdMessage& remark : result.remarks) {
        texts.append(remark.text().remove(0, static_cast<int>(qstrlen("test.svd:"))));
    }
    return texts;
}

} // namespace

class tst_SvdRemarks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRemarkSaysWhereAndWhat_data();
    void aRemarkSaysWhereAndWhat();
    void whatIsWrongCountsAsNotSaid_data();
    void whatIsWrongCountsAsNotSaid();
    void whatHasNoPlaceIsLeftOut_data();
    void whatHasNoPlaceIsLeftOut();
    void aFieldPartlyOutsideItsRegisterStays();
    void aDerivedElementWithoutNameTakesItsBasesName();
    void aDerivedArrayWithoutNameIsAnArray();
    void anArrayThatSaysTooLittleIsItsFirstCopy();
    void unknownWordsOfReadingAndEnumerationsSayNothing();
    void whatDerivesFromWhatIsLeftOutHasItsOwn();
    void remarksComeInTheFilesOrder();
    void aRemarkNamesItsRegister_data();
    void aRemarkNamesItsRegister();
    void aSharedFieldIsRemarkedOnce();
    void ofVeryManyRemarksTheNumberIsTold();
    void veryManyReferencesMayLeadNowhere();
    void veryManyRemarksMayConcernOneLongArray();
    void aRemarkIsOneLineOfPlainText_data();
    void aRemarkIsOneLineOfPlainText();
    void goodDescriptionsHaveNoRemarks();
    void positionsAreExactThroughoutALargeFile();
    void columnsCountCharacters_data();
    void columnsCountCharacters();
};

void tst_SvdRemarks::aRemarkSaysWhereAndWhat_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QStringList>("remarks");

    const auto row = [](const char* name, const QByteArray& xml, std::initializer_list<const char*> remarks) {
        QStringList texts;
        for (const char* remark : remarks) {
            texts.append(QString::fromUtf8(remark));
        }
        QTest::newRow(name) << xml << texts;
    };

    // Names and addresses.
    row("a device without name", "\n\n <device>\n<peripherals>" + peripheral("P", "") + "</peripherals></device>",
        {"3:2: this <device> has no name, and a <name> was expected in it; it stays without"});
    row("a device with an empty name",
        "<device><name> </name><peripherals>" + peripheral("P", "") + "</peripherals></device>",
        {"1:1: this <device> has no name, and a <name> was expected in it; it stays without"});
    row("a peripheral without name",
        "<device><name>D</name><peripherals>\n  <peripheral><baseAddress>0</baseAddress></peripheral></peripherals>"
        "</device>",
        {"2:3: this <peripheral> has no name, and a <name> was expected in it; the peripheral is left out"});
    row("a peripheral without address",
        "<device><name>D</name><peripherals>\n  <peripheral><name>P</name></peripheral></peripherals></device>",
        {"2:3: the peripheral \"P\" has no address, and an <baseAddress> was expected in it; the peripheral is left "
         "out"});
    row("a register without name",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n\n<register><addressOffset>0"
               "</addressOffset></register></registers></peripheral>"),
        {"3:1: this <register> has no name, and a <name> was expected in it; the register is left out"});
    row("a register without address",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n\n <register><name>R</name>"
               "</register></registers></peripheral>"),
        {"3:2: the register \"R\" has no address, and an <addressOffset> was expected in it; the register is left "
         "out"});
    row("a cluster without address",
        device("<peripheral><name>P</name><baseAddress>0</baseAddress><registers>\n <cluster><name>C</name>"
               "</cluster></registers></peripheral>"),
        {"2:2: the cluster \"C\" has no address, and an <addressOffset> was expected in it; the cluster is left out"});
    row("a field without name", inRegister("<fields><field><bitOffset>0</bitOffset></field></fields>"),
        {"5:9: this <field> has no name, and a <name> was expected in it; the field is left out"});

    // Numbers and keywords.
    row("a bad address", inRegister("<addressOffset>0xZZ</addressOffset>"),
        {"5:1: <addressOffset> is \"0xZZ\", and a number such as 64, 0x40 or #1000000, of at most 64 bits was "
         "expected; the register is left out"});
    row("a number of more than 64 bits", inRegister("<resetValue>0x10000000000000000</resetValue>"),
        {"5:1: <resetValue> is \"0x10000000000000000\", and a number such as 64, 0x40 or #1000000, of at most 64 bits "
         "was expected; it counts as not said, so what stands above holds"});
    row("no number at all", inRegister("<size></size>"),
        {"5:1: <size> is \"\", and a number such as 64, 0x40 or #1000000, of at most 64 bits was expected; it counts "
         "as not said, so what stands above holds"});
    row("an unknown access", inRegister("<access>maybe</access>"),
        {"5:1: <access> is \"maybe\", and read-only, write-only, read-write, writeOnce or read-writeOnce was expected; "
         "it counts as not said, so what stands above holds"});
    row("a register of no bits", inRegister("<size>0</size>"),
        {"5:1: <size> is \"0\", and a number of at least 1 was expected; it counts as not said, so what stands above "
         "holds"});

    // Bits.
    row("a field without bits", inField(""),
        {"5:9: the field \"F\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("a field with a width only", inField("<bitWidth>2</bitWidth>"),
        {"5:9: the field \"F\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("a field with an lsb only", inField("<lsb>2</lsb>"),
        {"5:9: the field \"F\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("a field with an msb only", inField("<msb>2</msb>"),
        {"5:9: the field \"F\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("an msb below the lsb", inField("<lsb>5</lsb><msb>4</msb>"),
        {"5:9: the field \"F\" is 0 bits wide, and 1 to 64 bits were expected, with the msb not below the lsb; the "
         "field is left out"});
    row("a range with the msb below the lsb", inField("<bitRange>[4:5]</bitRange>"),
        {"6:2: <bitRange> is \"[4:5]\", and [msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits was "
         "expected; the field is left out"});
    row("a range with words", inField("<bitRange>[a:b]</bitRange>"),
        {"6:2: <bitRange> is \"[a:b]\", and [msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits was "
         "expected; the field is left out"});
    row("a range of 65 bits", inField("<bitRange>[64:0]</bitRange>"),
        {"6:2: <bitRange> is \"[64:0]\", and [msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits was "
         "expected; the field is left out"});
    row("a range that begins at bit 64", inField("<bitRange>[64:64]</bitRange>"),
        {"6:2: <bitRange> is \"[64:64]\", and [msb:lsb] with msb not below lsb, lsb below 64 and at most 64 bits was "
         "expected; the field is left out"});
    row("a field that begins at bit 64", inField("<bitOffset>64</bitOffset>"),
        {"6:2: <bitOffset> is \"64\", and a bit from 0 to 63 was expected; the field is left out"});
    row("an lsb of 64", inField("<lsb>64</lsb><msb>65</msb>"),
        {"6:2: <lsb> is \"64\", and a bit from 0 to 63 was expected; the field is left out"});
    row("a field of 65 bits", inField("<bitOffset>0</bitOffset><bitWidth>65</bitWidth>"),
        {"6:26: <bitWidth> is \"65\", and a width from 1 to 64 was expected; the field is left out"});
    row("a field of no bits", inField("<bitOffset>0</bitOffset><bitWidth>0</bitWidth>"),
        {"6:26: <bitWidth> is \"0\", and a width from 1 to 64 was expected; the field is left out"});
    row("a field of 65 bits by its ends", inField("<lsb>0</lsb><msb>64</msb>"),
        {"5:9: the field \"F\" is 65 bits wide, and 1 to 64 bits were expected, with the msb not below the lsb; the "
         "field is left out"});

    // Enumerations.
    const QByteArray begin = "<bitOffset>0</bitOffset><enumeratedValues>\n";
    row("an unknown usage", inField(begin + "<usage>often</usage></enumeratedValues>"),
        {"7:1: <usage> is \"often\", and read, write or read-write was expected; it counts as not said"});
    row("a bad value",
        inField(begin + "<enumeratedValue><name>A</name><value>1x</value></enumeratedValue></enumeratedValues>"),
        {"7:32: <value> is \"1x\", and a number such as 2, 0x2, #10 or #1x was expected; the name is left out"});
    row("a bad default mark",
        inField(begin + "<enumeratedValue><isDefault>maybe</isDefault></enumeratedValue></enumeratedValues>"),
        {"7:18: <isDefault> is \"maybe\", and true, false, 1 or 0 was expected; it counts as not said"});

    // Arrays.
    row("dim 0", inRegister("<dim>0</dim>"),
        {"5:1: <dim> is \"0\", and a number of at least 1 was expected; one copy is taken"});
    row("a bad dim", inRegister("<dim>many</dim>"),
        {"5:1: <dim> is \"many\", and a number such as 64, 0x40 or #1000000, of at most 64 bits was expected; one copy "
         "is taken"});
    row("no increment", inRegister("<dim>2</dim>"),
        {"5:1: in the array \"R\" there is no <dimIncrement>, and one was expected; one copy is taken"});
    row("no dim", inRegister("<dimIncrement>4</dimIncrement>"),
        {"5:1: in the array \"R\" there is no <dim>, and one was expected beside <dimIncrement> and <dimIndex>; one "
         "copy is taken"});
    row("too few indices", inRegister("<dim>3</dim><dimIncrement>4</dimIncrement>\n<dimIndex>A,B</dimIndex>"),
        {"6:1: in the array \"R\" <dimIndex> \"A,B\" names 2, and as many as <dim> says, 3, were expected; the copies "
         "are numbered from 0"});
    row("a range of indices that runs backwards",
        inRegister("<dim>4</dim><dimIncrement>4</dimIncrement>\n<dimIndex>3-0</dimIndex>"),
        {"6:1: in the array \"R\" <dimIndex> is \"3-0\", and a range such as 0-3 or A-D or a list such as A,B,C was "
         "expected; the copies are numbered from 0"});
    row("a range of indices with an open end",
        inRegister("<dim>4</dim><dimIncrement>4</dimIncrement>\n<dimIndex>0-</dimIndex>"),
        {"6:1: in the array \"R\" <dimIndex> is \"0-\", and a range such as 0-3 or A-D or a list such as A,B,C was "
         "expected; the copies are numbered from 0"});
    row("a list of indices with a gap",
        inRegister("<dim>3</dim><dimIncrement>4</dimIncrement>\n<dimIndex>A,,C</dimIndex>"),
        {"6:1: in the array \"R\" <dimIndex> is \"A,,C\", and a range such as 0-3 or A-D or a list such as A,B,C was "
         "expected; the copies are numbered from 0"});
    row("copies of a field that leave the register",
        inRegister(
            "<fields>\n<field><dim>5</dim><name>F%s</name><bitOffset>0</bitOffset><bitWidth>16</bitWidth></field>"
            "</fields>"),
        {"6:1: the field \"F2\" begins at bit 32, and a bit from 0 to 31 was expected; this copy and those behind it "
         "are left out"});

    // References.
    row("a peripheral derived from nothing there",
        device("\n<peripheral derivedFrom=\"NIX\"><name>P</name><baseAddress>0</baseAddress></peripheral>"),
        {"2:1: derivedFrom=\"NIX\" leads to no <peripheral>, and the name or the dotted path of one was expected; it "
         "counts as not said"});
    row("a register derived from nothing there",
        device(peripheral("P", "\n  <register derivedFrom=\"P.NIX\"><name>R</name></register>")),
        {"2:3: derivedFrom=\"P.NIX\" leads to no <register>, and the name or the dotted path of one was expected; it "
         "counts as not said",
         "2:3: the register \"R\" has no address, and an <addressOffset> was expected in it; the register is left "
         "out"});
    row("a cluster derived from a register",
        device(peripheral("P", reg("R") + "\n<cluster derivedFrom=\"R\"><name>C</name></cluster>")),
        {"2:1: derivedFrom=\"R\" leads to no <cluster>, and the name or the dotted path of one was expected; it counts "
         "as not said",
         "2:1: the cluster \"C\" has no address, and an <addressOffset> was expected in it; the cluster is left out"});
    row("a field derived from nothing there",
        inRegister("<fields>\n<field derivedFrom=\"P.R.NIX\"><name>F</name></field>"
                   "</fields>"),
        {"6:1: derivedFrom=\"P.R.NIX\" leads to no <field>, and the name or the dotted path of one was expected; it "
         "counts as not said",
         "6:1: the field \"F\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("values derived from nothing there",
        inField("<bitOffset>0</bitOffset>\n<enumeratedValues derivedFrom=\"NIX\"/>"),
        {"7:1: derivedFrom=\"NIX\" leads to no <enumeratedValues>, and the name or the dotted path of one was "
         "expected; it counts as not said"});
    row("a peripheral derived from itself",
        device("\n<peripheral derivedFrom=\"P\"><name>P</name><baseAddress>0</baseAddress></peripheral>"),
        {"2:1: derivedFrom=\"P\" makes the peripheral \"P\" derive from itself, and a base that does not lead back was "
         "expected; it counts as not said"});
    row("registers derived from each other",
        device(peripheral("P", "<register derivedFrom=\"B\"><name>A</name></register>\n"
                               "<register derivedFrom=\"C\"><name>B</name></register>\n"
                               "<register derivedFrom=\"A\"><name>C</name></register>")),
        {"1:108: the register \"A\" has no address, and an <addressOffset> was expected in it; the register is left "
         "out",
         "2:1: the register \"B\" has no address, and an <addressOffset> was expected in it; the register is left out",
         "3:1: derivedFrom=\"A\" makes the register \"C\" derive from itself, and a base that does not lead back was "
         "expected; it counts as not said",
         "3:1: the register \"C\" has no address, and an <addressOffset> was expected in it; the register is left "
         "out"});
    row("a cluster derived from the one around it",
        device(peripheral("P", "<cluster><name>A</name><addressOffset>0</addressOffset>\n"
                               "<cluster derivedFrom=\"P.A\"><name>B</name></cluster></cluster>")),
        {"2:1: derivedFrom=\"P.A\" makes the cluster \"B\" derive from itself, and a base that does not lead back was "
         "expected; it counts as not said",
         "2:1: the cluster \"B\" has no address, and an <addressOffset> was expected in it; the cluster is left out"});
    row("fields derived from each other",
        inRegister("<fields><field derivedFrom=\"B\"><name>A</name></field>\n"
                   "<field derivedFrom=\"A\"><name>B</name></field></fields>"),
        {"5:9: the field \"A\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out",
         "6:1: derivedFrom=\"A\" leads back to where it stands, and a base that does not was expected; it counts as "
         "not said",
         "6:1: the field \"B\" does not say which bits it has, and <bitOffset>, <lsb> and <msb>, or <bitRange> was "
         "expected in it; the field is left out"});
    row("values derived from themselves",
        inField("<bitOffset>0</bitOffset>\n<enumeratedValues derivedFrom=\"E\"><name>E</name></enumeratedValues>"),
        {"7:1: derivedFrom=\"E\" leads back to where it stands, and a base that does not was expected; it counts as "
         "not said"});
}

void tst_SvdRemarks::aRemarkSaysWhereAndWhat()
{
    QFETCH(QByteArray, xml);
    QFETCH(QStringList, remarks);
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    QCOMPARE(remarksOf(result), remarks);
    QCOMPARE(result.remarkCount, qint64(remarks.size()));
    QVERIFY(!result.cancelled);
}

void tst_SvdRemarks::whatIsWrongCountsAsNotSaid_data()
{
    QTest::addColumn<QByteArray>("own"); // in the register
    QTest::addColumn<QString>("expected");

    // The peripheral above says 16 bits, read-only, 0x12 and 0xFF.
    const auto row = [](const char* name, const char* own, const char* expected) {
        QTest::newRow(name) << QByteArray(own) << QString::fromLatin1(expected);
    };
    row("an access that is none", "<access>read/clear</access>", "16 read-only 12 ff");
    row("a size that is no number", "<size>wide</size>", "16 read-only 12 ff");
    row("a size of no bits", "<size>0</size>", "16 read-only 12 ff");
    row("a reset value that is no number", "<resetValue>-1</resetValue>", "16 read-only 12 ff");
    row("a reset mask that is no number", "<resetMask>all</resetMask>", "16 read-only 12 ff");
    row("one of several", "<size>8</size><access>never</access><resetValue>3</resetValue>", "8 read-only 3 ff");
}

void tst_SvdRemarks::whatIsWrongCountsAsNotSaid()
{
    QFETCH(QByteArray, own);
    QFETCH(QString, expected);
    const SvdResult result =
        read(device(peripheral("P", reg("R", own),
                               "<size>16</size><access>read-only</access><resetValue>0x12</resetValue>"
                               "<resetMask>0xFF</resetMask>")));
    VERIFY_READ(result);
    const Register& only = result.device->registerAt(0);
    QCOMPARE(QStringLiteral("%1 %2 %3 %4")
                 .arg(QString::number(only.size), accessName(only.access), QString::number(only.resetValue, 16),
                      QString::number(only.resetMask, 16)),
             expected);
    QCOMPARE(result.remarks.size(), 1);
}

void tst_SvdRemarks::whatHasNoPlaceIsLeftOut_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("registers");
    QTest::addColumn<QString>("fields"); // of the first register

    const auto row = [](const char* name, const QByteArray& xml, const char* registers, const char* fields) {
        QTest::newRow(name) << xml << QString::fromLatin1(registers) << QString::fromLatin1(fields);
    };
    const QByteArray a = field("A", "<bitRange>[1:0]</bitRange>");
    const QByteArray b = field("B", "<bitRange>[7:6]</bitRange>");
    row("a field of no bits", deviceOfFields(a + field("X", "<bitOffset>3</bitOffset><bitWidth>0</bitWidth>") + b),
        "P.R", "A[1:0] B[7:6]");
    row("a field outside its register", deviceOfFields(a + field("X", "<bitOffset>32</bitOffset>") + b), "P.R",
        "A[1:0] B[7:6]");
    row("a field with a range that is none", deviceOfFields(a + field("X", "<bitRange>3..2</bitRange>") + b), "P.R",
        "A[1:0] B[7:6]");
    row("a field without name", deviceOfFields(a + field("") + b), "P.R", "A[1:0] B[7:6]");
    row("copies of a field", deviceOfFields(field("F%s", "<bitRange>[15:0]</bitRange>", "<dim>1000</dim>")), "P.R",
        "F0[15:0] F1[31:16]");
    row("a register without an address that can be read",
        deviceOf(reg("R") + "<register><name>X</name><addressOffset>here</addressOffset></register>" + reg("S")),
        "P.R P.S", "");
    row("a cluster, with what is in it",
        deviceOf("<cluster><name>C</name><addressOffset>?</addressOffset>" + reg("X") + "</cluster>" + reg("S")), "P.S",
        "");
    row("a peripheral, with what is in it",
        device("<peripheral><name>X</name><baseAddress>far</baseAddress><registers>" + reg("X") +
               "</registers></peripheral>" + peripheral("P", reg("R"))),
        "P.R", "");
    row("all there is", deviceOf("<register><name>X</name></register>"), "", "");
}

void tst_SvdRemarks::whatHasNoPlaceIsLeftOut()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, registers);
    QFETCH(QString, fields);
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    QCOMPARE(paths(*result.device).join(QLatin1Char(' ')), registers);
    if (result.device->registerCount() > 0) {
        QCOMPARE(fieldPlaces(result.device->registerAt(0)).join(QLatin1Char(' ')), fields);
    }
    QCOMPARE(result.remarks.size(), 1);
}

void tst_SvdRemarks::aFieldPartlyOutsideItsRegisterStays()
{
    const SvdResult result = read(deviceOfFields(field("F", "<bitRange>[35:28]</bitRange>")));
    VERIFY_READ(result);
    QCOMPARE(fieldPlaces(result.device->registerAt(0)), QStringList{QStringLiteral("F[35:28]")});
    QCOMPARE(remarksOf(result), QStringList());
}

void tst_SvdRemarks::aDerivedElementWithoutNameTakesItsBasesName()
{
    const SvdResult result =
        read(deviceOf("<register><name>R</name><addressOffset>0</addressOffset></register>\n"
                      "<register derivedFrom=\"R\"><addressOffset>4</addressOffset></register>\n" +
                      reg("S", "", field("F", "<bitOffset>1</bitOffset>") + "\n<field derivedFrom=\"F\"/>")));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device),
             QStringList({QStringLiteral("P.R@1000"), QStringLiteral("P.R@1004"), QStringLiteral("P.S@1000")}));
    QCOMPARE(fieldPlaces(result.device->registerAt(2)),
             QStringList({QStringLiteral("F[1:1]"), QStringLiteral("F[1:1]")}));
    QCOMPARE(remarksOf(result),
             QStringList({QStringLiteral("2:1: this <register> has no name, and a <name> was expected in it; that of "
                                         "its base is taken"),
                          QStringLiteral("4:1: this <field> has no name, and a <name> was expected in it; that of its "
                                         "base is taken")}));
}

void tst_SvdRemarks::aDerivedArrayWithoutNameIsAnArray()
{
    const QByteArray copies = "<dim>2</dim><dimIncrement>4</dimIncrement>";
    const SvdResult result =
        read(deviceOf(reg("R%s", copies,
                          field("F%s", "<bitRange>[1:0]</bitRange>", "<dim>2</dim>") +
                              "<field derivedFrom=\"F%s\"><bitRange>[5:4]</bitRange></field>") +
                      "<register derivedFrom=\"R%s\"><addressOffset>8</addressOffset></register>"));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device).join(QLatin1Char(' ')), QStringLiteral("P.R0@1000 P.R1@1004 P.R0@1008 P.R1@100c"));
    QCOMPARE(fieldPlaces(result.device->registerAt(3)).join(QLatin1Char(' ')),
             QStringLiteral("F0[1:0] F1[3:2] F0[5:4] F1[7:6]"));
    QCOMPARE(result.remarks.size(), 2);
}

void tst_SvdRemarks::anArrayThatSaysTooLittleIsItsFirstCopy()
{
    const SvdResult result =
        read(deviceOf(reg("A%s", "<dim>0</dim><dimIncrement>4</dimIncrement>") +
                      reg("B%s", "<dim>many</dim><dimIncrement>4</dimIncrement>") + reg("C%s", "<dim>3</dim>") +
                      reg("D%s", "<dimIncrement>4</dimIncrement>") +
                      reg("E%s", "<dim>2</dim><dimIncrement>4</dimIncrement><dimIndex>X</dimIndex>")));
    VERIFY_READ(result);
    QCOMPARE(paths(*result.device).join(QLatin1Char(' ')), QStringLiteral("P.A0 P.B0 P.C0 P.D0 P.E0 P.E1"));
    QCOMPARE(result.remarks.size(), 5);
}

void tst_SvdRemarks::unknownWordsOfReadingAndEnumerationsSayNothing()
{
    const QByteArray values =
        "<enumeratedValues>\n<usage>seldom</usage><enumeratedValue><name>A</name><value>1</value>\n"
        "<isDefault>perhaps</isDefault></enumeratedValue><enumeratedValue><name>B</name>\n"
        "<value>two</value></enumeratedValue></enumeratedValues>";
    const SvdResult result =
        read(deviceOf(reg("R", "\n<readAction>explode</readAction>", field("F", "<lsb>0</lsb><msb>1</msb>", values))));
    VERIFY_READ(result);
    QVERIFY(!result.device->registerAt(0).hasReadAction);
    QCOMPARE(valueNames(result.device->registerAt(0).fields.at(0)), QStringList{QStringLiteral("A=1")});
    QCOMPARE(
        remarksOf(result),
        QStringList({QStringLiteral("2:1: <readAction> is \"explode\", and clear, set, modify or modifyExternal was "
                                    "expected; it counts as not said"),
                     QStringLiteral("3:1: <usage> is \"seldom\", and read, write or read-write was expected; it "
                                    "counts as not said"),
                     QStringLiteral("4:1: <isDefault> is \"perhaps\", and true, false, 1 or 0 was expected; it "
                                    "counts as not said"),
                     QStringLiteral("5:1: <value> is \"two\", and a number such as 2, 0x2, #10 or #1x was "
                                    "expected; the name is left out")}));
}

void tst_SvdRemarks::whatDerivesFromWhatIsLeftOutHasItsOwn()
{
    const QByteArray lost = "<register><name>X</name><size>8</size><addressOffset>?</addressOffset></register>";
    const SvdResult result =
        read(deviceOf(lost +
                      "<register derivedFrom=\"X\"><name>R</name><addressOffset>4</addressOffset></register>"
                      "<register derivedFrom=\"X\"><name>S</name></register>" +
                      reg("T", "",
                          field("X", "<bitRange>?</bitRange>") +
                              "<field derivedFrom=\"X\"><name>A</name><bitRange>[5:4]</bitRange></field>"
                              "<field derivedFrom=\"X\"><name>B</name></field>"
                              "<field derivedFrom=\"X\"><name>C</name><bitOffset>1</bitOffset></field>")));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), QStringList({QStringLiteral("P.R@1004"), QStringLiteral("P.T@1000")}));
    QCOMPARE(int(result.device->registerAt(0).size), 8);
    QCOMPARE(fieldPlaces(result.device->registerAt(1)), QStringList{QStringLiteral("A[5:4]")});
    QCOMPARE(result.remarks.size(), 5);
}

void tst_SvdRemarks::remarksComeInTheFilesOrder()
{
    // The last is found first, and the first last.
    const SvdResult result = read(deviceOf(reg("R", "", "\n" + field("F", "<bitOffset>40</bitOffset>")) +
                                           "\n<register><name>S</name></register>\n" + reg("T", "<size>?</size>")));
    VERIFY_READ(result);
    QList<qint64> lines;
    for (const SvdMessage& remark : result.remarks) {
        lines.append(remark.line);
    }
    QCOMPARE(lines, (QList<qint64>{2, 3, 4}));
}

void tst_SvdRemarks::aRemarkNamesItsRegister_data()
{
    QTest::addColumn<QByteArray>("xml");
    QTest::addColumn<QString>("path");

    const QByteArray badAccess = "<access>?</access>";
    QTest::newRow("of a register") << deviceOf(reg("R", badAccess)) << QStringLiteral("P.R");
    QTest::newRow("of a field") << deviceOfFields(field("F", "<bitOffset>1</bitOffset>", badAccess))
                                << QStringLiteral("P.R");
    QTest::newRow("of a field that is left out")
        << deviceOfFields(field("F", "<bitOffset>99</bitOffset>")) << QStringLiteral("P.R");
    QTest::newRow("of an array, its first copy")
        << deviceOf("<cluster><name>C[%s]</name><dim>2</dim><dimIncrement>8</dimIncrement><dimIndex>A,B</dimIndex>"
                    "<addressOffset>0</addressOffset>" +
                    reg("R", badAccess) + "</cluster>")
        << QStringLiteral("P.C[A].R");
    QTest::newRow("of a register that is left out")
        << deviceOf(reg("S") + "<register><name>R</name></register>") << QString();
    QTest::newRow("of a peripheral") << device(peripheral("P", reg("R"), badAccess)) << QString();
    QTest::newRow("of the device") << device(peripheral("P", reg("R")), badAccess) << QString();
}

void tst_SvdRemarks::aRemarkNamesItsRegister()
{
    QFETCH(QByteArray, xml);
    QFETCH(QString, path);
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    QCOMPARE(result.remarks.size(), 1);
    QCOMPARE(result.remarks.at(0).path, path);
}

void tst_SvdRemarks::aSharedFieldIsRemarkedOnce()
{
    const SvdResult result = read(
        device(peripheral("P", reg("R%s", "<dim>3</dim><dimIncrement>4</dimIncrement>",
                                   field("F", "<bitOffset>40</bitOffset>"))) +
               "<peripheral derivedFrom=\"P\"><name>Q</name><baseAddress>0</baseAddress><size>8</size></peripheral>"));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerCount(), 6);
    QCOMPARE(result.device->fieldCount(), 0);
    QCOMPARE(result.remarks.size(), 1);
}

void tst_SvdRemarks::ofVeryManyRemarksTheNumberIsTold()
{
    constexpr int kCount = 12345;
    QByteArray registersXml;
    for (int i = 0; i < kCount; ++i) {
        registersXml += "<register><name>R</name><addressOffset>?</addressOffset></register>\n";
    }
    const SvdResult result = read(deviceOf(registersXml));
    VERIFY_READ(result);
    QCOMPARE(result.remarks.size(), 10000);
    QCOMPARE(result.remarkCount, qint64(kCount));
    QCOMPARE(result.remarks.at(9999).line, qint64(10000));
}

void tst_SvdRemarks::veryManyReferencesMayLeadNowhere()
{
    // Each is looked for among all the others, which are arrays and hence have many names.
    constexpr int kCount = 20000;
    QByteArray registersXml;
    QByteArray fields;
    for (int i = 0; i < kCount; ++i) {
        const QByteArray number = QByteArray::number(i);
        registersXml += "<register derivedFrom=\"X" + number + "\"><name>R" + number +
                        "_%s</name><dim>1</dim><addressOffset>0</addressOffset></register>";
        fields += "<field derivedFrom=\"X" + number + "\"><name>F" + number + "</name><bitOffset>0</bitOffset></field>";
    }
    const SvdResult result = read(deviceOf(registersXml + reg("S", "", fields)));
    VERIFY_READ(result);
    QCOMPARE(result.remarkCount, qint64(2 * kCount));
}

//! Each names the array's first register, whose name stands at the begin of a list that is long to read.
void tst_SvdRemarks::veryManyRemarksMayConcernOneLongArray()
{
    constexpr int kCopies = 100000;
    constexpr int kFields = 9000;
    QByteArray index = "FIRST";
    for (int i = 1; i < kCopies; ++i) {
        index += ",N" + QByteArray::number(i);
    }
    QByteArray xml =
        "<device><name>D</name><peripherals><peripheral><name>P</name><baseAddress>0</baseAddress><registers>"
        "<register><dim>" +
        QByteArray::number(kCopies) + "</dim><dimIncrement>4</dimIncrement><dimIndex>" + index +
        "</dimIndex><name>R_%s</name><addressOffset>0</addressOffset><fields>";
    for (int i = 0; i < kFields; ++i) {
        xml += "<field><name>F</name><bitOffset>0</bitOffset><bitWidth>0</bitWidth></field>";
    }
    xml += "</fields></register></registers></peripheral></peripherals></device>";
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    QCOMPARE(result.remarks.size(), kFields);
    for (const SvdMessage& remark : result.remarks) {
        QCOMPARE(remark.path, QStringLiteral("P.R_FIRST"));
    }
}

void tst_SvdRemarks::aRemarkIsOneLineOfPlainText_data()
{
    QTest::addColumn<QString>("word");
    QTest::addColumn<QString>("shown");

    QTest::newRow("a line end") << QStringLiteral("a\nb") << QStringLiteral("\"a\\u000Ab\"");
    QTest::newRow("DEL and C1") << QStringLiteral("\u007F\u009B31m") << QStringLiteral("\"\\u007F\\u009B31m\"");
    QTest::newRow("the other direction") << QStringLiteral("\u202Eetirw-daer\u2066\u200F\u061C")
                                         << QStringLiteral("\"\\u202Eetirw-daer\\u2066\\u200F\\u061C\"");
    QTest::newRow("letters of any language") << QStringLiteral("gr\u00F6\u00DFer \u5BC4\u5B58\u5668 \U0001F600")
                                             << QStringLiteral("\"gr\u00F6\u00DFer \u5BC4\u5B58\u5668 \U0001F600\"");
    QTest::newRow("a long word") << QString(100, QLatin1Char('x'))
                                 << QLatin1Char('"') + QString(60, QLatin1Char('x')) + QStringLiteral("...\"");
}

void tst_SvdRemarks::aRemarkIsOneLineOfPlainText()
{
    QFETCH(QString, word);
    QFETCH(QString, shown);
    const SvdResult result = read(deviceOf(reg("R", "<access>" + word.toUtf8() + "</access>")));
    VERIFY_READ(result);
    QCOMPARE(result.remarks.size(), 1);
    QVERIFY2(result.remarks.at(0).message.startsWith(QStringLiteral("<access> is %1, and ").arg(shown)),
             qPrintable(result.remarks.at(0).message));
}

void tst_SvdRemarks::goodDescriptionsHaveNoRemarks()
{
    const SvdResult result = readSvdFile(sampleFileName());
    VERIFY_READ(result);
    QCOMPARE(remarksOf(result), QStringList());
    QCOMPARE(result.remarkCount, qint64(0));
}

void tst_SvdRemarks::positionsAreExactThroughoutALargeFile()
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
        VERIFY_READ(result);
        QCOMPARE(result.remarks.size(), 1);
        QCOMPARE(result.remarks.at(0).line, qint64(xml.left(place).count('\n') + 1));
        QCOMPARE(result.remarks.at(0).column, qint64(place - xml.lastIndexOf('\n', place)));
    }
}

void tst_SvdRemarks::columnsCountCharacters_data()
{
    QTest::addColumn<QString>("before"); // in the element's line
    QTest::addColumn<int>("column");

    QTest::newRow("ASCII") << QStringLiteral("<x>aa</x>") << 10;
    QTest::newRow("two bytes") << QStringLiteral("<x>\u00F6\u00DF</x>") << 10;
    QTest::newRow("three bytes") << QStringLiteral("<x>\u5BC4\u5B58</x>") << 10;
    QTest::newRow("four bytes") << QStringLiteral("<x>\U0001F600\U0001F601</x>") << 10;
    QTest::newRow("four bytes in a comment") << QStringLiteral("<!--\U0001F600-->") << 9;
    QTest::newRow("very many") << QStringLiteral("<x>%1</x>").arg(QStringLiteral("\U0001F600").repeated(30000))
                               << 30008;
    QTest::newRow("in the line before") << QStringLiteral("<x>\U0001F600\U0001F601</x>\n") << 1;
    QTest::newRow("in the line before, with another end")
        << QStringLiteral("<x>\U0001F600</x>\r\n<x>\U0001F601</x>") << 9;
}

void tst_SvdRemarks::columnsCountCharacters()
{
    QFETCH(QString, before);
    QFETCH(int, column);
    // The same again behind it must not matter.
    const QByteArray xml = deviceOf(reg("R", '\n' + before.toUtf8() + "<size>?</size>" + before.toUtf8()));
    const SvdResult result = read(xml);
    VERIFY_READ(result);
    QCOMPARE(result.remarks.size(), 1);
    QCOMPARE(result.remarks.at(0).line, qint64(2 + before.count(QLatin1Char('\n'))));
    QCOMPARE(result.remarks.at(0).column, qint64(column));

    const QByteArray mark = "\xEF\xBB\xBF";
    const SvdResult marked = read(mark + xml);
    QCOMPARE(marked.remarks.at(0).column, qint64(column));
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdRemarks)
#include "tst_svdremarks.moc"
