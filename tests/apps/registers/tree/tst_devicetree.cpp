// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "editors/RegisterBits.h"
#include "session/DeviceEdits.h"
#include "tree/DeviceFilterModel.h"
#include "tree/DeviceTreeModel.h"

#include <Tessera/views/ItemRoles.h>
#include <Tessera/views/StyledItemDelegate.h>

#include <QAbstractItemModelTester>
#include <QComboBox>
#include <QSignalSpy>

#include <memory>

using namespace GuiTestSupport;

Q_DECLARE_METATYPE(registers::NumberBase)

namespace {

enum Index { Control, Wide, Odd, Status, Command };

/// Registers of several sizes and kinds of access, with every kind of field.
DevicePtr variedDevice()
{
    Field mode = makeField(QStringLiteral("MODE"), 4, 4);
    mode.enumeration = makeEnumeration(
        {makeName(QStringLiteral("OFF"), 0), makeName(QStringLiteral("SLOW"), 1), makeName(QStringLiteral("FAST"), 2)});
    Register control =
        makeRegister(QStringLiteral("CTRL"), 32,
                     {makeField(QStringLiteral("EN"), 0, 1), mode, makeField(QStringLiteral("DIV"), 8, 12),
                      makeField(QStringLiteral("BUSY"), 31, 1, Access::ReadOnly)});
    control.description = QStringLiteral("Turns\n  it on");
    control.resetValue = 0x10;
    Register status =
        makeRegister(QStringLiteral("STATUS"), 16, {makeField(QStringLiteral("COUNT"), 0, 8, Access::ReadOnly)});
    status.access = Access::ReadOnly;
    Register command = makeRegister(QStringLiteral("CMD"), 8);
    command.access = Access::WriteOnly;
    return makeDevice({control, makeRegister(QStringLiteral("WIDE"), 64, {makeField(QStringLiteral("ALL"), 0, 64)}),
                       makeRegister(QStringLiteral("ODD"), 22, {makeField(QStringLiteral("TOP"), 20, 2)}), status,
                       command});
}

QStringList bitNames(const QMap<int, QString>& names)
{
    QStringList list;
    for (auto it = names.begin(); it != names.end(); ++it) {
        list.append(QStringLiteral("%1:%2").arg(it.key()).arg(it.value()));
    }
    return list;
}

} // namespace

class tst_DeviceTree : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void rowsAreTheTree();
    void columnsTellEverything_data();
    void columnsTellEverything();
    void aValueReadsInTheChosenBase_data();
    void aValueReadsInTheChosenBase();
    void kinds_data();
    void kinds();
    void onlyWritableValuesAreEdited_data();
    void onlyWritableValuesAreEdited();
    void aToolTipHasAllThreeBases();
    void whatIsSpecialIsInTheToolTip();
    void aPresentValueIsAlwaysAmongTheChoices_data();
    void aPresentValueIsAlwaysAmongTheChoices();
    void choicesWithOpenBitsKeepThePresentOnes();
    void aSecondNameOfAValueIsAChoiceToo();
    void aValueIsWrittenIfItFits_data();
    void aValueIsWrittenIfItFits();
    void everyWriteCanBeUndone();
    void bytesAreTheValue_data();
    void bytesAreTheValue();
    void bytesAreWrittenBack();
    void bitsAreNamedByTheirFields();
    void anUntouchedEditorChangesNothing_data();
    void anUntouchedEditorChangesNothing();
    void aChangeIsToldToRowFieldsAndGroups();
    void changedRowsAreMarked();
    void theFilterFindsFieldsToo_data();
    void theFilterFindsFieldsToo();
    void changesOnlyLeavesWhatHasChanged();
    void changesOnlyFollowsEdits();
    void theModelsKeepTheirPromises();

