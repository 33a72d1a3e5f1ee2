// SPDX-License-Identifier: MIT
#include "IntegerSpinBoxContract.h"
#include "support/TestMain.h"

#include <Tessera/CISpinBox/CI64SpinBox.h>

using nsUI::CI64SpinBox;

//! The numbers that only 64 signed bits have.
class tst_CI64SpinBox : public IntegerSpinBoxTest<CI64SpinBox, long long>
{
    Q_OBJECT

private Q_SLOTS:
    void minusOneIsSixteenHexadecimalDigits();
    void largeAdaptiveStepsAreTakenInDoublePrecision_data();
    void largeAdaptiveStepsAreTakenInDoublePrecision();
    void aStepIsExactAtTheEndsOfTheType_data();
    void aStepIsExactAtTheEndsOfTheType();
};

void tst_CI64SpinBox::minusOneIsSixteenHexadecimalDigits()
{
    CI64SpinBox box;
    box.setRange(Limits::min(), Limits::max());
    box.setDisplayIntegerBase(16);
    box.setValue(-1);
    QCOMPARE(box.text().toLower(), "ffffffffffffffff"_s);
    QCOMPARE(stateOf(box, box.text()), QValidator::Invalid);
    QCOMPARE(stateOf(box, "7fffffffffffffff"_s), QValidator::Acceptable);
    QCOMPARE(box.valueFromText("-8000000000000000"_s), Limits::min());
}

void tst_CI64SpinBox::largeAdaptiveStepsAreTakenInDoublePrecision_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<int>("steps");
    QTest::addColumn<long long>("expected");
    // From 10^15 on the logarithm of one less rounds up to the whole number: the step does not shrink any more.
    row("10^11 up", 100000000000LL, 1, 110000000000LL);
    row("10^11 down", 100000000000LL, -1, 99000000000LL);
    row("-10^11 down", -100000000000LL, -1, -110000000000LL);
    row("-10^11 up", -100000000000LL, 1, -99000000000LL);
    row("10^12 up", 1000000000000LL, 1, 1100000000000LL);
    row("10^12 down", 1000000000000LL, -1, 990000000000LL);
    row("-10^12 down", -1000000000000LL, -1, -1100000000000LL);
    row("-10^12 up", -1000000000000LL, 1, -990000000000LL);
    row("10^13 up", 10000000000000LL, 1, 11000000000000LL);
    row("10^13 down", 10000000000000LL, -1, 9900000000000LL);
    row("-10^13 down", -10000000000000LL, -1, -11000000000000LL);
    row("-10^13 up", -10000000000000LL, 1, -9900000000000LL);
    row("10^14 up", 100000000000000LL, 1, 110000000000000LL);
    row("10^14 down", 100000000000000LL, -1, 99000000000000LL);
    row("-10^14 down", -100000000000000LL, -1, -110000000000000LL);
    row("-10^14 up", -100000000000000LL, 1, -99000000000000LL);
    row("10^15 up", 1000000000000000LL, 1, 1100000000000000LL);
    row("10^15 down", 1000000000000000LL, -1, 900000000000000LL);
    row("-10^15 down", -1000000000000000LL, -1, -1100000000000000LL);
    row("-10^15 up", -1000000000000000LL, 1, -900000000000000LL);
    row("10^16 up", 10000000000000000LL, 1, 11000000000000000LL);
    row("10^16 down", 10000000000000000LL, -1, 9000000000000000LL);
    row("-10^16 down", -10000000000000000LL, -1, -11000000000000000LL);
    row("-10^16 up", -10000000000000000LL, 1, -9000000000000000LL);
    row("10^17 up", 100000000000000000LL, 1, 110000000000000000LL);
    row("10^17 down", 100000000000000000LL, -1, 90000000000000000LL);
    row("-10^17 down", -100000000000000000LL, -1, -110000000000000000LL);
    row("-10^17 up", -100000000000000000LL, 1, -90000000000000000LL);
    row("10^18 up", 1000000000000000000LL, 1, 1100000000000000000LL);
    row("10^18 down", 1000000000000000000LL, -1, 900000000000000000LL);
    row("-10^18 down", -1000000000000000000LL, -1, -1100000000000000000LL);
    row("-10^18 up", -1000000000000000000LL, 1, -900000000000000000LL);
    row("the highest down", Limits::max(), -1, 9123372036854775807LL);
    row("one above the lowest, up", -9223372036854775807LL, 1, -9123372036854775807LL);
}

