// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "editors/BitStrip.h"
#include "editors/EnumBox.h"
#include "editors/NumberBox.h"
#include "form/FieldTable.h"
#include "form/FormView.h"
#include "form/RegisterForm.h"
#include "form/ValuePanel.h"
#include "look/Badge.h"
#include "session/DeviceEdits.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSignalSpy>

#include <memory>

using namespace GuiTestSupport;

namespace {

/// The form of the first register of a device, in an active window.
struct Stage
{
    explicit Stage(const Register& reg)
        : state(makeDevice({reg, makeRegister(QStringLiteral("OTHER"), 32)}))
        , edits(state)
        , changed(&state, &DeviceState::registerChanged)
    {
        view.resize(700, 400);
        view.showNode(edits, state.device().registerAt(0).node);
        isActive = showAndActivate(&view);
    }

    RegisterForm* form() { return view.form(); }
    QString decimal() { return text(form()->values()->decimal()); }
    QString hexadecimal() { return text(form()->values()->hexadecimal()); }
    QString binary() { return text(form()->values()->binary()); }
    ValueEditor* field(int index) { return form()->fields()->editor(index); }
    QString fieldText(int index) { return text(field(index)); }
    QComboBox* combo(int index) { return static_cast<EnumBox*>(field(index))->box(); }

    static QLineEdit* edit(QWidget* editor) { return editor->findChild<QLineEdit*>(); }
    static QString text(QWidget* editor) { return edit(editor)->text(); }

    DeviceState state;
    DeviceEdits edits;
    QSignalSpy changed;
    FormView view;
    bool isActive = false;
};

Field modeField(Access access = Access::ReadWrite)
{
    Field field = makeField(QStringLiteral("MODE"), 4, 4, access);
    field.enumeration = makeEnumeration(
        {makeName(QStringLiteral("OFF"), 0), makeName(QStringLiteral("SLOW"), 1), makeName(QStringLiteral("FAST"), 2)});
    return field;
}

Register controlRegister()
{
    Register reg =
        makeRegister(QStringLiteral("CTRL"), 32,
                     {makeField(QStringLiteral("LOW"), 0, 4), modeField(), makeField(QStringLiteral("HIGH"), 8, 24)});
    reg.resetValue = 0x10;
    return reg;
}

Register flagsRegister()
{
    QVector<Field> fields;
    for (int bit = 0; bit < 64; ++bit) {
        fields.append(makeField(QStringLiteral("FLAG%1").arg(bit), bit, 1));
    }
    return makeRegister(QStringLiteral("FLAGS"), 64, fields);
}

QStringList badges(const QWidget* parent)
{
    QStringList texts;
    for (const Badge* badge : parent->findChildren<Badge*>()) {
        texts.append(badge->text());
    }
    return texts;
}

} // namespace

class tst_RegisterForm : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void typingInTheHexBoxChangesEverythingOnce();
    void typingInAnyBoxChangesTheOthers_data();
    void typingInAnyBoxChangesTheOthers();
    void theLargestValueOfEveryWidthIsExact_data();
    void theLargestValueOfEveryWidthIsExact();
    void aFieldNeverTouchesItsNeighbours_data();
    void aFieldNeverTouchesItsNeighbours();
    void aHalfTypedTextSurvivesWhatItsOwnBoxCauses();
    void aNameIsChosenFromTheList();
    void anUnnamedValueIsShownAndKept();
    void anUnnamedValueCanBeTyped_data();
    void anUnnamedValueCanBeTyped();
    void aWrongEntryIsRefused();
    void anUnfinishedEntryGivesWayToTheValue();
    void readOnlyFieldsAreShownButNotEditable();
    void accessIsToldInWords();
    void namesForWritingAreOfferedAndToldOf();
    void theWheelScrollsTheFormOverABoxWithoutTheFocus();
    void theWheelScrollsTheFormOverAComboWithoutTheFocus();
    void theWheelStepsABoxWithTheFocus();
    void theWheelDoesNotGiveTheFocus();
    void changedFieldsAreMarkedUntilReset();
    void theFieldsBaseCanBeChanged();
    void aClickOnABitTurnsItOver();
    void aFieldBeyondTheRegisterKeepsInside();
    void toolTipsTellTheTextAndTheDescription();
    void edgesOfOtherRegistersAreLeftAlone();
};