private:
    QModelIndex cell(int reg, int column) const { return m_model->indexOf({nodeOf(reg)}, column); }
    QModelIndex fieldCell(int reg, int field, int column) const
    {
        return m_model->indexOf({nodeOf(reg), field}, column);
    }
    QModelIndex valueOf(int reg, int field) const
    {
        return field < 0 ? cell(reg, DeviceTreeModel::ValueColumn)
                         : fieldCell(reg, field, DeviceTreeModel::ValueColumn);
    }
    int nodeOf(int reg) const { return m_state->device().registerAt(reg).node; }
    QStringList filtered() const;

    std::unique_ptr<DeviceState> m_state;
    std::unique_ptr<DeviceEdits> m_edits;
    std::unique_ptr<DeviceTreeModel> m_model;
    std::unique_ptr<DeviceFilterModel> m_filter;
};

void tst_DeviceTree::init()
{
    m_filter = std::make_unique<DeviceFilterModel>();
    m_model.reset();
    m_edits.reset();
    m_state = std::make_unique<DeviceState>(variedDevice());
    m_edits = std::make_unique<DeviceEdits>(*m_state);
    m_model = std::make_unique<DeviceTreeModel>(*m_edits);
    m_filter->setDeviceModel(m_model.get());
}

/// The paths of all rows that the filter leaves.
QStringList tst_DeviceTree::filtered() const
{
    QStringList paths;
    QVector<QModelIndex> open{QModelIndex()};
    while (!open.isEmpty()) {
        const QModelIndex parent = open.takeLast();
        for (int row = m_filter->rowCount(parent) - 1; row >= 0; --row) {
            open.append(m_filter->index(row, 0, parent));
        }
        if (parent.isValid()) {
            paths.append(m_model->pathOf(m_filter->placeOf(parent)));
        }
    }
    return paths;
}

void tst_DeviceTree::rowsAreTheTree()
{
    QCOMPARE(m_model->rowCount(), 1);
    const QModelIndex block = m_model->index(0, 0);
    QCOMPARE(m_model->rowCount(block), 5);
    const QModelIndex control = m_model->index(0, 0, block);
    QCOMPARE(control.parent(), block);
    QCOMPARE(m_model->rowCount(control), 4);
    const QModelIndex div = m_model->index(2, 0, control);
    QCOMPARE(div.data().toString(), QStringLiteral("DIV"));
    QCOMPARE(div.parent(), control);
    QCOMPARE(m_model->rowCount(div), 0);
    QCOMPARE(m_model->pathOf(DeviceTreeModel::placeOf(div)), QStringLiteral("BLOCK.CTRL.DIV"));
    QVERIFY(!m_model->index(4, 0, control).isValid());
    QVERIFY(!m_model->index(0, DeviceTreeModel::ColumnCount, control).isValid());
}

void tst_DeviceTree::columnsTellEverything_data()
{
    QTest::addColumn<int>("reg");
    QTest::addColumn<int>("field");
    QTest::addColumn<QStringList>("texts");
    const auto row = [](const char* name, int reg, int field, std::initializer_list<const char*> texts) {
        QStringList list;
        for (const char* text : texts) {
            list.append(QString::fromUtf8(text));
        }
        QTest::newRow(name) << reg << field << list;
    };
    row("a register", Control, -1, {"CTRL", "0x40000000", "0x00000010", "", "0x00000010", "read-write", "Turns it on"});
    row("64 bits", Wide, -1,
        {"WIDE", "0x40000008", "0x0000000000000000", "", "0x0000000000000000", "read-write", "What WIDE is for"});
    row("22 bits", Odd, -1, {"ODD", "0x40000010", "0x000000", "", "0x000000", "read-write", "What ODD is for"});
    row("a read-only register", Status, -1,
        {"STATUS", "0x40000018", "0x0000", "", "0x0000", "read-only", "What STATUS is for"});
    row("a write-only register", Command, -1,
        {"CMD", "0x40000020", "0x00", "", "0x00", "write-only", "What CMD is for"});
    row("a bit", Control, 0, {"EN", "[0]", "0", "", "0", "read-write", "What EN is for"});
    row("named values", Control, 1,
        {"MODE", "[7:4]", "SLOW (0x1)", "", "SLOW (0x1)", "read-write", "What MODE is for"});
    row("a number", Control, 2, {"DIV", "[19:8]", "0x0", "", "0x0", "read-write", "What DIV is for"});
    row("a read-only bit", Control, 3, {"BUSY", "[31]", "0", "", "0", "read-only", "What BUSY is for"});
}

