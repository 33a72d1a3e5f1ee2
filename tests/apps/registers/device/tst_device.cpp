// SPDX-License-Identifier: MIT
#include "session/Session.h"
#include "support/TestMain.h"
#include "SvdTestSupport.h"

#include <QTest>

using namespace registers;
using namespace svdtest;

namespace {

constexpr quint64 kAllOnes = ~quint64(0);

Field makeField(int lsb, int width)
{
    Field result;
    result.lsb = quint8(lsb);
    result.width = quint8(width);
    return result;
}

} // namespace

class tst_Device : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAddressFindsTheRegisterThatCoversIt();
    void accessHasTheSchemasSpelling();
    void accessSaysWhatIsPossible();
    void fieldValuesAreExact_data();
    void fieldValuesAreExact();
    void aFieldNeverSpillsIntoItsNeighbours();
    void onlyBitsWithinTheRegisterTakePart_data();
    void onlyBitsWithinTheRegisterTakePart();
    void theNameOfAValueIsFound_data();
    void theNameOfAValueIsFound();
    void pathsAreFound_data();
    void pathsAreFound();
    void theMissingPartIsNamed_data();
    void theMissingPartIsNamed();
    void theTreeIsConsistent();
};

void tst_Device::accessHasTheSchemasSpelling()
{
    QCOMPARE(QString(accessName(Access::ReadOnly)), QStringLiteral("read-only"));
    QCOMPARE(QString(accessName(Access::WriteOnly)), QStringLiteral("write-only"));
    QCOMPARE(QString(accessName(Access::ReadWrite)), QStringLiteral("read-write"));
    QCOMPARE(QString(accessName(Access::WriteOnce)), QStringLiteral("writeOnce"));
    QCOMPARE(QString(accessName(Access::ReadWriteOnce)), QStringLiteral("read-writeOnce"));
}

void tst_Device::accessSaysWhatIsPossible()
{
    QVERIFY(isReadable(Access::ReadOnly) && !isWritable(Access::ReadOnly));
    QVERIFY(!isReadable(Access::WriteOnly) && isWritable(Access::WriteOnly));
    QVERIFY(isReadable(Access::ReadWrite) && isWritable(Access::ReadWrite));
    QVERIFY(!isReadable(Access::WriteOnce) && isWritable(Access::WriteOnce));
    QVERIFY(isReadable(Access::ReadWriteOnce) && isWritable(Access::ReadWriteOnce));
}

void tst_Device::fieldValuesAreExact_data()
{
    QTest::addColumn<int>("lsb");
    QTest::addColumn<int>("width");
    QTest::addColumn<quint64>("registerValue");
    QTest::addColumn<quint64>("expected");

    QTest::newRow("the lowest bit") << 0 << 1 << quint64(0xFFFFFFFE) << quint64(0);
    QTest::newRow("the highest bit") << 63 << 1 << (quint64(1) << 63) << quint64(1);
    QTest::newRow("bits in the middle") << 4 << 8 << quint64(0xABCDE) << quint64(0xCD);
    QTest::newRow("all 64 bits") << 0 << 64 << kAllOnes << kAllOnes;
    QTest::newRow("a value beyond 2^53") << 0 << 64 << quint64(0x8000000000000001) << quint64(0x8000000000000001);
    QTest::newRow("bits beyond the 64th are 0") << 60 << 10 << kAllOnes << quint64(15);
}

void tst_Device::fieldValuesAreExact()
{
    QFETCH(int, lsb);
    QFETCH(int, width);
    QFETCH(quint64, registerValue);
    QFETCH(quint64, expected);
    const Field f = makeField(lsb, width);
    QCOMPARE(fieldValue(f, registerValue), expected);
    QCOMPARE(withFieldValue(f, registerValue, expected), registerValue);
}

void tst_Device::aFieldNeverSpillsIntoItsNeighbours()
{
    for (int lsb = 0; lsb < 64; ++lsb) {
        for (int width = 1; width <= 64; ++width) {
            const Field f = makeField(lsb, width);
            const quint64 own = withFieldValue(f, 0, kAllOnes);
            const quint64 others = withFieldValue(f, kAllOnes, 0);
            QCOMPARE(own, ~others);
            QCOMPARE(own, width + lsb >= 64 ? kAllOnes << lsb : ((quint64(1) << width) - 1) << lsb);
            QCOMPARE(fieldValue(f, own), bitMask(std::min(width, 64 - lsb)));
            QCOMPARE(fieldValue(f, others), quint64(0));
        }
    }
}