void tst_RegisterForm::typingInTheHexBoxChangesEverythingOnce()
{
    Stage stage(controlRegister());
    QLineEdit* hex = Stage::edit(stage.form()->values()->hexadecimal());
    typeOver(hex, QStringLiteral("1"));
    stage.changed.clear();
    QSignalSpy decimal(Stage::edit(stage.form()->values()->decimal()), &QLineEdit::textChanged);
    QSignalSpy low(stage.form()->fields()->editor(0), &ValueEditor::valueEdited);
    QSignalSpy decimalEdited(stage.form()->values()->decimal(), &ValueEditor::valueEdited);

    QTest::keyClick(hex, Qt::Key_F);
    QCOMPARE(stage.state.value(0), quint64(0x1F));
    QCOMPARE(stage.changed.count(), 1);
    QCOMPARE(stage.decimal(), QStringLiteral("31"));
    QCOMPARE(stage.binary(), QStringLiteral("0b11111"));
    QCOMPARE(stage.fieldText(0), QStringLiteral("0xF"));
    QCOMPARE(stage.combo(1)->currentText(), QStringLiteral("SLOW (0x1)"));
    QCOMPARE(stage.fieldText(2), QStringLiteral("0x0"));
    QCOMPARE(low.count(), 0);
    QCOMPARE(decimalEdited.count(), 0);
}

void tst_RegisterForm::typingInAnyBoxChangesTheOthers_data()
{
    QTest::addColumn<QString>("box");
    QTest::addColumn<QString>("typed");
    QTest::newRow("decimal") << QStringLiteral("decimalBox") << QStringLiteral("4660");
    QTest::newRow("hexadecimal") << QStringLiteral("hexadecimalBox") << QStringLiteral("1234");
    QTest::newRow("hexadecimal with its prefix") << QStringLiteral("hexadecimalBox") << QStringLiteral("0x1234");
    QTest::newRow("binary") << QStringLiteral("binaryBox") << QStringLiteral("1001000110100");
}

void tst_RegisterForm::typingInAnyBoxChangesTheOthers()
{
    QFETCH(QString, box);
    QFETCH(QString, typed);
    Stage stage(controlRegister());
    typeOver(Stage::edit(stage.view.findChild<QAbstractSpinBox*>(box)), typed);
    QCOMPARE(stage.state.value(0), quint64(0x1234));
    QCOMPARE(stage.decimal(), QStringLiteral("4660"));
    QCOMPARE(stage.hexadecimal(), QStringLiteral("0x1234"));
    QCOMPARE(stage.binary(), QStringLiteral("0b1001000110100"));
    QCOMPARE(stage.fieldText(2), QStringLiteral("0x12"));
}

void tst_RegisterForm::theLargestValueOfEveryWidthIsExact_data()
{
    QTest::addColumn<int>("size");
    for (int size = 1; size <= 64; ++size) {
        QTest::addRow("%d bits", size) << size;
    }
}

void tst_RegisterForm::theLargestValueOfEveryWidthIsExact()
{
    QFETCH(int, size);
    Stage stage(makeRegister(QStringLiteral("WIDE"), size, {makeField(QStringLiteral("ALL"), 0, size)}));
    const quint64 largest = bitMask(size);
    typeOver(Stage::edit(stage.form()->values()->decimal()), QString::number(largest));
    QCOMPARE(stage.state.value(0), largest);
    QCOMPARE(stage.hexadecimal(), numberText(largest, NumberBase::Hexadecimal));
    QCOMPARE(stage.binary(), numberText(largest, NumberBase::Binary));
    QCOMPARE(stage.fieldText(0), numberText(largest, NumberBase::Hexadecimal));
    // One digit more does not fit, and is not taken.
    QTest::keyClick(Stage::edit(stage.field(0)), Qt::Key_End);
    QTest::keyClick(Stage::edit(stage.field(0)), Qt::Key_F);
    QCOMPARE(stage.state.value(0), largest);
}