void tst_DeviceTree::columnsTellEverything()
{
    QFETCH(int, reg);
    QFETCH(int, field);
    QFETCH(QStringList, texts);
    QStringList shown;
    for (int column = 0; column < DeviceTreeModel::ColumnCount; ++column) {
        shown.append(valueOf(reg, field).siblingAtColumn(column).data().toString());
    }
    QCOMPARE(shown, texts);
}

void tst_DeviceTree::aValueReadsInTheChosenBase_data()
{
    QTest::addColumn<NumberBase>("base");
    QTest::addColumn<QString>("registerText");
    QTest::addColumn<QString>("enumText");
    QTest::addColumn<QString>("numberText");
    QTest::newRow("decimal") << NumberBase::Decimal << QStringLiteral("2850") << QStringLiteral("FAST (2)")
                             << QStringLiteral("11");
    QTest::newRow("hexadecimal") << NumberBase::Hexadecimal << QStringLiteral("0x00000B22")
                                 << QStringLiteral("FAST (0x2)") << QStringLiteral("0xB");
    QTest::newRow("binary") << NumberBase::Binary << QStringLiteral("0b00000000000000000000101100100010")
                            << QStringLiteral("FAST (0b10)") << QStringLiteral("0b1011");
}

void tst_DeviceTree::aValueReadsInTheChosenBase()
{
    QFETCH(NumberBase, base);
    m_state->setValue(Control, 0xB22);
    m_model->setBase(base);
    QTEST(valueOf(Control, -1).data().toString(), "registerText");
    QTEST(valueOf(Control, 1).data().toString(), "enumText");
    QTEST(valueOf(Control, 2).data().toString(), "numberText");
    QCOMPARE(valueOf(Control, -1).data(nsUI::e_Role_ISpxBase).toInt(), static_cast<int>(base));
}

void tst_DeviceTree::kinds_data()
{
    QTest::addColumn<int>("reg");
    QTest::addColumn<int>("field");
    QTest::addColumn<int>("kind");
    QTest::addColumn<int>("box");
    QTest::addColumn<quint64>("largest");
    const int spinBox = nsUI::e_Item_ISpinBox;
    QTest::newRow("32 bits") << int(Control) << -1 << spinBox << 32 << quint64(0xFFFFFFFF);
    QTest::newRow("64 bits") << int(Wide) << -1 << spinBox << 64 << ~quint64(0);
    QTest::newRow("22 bits") << int(Odd) << -1 << spinBox << 32 << quint64(0x3FFFFF);
    QTest::newRow("16 bits") << int(Status) << -1 << spinBox << 16 << quint64(0xFFFF);
    QTest::newRow("8 bits") << int(Command) << -1 << spinBox << 8 << quint64(0xFF);
    QTest::newRow("a bit") << int(Control) << 0 << int(nsUI::e_Item_CheckBox) << 8 << quint64(1);
    QTest::newRow("named values") << int(Control) << 1 << int(nsUI::e_Item_DataComboBox) << 8 << quint64(15);
    QTest::newRow("12 bits") << int(Control) << 2 << spinBox << 16 << quint64(0xFFF);
    QTest::newRow("a field of 64 bits") << int(Wide) << 0 << spinBox << 64 << ~quint64(0);
    QTest::newRow("2 bits") << int(Odd) << 0 << spinBox << 8 << quint64(3);
}

void tst_DeviceTree::kinds()
{
    QFETCH(int, reg);
    QFETCH(int, field);
    const QModelIndex value = valueOf(reg, field);
    QTEST(value.data(nsUI::e_Role_ItemType).toInt(), "kind");
    QTEST(value.data(nsUI::e_Role_ISpxType).toInt(), "box");
    QTEST(value.data(nsUI::e_Role_ISpxMaximum).toULongLong(), "largest");
    QCOMPARE(value.data(nsUI::e_Role_ISpxMinimum).toULongLong(), quint64(0));
    QCOMPARE(value.data(nsUI::e_Role_ISpxPrefix).toString(), QStringLiteral("0x"));
}