void tst_CI64SpinBox::largeAdaptiveStepsAreTakenInDoublePrecision()
{
    QFETCH(long long, value);
    QFETCH(int, steps);
    QFETCH(long long, expected);
    CI64SpinBox box;
    box.setRange(Limits::min(), Limits::max());
    box.setStepType(QAbstractSpinBox::AdaptiveDecimalStepType);
    box.setValue(value);
    box.stepBy(steps);
    QCOMPARE(box.value(), expected);
}

void tst_CI64SpinBox::aStepIsExactAtTheEndsOfTheType_data()
{
    QTest::addColumn<long long>("minimum");
    QTest::addColumn<long long>("maximum");
    QTest::addColumn<long long>("value");
    QTest::addColumn<long long>("step");
    QTest::addColumn<int>("steps");
    QTest::addColumn<bool>("wrapping");
    QTest::addColumn<long long>("expected");
    constexpr long long low = Limits::min();
    constexpr long long high = Limits::max();
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    row("beyond the highest, not wrapping", 0LL, high, high - 3, 1LL, 10, false, 0LL);
    row("beyond the highest of the type, not wrapping", low, high, high - 3, 1LL, 10, false, low + 6);
    row("beyond the highest of the type", low, high, high - 3, 1LL, 10, true, low + 6);
    row("half the type, up", 0LL, high, high, 1LL, 1, true, 0LL);
    row("half the type, down", 0LL, high, 0LL, 1LL, -1, true, high);
    row("the other half, up", low, 0LL, 0LL, 1LL, 1, true, low);
    row("all but the highest: the modulus is -1 and leaves nothing", low, high - 1, 5LL, 1LL, 1, true, low);
    row("all but the highest, down from the minimum", low, high - 1, low, 1LL, -1, true, low);
    row("all but the lowest, down", low + 1, high, 5LL, 1LL, -1, true, low + 1);
    row("all but the lowest, up from the maximum", low + 1, high, high, 1LL, 1, true, low + 1);
    row("most of the type: the modulus is -40", low + 20, high - 20, 0LL, 1LL, 1, true, low + 49);
    row("twelve quintillions", -6000000000000000000LL, 6000000000000000000LL, 0LL, 1LL, 1, true, 1LL);
    row("twelve quintillions, at the top", -6000000000000000000LL, 6000000000000000000LL, 6000000000000000000LL, 1LL, 1,
        true, -6000000000000000000LL);
    row("twelve quintillions, at the bottom", -6000000000000000000LL, 6000000000000000000LL, -6000000000000000000LL,
        1LL, -1, true, 6000000000000000000LL);
    row("a sum that wraps first", 0LL, 2000000000000000000LL, 1000000000000000000LL, 1000000000000000000LL, 9, true,
        1553255926290448389LL);
    row("a product that wraps first", 1LL, 10LL, 1LL, high, 2, true, 9LL);
    row("the fewest steps", -10LL, 10LL, 0LL, 1LL, least, true, -2LL);
    row("the most steps", -10LL, 10LL, 0LL, 1LL, most, true, 1LL);
    row("the fewest of the highest step", -10LL, 10LL, 5LL, high, least, true, 7LL);
    row("the topmost hundred, up", high - 99, high, high, 1LL, 1, true, high - 99);
    row("the topmost hundred, down", high - 99, high, high - 99, 1LL, -1, true, high);
    row("the lowest hundred, up", low, low + 99, low + 99, 1LL, 1, true, low);
    row("the lowest hundred, down", low, low + 99, low, 1LL, -1, true, low + 99);
}

void tst_CI64SpinBox::aStepIsExactAtTheEndsOfTheType()
{
    QFETCH(long long, minimum);
    QFETCH(long long, maximum);
    QFETCH(long long, value);
    QFETCH(long long, step);
    QFETCH(int, steps);
    QFETCH(bool, wrapping);
    QFETCH(long long, expected);
    CI64SpinBox box;
    box.setWrapping(wrapping);
    box.setRange(minimum, maximum);
    box.setSingleStep(step);
    box.setValue(value);
    box.stepBy(steps);
    QCOMPARE(box.value(), expected);
}

TESSERA_TEST_MAIN(tst_CI64SpinBox)
#include "tst_CI64SpinBox.moc"
