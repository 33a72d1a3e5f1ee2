// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QTest>

using namespace registers;
using namespace svdtest;

namespace {

QByteArray derived(const QByteArray& element, const QByteArray& base, const QByteArray& name,
                   const QByteArray& more = QByteArray())
{
    return "<" + element + " derivedFrom=\"" + base + "\"><name>" + name + "</name>" + more + "</" + element + ">";
}

QByteArray value(const char* name, const char* number)
{
    return QByteArray("<enumeratedValue><name>") + name + "</name><value>" + number + "</value></enumeratedValue>";
}

QByteArray values(const char* name, const QByteArray& entries)
{
    return QByteArray("<enumeratedValues><name>") + name + "</name>" + entries + "</enumeratedValues>";
}

QByteArray derivedValues(const QByteArray& base, const QByteArray& more = QByteArray())
{
    return "<enumeratedValues derivedFrom=\"" + base + "\">" + more + "</enumeratedValues>";
}

QByteArray fieldAt(const QByteArray& name, int bit, const QByteArray& more = QByteArray())
{
    return field(name, "<bitOffset>" + QByteArray::number(bit) + "</bitOffset><bitWidth>4</bitWidth>", more);
}

QByteArray cluster(const QByteArray& name, const QByteArray& content)
{
    return "<cluster><name>" + name + "</name><addressOffset>0x10</addressOffset>" + content + "</cluster>";
}

QString joined(const QStringList& list)
{
    return list.join(QLatin1Char(' '));
}

} // namespace

class tst_SvdDerive : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aPeripheralTakesTheRegistersOfItsBase();
    void ownRegistersReplaceThoseOfTheBaseInTheirPlace();
    void ownRegistersPairWithEqualNamesOneByOne();
    void whatTheBaseStatesWinsOverWhatIsInherited();
    void whatTheBaseOnlyInheritsIsNotTaken();
    void aRegisterTakesTheRestFromItsBase();
    void ownFieldsReplaceThoseOfTheBaseInTheirPlace();
    void aClusterTakesItsContentFromItsBase();
    void referencesLeadFarAndForward_data();
    void referencesLeadFarAndForward();
    void siblingsAreLookedAtFirst();
    void derivedSiblingsOfTheBaseCountToo();
    void longChainsAreFollowed();
    void dimIsTakenOnlyWithAPlaceholder_data();
    void dimIsTakenOnlyWithAPlaceholder();
    void aFieldTakesTheRestFromItsBase_data();
    void aFieldTakesTheRestFromItsBase();
    void ownEnumerationsReplaceThoseOfTheBase();
    void enumeratedValuesAreFound_data();
    void enumeratedValuesAreFound();
    void ownEnumeratedValuesWinByName();
    void enumeratedValuesTakeTheUsageOfTheirBase();
    void enumeratedValuesDeriveFromDerivedOnes();
    void whatIsTakenIsWhatTheBaseHolds();
};

void tst_SvdDerive::aPeripheralTakesTheRegistersOfItsBase()
{
    const SvdResult result =
        read(device(peripheral("A", reg("R", "<resetValue>7</resetValue>", field("F")) + cluster("C", reg("S")),
                               "<description>Unit A</description>") +
                    derived("peripheral", "A", "B", "<baseAddress>0x2000</baseAddress>")));
    VERIFY_READ(result);
    QCOMPARE(joined(places(*result.device)), QStringLiteral("A.R@1000 A.C.S@1010 B.R@2000 B.C.S@2010"));
    QCOMPARE(result.device->registerAt(2).resetValue, quint64(7));
    QCOMPARE(result.device->registerAt(2).fields.size(), 1);
    const int b = result.device->node(Device::kRootNode).children.at(1);
    QCOMPARE(result.device->node(b).description, QStringLiteral("Unit A"));
}

void tst_SvdDerive::ownRegistersReplaceThoseOfTheBaseInTheirPlace()
{
    const SvdResult result = read(device(
        peripheral("A", reg("R1") + reg("R2") + reg("R%s", "<dim>2</dim><dimIncrement>4</dimIncrement>") + reg("R3")) +
        derived("peripheral", "A", "B",
                "<baseAddress>0x2000</baseAddress><registers>" + reg("N1") + reg("R2", "<size>8</size>") +
                    cluster("R%s", reg("X")) + reg("N2") + "</registers>")));
    VERIFY_READ(result);
    QCOMPARE(joined(paths(*result.device).mid(5)), QStringLiteral("B.R1 B.R2 B.R%s.X B.R3 B.N1 B.N2"));
    QCOMPARE(int(result.device->registerAt(6).size), 8);
    QCOMPARE(int(result.device->registerAt(1).size), 32);
}