void tst_RegisterForm::aFieldNeverTouchesItsNeighbours_data()
{
    QTest::addColumn<quint64>("before");
    QTest::addColumn<QString>("typed");
    QTest::addColumn<quint64>("after");
    const quint64 ones = ~quint64(0);
    QTest::newRow("all ones, then 0") << ones << QStringLiteral("0") << (ones & ~(quint64(0x1FF) << 27));
    QTest::newRow("all zeros, then the largest") << quint64(0) << QStringLiteral("1FF") << (quint64(0x1FF) << 27);
    QTest::newRow("too large, so its last digit is refused")
        << quint64(0) << QStringLiteral("FFF") << (quint64(0xFF) << 27);
}

void tst_RegisterForm::aFieldNeverTouchesItsNeighbours()
{
    QFETCH(quint64, before);
    QFETCH(QString, typed);
    QFETCH(quint64, after);
    Stage stage(makeRegister(QStringLiteral("MIX"), 64,
                             {makeField(QStringLiteral("A"), 0, 27), makeField(QStringLiteral("B"), 27, 9),
                              makeField(QStringLiteral("C"), 36, 28)}));
    stage.state.setValue(0, before);
    typeOver(Stage::edit(stage.field(1)), typed);
    QCOMPARE(stage.state.value(0), after);
}

void tst_RegisterForm::aHalfTypedTextSurvivesWhatItsOwnBoxCauses()
{
    Stage stage(controlRegister());
    stage.state.setValue(0, 0x20);
    QLineEdit* hex = Stage::edit(stage.form()->values()->hexadecimal());
    hex->setFocus();
    QTest::keyClick(hex, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(hex, Qt::Key_Delete);
    QCOMPARE(hex->text(), QStringLiteral("0x"));
    QCOMPARE(stage.state.value(0), quint64(0x20));
    QCOMPARE(stage.decimal(), QStringLiteral("32"));
    stage.form()->values()->decimal()->setFocus();
    QCOMPARE(hex->text(), QStringLiteral("0x20"));
    QCOMPARE(stage.state.value(0), quint64(0x20));
}

void tst_RegisterForm::aNameIsChosenFromTheList()
{
    Stage stage(controlRegister());
    QComboBox* combo = stage.combo(1);
    QCOMPARE(combo->count(), 3);
    QCOMPARE(combo->itemText(2), QStringLiteral("FAST (0x2)"));
    QCOMPARE(combo->itemData(2), QVariant::fromValue(quint64(2)));
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Down);
    QCOMPARE(stage.state.value(0), quint64(0x20));
    QCOMPARE(combo->currentText(), QStringLiteral("FAST (0x2)"));
    QCOMPARE(stage.hexadecimal(), QStringLiteral("0x20"));
    QCOMPARE(stage.changed.count(), 1);
}

void tst_RegisterForm::anUnnamedValueIsShownAndKept()
{
    Stage stage(controlRegister());
    stage.state.setValue(0, 0x550);
    QComboBox* combo = stage.combo(1);
    QCOMPARE(combo->currentText(), QStringLiteral("0x5 (not named)"));
    QCOMPARE(combo->currentIndex(), -1);
    stage.changed.clear();
    combo->setFocus();
    QTest::keyClick(combo, Qt::Key_Return);
    stage.field(0)->setFocus();
    QCOMPARE(combo->currentText(), QStringLiteral("0x5 (not named)"));
    QCOMPARE(stage.state.value(0), quint64(0x550));
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::anUnnamedValueCanBeTyped_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<quint64>("value");
    QTest::addColumn<QString>("shown");
    QTest::newRow("decimal") << QStringLiteral("13") << quint64(13) << QStringLiteral("0xD (not named)");
    QTest::newRow("hexadecimal") << QStringLiteral("0xe") << quint64(14) << QStringLiteral("0xE (not named)");
    QTest::newRow("binary") << QStringLiteral("0b1111") << quint64(15) << QStringLiteral("0xF (not named)");
    QTest::newRow("a name") << QStringLiteral("fast") << quint64(2) << QStringLiteral("FAST (0x2)");
    QTest::newRow("a named number") << QStringLiteral("0") << quint64(0) << QStringLiteral("OFF (0x0)");
}

