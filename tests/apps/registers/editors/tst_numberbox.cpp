// SPDX-License-Identifier: MIT
#include "GuiTestSupport.h"
#include "support/TestMain.h"

#include "editors/NumberBox.h"

#include <QAbstractSpinBox>
#include <QClipboard>
#include <QLineEdit>
#include <QSignalSpy>

using namespace GuiTestSupport;

namespace {

/// A box in an active window, with another widget that can take the focus from it.
struct Stage
{
    explicit Stage(int width, NumberBase base, NumberBox::Mode mode = NumberBox::Mode::Editable)
        : box(new NumberBox(width, base, mode, &window))
        , other(new QLineEdit(&window))
        , edit(box->findChild<QLineEdit*>())
        , edited(box, &NumberBox::valueEdited)
    {
        other->move(0, 100);
        box->move(0, 0);
        box->adjustSize();
        isActive = showAndActivate(&window);
        other->setFocus();
    }

    QWidget window;
    NumberBox* box;
    QLineEdit* other;
    QLineEdit* edit;
    QSignalSpy edited;
    bool isActive = false;
};

quint64 editedValue(const QSignalSpy& spy, int call)
{
    return spy.at(call).at(0).value<quint64>();
}

} // namespace

class tst_NumberBox : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyWidthHoldsItsLargestValue_data();
    void everyWidthHoldsItsLargestValue();
    void everyWidthRefusesMoreThanItsLargestValue_data() { everyWidthHoldsItsLargestValue_data(); }
    void everyWidthRefusesMoreThanItsLargestValue();
    void everyWidthIsWideEnoughForItsText_data() { everyWidthHoldsItsLargestValue_data(); }
    void everyWidthIsWideEnoughForItsText();
    void settingTellsNobody();
    void typingTellsOfEachNewValueOnce();
    void stepsStopAtTheEnds_data();
    void stepsStopAtTheEnds();
    void controlWheelStopsAtTheEnds();
    void halfTypedTextGivesWayWhenTheFocusLeaves_data();
    void halfTypedTextGivesWayWhenTheFocusLeaves();
    void focusAloneChangesNothing();
    void prefixedNumbersArePastedWhateverTheBase_data();
    void prefixedNumbersArePastedWhateverTheBase();
    void readOnlyCannotBeChangedByAnyInput();
    void readOnlyTextCanBeCopied();
    void anotherBaseShowsTheSameValue();
};

void tst_NumberBox::everyWidthHoldsItsLargestValue_data()
{
    QTest::addColumn<int>("width");
    for (int width = 1; width <= 64; ++width) {
        QTest::addRow("%d bits", width) << width;
    }
}

void tst_NumberBox::everyWidthHoldsItsLargestValue()
{
    QFETCH(int, width);
    for (const NumberBase base : {NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary}) {
        Stage stage(width, base);
        typeOver(stage.edit, numberText(bitMask(width), base));
        QCOMPARE(stage.box->value(), bitMask(width));
        QCOMPARE(stage.edit->text(), numberText(bitMask(width), base));
        QCOMPARE(editedValue(stage.edited, static_cast<int>(stage.edited.count()) - 1), bitMask(width));
    }
}

void tst_NumberBox::everyWidthRefusesMoreThanItsLargestValue()
{
    QFETCH(int, width);
    Stage stage(width, NumberBase::Binary);
    stage.box->setValue(bitMask(width));
    QTest::keyClick(stage.edit, Qt::Key_End);
    QTest::keyClick(stage.edit, Qt::Key_0);
    QCOMPARE(stage.box->value(), bitMask(width));
    QCOMPARE(stage.edit->text(), numberText(bitMask(width), NumberBase::Binary));
    QCOMPARE(stage.edited.count(), 0);
}

void tst_NumberBox::everyWidthIsWideEnoughForItsText()
{
    QFETCH(int, width);
    for (const NumberBase base : {NumberBase::Decimal, NumberBase::Hexadecimal, NumberBase::Binary}) {
        Stage stage(width, base);
        stage.box->setValue(bitMask(width));
        QVERIFY(stage.edit->fontMetrics().horizontalAdvance(stage.edit->text()) < stage.edit->width());
    }
}