void tst_SvdDerive::ownRegistersPairWithEqualNamesOneByOne()
{
    const SvdResult result =
        read(device(peripheral("A", reg("R", "<size>8</size>") + reg("R", "<size>16</size>")) +
                    derived("peripheral", "A", "B", "<registers>" + reg("R", "<size>9</size>") + "</registers>")));
    VERIFY_READ(result);
    QCOMPARE(joined(paths(*result.device)), QStringLiteral("A.R A.R B.R B.R"));
    QCOMPARE(int(result.device->registerAt(2).size), 9);
    QCOMPARE(int(result.device->registerAt(3).size), 16);
}

void tst_SvdDerive::whatTheBaseStatesWinsOverWhatIsInherited()
{
    const SvdResult result = read(device(
        peripheral("A", reg("R", "<size>8</size><access>read-only</access><resetValue>5</resetValue>")) +
        peripheral("B", derived("register", "A.R", "S"),
                   "<size>16</size><access>write-only</access><resetValue>6</resetValue><resetMask>3</resetMask>")));
    VERIFY_READ(result);
    const Register& s = result.device->registerAt(1);
    QCOMPARE(int(s.size), 8);
    QCOMPARE(int(s.access), int(Access::ReadOnly));
    QCOMPARE(s.resetValue, quint64(5));
    QCOMPARE(s.resetMask, quint64(3));
}

void tst_SvdDerive::whatTheBaseOnlyInheritsIsNotTaken()
{
    const SvdResult result = read(device(peripheral("A", reg("R"), "<size>8</size><access>read-only</access>") +
                                         peripheral("B", derived("register", "A.R", "S"), "<size>16</size>")));
    VERIFY_READ(result);
    QCOMPARE(int(result.device->registerAt(1).size), 16);
    QCOMPARE(int(result.device->registerAt(1).access), int(Access::ReadWrite));
}

void tst_SvdDerive::aRegisterTakesTheRestFromItsBase()
{
    const SvdResult result = read(deviceOf(
        "<register><name>R</name><displayName>Shown</displayName><description>Text</description>"
        "<addressOffset>8</addressOffset><readAction>clear</readAction><resetMask>0xF</resetMask>"
        "<fields>" +
        field("F") + "</fields></register>" + derived("register", "R", "S", "<description>Other</description>") +
        derived("register", "S", "T", "<addressOffset>0xC</addressOffset><resetMask>1</resetMask>")));
    VERIFY_READ(result);
    QCOMPARE(joined(places(*result.device)), QStringLiteral("P.R@1008 P.S@1008 P.T@100c"));
    const Register& t = result.device->registerAt(2);
    QCOMPARE(t.displayName, QStringLiteral("Shown"));
    QCOMPARE(t.description, QStringLiteral("Other"));
    QVERIFY(t.hasReadAction);
    QCOMPARE(t.resetMask, quint64(1));
    QCOMPARE(t.fields.size(), 1);
}

void tst_SvdDerive::ownFieldsReplaceThoseOfTheBaseInTheirPlace()
{
    const SvdResult result =
        read(deviceOf(reg("R", "", fieldAt("A", 0) + fieldAt("B", 4) + fieldAt("C", 8)) +
                      derived("register", "R", "S", "<fields>" + fieldAt("N", 20) + fieldAt("B", 24) + "</fields>")));
    VERIFY_READ(result);
    QCOMPARE(joined(fieldPlaces(result.device->registerAt(1))), QStringLiteral("A[3:0] B[27:24] C[11:8] N[23:20]"));
    QCOMPARE(joined(fieldPlaces(result.device->registerAt(0))), QStringLiteral("A[3:0] B[7:4] C[11:8]"));
}

void tst_SvdDerive::aClusterTakesItsContentFromItsBase()
{
    const SvdResult result = read(deviceOf(
        cluster("C", reg("R") + cluster("D", reg("S"))) +
        derived("cluster", "C", "E", "<addressOffset>0x80</addressOffset>" + cluster("D", reg("T")) + reg("U"))));
    VERIFY_READ(result);
    QCOMPARE(joined(places(*result.device)),
             QStringLiteral("P.C.R@1010 P.C.D.S@1020 P.E.R@1080 P.E.D.T@1090 P.E.U@1080"));
}

void tst_SvdDerive::referencesLeadFarAndForward_data()
{
    QTest::addColumn<QByteArray>("reference");

    // From the register X in Q.C.D.
    for (const char* reference : {"Near", "P.R", "P.C.R", "C.Mid", "Mid", "Q.C.Mid", "Late", "Q.Late", "Z.R",
                                  "Q.A[%s].R", "A[1].R", "Q.L1", "L%s", "Same0"}) {
        QTest::newRow(reference) << QByteArray(reference);
    }
}