void tst_DeviceTree::onlyWritableValuesAreEdited_data()
{
    QTest::addColumn<int>("reg");
    QTest::addColumn<int>("field");
    QTest::addColumn<int>("flags");
    QTest::addColumn<bool>("hasBytes");
    const int plain = Qt::ItemIsSelectable | Qt::ItemIsEnabled;
    QTest::newRow("a register") << int(Control) << -1 << (plain | Qt::ItemIsEditable) << true;
    QTest::newRow("a read-only register") << int(Status) << -1 << plain << false;
    QTest::newRow("a write-only register") << int(Command) << -1 << (plain | Qt::ItemIsEditable) << true;
    QTest::newRow("a bit") << int(Control) << 0 << (plain | Qt::ItemIsUserCheckable) << false;
    QTest::newRow("named values") << int(Control) << 1 << (plain | Qt::ItemIsEditable) << false;
    QTest::newRow("a number") << int(Control) << 2 << (plain | Qt::ItemIsEditable) << false;
    QTest::newRow("a read-only bit") << int(Control) << 3 << plain << false;
    QTest::newRow("a read-only number") << int(Status) << 0 << plain << false;
}

void tst_DeviceTree::onlyWritableValuesAreEdited()
{
    QFETCH(int, reg);
    QFETCH(int, field);
    QFETCH(bool, hasBytes);
    const QModelIndex value = valueOf(reg, field);
    QTEST(int(value.flags()), "flags");
    QCOMPARE(value.siblingAtColumn(DeviceTreeModel::BytesColumn).data(nsUI::e_Role_ItemType).toInt(),
             hasBytes ? int(nsUI::e_Item_ByteArray) : 0);
    for (int column = 0; column < DeviceTreeModel::ColumnCount; ++column) {
        if (column != DeviceTreeModel::ValueColumn) {
            QCOMPARE(int(value.siblingAtColumn(column).flags()), int(Qt::ItemIsSelectable | Qt::ItemIsEnabled));
        }
    }
}

void tst_DeviceTree::aToolTipHasAllThreeBases()
{
    m_state->setValue(Odd, 0x2A0835);
    QCOMPARE(valueOf(Odd, -1).data(Qt::ToolTipRole).toString(),
             QStringLiteral("0x2A0835\n2754613\n0b1010100000100000110101"));
    m_state->setValue(Control, 0xB22);
    QCOMPARE(valueOf(Control, 2).data(Qt::ToolTipRole).toString(), QStringLiteral("0x00B\n11\n0b000000001011"));
}

void tst_DeviceTree::whatIsSpecialIsInTheToolTip()
{
    QVERIFY(valueOf(Command, -1).data(Qt::ToolTipRole).toString().contains(QStringLiteral("\nwrite-only: ")));
    QVERIFY(valueOf(Status, -1).data(Qt::ToolTipRole).toString().contains(QStringLiteral("\nread-only: ")));
    QVERIFY(valueOf(Control, 3).data(Qt::ToolTipRole).toString().contains(QStringLiteral("\nread-only: ")));
}

void tst_DeviceTree::aPresentValueIsAlwaysAmongTheChoices_data()
{
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QStringList>("texts");
    const QStringList named{QStringLiteral("OFF (0x0)"), QStringLiteral("SLOW (0x1)"), QStringLiteral("FAST (0x2)")};
    QTest::newRow("named") << quint64(2) << named;
    QTest::newRow("not named") << quint64(9) << (named + QStringList{QStringLiteral("0x9 (not named)")});
}

void tst_DeviceTree::aPresentValueIsAlwaysAmongTheChoices()
{
    QFETCH(quint64, value);
    m_edits->setField(Control, 1, value);
    const QModelIndex mode = valueOf(Control, 1);
    QTEST(mode.data(nsUI::e_Role_DataTexts).toStringList(), "texts");
    const QVariantList data = mode.data(nsUI::e_Role_Data).toList();
    QCOMPARE(data.size(), mode.data(nsUI::e_Role_DataTexts).toStringList().size());
    QCOMPARE(data.count(mode.data(Qt::EditRole)), 1);
    QCOMPARE(mode.data(Qt::EditRole).toULongLong(), value);
}

