// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CI16SpinBox.h>

using nsUI::CI16SpinBox;

//! The numbers that only sixteen signed bits have.
class tst_CI16SpinBox : public IntegerSpinBoxTest<CI16SpinBox, short>
{
    Q_OBJECT

private Q_SLOTS:
    void aNumberThatDoesNotFitIsInvalid();
    void adaptiveStepsEndAtOneThousand();
    void aPageDownBeyondTheTypeComesInFromAbove();
};

void tst_CI16SpinBox::aNumberThatDoesNotFitIsInvalid()
{
    CI16SpinBox box;
    box.setRange(-32768, 32767);
    QCOMPARE(stateOf(box, "-40000"_s), QValidator::Invalid);
    QCOMPARE(stateOf(box, "40000"_s), QValidator::Invalid);
    QCOMPARE(stateOf(box, "-65536"_s), QValidator::Invalid); // zero in sixteen bits
    typeOver(lineEditOf(box), "-40000"_s);
    QCOMPARE(box.text(), "-4000"_s);
    QCOMPARE(box.value(), short(-4000));
}

void tst_CI16SpinBox::adaptiveStepsEndAtOneThousand()
{
    CI16SpinBox box;
    box.setRange(-32768, 32767);
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.setValue(32767);
    box.stepBy(-1);
    QCOMPARE(box.value(), short(31767));
    box.setValue(-32767);
    box.stepBy(1);
    QCOMPARE(box.value(), short(-31767));
    box.setValue(-32768);
    box.stepBy(1);
    QCOMPARE(box.value(), short(-32767));
}

void tst_CI16SpinBox::aPageDownBeyondTheTypeComesInFromAbove()
{
    CI16SpinBox box;
    box.setRange(-32768, 0);
    box.setValue(-32765);
    QTest::keyClick(&lineEditOf(box), Qt::Key_PageDown); // -32775 is 32761 in sixteen bits
    QCOMPARE(box.value(), short(0));
}

TESSERA_TEST_MAIN(tst_CI16SpinBox)
#include "tst_CI16SpinBox.moc"
