// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CU64SpinBox.h>

using nsUI::CU64SpinBox;

//! The numbers that only 64 unsigned bits have.
class tst_CU64SpinBox : public IntegerSpinBoxTest<CU64SpinBox, unsigned long long>
{
    Q_OBJECT

private Q_SLOTS:
    void theHighestValueCanBeTypedAndNoneAbove();
    void largeAdaptiveStepsAreTakenInDoublePrecision_data();
    void largeAdaptiveStepsAreTakenInDoublePrecision();
    void aStepIsExactAtTheEndsOfTheType_data();
    void aStepIsExactAtTheEndsOfTheType();
};

void tst_CU64SpinBox::theHighestValueCanBeTypedAndNoneAbove()
{
    CU64SpinBox box;
    box.setMaximum(18446744073709551615ULL);
    QCOMPARE(stateOf(box, "18446744073709551616"_s), QValidator::Invalid);
    QCOMPARE(stateOf(box, "18446744073709551615"_s), QValidator::Acceptable);
    typeOver(lineEditOf(box), "18446744073709551616"_s);
    QCOMPARE(box.text(), "1844674407370955161"_s);
    QTest::keyClicks(&lineEditOf(box), "5"_s);
    QCOMPARE(box.value(), 18446744073709551615ULL);
    box.setDisplayIntegerBase(16);
    QCOMPARE(box.text().toLower(), "ffffffffffffffff"_s);
}

void tst_CU64SpinBox::largeAdaptiveStepsAreTakenInDoublePrecision_data()
{
    QTest::addColumn<unsigned long long>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<unsigned long long>("expected");
    // From 10^15 on the logarithm of one less rounds up to the whole number: the step does not shrink any more.
    row("10^11 up", 100000000000ULL, 1, 110000000000ULL);
    row("10^11 down", 100000000000ULL, -1, 99000000000ULL);
    row("10^12 up", 1000000000000ULL, 1, 1100000000000ULL);
    row("10^12 down", 1000000000000ULL, -1, 990000000000ULL);
    row("10^13 up", 10000000000000ULL, 1, 11000000000000ULL);
    row("10^13 down", 10000000000000ULL, -1, 9900000000000ULL);
    row("10^14 up", 100000000000000ULL, 1, 110000000000000ULL);
    row("10^14 down", 100000000000000ULL, -1, 99000000000000ULL);
    row("10^15 up", 1000000000000000ULL, 1, 1100000000000000ULL);
    row("10^15 down", 1000000000000000ULL, -1, 900000000000000ULL);
    row("10^16 up", 10000000000000000ULL, 1, 11000000000000000ULL);
    row("10^16 down", 10000000000000000ULL, -1, 9000000000000000ULL);
    row("10^17 up", 100000000000000000ULL, 1, 110000000000000000ULL);
    row("10^17 down", 100000000000000000ULL, -1, 90000000000000000ULL);
    row("10^18 up", 1000000000000000000ULL, 1, 1100000000000000000ULL);
    row("10^18 down", 1000000000000000000ULL, -1, 900000000000000000ULL);
    row("10^19 up", 10000000000000000000ULL, 1, 11000000000000000000ULL);
    row("10^19 down", 10000000000000000000ULL, -1, 9000000000000000000ULL);
    row("the highest down", 18446744073709551615ULL, -1, 17446744073709551615ULL);
    row("the highest up", 18446744073709551615ULL, 1, 999999999999999999ULL);
}

void tst_CU64SpinBox::largeAdaptiveStepsAreTakenInDoublePrecision()
{
    QFETCH(unsigned long long, value);
    QFETCH(int, steps);
    QFETCH(unsigned long long, expected);
    CU64SpinBox box;
    box.setRange(Limits::min(), Limits::max());
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.setValue(value);
    box.stepBy(steps);
    QCOMPARE(box.value(), expected);
}

void tst_CU64SpinBox::aStepIsExactAtTheEndsOfTheType_data()
{
    QTest::addColumn<unsigned long long>("minimum");
    QTest::addColumn<unsigned long long>("maximum");
    QTest::addColumn<unsigned long long>("value");
    QTest::addColumn<unsigned long long>("step");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("wrapping");
    QTest::addColumn<unsigned long long>("expected");
    constexpr unsigned long long high = Limits::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    row("below zero, wrapping: the remainder of 2^64 - 1", 0ULL, 99ULL, 0ULL, 1ULL, -1, true, 15ULL);
    row("below zero, not wrapping", 0ULL, 99ULL, 5ULL, 1ULL, -10, false, 99ULL);
    row("beyond the highest, not wrapping", 0ULL, high, high, 1ULL, 1, false, 0ULL);
    row("beyond the highest", 0ULL, high, high, 1ULL, 1, true, 0ULL);
    row("below the lowest", 0ULL, high, 0ULL, 1ULL, -1, true, high);
    row("all but the highest, up", 0ULL, high - 1, high - 1, 1ULL, 1, true, 0ULL);
    row("all but the highest, down: a remainder of nothing", 0ULL, high - 1, 0ULL, 1ULL, -1, true, 0ULL);
    row("all but zero, down", 1ULL, high, 1ULL, 1ULL, -1, true, 1ULL);
    row("all but zero, up", 1ULL, high, high, 1ULL, 1, true, 1ULL);
    row("half the type and one, up", 0ULL, 9223372036854775808ULL, 9223372036854775808ULL, 1ULL, 1, true, 0ULL);
    row("a product that wraps to nothing", 0ULL, high, 9223372036854775808ULL, 9223372036854775808ULL, 2, false,
        9223372036854775808ULL);
    row("a sum that wraps", 0ULL, high, 10000000000000000000ULL, 1000000000000000000ULL, 9, false,
        553255926290448384ULL);
    row("below the minimum", 10ULL, 19ULL, 10ULL, 1ULL, -1, true, 15ULL);
    row("the fewest steps", 0ULL, high, high, 1ULL, least, true, 18446744071562067967ULL);
    row("the fewest steps of seven", 0ULL, 99ULL, 3ULL, 7ULL, least, true, 83ULL);
    row("the most of the highest step", 0ULL, 99ULL, 3ULL, high, most, true, 72ULL);
    row("the topmost hundred, up, not wrapping", high - 99, high, high - 5, 1ULL, 10, false, high - 99);
    row("the topmost hundred, up", high - 99, high, high - 5, 1ULL, 10, true, high - 95);
    row("the topmost hundred, down", high - 99, high, high - 99, 1ULL, -1, true, high - 84);
}

void tst_CU64SpinBox::aStepIsExactAtTheEndsOfTheType()
{
    QFETCH(unsigned long long, minimum);
    QFETCH(unsigned long long, maximum);
    QFETCH(unsigned long long, value);
    QFETCH(unsigned long long, step);
    QFETCH(int, steps);
    QFETCH(bool, wrapping);
    QFETCH(unsigned long long, expected);
    CU64SpinBox box;
    box.setWrapping(wrapping);
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    box.setValue(value);
    box.stepBy(steps);
    QCOMPARE(box.value(), expected);
}

TESSERA_TEST_MAIN(tst_CU64SpinBox)
#include "tst_CU64SpinBox.moc"
