// SPDX-License-Identifier: MIT
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QTest>

using namespace registers;
using namespace svdtest;

class tst_SvdExpand : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aRegisterArrayBecomesItsCopies_data();
    void aRegisterArrayBecomesItsCopies();
    void aFieldArrayBecomesItsCopies_data();
    void aFieldArrayBecomesItsCopies();
    void peripheralsCanBeArrays();
    void clustersCanBeArraysWithinArrays();
    void theIndexStandsInTextsToo();
    void textsWithoutAnArrayKeepThePlaceholder();
    void aClusterStaysInItsPlace();
    void clustersNestDeeply();
    void copiesShareTheirFields();
    void addressesUseAllBits();
    void manyRegistersAreFine();
};

void tst_SvdExpand::aRegisterArrayBecomesItsCopies_data()
{
    QTest::addColumn<QByteArray>("dim");
    QTest::addColumn<QByteArray>("name");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* title, const char* dim, const char* name, const char* expected) {
        QTest::newRow(title) << QByteArray(dim) << QByteArray(name) << QString::fromLatin1(expected);
    };
    row("a list counts from 0", "<dim>3</dim><dimIncrement>4</dimIncrement>", "R%s", "P.R0@1000 P.R1@1004 P.R2@1008");
    row("an array keeps its brackets", "<dim>2</dim><dimIncrement>0x10</dimIncrement>", "R[%s]",
        "P.R[0]@1000 P.R[1]@1010");
    row("a range of numbers", "<dim>3</dim><dimIncrement>4</dimIncrement><dimIndex>3-5</dimIndex>", "R%s",
        "P.R3@1000 P.R4@1004 P.R5@1008");
    row("a range of letters", "<dim>3</dim><dimIncrement>4</dimIncrement><dimIndex>B-D</dimIndex>", "R_%s",
        "P.R_B@1000 P.R_C@1004 P.R_D@1008");
    row("a list of names", "<dim>2</dim><dimIncrement>4</dimIncrement><dimIndex>IN, OUT_1</dimIndex>", "%sR",
        "P.INR@1000 P.OUT_1R@1004");
    row("indices of an array may be named too", "<dim>2</dim><dimIncrement>4</dimIncrement><dimIndex>4-5</dimIndex>",
        "R[%s]", "P.R[4]@1000 P.R[5]@1004");
    row("one copy", "<dim>1</dim><dimIncrement>4</dimIncrement>", "R%s", "P.R0@1000");
    row("one copy needs no increment", "<dim>1</dim>", "R[%s]", "P.R[0]@1000");
    row("one copy of a name without placeholder", "<dim>1</dim>", "R", "P.R@1000");
    row("one copy with a named index", "<dim>1</dim><dimIndex>X</dimIndex>", "R%s", "P.RX@1000");
    row("a name without placeholder gets the index behind", "<dim>2</dim><dimIncrement>4</dimIncrement>", "R",
        "P.R0@1000 P.R1@1004");
    row("an increment of 0", "<dim>2</dim><dimIncrement>0</dimIncrement>", "R%s", "P.R0@1000 P.R1@1000");
    row("two placeholders", "<dim>2</dim><dimIncrement>4</dimIncrement>", "A%sB%s", "P.A0B0@1000 P.A1B1@1004");
    row("no array at all", "", "R", "P.R@1000");
}

void tst_SvdExpand::aRegisterArrayBecomesItsCopies()
{
    QFETCH(QByteArray, dim);
    QFETCH(QByteArray, name);
    QFETCH(QString, expected);
    const SvdResult result = read(deviceOf(reg(name, dim)));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device).join(QLatin1Char(' ')), expected);
}

void tst_SvdExpand::aFieldArrayBecomesItsCopies_data()
{
    QTest::addColumn<QByteArray>("dim");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* title, const char* dim, const char* expected) {
        QTest::newRow(title) << QByteArray(dim) << QString::fromLatin1(expected);
    };
    row("the increment counts bits", "<dim>3</dim><dimIncrement>8</dimIncrement>", "F0[5:4] F1[13:12] F2[21:20]");
    row("without increment the copies follow one another", "<dim>3</dim>", "F0[5:4] F1[7:6] F2[9:8]");
    row("indices may be named", "<dim>2</dim><dimIndex>A,B</dimIndex>", "FA[5:4] FB[7:6]");
    row("the last copy may reach beyond the register", "<dim>4</dim><dimIncrement>9</dimIncrement>",
        "F0[5:4] F1[14:13] F2[23:22] F3[32:31]");
}

void tst_SvdExpand::aFieldArrayBecomesItsCopies()
{
    QFETCH(QByteArray, dim);
    QFETCH(QString, expected);
    const SvdResult result = read(deviceOfFields(field("F%s", "<bitRange>[5:4]</bitRange>", dim)));
    VERIFY_READ(result);
    QCOMPARE(fieldPlaces(result.device->registerAt(0)).join(QLatin1Char(' ')), expected);
}

void tst_SvdExpand::peripheralsCanBeArrays()
{
    const SvdResult result = read(device(peripheral(
        "U%s", reg("A") + reg("B"), "<dim>2</dim><dimIncrement>0x100</dimIncrement><dimIndex>A,B</dimIndex>")));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device), (QStringList{QStringLiteral("UA.A@1000"), QStringLiteral("UA.B@1000"),
                                                  QStringLiteral("UB.A@1100"), QStringLiteral("UB.B@1100")}));
    QCOMPARE(result.device->node(Device::kRootNode).children.size(), 2);
}