void tst_Device::onlyBitsWithinTheRegisterTakePart_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("lsb");
    QTest::addColumn<int>("width");
    QTest::addColumn<quint64>("largest");

    QTest::newRow("within") << 32 << 28 << 4 << quint64(15);
    QTest::newRow("reaching beyond") << 32 << 28 << 8 << quint64(15);
    QTest::newRow("quite outside") << 8 << 8 << 4 << quint64(0);
    QTest::newRow("64 bits") << 64 << 0 << 64 << kAllOnes;
    QTest::newRow("reaching beyond 64 bits") << 64 << 63 << 8 << quint64(1);
}

void tst_Device::onlyBitsWithinTheRegisterTakePart()
{
    QFETCH(int, size);
    QFETCH(int, lsb);
    QFETCH(int, width);
    QFETCH(quint64, largest);
    Register r;
    r.size = quint8(size);
    const Field f = makeField(lsb, width);
    QCOMPARE(largestFieldValue(r, f), largest);
    QCOMPARE(fieldValue(f, r.valueMask()), largest);
}

void tst_Device::theNameOfAValueIsFound_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<bool>("withDefault");
    QTest::addColumn<QString>("expected");

    QTest::newRow("an exact value") << quint64(1) << true << QStringLiteral("One");
    QTest::newRow("the first of two that match") << quint64(4) << true << QStringLiteral("Open");
    QTest::newRow("a value with open bits") << quint64(7) << true << QStringLiteral("Open");
    QTest::newRow("a default's own value is not looked at first") << quint64(2) << true << QStringLiteral("Two");
    QTest::newRow("the default for the rest") << quint64(3) << true << QStringLiteral("Rest");
    QTest::newRow("none for the rest without a default") << quint64(3) << false << QString();
    QTest::newRow("bits above the open ones count") << quint64(12) << false << QString();
}

void tst_Device::theNameOfAValueIsFound()
{
    QFETCH(quint64, value);
    QFETCH(bool, withDefault);
    QFETCH(QString, expected);
    QByteArray xml;
    const auto add = [&xml](const char* name, const char* number, bool isDefault) {
        xml += QByteArray("<enumeratedValue><name>") + name + "</name><value>" + number + "</value>" +
               (isDefault ? "<isDefault>true</isDefault>" : "") + "</enumeratedValue>";
    };
    if (withDefault) {
        add("Rest", "2", true);
    }
    add("One", "1", false);
    add("Open", "#1xx", false);
    add("Four", "4", false);
    add("Two", "2", false);
    const SvdResult result = read(
        deviceOfFields(field("F", "<bitRange>[7:0]</bitRange>", "<enumeratedValues>" + xml + "</enumeratedValues>")));
    VERIFY_READ(result);
    const EnumValue* const found = result.device->registerAt(0).fields.at(0).readName(value);
    QCOMPARE(found ? found->name : QString(), expected);
}

void tst_Device::pathsAreFound_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("registerIndex");
    QTest::addColumn<int>("fieldIndex");

    const auto row = [](const char* path, int registerIndex, int fieldIndex) {
        QTest::newRow(path) << QString::fromLatin1(path) << registerIndex << fieldIndex;
    };
    row("P.R", 0, -1);
    row("P.R.F", 0, 0);
    row("P.R.G", 0, 1);
    row("P.C[1].S", 2, -1);
    row("P.C[1].S.F", 2, 0);
    row("P.R.H", -1, -1);
    row("P", -1, -1);
    row("P.C[1]", -1, -1);
    row("", -1, -1);
    row(".", -1, -1);
    row("P.R.", -1, -1);
    row("P.R.F.F", -1, -1);
    row("p.r", -1, -1);
    row("P.C[%s].S", -1, -1);
}

namespace {

SvdResult pathDevice()
{
    return read(deviceOf(reg("R", "", field("F") + field("G")) +
                         "<cluster><name>C[%s]</name><dim>2</dim><dimIncrement>4</dimIncrement><addressOffset>0"
                         "</addressOffset>" +
                         reg("S", "", field("F")) + "</cluster>"));
}

} // namespace

