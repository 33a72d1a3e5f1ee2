// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CU8SpinBox.h>

using nsUI::CU8SpinBox;

//! The numbers that only eight unsigned bits have.
class tst_CU8SpinBox : public IntegerSpinBoxTest<CU8SpinBox, unsigned char>
{
    Q_OBJECT

private Q_SLOTS:
    void aPageDownBelowZeroComesInFromAbove();
    void aNumberThatDoesNotFitIsInvalid();
    void theHighestValueIsTwoHexadecimalDigits();
};

void tst_CU8SpinBox::aPageDownBelowZeroComesInFromAbove()
{
    CU8SpinBox box;
    box.setValue(5);
    Heard heard(box);
    QTest::keyClick(&lineEditOf(box), Qt::Key_PageDown); // -5 is 251 in eight bits
    QCOMPARE(heard.take(), QStringList({textChanged("99"), valueChanged(99)}));
}

void tst_CU8SpinBox::aNumberThatDoesNotFitIsInvalid()
{
    CU8SpinBox box;
    box.setRange(0, 255);
    QCOMPARE(stateOf(box, "256"_s), QValidator::Invalid); // zero in eight bits
    QCOMPARE(stateOf(box, "-1"_s), QValidator::Invalid);
    Heard heard(box);
    typeOver(lineEditOf(box), "256"_s);
    QCOMPARE(box.text(), "25"_s);
    QTest::keyClicks(&lineEditOf(box), "5"_s);
    QCOMPARE(heard.take(), QStringList({valueChanged(2), valueChanged(25), valueChanged(255)}));
}

void tst_CU8SpinBox::theHighestValueIsTwoHexadecimalDigits()
{
    CU8SpinBox box;
    box.setRange(0, 255);
    box.setDisplayIntegerBase(16);
    box.setValue(255);
    QCOMPARE(box.text().toLower(), "ff"_s);
    typeOver(lineEditOf(box), "fe"_s);
    QCOMPARE(box.value(), static_cast<unsigned char>(254));
}

TESSERA_TEST_MAIN(tst_CU8SpinBox)
#include "tst_CU8SpinBox.moc"