void tst_DeviceTree::choicesWithOpenBitsKeepThePresentOnes()
{
    EnumValue high = makeName(QStringLiteral("HIGH"), 2);
    high.mask = 2; // 0b1x
    Field field = makeField(QStringLiteral("F"), 0, 2);
    field.enumeration = makeEnumeration({makeName(QStringLiteral("NONE"), 0), high});
    DeviceState state(makeDevice({makeRegister(QStringLiteral("R"), 8, {field})}));
    DeviceEdits edits(state);
    const DeviceTreeModel model(edits);
    state.setValue(0, 3);
    const QModelIndex value = model.indexOf({state.device().registerAt(0).node, 0}, DeviceTreeModel::ValueColumn);
    QCOMPARE(value.data(nsUI::e_Role_Data).toList(), (QVariantList{quint64(0), quint64(3)}));
    QCOMPARE(value.data().toString(), QStringLiteral("HIGH (0x3)"));
}

void tst_DeviceTree::aSecondNameOfAValueIsAChoiceToo()
{
    Field field = makeField(QStringLiteral("F"), 0, 2);
    field.enumeration = makeEnumeration({makeName(QStringLiteral("X"), 0), makeName(QStringLiteral("ALSO"), 0)});
    DeviceState state(makeDevice({makeRegister(QStringLiteral("R"), 8, {field})}));
    DeviceEdits edits(state);
    const DeviceTreeModel model(edits);
    const QModelIndex value = model.indexOf({state.device().registerAt(0).node, 0}, DeviceTreeModel::ValueColumn);
    QCOMPARE(value.data(nsUI::e_Role_DataTexts).toStringList(),
             (QStringList{QStringLiteral("X (0x0)"), QStringLiteral("ALSO (0x0)")}));
}

void tst_DeviceTree::aValueIsWrittenIfItFits_data()
{
    QTest::addColumn<int>("reg");
    QTest::addColumn<int>("field");
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("isTaken");
    QTest::addColumn<quint64>("result");
    QTest::newRow("a number") << int(Control) << -1 << QVariant(7U) << true << quint64(7);
    QTest::newRow("the largest") << int(Odd) << -1 << QVariant(0x3FFFFFU) << true << quint64(0x3FFFFF);
    QTest::newRow("too large") << int(Odd) << -1 << QVariant(0x400000U) << false << quint64(0);
    QTest::newRow("64 bits") << int(Wide) << -1 << QVariant(~quint64(0)) << true << ~quint64(0);
    QTest::newRow("no number") << int(Wide) << -1 << QVariant(QStringLiteral("many")) << false << quint64(0);
    QTest::newRow("nothing") << int(Wide) << -1 << QVariant() << false << quint64(0);
    QTest::newRow("a negative number") << int(Odd) << -1 << QVariant(-1) << false << quint64(0);
    QTest::newRow("read-only") << int(Status) << -1 << QVariant(1) << false << quint64(0);
    QTest::newRow("write-only") << int(Command) << -1 << QVariant(1) << true << quint64(1);
    QTest::newRow("a bit") << int(Control) << 0 << QVariant(true) << true << quint64(0x11);
    QTest::newRow("a named value") << int(Control) << 1 << QVariant(quint64(2)) << true << quint64(0x20);
    QTest::newRow("a field's number") << int(Control) << 2 << QVariant(ushort(0xFFF)) << true << quint64(0xFFF10);
    QTest::newRow("a read-only bit") << int(Control) << 3 << QVariant(true) << false << quint64(0x10);
}

void tst_DeviceTree::aValueIsWrittenIfItFits()
{
    QFETCH(int, reg);
    QFETCH(int, field);
    QFETCH(QVariant, value);
    QTEST(m_model->setData(valueOf(reg, field), value, Qt::EditRole), "isTaken");
    QTEST(m_state->value(reg), "result");
}

