// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CI8SpinBox.h>

using nsUI::CI8SpinBox;

//! The numbers that only eight signed bits have.
class tst_CI8SpinBox : public IntegerSpinBoxTest<CI8SpinBox, signed char>
{
    Q_OBJECT

private Q_SLOTS:
    void aPageUpBeyondTheTypeComesInFromBelow();
    void theLowestValueStepsAdaptivelyByOne();
    void theEndsOfTheTypeCanBeTyped();
    void minusOneIsTwoHexadecimalDigits();
};

void tst_CI8SpinBox::aPageUpBeyondTheTypeComesInFromBelow()
{
    CI8SpinBox box;
    box.setRange(0, 127);
    box.setValue(120);
    Heard heard(box);
    QTest::keyClick(&lineEditOf(box), Qt::Key_PageUp); // 130 is -126 in eight bits
    QCOMPARE(heard.take(), QStringList({textChanged("0"), valueChanged(0)}));
}

void tst_CI8SpinBox::theLowestValueStepsAdaptivelyByOne()
{
    CI8SpinBox box;
    box.setRange(-128, 127);
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.setValue(-128);
    Heard heard(box);
    box.stepBy(1);
    box.stepBy(1); // from -127 on towards zero by ten
    QCOMPARE(heard.take(),
             QStringList({textChanged("-127"), valueChanged(-127), textChanged("-117"), valueChanged(-117)}));
}

void tst_CI8SpinBox::theEndsOfTheTypeCanBeTyped()
{
    CI8SpinBox box;
    box.setRange(-128, 127);
    Heard heard(box);
    typeOver(lineEditOf(box), "-129"_s);
    QCOMPARE(box.text(), "-12"_s);
    QTest::keyClicks(&lineEditOf(box), "8"_s);
    QCOMPARE(heard.take(), QStringList({valueChanged(-1), valueChanged(-12), valueChanged(-128)}));
    typeOver(lineEditOf(box), "128"_s);
    QTest::keyClicks(&lineEditOf(box), "7"_s);
    QCOMPARE(heard.take(), QStringList({valueChanged(1), valueChanged(12), valueChanged(127)}));
}

void tst_CI8SpinBox::minusOneIsTwoHexadecimalDigits()
{
    CI8SpinBox box;
    box.setRange(-128, 127);
    box.setDisplayIntegerBase(16);
    box.setValue(-1);
    QCOMPARE(box.text().toLower(), "ff"_s);
    QCOMPARE(stateOf(box, box.text()), QValidator::Invalid);
}

TESSERA_TEST_MAIN(tst_CI8SpinBox)
#include "tst_CI8SpinBox.moc"