void tst_Device::pathsAreFound()
{
    QFETCH(QString, path);
    QFETCH(int, registerIndex);
    QFETCH(int, fieldIndex);
    const SvdResult result = pathDevice();
    VERIFY_READ(result);
    const PathTarget target = result.device->find(path);
    QCOMPARE(target.registerIndex, registerIndex);
    QCOMPARE(target.fieldIndex, fieldIndex);
    QCOMPARE(result.device->explainMissing(path).isEmpty(), target.isValid());
}

void tst_Device::theMissingPartIsNamed_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QString>("expected");

    const auto row = [](const char* path, const char* expected) {
        QTest::newRow(path) << QString::fromLatin1(path) << QString::fromLatin1(expected);
    };
    row("X.R", "the device \"Dev\" has no peripheral \"X\"");
    row("P.X", "the peripheral \"P\" has no register or cluster \"X\"");
    row("P.C[2].S", "the peripheral \"P\" has no register or cluster \"C[2]\"");
    row("P.C[0].X.F", "the cluster \"P.C[0]\" has no register or cluster \"X\"");
    row("P.R.X", "the register \"P.R\" has no field \"X\"");
    row("P.R.F.X", "nothing lies below the field \"F\" of \"P.R\"");
    row("P", "\"P\" is a peripheral, and a register or a field was expected");
    row("P.C[0]", "\"P.C[0]\" is a cluster, and a register or a field was expected");
    row("", "the device \"Dev\" has no peripheral \"\"");
}

void tst_Device::theMissingPartIsNamed()
{
    QFETCH(QString, path);
    QFETCH(QString, expected);
    const SvdResult result = pathDevice();
    VERIFY_READ(result);
    QCOMPARE(result.device->explainMissing(path), expected);
}

void tst_Device::theTreeIsConsistent()
{
    const SvdResult result = readSvdFile(sampleFileName());
    VERIFY_READ(result);
    const Device& d = *result.device;
    QCOMPARE(d.node(Device::kRootNode).registerCount, d.registerCount());
    int seen = 0;
    for (int i = 0; i < d.nodes().size(); ++i) {
        const Node& node = d.node(i);
        for (int row = 0; row < node.children.size(); ++row) {
            const int child = node.children.at(row);
            QVERIFY(child > i);
            QCOMPARE(d.node(child).parent, i);
            QCOMPARE(d.node(child).row, row);
            QVERIFY(d.node(child).firstRegister >= node.firstRegister);
            QVERIFY(d.node(child).firstRegister + d.node(child).registerCount <=
                    node.firstRegister + node.registerCount);
        }
        if (node.kind == NodeKind::Register) {
            QCOMPARE(node.registerIndex, seen); // the tree and the list have one order
            QCOMPARE(d.registerAt(seen).node, i);
            QCOMPARE(d.registerAt(seen).path, d.nodePath(i));
            QCOMPARE(d.registerAt(seen).address, node.address);
            QCOMPARE(node.registerCount, 1);
            ++seen;
        }
    }
    QCOMPARE(seen, d.registerCount());
}

void tst_Device::anAddressFindsTheRegisterThatCoversIt()
{
    Device device;
    const auto add = [&device](const char* name, quint64 address, quint8 size) {
        Register reg;
        reg.name = QLatin1String(name);
        reg.path = reg.name;
        reg.address = address;
        reg.size = size;
        device.addRegister(Device::kRootNode, std::move(reg));
    };
    add("WIDE", 0x100, 64);
    add("INSIDE", 0x104, 16);
    add("ODD", 0x110, 9);
    add("TOP", ~quint64(0), 8);
    QCOMPARE(device.findAddress(0x0FF), -1);
    QCOMPARE(device.findAddress(0x100), 0);
    QCOMPARE(device.findAddress(0x103), 0);
    QCOMPARE(device.findAddress(0x104), 1); // one that begins there comes first
    QCOMPARE(device.findAddress(0x107), 0);
    QCOMPARE(device.findAddress(0x108), -1);
    QCOMPARE(device.findAddress(0x111), 2);
    QCOMPARE(device.findAddress(0x112), -1);
    QCOMPARE(device.findAddress(~quint64(0)), 3);
}

TESSERA_TEST_GUILESS_MAIN(tst_Device)
#include "tst_device.moc"