void tst_NumberBox::settingTellsNobody()
{
    Stage stage(32, NumberBase::Hexadecimal);
    stage.box->setValue(0x1234);
    QCOMPARE(stage.edit->text(), QStringLiteral("0x1234"));
    QCOMPARE(stage.edited.count(), 0);
}

void tst_NumberBox::typingTellsOfEachNewValueOnce()
{
    Stage stage(32, NumberBase::Hexadecimal);
    typeOver(stage.edit, QStringLiteral("1F"));
    QCOMPARE(stage.edited.count(), 2);
    QCOMPARE(editedValue(stage.edited, 0), quint64(0x1));
    QCOMPARE(editedValue(stage.edited, 1), quint64(0x1F));
}

void tst_NumberBox::stepsStopAtTheEnds_data()
{
    QTest::addColumn<int>("width");
    QTest::addColumn<quint64>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<quint64>("to");
    for (const int width : {4, 8, 13, 16, 32, 63, 64}) {
        QTest::addRow("page down near 0, %d bits", width) << width << quint64(5) << int(Qt::Key_PageDown) << quint64(0);
        QTest::addRow("down at 0, %d bits", width) << width << quint64(0) << int(Qt::Key_Down) << quint64(0);
        QTest::addRow("page up near the largest, %d bits", width)
            << width << bitMask(width) - 5 << int(Qt::Key_PageUp) << bitMask(width);
        QTest::addRow("up at the largest, %d bits", width)
            << width << bitMask(width) << int(Qt::Key_Up) << bitMask(width);
        QTest::addRow("up below the largest, %d bits", width)
            << width << bitMask(width) - 1 << int(Qt::Key_Up) << bitMask(width);
    }
}

void tst_NumberBox::stepsStopAtTheEnds()
{
    QFETCH(int, width);
    QFETCH(quint64, from);
    QFETCH(int, key);
    QFETCH(quint64, to);
    Stage stage(width, NumberBase::Decimal);
    stage.box->setValue(from);
    QTest::keyClick(stage.box->box(), static_cast<Qt::Key>(key));
    QCOMPARE(stage.box->value(), to);
    QCOMPARE(stage.edited.count(), from == to ? 0 : 1);
}

void tst_NumberBox::controlWheelStopsAtTheEnds()
{
    Stage stage(8, NumberBase::Decimal);
    stage.box->setValue(3);
    stage.box->setFocus();
    QVERIFY(stage.box->box()->hasFocus());
    turnWheel(stage.box->box(), -1, Qt::ControlModifier);
    QCOMPARE(stage.box->value(), quint64(0));
}

void tst_NumberBox::halfTypedTextGivesWayWhenTheFocusLeaves_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("shown");
    QTest::newRow("decimal") << 10 << QStringLiteral("42");
    QTest::newRow("hexadecimal") << 16 << QStringLiteral("0x2A");
    QTest::newRow("binary") << 2 << QStringLiteral("0b101010");
}