void tst_DeviceTree::everyWriteCanBeUndone()
{
    m_model->setData(valueOf(Control, -1), 1, Qt::EditRole);
    m_model->setData(valueOf(Control, -1), 2, Qt::EditRole);
    QVERIFY(m_model->setData(valueOf(Control, 0), Qt::Checked, Qt::CheckStateRole));
    QCOMPARE(m_state->value(Control), quint64(3));
    QCOMPARE(m_edits->history().count(), 3); // each is an edit of its own
    m_edits->history().undo();
    m_edits->history().undo();
    QCOMPARE(m_state->value(Control), quint64(1));
}

void tst_DeviceTree::bytesAreTheValue_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QByteArray>("bytes");
    QTest::newRow("1 bit") << 1 << quint64(1) << QByteArray::fromHex("01");
    QTest::newRow("8 bits") << 8 << quint64(0xA5) << QByteArray::fromHex("A5");
    QTest::newRow("9 bits") << 9 << quint64(0x1A5) << QByteArray::fromHex("01A5");
    QTest::newRow("22 bits") << 22 << quint64(0x2A0835) << QByteArray::fromHex("2A0835");
    QTest::newRow("32 bits") << 32 << quint64(0x12) << QByteArray::fromHex("00000012");
    QTest::newRow("64 bits") << 64 << quint64(0x8123456789ABCDEF) << QByteArray::fromHex("8123456789ABCDEF");
}

void tst_DeviceTree::bytesAreTheValue()
{
    QFETCH(int, size);
    QFETCH(quint64, value);
    QFETCH(QByteArray, bytes);
    const Register reg = makeRegister(QStringLiteral("R"), size);
    QCOMPARE(registerBytes(reg, value), bytes);
    QCOMPARE(valueOfBytes(bytes), value);
}

void tst_DeviceTree::bytesAreWrittenBack()
{
    const QModelIndex bytes = cell(Odd, DeviceTreeModel::BytesColumn);
    QCOMPARE(bytes.data(Qt::EditRole).toByteArray(), QByteArray::fromHex("000000"));
    QVERIFY(m_model->setData(bytes, QByteArray::fromHex("FF0102"), Qt::EditRole));
    QCOMPARE(m_state->value(Odd), quint64(0x3F0102)); // the register has 22 bits
    QCOMPARE(bytes.data(Qt::EditRole).toByteArray(), QByteArray::fromHex("3F0102"));
    QVERIFY(!m_model->setData(cell(Status, DeviceTreeModel::BytesColumn), QByteArray(2, '\xFF'), Qt::EditRole));
    QCOMPARE(m_state->value(Status), quint64(0));
}

void tst_DeviceTree::bitsAreNamedByTheirFields()
{
    const auto names = [this](int reg) {
        return bitNames(
            cell(reg, DeviceTreeModel::BytesColumn).data(nsUI::e_Role_BitDescriptions).value<QMap<int, QString>>());
    };
    QCOMPARE(names(Odd),
             (QStringList{QStringLiteral("20:TOP[0]"), QStringLiteral("21:TOP[1]"),
                          QStringLiteral("22:not in the register"), QStringLiteral("23:not in the register")}));
    const QStringList control = names(Control);
    QCOMPARE(control.size(), 1 + 4 + 12 + 1);
    QCOMPARE(control.first(), QStringLiteral("0:EN"));
    QCOMPARE(control.at(1), QStringLiteral("4:MODE[0]"));
    QCOMPARE(control.last(), QStringLiteral("31:BUSY (read-only)"));
}

void tst_DeviceTree::anUntouchedEditorChangesNothing_data()
{
    QTest::addColumn<int>("reg");
    QTest::addColumn<int>("field");
    QTest::addColumn<quint64>("value");
    QTest::newRow("32 bits") << int(Control) << -1 << quint64(0xFFFFFFFF);
    QTest::newRow("64 bits") << int(Wide) << -1 << ~quint64(0);
    QTest::newRow("22 bits") << int(Odd) << -1 << quint64(0x3FFFFF);
    QTest::newRow("8 bits") << int(Command) << -1 << quint64(0x80);
    QTest::newRow("a field of 64 bits") << int(Wide) << 0 << quint64(0x8000000000000001);
    QTest::newRow("a named value") << int(Control) << 1 << quint64(0x20);
    QTest::newRow("a value without a name") << int(Control) << 1 << quint64(0xFFFFFFF0);
    QTest::newRow("a number") << int(Control) << 2 << quint64(0xFFFFFFFF);
}

