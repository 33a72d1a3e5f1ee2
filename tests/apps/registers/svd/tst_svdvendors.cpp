// SPDX-License-Identifier: MIT

// What vendors' files contain although the schema has it otherwise, and what can be meant by it in one way only.

#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QtTest>

using namespace registers;
using namespace svdtest;

Q_DECLARE_METATYPE(registers::Access)

class tst_SvdVendors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void accessHasShortForms_data();
    void accessHasShortForms();
    void anEmptyKeywordSaysNothing_data();
    void anEmptyKeywordSaysNothing();
    void everyReadActionCounts_data();
    void everyReadActionCounts();
    void aBitRangeNeedsNoBrackets_data();
    void aBitRangeNeedsNoBrackets();
    void anEntryWithoutValueIsPassedOver();
    void namesBeyondTheCountAreLeftOver_data();
    void namesBeyondTheCountAreLeftOver();
    void copiesOfAnEnumerationMayKeepItsName_data();
    void copiesOfAnEnumerationMayKeepItsName();
    void ownNamesForWritingLeaveTheBasesForReading();
    void ownNamesForBothReplaceTheBasesForReading();
};

namespace {

QByteArray values(const QByteArray& name, const QByteArray& entry, const QByteArray& more = QByteArray())
{
    return "<enumeratedValues><name>" + name + "</name>" + more + "<enumeratedValue><name>" + entry +
           "</name><value>1</value></enumeratedValue></enumeratedValues>";
}

QByteArray sameValues()
{
    return "<enumeratedValues derivedFrom='EN'><name>EN</name></enumeratedValues>";
}

QString nameOfOne(const Field& field)
{
    const EnumValue* const entry = field.readName(1);
    return entry != nullptr ? entry->name : QString();
}

const Field& fieldOf(const SvdResult& result, const char* path)
{
    const PathTarget target = result.device->find(QString::fromLatin1(path));
    return result.device->registerAt(target.registerIndex).fields.at(target.fieldIndex);
}

} // namespace

void tst_SvdVendors::accessHasShortForms_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<Access>("access");
    QTest::newRow("read/write") << QByteArray("read/write") << Access::ReadWrite;
    QTest::newRow("R/W") << QByteArray("R/W") << Access::ReadWrite;
    QTest::newRow("rw") << QByteArray("rw") << Access::ReadWrite;
    QTest::newRow("RO") << QByteArray("RO") << Access::ReadOnly;
    QTest::newRow("wo") << QByteArray("wo") << Access::WriteOnly;
    QTest::newRow("read_only") << QByteArray("read_only") << Access::ReadOnly;
    QTest::newRow("read") << QByteArray("read") << Access::ReadOnly;
    QTest::newRow("write") << QByteArray("write") << Access::WriteOnly;
}

void tst_SvdVendors::accessHasShortForms()
{
    QFETCH(const QByteArray, text);
    QFETCH(const Access, access);
    const SvdResult result = read(deviceOf(reg("R", "<access>" + text + "</access>")));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(result.device->registerAt(0).access, access);
}

void tst_SvdVendors::anEmptyKeywordSaysNothing_data()
{
    QTest::addColumn<QByteArray>("element");
    QTest::newRow("access") << QByteArray("<access></access>");
    QTest::newRow("access of white space") << QByteArray("<access>  </access>");
    QTest::newRow("read action") << QByteArray("<readAction/>");
}

void tst_SvdVendors::anEmptyKeywordSaysNothing()
{
    QFETCH(const QByteArray, element);
    const SvdResult result = read(device(peripheral("P", reg("R", element), "<access>write-only</access>")));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(result.device->registerAt(0).access, Access::WriteOnly);
    QVERIFY(!result.device->registerAt(0).hasReadAction);
}

void tst_SvdVendors::everyReadActionCounts_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<bool>("counts");
    QTest::newRow("a word of the schema") << QByteArray("modifyExternal") << true;
    QTest::newRow("another word") << QByteArray("modifyExternally") << true;
    QTest::newRow("none") << QByteArray("none") << false;
}

void tst_SvdVendors::everyReadActionCounts()
{
    QFETCH(const QByteArray, text);
    QFETCH(const bool, counts);
    const SvdResult result = read(deviceOf(reg("R", "<readAction>" + text + "</readAction>")));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(result.device->registerAt(0).hasReadAction, counts);
}

