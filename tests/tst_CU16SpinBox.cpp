// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CU16SpinBox.h>

using nsUI::CU16SpinBox;

//! The numbers that only sixteen unsigned bits have.
class tst_CU16SpinBox : public IntegerSpinBoxTest<CU16SpinBox, unsigned short>
{
    Q_OBJECT

private Q_SLOTS:
    void aPageUpBeyondTheTypeComesInFromBelow();
    void adaptiveStepsEndAtOneThousand();
};

void tst_CU16SpinBox::aPageUpBeyondTheTypeComesInFromBelow()
{
    CU16SpinBox box;
    box.setRange(0, 65535);
    box.setValue(65530);
    Heard heard(box);
    QTest::keyClick(&lineEditOf(box), Qt::Key_PageUp); // 65540 is 4 in sixteen bits
    QCOMPARE(heard.take(), QStringList({textChanged("4"), valueChanged(4)}));
}

void tst_CU16SpinBox::adaptiveStepsEndAtOneThousand()
{
    CU16SpinBox box;
    box.setRange(0, 65535);
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.setValue(65535);
    box.stepBy(-1);
    QCOMPARE(box.value(), static_cast<unsigned short>(64535));
    box.stepBy(1);
    QCOMPARE(box.value(), static_cast<unsigned short>(65535));
}

TESSERA_TEST_MAIN(tst_CU16SpinBox)
#include "tst_CU16SpinBox.moc"
