// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CU32SpinBox.h>

using nsUI::CU32SpinBox;

//! The numbers that only 32 unsigned bits have.
class tst_CU32SpinBox : public IntegerSpinBoxTest<CU32SpinBox, unsigned int>
{
    Q_OBJECT

private Q_SLOTS:
    void aStepBelowTheMinimumTakesTheRemainderOfTheWrappedDifference_data();
    void aStepBelowTheMinimumTakesTheRemainderOfTheWrappedDifference();
    void valuesBeyondTheSignedRangeAreWhole();
};

void tst_CU32SpinBox::aStepBelowTheMinimumTakesTheRemainderOfTheWrappedDifference_data()
{
    QTest::addColumn<unsigned int>("minimum");
    QTest::addColumn<unsigned int>("maximum");
    QTest::addColumn<unsigned int>("expected");
    // One step down from the minimum: 4294967295 above it, taken modulo the size of the range.
    row("0 to 99", 0U, 99U, 95U);
    row("10 to 19", 10U, 19U, 15U);
    row("a power of two", 0U, 255U, 255U);
    row("the whole type", 0U, 4294967295U, 4294967295U);
    row("all but the highest", 0U, 4294967294U, 0U);
}

void tst_CU32SpinBox::aStepBelowTheMinimumTakesTheRemainderOfTheWrappedDifference()
{
    QFETCH(unsigned int, minimum);
    QFETCH(unsigned int, maximum);
    QFETCH(unsigned int, expected);
    CU32SpinBox box;
    box.setWrapping(true);
    box.setRange(minimum, maximum);
    box.stepBy(-1);
    QCOMPARE(box.value(), expected);
}

void tst_CU32SpinBox::valuesBeyondTheSignedRangeAreWhole()
{
    CU32SpinBox box;
    box.setRange(0, 4294967295U);
    typeOver(lineEditOf(box), "4294967295"_s);
    QCOMPARE(box.value(), 4294967295U);
    box.setDisplayIntegerBase(16);
    QCOMPARE(box.text().toLower(), "ffffffff"_s);
    QCOMPARE(stateOf(box, "100000000"_s), QValidator::Invalid);
    box.setDisplayIntegerBase(10);
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.stepBy(-1);
    QCOMPARE(box.value(), 4194967295U);
}

TESSERA_TEST_MAIN(tst_CU32SpinBox)
#include "tst_CU32SpinBox.moc"