void tst_SvdDerive::referencesLeadFarAndForward()
{
    QFETCH(QByteArray, reference);
    const QByteArray wanted = "<resetValue>42</resetValue>";
    const QByteArray twice = "<dim>2</dim><dimIncrement>4</dimIncrement>";
    const SvdResult result =
        read(device(peripheral("P", reg("R", wanted) + cluster("C", reg("R", wanted))) +
                    peripheral("Q", cluster("C", cluster("D", derived("register", reference, "X") +
                                                                  reg("Near", wanted) + reg("Same", wanted + twice)) +
                                                     reg("Mid", wanted)) +
                                        reg("Late", wanted) + reg("L%s", wanted + twice) +
                                        "<cluster><name>A[%s]</name><addressOffset>0</addressOffset>" + twice +
                                        reg("R", wanted) + "</cluster>") +
                    peripheral("Z", reg("R", wanted))));
    VERIFY_READ(result);
    const int x = result.device->findRegister(QStringLiteral("Q.C.D.X"));
    QVERIFY(x >= 0);
    QCOMPARE(result.device->registerAt(x).resetValue, quint64(42));
}

void tst_SvdDerive::siblingsAreLookedAtFirst()
{
    // Seen from Q.C, the name "R" fits a sibling, a register further out and none from the device.
    const SvdResult result = read(
        device(peripheral("P", reg("R", "<resetValue>1</resetValue>")) +
               peripheral("Q", reg("R", "<resetValue>2</resetValue>") +
                                   cluster("C", derived("register", "R", "X") + reg("R", "<resetValue>3</resetValue>") +
                                                    derived("register", "P.R", "Y")) +
                                   cluster("P", reg("R", "<resetValue>4</resetValue>")))));
    VERIFY_READ(result);
    const Device& d = *result.device;
    QCOMPARE(d.registerAt(d.findRegister(QStringLiteral("Q.C.X"))).resetValue, quint64(3));
    // A path from the device comes before one from the scopes around.
    QCOMPARE(d.registerAt(d.findRegister(QStringLiteral("Q.C.Y"))).resetValue, quint64(1));
}

void tst_SvdDerive::derivedSiblingsOfTheBaseCountToo()
{
    const SvdResult result = read(device(
        derived("peripheral", "A", "B",
                "<baseAddress>0</baseAddress><registers>" + derived("register", "R", "S") + "</registers>") +
        peripheral("A", reg("R", "<resetValue>9</resetValue>")) + peripheral("Z", derived("register", "B.R", "T"))));
    VERIFY_READ(result);
    const Device& d = *result.device;
    QCOMPARE(joined(paths(d)), QStringLiteral("B.R B.S A.R Z.T"));
    QCOMPARE(d.registerAt(1).resetValue, quint64(9));
    QCOMPARE(d.registerAt(3).resetValue, quint64(9));
}

void tst_SvdDerive::longChainsAreFollowed()
{
    constexpr int kLength = 20000;
    QByteArray xml;
    for (int i = 0; i < kLength; ++i) {
        xml += derived("register", "R" + QByteArray::number(i + 1), "R" + QByteArray::number(i));
    }
    xml += reg("R" + QByteArray::number(kLength), "<resetValue>3</resetValue>");
    const SvdResult result = read(deviceOf(xml));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerCount(), kLength + 1);
    QCOMPARE(result.device->registerAt(0).resetValue, quint64(3));
}

void tst_SvdDerive::dimIsTakenOnlyWithAPlaceholder_data()
{
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* title, const char* name, const char* own, const char* expected) {
        QTest::newRow(title) << QByteArray(name) << QByteArray(own) << QString::fromLatin1(expected);
    };
    row("a plain name gives one register", "S", "", "P.S@1000");
    row("a placeholder takes the array", "S%s", "", "P.SA@1000 P.SB@1008");
    row("an own increment wins", "S%s", "<dimIncrement>2</dimIncrement>", "P.SA@1000 P.SB@1002");
    row("own indices win", "S%s", "<dimIndex>0,1</dimIndex>", "P.S0@1000 P.S1@1008");
    row("another count does not take the indices", "S%s", "<dim>3</dim>", "P.S0@1000 P.S1@1008 P.S2@1010");
}