void tst_SvdExpand::clustersCanBeArraysWithinArrays()
{
    const SvdResult result =
        read(deviceOf("<cluster><name>A[%s]</name><dim>2</dim><dimIncrement>0x20</dimIncrement>"
                      "<addressOffset>0x100</addressOffset><cluster><name>B%s</name><dim>2</dim>"
                      "<dimIncrement>8</dimIncrement><dimIndex>X,Y</dimIndex><addressOffset>4</addressOffset>"
                      "<register><name>R%s</name><dim>2</dim><dimIncrement>2</dimIncrement>"
                      "<addressOffset>1</addressOffset></register></cluster></cluster>"));
    VERIFY_READ(result);
    QCOMPARE(places(*result.device).join(QLatin1Char(' ')),
             QStringLiteral("P.A[0].BX.R0@1105 P.A[0].BX.R1@1107 P.A[0].BY.R0@110d P.A[0].BY.R1@110f "
                            "P.A[1].BX.R0@1125 P.A[1].BX.R1@1127 P.A[1].BY.R0@112d P.A[1].BY.R1@112f"));
}

void tst_SvdExpand::theIndexStandsInTextsToo()
{
    const QByteArray texts = "<dim>2</dim><dimIncrement>4</dimIncrement><dimIndex>A,B</dimIndex>"
                             "<description>Unit %s of %s</description>";
    const SvdResult result =
        read(deviceOf(reg("R%s", texts + "<displayName>Reg %s</displayName>",
                          field("F%s", "<bitOffset>0</bitOffset>", "<dim>2</dim><description>Bit %s</description>"))));
    VERIFY_READ(result);
    const Register& second = result.device->registerAt(1);
    QCOMPARE(second.name, QStringLiteral("RB"));
    QCOMPARE(second.displayName, QStringLiteral("Reg B"));
    QCOMPARE(second.description, QStringLiteral("Unit B of B"));
    QCOMPARE(second.fields.at(1).description, QStringLiteral("Bit 1"));
    const SvdResult groups =
        read(device("<peripheral><name>U%s</name><baseAddress>0</baseAddress>" + texts + "</peripheral>"));
    VERIFY_READ(groups);
    QCOMPARE(groups.device->node(1).description, QStringLiteral("Unit A of A"));
}

void tst_SvdExpand::textsWithoutAnArrayKeepThePlaceholder()
{
    const SvdResult result = read(deviceOf(reg("R", "<description>100 %s</description>")));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).description, QStringLiteral("100 %s"));
}

void tst_SvdExpand::aClusterStaysInItsPlace()
{
    const SvdResult result = read(deviceOf(reg("Z") + "<cluster><name>C</name><addressOffset>0</addressOffset>" +
                                           reg("B") + "<cluster><name>D</name><addressOffset>0</addressOffset>" +
                                           reg("X") + "</cluster>" + reg("A") + "</cluster>" + reg("Y")));
    VERIFY_READ(result);
    QCOMPARE(paths(*result.device).join(QLatin1Char(' ')), QStringLiteral("P.Z P.C.B P.C.D.X P.C.A P.Y"));
}

void tst_SvdExpand::clustersNestDeeply()
{
    QByteArray xml = reg("R");
    QStringList names{QStringLiteral("R")};
    for (int i = 0; i < 64; ++i) {
        xml = "<cluster><name>C</name><addressOffset>1</addressOffset>" + xml + "</cluster>";
        names.prepend(QStringLiteral("C"));
    }
    names.prepend(QStringLiteral("P"));
    const SvdResult result = read(deviceOf(xml));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(0).path, names.join(QLatin1Char('.')));
    QCOMPARE(result.device->registerAt(0).address, quint64(0x1040));
}

void tst_SvdExpand::copiesShareTheirFields()
{
    const SvdResult result =
        read(device(peripheral("P", reg("R%s", "<dim>2</dim><dimIncrement>4</dimIncrement>", field("F") + field("G"))) +
                    "<peripheral derivedFrom=\"P\"><name>Q</name><baseAddress>0</baseAddress></peripheral>"
                    "<peripheral derivedFrom=\"P\"><name>S</name><baseAddress>0</baseAddress><access>read-only</access>"
                    "</peripheral>"));
    VERIFY_READ(result);
    const QVector<Register>& all = result.device->registers();
    QCOMPARE(all.size(), 6);
    for (int i = 1; i < 4; ++i) {
        QVERIFY(all.at(i).fields.constData() == all.at(0).fields.constData());
    }
    // What is inherited differently cannot be shared.
    QCOMPARE(int(all.at(4).fields.at(0).access), int(Access::ReadOnly));
    QCOMPARE(int(all.at(0).fields.at(0).access), int(Access::ReadWrite));
}

void tst_SvdExpand::addressesUseAllBits()
{
    const SvdResult result =
        read(device("<peripheral><name>P</name><baseAddress>0xFFFFFFFF00000000</baseAddress><registers>"
                    "<register><name>R%s</name><dim>2</dim><dimIncrement>0x80000000</dimIncrement>"
                    "<addressOffset>0x7FFFFFFF</addressOffset></register></registers></peripheral>"));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerAt(1).address, quint64(0xFFFFFFFFFFFFFFFF));
}

void tst_SvdExpand::manyRegistersAreFine()
{
    const SvdResult result = read(deviceOf(reg("R%s", "<dim>10000</dim><dimIncrement>4</dimIncrement>",
                                               field("F%s", "<bitOffset>0</bitOffset>", "<dim>6</dim>"))));
    VERIFY_READ(result);
    QCOMPARE(result.device->registerCount(), 10000);
    QCOMPARE(result.device->fieldCount(), 60000);
    QCOMPARE(result.device->findRegister(QStringLiteral("P.R9999")), 9999);
}

TESSERA_TEST_GUILESS_MAIN(tst_SvdExpand)
#include "tst_svdexpand.moc"