void tst_SvdVendors::aBitRangeNeedsNoBrackets_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<int>("lsb");
    QTest::addColumn<int>("width");
    QTest::newRow("no brackets") << QByteArray("5:4") << 4 << 2;
    QTest::newRow("one bit") << QByteArray("[5]") << 5 << 1;
    QTest::newRow("one bit without brackets") << QByteArray("5") << 5 << 1;
}

void tst_SvdVendors::aBitRangeNeedsNoBrackets()
{
    QFETCH(const QByteArray, text);
    QFETCH(const int, lsb);
    QFETCH(const int, width);
    const SvdResult result = read(deviceOfFields(field("F", "<bitRange>" + text + "</bitRange>")));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    const Field& made = fieldOf(result, "P.R.F");
    QCOMPARE(int(made.lsb), lsb);
    QCOMPARE(int(made.width), width);
}

void tst_SvdVendors::anEntryWithoutValueIsPassedOver()
{
    const QByteArray entries = "<enumeratedValues><enumeratedValue><name>Reserved</name></enumeratedValue>"
                               "<enumeratedValue><name>On</name><value>1</value></enumeratedValue></enumeratedValues>";
    const SvdResult result = read(deviceOfFields(field("F", "<bitOffset>0</bitOffset>", entries)));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    const Field& made = fieldOf(result, "P.R.F");
    QCOMPARE(made.enumeration->values.size(), 1);
    QCOMPARE(nameOfOne(made), QStringLiteral("On"));
}

void tst_SvdVendors::namesBeyondTheCountAreLeftOver_data()
{
    QTest::addColumn<QByteArray>("index");
    QTest::newRow("a longer range") << QByteArray("0-7");
    QTest::newRow("a longer list") << QByteArray("0,1,2");
    QTest::newRow("a comma at the end") << QByteArray("0,1,");
}

void tst_SvdVendors::namesBeyondTheCountAreLeftOver()
{
    QFETCH(const QByteArray, index);
    const SvdResult result =
        read(deviceOf(reg("R%s", "<dim>2</dim><dimIncrement>4</dimIncrement><dimIndex>" + index + "</dimIndex>")));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(paths(*result.device), QStringList({QStringLiteral("P.R0"), QStringLiteral("P.R1")}));
}

void tst_SvdVendors::copiesOfAnEnumerationMayKeepItsName_data()
{
    QTest::addColumn<QByteArray>("registers");
    const QByteArray bit0 = "<bitOffset>0</bitOffset>";
    const QByteArray copies = field("F", bit0, sameValues()) + field("G", "<bitOffset>1</bitOffset>", sameValues());
    const QByteArray original = field("H", "<bitOffset>2</bitOffset>", values("EN", "On"));
    QTest::newRow("the base in a later register") << reg("A", QByteArray(), copies) + reg("B", QByteArray(), original);
    QTest::newRow("the base in an earlier register")
        << reg("B", QByteArray(), original) + reg("A", QByteArray(), copies);
    QTest::newRow("the base in the same register") << reg("A", QByteArray(), copies + original);
}

void tst_SvdVendors::copiesOfAnEnumerationMayKeepItsName()
{
    QFETCH(const QByteArray, registers);
    const SvdResult result = read(deviceOf(registers));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(nameOfOne(fieldOf(result, "P.A.F")), QStringLiteral("On"));
    QCOMPARE(nameOfOne(fieldOf(result, "P.A.G")), QStringLiteral("On"));
}

void tst_SvdVendors::ownNamesForWritingLeaveTheBasesForReading()
{
    const QByteArray base = field("F", "<bitOffset>0</bitOffset>", values("R", "Seen", "<usage>read</usage>"));
    const QByteArray derived = "<field derivedFrom='F'><name>G</name><bitOffset>1</bitOffset>" +
                               values("W", "Clear", "<usage>write</usage>") + "</field>";
    const SvdResult result = read(deviceOfFields(base + derived));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(nameOfOne(fieldOf(result, "P.R.G")), QStringLiteral("Seen"));
}

void tst_SvdVendors::ownNamesForBothReplaceTheBasesForReading()
{
    const QByteArray base = field("F", "<bitOffset>0</bitOffset>", values("R", "Seen", "<usage>read</usage>"));
    const QByteArray derived =
        "<field derivedFrom='F'><name>G</name><bitOffset>1</bitOffset>" + values("B", "Own") + "</field>";
    const SvdResult result = read(deviceOfFields(base + derived));
    QVERIFY2(result.isOk(), qPrintable(result.error.text()));
    QCOMPARE(nameOfOne(fieldOf(result, "P.R.G")), QStringLiteral("Own"));
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdVendors)

#include "tst_svdvendors.moc"