void tst_RegisterForm::anUnnamedValueCanBeTyped()
{
    QFETCH(QString, typed);
    QFETCH(quint64, value);
    QFETCH(QString, shown);
    for (const bool withEnter : {true, false}) {
        Stage stage(controlRegister());
        QVERIFY(stage.isActive);
        QComboBox* combo = stage.combo(1);
        combo->setFocus();
        typeOver(combo->lineEdit(), typed);
        QCOMPARE(stage.changed.count(), 0);
        if (withEnter) {
            QTest::keyClick(combo, Qt::Key_Return);
        } else {
            stage.field(0)->setFocus();
        }
        QCOMPARE(stage.state.fieldValue(0, 1), value);
        QCOMPARE(combo->currentText(), shown);
        QCOMPARE(stage.changed.count(), 1);
    }
}

void tst_RegisterForm::aWrongEntryIsRefused()
{
    Stage stage(controlRegister());
    QComboBox* combo = stage.combo(1);
    combo->setFocus();
    typeOver(combo->lineEdit(), QStringLiteral("16"));
    QCOMPARE(combo->currentText(), QStringLiteral("1"));
    typeOver(combo->lineEdit(), QStringLiteral("FASTER"));
    QCOMPARE(combo->currentText(), QStringLiteral("FAST"));
    QTest::keyClick(combo, Qt::Key_Escape);
    QCOMPARE(combo->currentText(), QStringLiteral("SLOW (0x1)"));
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::anUnfinishedEntryGivesWayToTheValue()
{
    Stage stage(controlRegister());
    QComboBox* combo = stage.combo(1);
    combo->setFocus();
    typeOver(combo->lineEdit(), QStringLiteral("FA"));
    stage.field(0)->setFocus();
    QCOMPARE(combo->currentText(), QStringLiteral("SLOW (0x1)"));
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::readOnlyFieldsAreShownButNotEditable()
{
    Register reg =
        makeRegister(QStringLiteral("STATUS"), 32,
                     {makeField(QStringLiteral("COUNT"), 0, 4, Access::ReadOnly), modeField(Access::ReadOnly)});
    reg.access = Access::ReadOnly;
    reg.resetValue = 0x25;
    Stage stage(reg);
    QCOMPARE(stage.fieldText(0), QStringLiteral("0x5"));
    QCOMPARE(stage.fieldText(1), QStringLiteral("FAST (0x2)"));
    for (QLineEdit* edit : stage.form()->findChildren<QLineEdit*>()) {
        QVERIFY(edit->isReadOnly());
        edit->setFocus();
        typeOver(edit, QStringLiteral("1"));
        QTest::keyClick(edit, Qt::Key_Up);
        turnWheel(edit, 1);
    }
    QVERIFY(stage.form()->findChildren<QComboBox*>().isEmpty());
    QTest::mouseClick(stage.form()->bits(), Qt::LeftButton, Qt::NoModifier,
                      stage.form()->bits()->bitRect(0).center().toPoint());
    QCOMPARE(stage.state.value(0), quint64(0x25));
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::accessIsToldInWords()
{
    Register reg = makeRegister(QStringLiteral("MIXED"), 32,
                                {makeField(QStringLiteral("A"), 0, 1, Access::ReadOnly),
                                 makeField(QStringLiteral("B"), 1, 1, Access::WriteOnce),
                                 makeField(QStringLiteral("C"), 2, 1, Access::ReadWriteOnce),
                                 makeField(QStringLiteral("D"), 3, 1, Access::WriteOnly),
                                 makeField(QStringLiteral("E"), 4, 1, Access::ReadWrite)});
    reg.access = Access::WriteOnly;
    reg.hasReadAction = true;
    reg.fields[4].hasReadAction = true;
    Stage stage(reg);
    QCOMPARE(badges(stage.form()),
             QStringList({QStringLiteral("write-only"), QStringLiteral("reading has side effects"),
                          QStringLiteral("read-only"), QStringLiteral("write once"), QStringLiteral("read, write once"),
                          QStringLiteral("read-write"), QStringLiteral("reading has side effects")}));
}

void tst_RegisterForm::namesForWritingAreOfferedAndToldOf()
{
    Field field = makeField(QStringLiteral("CMD"), 0, 4);
    auto enumeration = makeEnumeration({makeName(QStringLiteral("START"), 1)});
    enumeration->forWritingOnly = true;
    field.enumeration = enumeration;
    Stage stage(makeRegister(QStringLiteral("CMD"), 8, {field}));
    QCOMPARE(badges(stage.form()), QStringList({QStringLiteral("names for writing")}));
    stage.combo(0)->setFocus();
    QTest::keyClick(stage.combo(0), Qt::Key_Down);
    QCOMPARE(stage.state.value(0), quint64(1));
}

void tst_RegisterForm::theWheelScrollsTheFormOverABoxWithoutTheFocus()
{
    Stage stage(flagsRegister());
    QVERIFY(stage.isActive);
    QScrollBar* bar = stage.view.verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    stage.form()->values()->decimal()->setFocus();
    for (ValueEditor* editor :
         {stage.field(0), stage.field(40), static_cast<ValueEditor*>(stage.form()->values()->binary())}) {
        auto* box = editor->findChild<QAbstractSpinBox*>();
        for (QWidget* under : {static_cast<QWidget*>(box), static_cast<QWidget*>(Stage::edit(box))}) {
            bar->setValue(0);
            turnWheel(under, -1);
            QCOMPARE(stage.state.value(0), quint64(0));
            QVERIFY(bar->value() > 0);
            const int down = bar->value();
            turnWheel(under, 1);
            QCOMPARE(stage.state.value(0), quint64(0));
            QVERIFY(bar->value() < down);
        }
    }
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::theWheelScrollsTheFormOverAComboWithoutTheFocus()
{
    QVector<Field> fields;
    for (int i = 0; i < 16; ++i) {
        Field field = modeField();
        field.lsb = static_cast<quint8>(4 * i);
        fields.append(field);
    }
    Stage stage(makeRegister(QStringLiteral("MODES"), 64, fields));
    QScrollBar* bar = stage.view.verticalScrollBar();
    QVERIFY(bar->maximum() > 0);
    stage.form()->values()->decimal()->setFocus();
    for (QWidget* under : {static_cast<QWidget*>(stage.combo(3)), static_cast<QWidget*>(stage.combo(3)->lineEdit())}) {
        bar->setValue(0);
        turnWheel(under, -1);
        QCOMPARE(stage.state.value(0), quint64(0));
        QVERIFY(bar->value() > 0);
    }
    stage.combo(3)->setFocus();
    turnWheel(stage.combo(3), -1);
    QCOMPARE(stage.state.value(0), quint64(1) << 12);
}

void tst_RegisterForm::theWheelStepsABoxWithTheFocus()
{
    Stage stage(flagsRegister());
    QVERIFY(stage.isActive);
    stage.form()->values()->decimal()->setFocus();
    auto* box = stage.form()->values()->decimal()->box();
    QVERIFY(box->hasFocus());
    const int scrolled = stage.view.verticalScrollBar()->value();
    turnWheel(box, 1);
    QCOMPARE(stage.state.value(0), quint64(1));
    turnWheel(Stage::edit(box), 1);
    QCOMPARE(stage.state.value(0), quint64(2));
    turnWheel(box, -1);
    QCOMPARE(stage.state.value(0), quint64(1));
    QCOMPARE(stage.view.verticalScrollBar()->value(), scrolled);
}

void tst_RegisterForm::theWheelDoesNotGiveTheFocus()
{
    Stage stage(controlRegister());
    QVERIFY(stage.isActive);
    QWidget* decimal = stage.form()->values()->decimal()->box();
    decimal->setFocus();
    for (QWidget* box : stage.form()->findChildren<QWidget*>()) {
        if (qobject_cast<QAbstractSpinBox*>(box) || qobject_cast<QComboBox*>(box)) {
            QCOMPARE(box->focusPolicy(), Qt::StrongFocus);
            QCOMPARE(box->findChild<QLineEdit*>()->focusPolicy(), Qt::StrongFocus);
            turnWheel(box->findChild<QLineEdit*>(), 1);
            QVERIFY(decimal->hasFocus());
        }
    }
}

void tst_RegisterForm::changedFieldsAreMarkedUntilReset()
{
    Stage stage(controlRegister());
    auto* reset = stage.view.findChild<QPushButton*>(QStringLiteral("resetRegister"));
    QVERIFY(!reset->isEnabled());
    typeOver(Stage::edit(stage.field(0)), QStringLiteral("7"));
    QLabel* low = nullptr;
    for (QLabel* label : stage.form()->findChildren<QLabel*>()) {
        low = label->text() == QLatin1String("LOW") ? label : low;
    }
    QVERIFY(low);
    QVERIFY(low->font().bold());
    QVERIFY(reset->isEnabled());
    QTest::mouseClick(reset, Qt::LeftButton);
    QCOMPARE(stage.state.value(0), quint64(0x10));
    QCOMPARE(stage.hexadecimal(), QStringLiteral("0x10"));
    QCOMPARE(stage.fieldText(0), QStringLiteral("0x0"));
    QVERIFY(!low->font().bold());
    QVERIFY(!reset->isEnabled());
}

void tst_RegisterForm::theFieldsBaseCanBeChanged()
{
    Stage stage(controlRegister());
    stage.state.setValue(0, 0x6A);
    stage.changed.clear();
    stage.view.setFieldBase(NumberBase::Decimal);
    QCOMPARE(stage.fieldText(0), QStringLiteral("10"));
    QCOMPARE(stage.fieldText(1), QStringLiteral("6 (not named)"));
    stage.view.setFieldBase(NumberBase::Binary);
    QCOMPARE(stage.fieldText(0), QStringLiteral("0b1010"));
    QCOMPARE(stage.combo(1)->itemText(2), QStringLiteral("FAST (0b10)"));
    QCOMPARE(stage.hexadecimal(), QStringLiteral("0x6A"));
    QCOMPARE(stage.changed.count(), 0);
}

void tst_RegisterForm::aClickOnABitTurnsItOver()
{
    Stage stage(flagsRegister());
    BitStrip* bits = stage.form()->bits();
    for (const int bit : {0, 31, 32, 63}) {
        QTest::mouseClick(bits, Qt::LeftButton, Qt::NoModifier, bits->bitRect(bit).center().toPoint());
        QCOMPARE(stage.state.value(0), quint64(1) << bit);
        QTest::mouseClick(bits, Qt::LeftButton, Qt::NoModifier, bits->bitRect(bit).center().toPoint());
        QCOMPARE(stage.state.value(0), quint64(0));
    }
}

void tst_RegisterForm::aFieldBeyondTheRegisterKeepsInside()
{
    Stage stage(makeRegister(QStringLiteral("SHORT"), 8,
                             {makeField(QStringLiteral("OVER"), 6, 8), makeField(QStringLiteral("OUT"), 20, 4)}));
    typeOver(Stage::edit(stage.field(0)), QStringLiteral("F"));
    QCOMPARE(stage.state.value(0), quint64(0));
    typeOver(Stage::edit(stage.field(0)), QStringLiteral("3"));
    QCOMPARE(stage.state.value(0), quint64(0xC0));
    QVERIFY(!stage.field(1));
}

void tst_RegisterForm::toolTipsTellTheTextAndTheDescription()
{
    Stage stage(controlRegister());
    typeOver(Stage::edit(stage.form()->values()->hexadecimal()), QStringLiteral("12345"));
    QCOMPARE(stage.form()->values()->decimal()->box()->toolTip(), QStringLiteral("74565"));
    QCOMPARE(stage.combo(1)->toolTip(), QStringLiteral("0x4 (not named)"));
    QCOMPARE(stage.combo(1)->itemData(1, Qt::ToolTipRole).toString(), QStringLiteral("What SLOW means"));
    QStringList names;
    for (QLabel* label : stage.form()->findChildren<QLabel*>()) {
        names.append(label->toolTip());
    }
    QVERIFY(names.contains(QStringLiteral("LOW [3:0]\nWhat LOW is for")));
}

void tst_RegisterForm::edgesOfOtherRegistersAreLeftAlone()
{
    Stage stage(controlRegister());
    const QString before = stage.hexadecimal();
    stage.state.setValue(1, 0xFFFFFFFF);
    QCOMPARE(stage.hexadecimal(), before);
    typeOver(Stage::edit(stage.form()->values()->hexadecimal()), QStringLiteral("0"));
    QCOMPARE(stage.state.value(1), quint64(0xFFFFFFFF));
}

TESSERA_TEST_MAIN(tst_RegisterForm)
#include "tst_registerform.moc"