void tst_DeviceTree::anUntouchedEditorChangesNothing()
{
    QFETCH(int, reg);
    QFETCH(int, field);
    QFETCH(quint64, value);
    for (const NumberBase base : {NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary}) {
        m_model->setBase(base);
        m_state->setValue(reg, value);
        const QModelIndex index = valueOf(reg, field);
        const QVariant before = index.data(Qt::EditRole);
        QWidget parent;
        const nsUI::StyledItemDelegate delegate;
        QWidget* editor = delegate.createEditor(&parent, QStyleOptionViewItem(), index);
        delegate.setEditorData(editor, index);
        delegate.setModelData(editor, m_model.get(), index);
        QCOMPARE(m_state->value(reg), value);
        QCOMPARE(index.data(Qt::EditRole), before);
        QCOMPARE(m_edits->history().count(), 0);
    }
}

void tst_DeviceTree::aChangeIsToldToRowFieldsAndGroups()
{
    QStringList told;
    connect(m_model.get(), &QAbstractItemModel::dataChanged, this,
            [&](const QModelIndex& topLeft, const QModelIndex& bottomRight) {
                told.append(QStringLiteral("%1 to %2")
                                .arg(m_model->pathOf(DeviceTreeModel::placeOf(topLeft)),
                                     m_model->pathOf(DeviceTreeModel::placeOf(bottomRight))));
            });
    m_state->setValue(Control, 1);
    told.sort();
    QCOMPARE(told, (QStringList{QStringLiteral("BLOCK to BLOCK"), QStringLiteral("BLOCK.CTRL to BLOCK.CTRL"),
                                QStringLiteral("BLOCK.CTRL.EN to BLOCK.CTRL.BUSY")}));
    told.clear();
    m_state->setValue(Control, 2); // changed before: the group's count stays
    told.sort();
    QCOMPARE(told, (QStringList{QStringLiteral("BLOCK.CTRL to BLOCK.CTRL"),
                                QStringLiteral("BLOCK.CTRL.EN to BLOCK.CTRL.BUSY")}));
}

void tst_DeviceTree::changedRowsAreMarked()
{
    m_state->setValue(Control, 0x11);
    const auto isMarked = [](const QModelIndex& index) { return index.data(DeviceTreeModel::ChangedRole).toBool(); };
    const auto isBold = [](const QModelIndex& index) { return index.data(Qt::FontRole).value<QFont>().bold(); };
    QVERIFY(isMarked(m_model->index(0, 0)));
    QVERIFY(isMarked(cell(Control, 0)));
    QVERIFY(isBold(cell(Control, 0)));
    QVERIFY(isBold(valueOf(Control, -1)));
    QVERIFY(isMarked(fieldCell(Control, 0, 0)));
    QVERIFY(isBold(valueOf(Control, 0)));
    QVERIFY(!isMarked(fieldCell(Control, 1, 0)));
    QVERIFY(!isBold(valueOf(Control, 1)));
    QVERIFY(!isMarked(cell(Wide, 0)));
    QCOMPARE(cell(Control, 0).data(Qt::AccessibleTextRole).toString(), QStringLiteral("CTRL, changed"));
    m_state->reset(Control);
    QVERIFY(!isMarked(m_model->index(0, 0)));
    QVERIFY(!isMarked(fieldCell(Control, 0, 0)));
}