void tst_SvdDerive::dimIsTakenOnlyWithAPlaceholder()
{
    QFETCH(QByteArray, name);
    QFETCH(QByteArray, own);
    QFETCH(QString, expected);
    const SvdResult result =
        read(deviceOf(reg("R%s", "<dim>2</dim><dimIncrement>8</dimIncrement><dimIndex>A,B</dimIndex>") +
                      derived("register", "R%s", name, own)));
    VERIFY_READ(result);
    QCOMPARE(joined(places(*result.device).mid(2)), expected);
}

void tst_SvdDerive::aFieldTakesTheRestFromItsBase_data()
{
    QTest::addColumn<QByteArray>("reference");
    QTest::addColumn<QByteArray>("own");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* title, const char* reference, const char* own, const char* expected) {
        QTest::newRow(title) << QByteArray(reference) << QByteArray(own) << QString::fromLatin1(expected);
    };
    row("all bits, from a sibling", "A", "", "X[7:4]");
    row("an own offset keeps the width", "A", "<bitOffset>8</bitOffset>", "X[11:8]");
    row("an own width keeps the offset", "A", "<bitWidth>2</bitWidth>", "X[5:4]");
    row("an own lsb keeps the msb", "A", "<lsb>5</lsb>", "X[7:5]");
    row("an own msb keeps the lsb", "A", "<msb>5</msb>", "X[5:4]");
    row("an own range replaces all", "A", "<bitRange>[1:0]</bitRange>", "X[1:0]");
    row("from another register beside", "S.B", "", "X[2:1]");
    row("from another register by its full path", "P.S.B", "", "X[2:1]");
    row("from a copy of an array", "P.S.L1", "", "X[8:8]");
    row("from an array", "P.S.L%s", "", "X[8:8]");
}

void tst_SvdDerive::aFieldTakesTheRestFromItsBase()
{
    QFETCH(QByteArray, reference);
    QFETCH(QByteArray, own);
    QFETCH(QString, expected);
    const QByteArray more = "<description>Text</description><access>read-only</access><readAction>set</readAction>" +
                            values("E", value("One", "1"));
    const SvdResult result = read(
        deviceOf(reg("R", "", derived("field", reference, "X", own) + field("A", "<bitRange>[7:4]</bitRange>", more)) +
                 reg("S", "",
                     field("B", "<lsb>1</lsb><msb>2</msb>", more) +
                         field("L%s", "<bitOffset>8</bitOffset>", "<dim>2</dim>" + more))));
    VERIFY_READ(result);
    const Register& r = result.device->registerAt(0);
    QCOMPARE(fieldPlaces(r).constFirst(), expected);
    const Field& x = r.fields.at(0);
    QCOMPARE(x.description, QStringLiteral("Text"));
    QCOMPARE(int(x.access), int(Access::ReadOnly));
    QVERIFY(x.hasReadAction);
    QCOMPARE(joined(valueNames(x)), QStringLiteral("One=1"));
}

void tst_SvdDerive::ownEnumerationsReplaceThoseOfTheBase()
{
    const SvdResult result =
        read(deviceOfFields(fieldAt("A", 0, values("E", value("One", "1")) + values("F", value("Two", "2"))) +
                            derived("field", "A", "B", values("G", value("Three", "3"))) + derived("field", "B", "C")));
    VERIFY_READ(result);
    const QVector<Field>& fields = result.device->registerAt(0).fields;
    QCOMPARE(joined(valueNames(fields.at(0))), QStringLiteral("One=1"));
    QCOMPARE(joined(valueNames(fields.at(1))), QStringLiteral("Three=3"));
    QCOMPARE(joined(valueNames(fields.at(2))), QStringLiteral("Three=3"));
    QVERIFY(fields.at(1).enumeration == fields.at(2).enumeration);
}

void tst_SvdDerive::enumeratedValuesAreFound_data()
{
    QTest::addColumn<QByteArray>("reference");
    QTest::addColumn<QString>("expected");

    // From the field X in Q.C.R.
    const auto row = [](const char* title, const char* reference, const char* expected) {
        QTest::newRow(title) << QByteArray(reference) << QString::fromLatin1(expected);
    };
    row("in the same field", "Own", "own=1");
    row("in another field of the register", "Beside", "beside=2");
    row("in another field, with its name", "A.Beside", "beside=2");
    row("by the name of a field", "A", "beside=2");
    row("in another register of the cluster", "Near", "near=3");
    row("in another register of the peripheral", "Mid", "mid=4");
    row("in another peripheral", "Far", "far=5");
    row("the first of several in the file", "Twice", "first=6");
    row("by a full path", "Z.R.F.Twice", "second=7");
    row("by a path from the peripheral", "S.F.Mid", "mid=4");
    row("by a full path to a field", "Z.R.F", "second=7");
    row("the nearest of several", "Common", "common=9");
}

