// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CI32SpinBox.h>

using nsUI::CI32SpinBox;

//! The numbers that only 32 signed bits have.
class tst_CI32SpinBox : public IntegerSpinBoxTest<CI32SpinBox, int>
{
    Q_OBJECT

private Q_SLOTS:
    void minusOneIsEightHexadecimalDigits();
    void aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus_data();
    void aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus();
};

void tst_CI32SpinBox::minusOneIsEightHexadecimalDigits()
{
    CI32SpinBox box;
    box.setRange(-1, 1000);
    box.setDisplayIntegerBase(16);
    box.setValue(-1);
    QCOMPARE(box.text().toLower(), "ffffffff"_s);
    QCOMPARE(stateOf(box, box.text()), QValidator::Invalid);
    box.setValue(255);
    QCOMPARE(box.text().toLower(), "ff"_s);
    QCOMPARE(stateOf(box, box.text()), QValidator::Acceptable);
}

void tst_CI32SpinBox::aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus_data()
{
    QTest::addColumn<int>("minimum");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<int>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<int>("expected");
    constexpr int low = Limits::min();
    constexpr int high = Limits::max();
    row("half the type, up", 0, high, high, 1, 0);
    row("half the type, down", 0, high, 0, -1, high);
    row("four billion, at the top", -2000000000, 2000000000, 2000000000, 1, -2000000000);
    row("four billion, at the bottom", -2000000000, 2000000000, -2000000000, -1, 2000000000);
    row("four billion, at zero: the modulus is -294967295", -2000000000, 2000000000, 0, 1, -1769803769);
    row("all but the highest: the modulus is -1 and leaves nothing", low, high - 1, 5, 1, low);
    row("all but the highest, no steps", low, high - 1, 5, 0, low);
    row("all but the highest, down from the minimum", low, high - 1, low, -1, low);
    row("all but the lowest, up", low + 1, high, 5, 1, low + 1);
    row("all but the lowest, down from the minimum", low + 1, high, low + 1, -1, low + 1);
    row("the topmost hundred, up", high - 99, high, high, 1, high - 99);
    row("the lowest hundred, down", low, low + 99, low, -1, low + 99);
}

void tst_CI32SpinBox::aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus()
{
    QFETCH(int, minimum);
    QFETCH(int, maximum);
    QFETCH(int, value);
    QFETCH(int, steps);
    QFETCH(int, expected);
    CI32SpinBox box;
    box.setWrapping(true);
    box.setRange(minimum, maximum);
    box.setValue(value);
    box.stepBy(steps);
    QCOMPARE(box.value(), expected);
}

TESSERA_TEST_MAIN(tst_CI32SpinBox)
#include "tst_CI32SpinBox.moc"