void tst_NumberBox::halfTypedTextGivesWayWhenTheFocusLeaves()
{
    QFETCH(int, base);
    QFETCH(QString, shown);
    Stage stage(8, static_cast<NumberBase>(base));
    QVERIFY(stage.isActive);
    stage.box->setValue(42);
    stage.box->setFocus();
    QTest::keyClick(stage.edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(stage.edit, Qt::Key_Delete);
    QVERIFY(stage.edit->text() != shown);
    QCOMPARE(stage.box->value(), quint64(42));
    stage.other->setFocus();
    QCOMPARE(stage.edit->text(), shown);
    QCOMPARE(stage.box->value(), quint64(42));
    QCOMPARE(stage.edited.count(), 0);
}

void tst_NumberBox::focusAloneChangesNothing()
{
    Stage stage(64, NumberBase::Decimal);
    stage.box->setValue(~quint64(0));
    stage.box->setFocus(Qt::TabFocusReason);
    stage.other->setFocus(Qt::TabFocusReason);
    QCOMPARE(stage.box->value(), ~quint64(0));
    QCOMPARE(stage.edit->text(), QStringLiteral("18446744073709551615"));
    QCOMPARE(stage.edited.count(), 0);
}

void tst_NumberBox::prefixedNumbersArePastedWhateverTheBase_data()
{
    QTest::addColumn<int>("base");
    QTest::addColumn<QString>("pasted");
    QTest::addColumn<quint64>("value");
    QTest::newRow("hexadecimal into decimal") << 10 << QStringLiteral("0x1F") << quint64(0x1F);
    QTest::newRow("binary into decimal") << 10 << QStringLiteral("0b101") << quint64(5);
    QTest::newRow("hexadecimal into binary") << 2 << QStringLiteral("0xff") << quint64(0xFF);
    QTest::newRow("with a C suffix") << 16 << QStringLiteral("0x1FUL") << quint64(0x1F);
    QTest::newRow("with separators and space") << 16 << QStringLiteral(" 0x12_34\n") << quint64(0x1234);
    QTest::newRow("digits that look like a binary prefix") << 16 << QStringLiteral("0b10") << quint64(0xB10);
    QTest::newRow("too large: refused") << 10 << QStringLiteral("0x10000") << quint64(7);
    QTest::newRow("no number: refused") << 10 << QStringLiteral("0xyz") << quint64(7);
}

void tst_NumberBox::prefixedNumbersArePastedWhateverTheBase()
{
    QFETCH(int, base);
    QFETCH(QString, pasted);
    QFETCH(quint64, value);
    Stage stage(16, static_cast<NumberBase>(base));
    stage.box->setValue(7);
    stage.box->setFocus();
    QApplication::clipboard()->setText(pasted);
    QTest::keyClick(stage.edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(stage.edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(stage.box->value(), value);
}

void tst_NumberBox::readOnlyCannotBeChangedByAnyInput()
{
    Stage stage(16, NumberBase::Hexadecimal, NumberBox::Mode::ReadOnly);
    stage.box->setValue(0x55);
    stage.box->setFocus();
    typeOver(stage.edit, QStringLiteral("1"));
    for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Delete}) {
        QTest::keyClick(stage.edit, key);
        QTest::keyClick(stage.box->box(), key);
    }
    turnWheel(stage.box->box(), 1);
    turnWheel(stage.edit, -1);
    stage.box->box()->stepBy(3);
    QApplication::clipboard()->setText(QStringLiteral("0x1"));
    QTest::keyClick(stage.edit, Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(stage.box->value(), quint64(0x55));
    QCOMPARE(stage.edit->text(), QStringLiteral("0x55"));
    QCOMPARE(stage.edited.count(), 0);
}

void tst_NumberBox::readOnlyTextCanBeCopied()
{
    Stage stage(16, NumberBase::Hexadecimal, NumberBox::Mode::ReadOnly);
    stage.box->setValue(0x55);
    stage.box->setFocus();
    QApplication::clipboard()->clear();
    QTest::keyClick(stage.edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(stage.edit, Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("0x55"));
}

void tst_NumberBox::anotherBaseShowsTheSameValue()
{
    Stage stage(64, NumberBase::Decimal);
    stage.box->setValue(~quint64(0));
    stage.box->setBase(NumberBase::Hexadecimal);
    QCOMPARE(stage.edit->text(), QStringLiteral("0xFFFFFFFFFFFFFFFF"));
    stage.box->setBase(NumberBase::Binary);
    QCOMPARE(stage.edit->text(), QStringLiteral("0b") + QString(64, QLatin1Char('1')));
    stage.box->setBase(NumberBase::Decimal);
    QCOMPARE(stage.edit->text(), QStringLiteral("18446744073709551615"));
    QCOMPARE(stage.box->value(), ~quint64(0));
    QCOMPARE(stage.edited.count(), 0);
}

TESSERA_TEST_MAIN(tst_NumberBox)
#include "tst_numberbox.moc"