void tst_SvdDerive::enumeratedValuesAreFound()
{
    QFETCH(QByteArray, reference);
    QFETCH(QString, expected);
    const SvdResult result =
        read(device(peripheral("P", reg("R", "",
                                        fieldAt("F", 0, values("Far", value("far", "5"))) +
                                            fieldAt("G", 4, values("Twice", value("first", "6"))) +
                                            fieldAt("H", 8, values("Common", value("far", "8"))))) +
                    peripheral("Q", cluster("C", reg("R", "",
                                                     fieldAt("X", 0,
                                                             "<enumeratedValues><name>Own</name><usage>write</usage>" +
                                                                 value("own", "1") + "</enumeratedValues>" +
                                                                 derivedValues(reference, "<usage>read</usage>")) +
                                                         fieldAt("A", 4, values("Beside", value("beside", "2")))) +
                                                     reg("N", "",
                                                         fieldAt("F", 0, values("Near", value("near", "3"))) +
                                                             fieldAt("G", 4, values("Common", value("common", "9"))))) +
                                        reg("S", "", fieldAt("F", 0, values("Mid", value("mid", "4"))))) +
                    peripheral("Z", reg("R", "", fieldAt("F", 0, values("Twice", value("second", "7")))))));
    VERIFY_READ(result);
    const Device& d = *result.device;
    const PathTarget x = d.find(QStringLiteral("Q.C.R.X"));
    QVERIFY(x.isField());
    QCOMPARE(joined(valueNames(d.registerAt(x.registerIndex).fields.at(x.fieldIndex))), expected);
}

void tst_SvdDerive::ownEnumeratedValuesWinByName()
{
    const SvdResult result =
        read(deviceOfFields(fieldAt("A", 0, values("E", value("One", "1") + value("Two", "2") + value("Three", "3"))) +
                            fieldAt("B", 4, derivedValues("E", value("Four", "4") + value("Two", "0xF")))));
    VERIFY_READ(result);
    const QVector<Field>& fields = result.device->registerAt(0).fields;
    QCOMPARE(joined(valueNames(fields.at(1))), QStringLiteral("One=1 Two=f Three=3 Four=4"));
    QCOMPARE(joined(valueNames(fields.at(0))), QStringLiteral("One=1 Two=2 Three=3"));
}

void tst_SvdDerive::enumeratedValuesTakeTheUsageOfTheirBase()
{
    const SvdResult result = read(deviceOfFields(
        fieldAt("A", 0,
                "<enumeratedValues><name>E</name><usage>write</usage>" + value("One", "1") + "</enumeratedValues>") +
        fieldAt("B", 4, derivedValues("E")) + fieldAt("C", 8, derivedValues("E", "<usage>read</usage>"))));
    VERIFY_READ(result);
    const QVector<Field>& fields = result.device->registerAt(0).fields;
    QVERIFY(fields.at(1).enumeration->forWritingOnly);
    QVERIFY(!fields.at(2).enumeration->forWritingOnly);
    QVERIFY(fields.at(1).readName(1) == nullptr);
    QCOMPARE(fields.at(2).readName(1)->name, QStringLiteral("One"));
}

void tst_SvdDerive::enumeratedValuesDeriveFromDerivedOnes()
{
    const SvdResult result =
        read(deviceOfFields(fieldAt("A", 0, derivedValues("F", "<name>E</name>" + value("Three", "3"))) +
                            fieldAt("B", 4, derivedValues("G", "<name>F</name>" + value("Two", "2"))) +
                            fieldAt("C", 8, values("G", value("One", "1")))));
    VERIFY_READ(result);
    QCOMPARE(joined(valueNames(result.device->registerAt(0).fields.at(0))), QStringLiteral("One=1 Two=2 Three=3"));
}

void tst_SvdDerive::whatIsTakenIsWhatTheBaseHolds()
{
    // S derives from R where it stands, in A. B replaces its own R, which does not change the S it takes over.
    const SvdResult result = read(device(
        peripheral("A", reg("R", "<resetValue>1</resetValue>") + derived("register", "R", "S")) +
        derived("peripheral", "A", "B", "<registers>" + reg("R", "<resetValue>2</resetValue>") + "</registers>")));
    VERIFY_READ(result);
    const Device& d = *result.device;
    QCOMPARE(d.registerAt(d.findRegister(QStringLiteral("B.R"))).resetValue, quint64(2));
    QCOMPARE(d.registerAt(d.findRegister(QStringLiteral("B.S"))).resetValue, quint64(1));
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdDerive)
#include "tst_svdderive.moc"