void tst_DeviceTree::theFilterFindsFieldsToo_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QStringList>("left");
    QTest::addColumn<int>("registers");
    const QString block = QStringLiteral("BLOCK");
    const QString control = QStringLiteral("BLOCK.CTRL");
    QTest::newRow("a field") << QStringLiteral("div") << QStringList{block, control, control + QStringLiteral(".DIV")}
                             << 1;
    QTest::newRow("a field's path") << QStringLiteral("ctrl.mo")
                                    << QStringList{block, control, control + QStringLiteral(".MODE")} << 1;
    QTest::newRow("two words") << QStringLiteral("busy ctrl")
                               << QStringList{block, control, control + QStringLiteral(".BUSY")} << 1;
    QTest::newRow("a register with all its fields")
        << QStringLiteral("odd") << QStringList{block, QStringLiteral("BLOCK.ODD"), QStringLiteral("BLOCK.ODD.TOP")}
        << 1;
    QTest::newRow("an address") << QStringLiteral("0X40000020") << QStringList{block, QStringLiteral("BLOCK.CMD")} << 1;
    QTest::newRow("nothing") << QStringLiteral("nothing") << QStringList() << 0;
}

void tst_DeviceTree::theFilterFindsFieldsToo()
{
    QFETCH(QString, text);
    m_filter->setText(text);
    QTEST(filtered(), "left");
    QTEST(m_filter->registerCount(), "registers");
    m_filter->setText(QString());
    QCOMPARE(filtered().size(), 1 + 5 + 7);
    QVERIFY(m_filter->hits().isEmpty());
}

void tst_DeviceTree::changesOnlyLeavesWhatHasChanged()
{
    m_state->setValue(Control, 0x11);
    m_state->setValue(Command, 1);
    m_filter->setChangesOnly(true);
    QCOMPARE(filtered(), (QStringList{QStringLiteral("BLOCK"), QStringLiteral("BLOCK.CTRL"),
                                      QStringLiteral("BLOCK.CTRL.EN"), QStringLiteral("BLOCK.CMD")}));
    m_filter->setText(QStringLiteral("mode"));
    QCOMPARE(filtered(), QStringList());
    m_filter->setText(QStringLiteral("cmd"));
    QCOMPARE(filtered(), (QStringList{QStringLiteral("BLOCK"), QStringLiteral("BLOCK.CMD")}));
    m_filter->setChangesOnly(false);
    m_filter->setText(QString());
    QCOMPARE(filtered().size(), 1 + 5 + 7);
}

void tst_DeviceTree::changesOnlyFollowsEdits()
{
    m_filter->setChangesOnly(true);
    QCOMPARE(filtered(), QStringList());
    QSignalSpy refiltered(m_filter.get(), &DeviceFilterModel::refiltered);
    m_edits->setRegister(Command, 1);
    QVERIFY(refiltered.wait());
    QCOMPARE(filtered(), (QStringList{QStringLiteral("BLOCK"), QStringLiteral("BLOCK.CMD")}));
    m_edits->history().undo();
    m_edits->setField(Odd, 0, 1);
    QVERIFY(refiltered.wait());
    QCOMPARE(refiltered.size(), 2); // what changes in one turn is taken together
    QCOMPARE(filtered(),
             (QStringList{QStringLiteral("BLOCK"), QStringLiteral("BLOCK.ODD"), QStringLiteral("BLOCK.ODD.TOP")}));
}

void tst_DeviceTree::theModelsKeepTheirPromises()
{
    const QAbstractItemModelTester tree(m_model.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    const QAbstractItemModelTester proxy(m_filter.get(), QAbstractItemModelTester::FailureReportingMode::Fatal);
    m_model->setBase(NumberBase::Binary);
    m_edits->setRegister(Control, 0x12345678);
    m_filter->setText(QStringLiteral("ctrl"));
    m_filter->setChangesOnly(true);
    m_edits->setAll({{Wide, 5}, {Odd, 6}}, QStringLiteral("a file"));
    QCoreApplication::processEvents();
    m_filter->setText(QString());
    m_edits->history().setIndex(0);
    QCoreApplication::processEvents();
    QCOMPARE(m_filter->rowCount(), 0);
    m_filter->setChangesOnly(false);
    QCOMPARE(m_filter->rowCount(), 1);
}

TESSERA_TEST_MAIN(tst_DeviceTree)
#include "tst_devicetree.moc"
