// SPDX-License-Identifier: MIT
#include "support/TestMain.h"

#include <Tessera/CISpinBox/IntegerStep_p.h>

#include <QTest>

#include <algorithm>
#include <limits>
#include <type_traits>
#include <vector>

namespace IntegerStep = nsUI::IntegerStep;

static_assert(std::is_same_v<IntegerStep::Work<signed char>, int>);
static_assert(std::is_same_v<IntegerStep::Work<unsigned char>, int>);
static_assert(std::is_same_v<IntegerStep::Work<short>, int>);
static_assert(std::is_same_v<IntegerStep::Work<unsigned short>, int>);
static_assert(std::is_same_v<IntegerStep::Work<int>, int>);
static_assert(std::is_same_v<IntegerStep::Work<unsigned int>, unsigned int>);
static_assert(std::is_same_v<IntegerStep::Work<long long>, long long>);
static_assert(std::is_same_v<IntegerStep::Work<unsigned long long>, unsigned long long>);

namespace {

constexpr int most = std::numeric_limits<int>::max();
constexpr int least = std::numeric_limits<int>::min();

//! The result of 32-bit signed arithmetic whose exact result is \a n.
qint64 in32Bits(qint64 n)
{
    return static_cast<qint32>(n);
}

//! Where a step of a type of 8 or 16 bits leads before it is clamped, in 64-bit arithmetic.
template <class T>
T moved(T value, T step, int steps, T minimum, T maximum, bool wrapping)
{
    qint64 n = in32Bits(value + in32Bits(qint64(step) * steps));
    if (wrapping) {
        const qint64 modulus = qint64(maximum) - minimum + 1;
        qint64 remainder = in32Bits(n - minimum) % modulus;
        if (remainder < 0)
            remainder += modulus;
        n = minimum + remainder;
    }
    return static_cast<T>(n);
}

template <class T>
void compareMovedOverAllValues(const std::vector<T>& bounds, const std::vector<T>& singleSteps,
                               const std::vector<int>& stepCounts)
{
    for (const T minimum : bounds) {
        for (const T maximum : bounds) {
            if (minimum > maximum)
                continue;
            for (int n = minimum; n <= maximum; ++n) {
                const auto value = static_cast<T>(n);
                for (const T step : singleSteps) {
                    for (const int steps : stepCounts) {
                        for (const bool wrapping : {false, true}) {
                            const T actual = IntegerStep::moved(value, step, steps, minimum, maximum, wrapping);
                            const T expected = moved(value, step, steps, minimum, maximum, wrapping);
                            if (actual != expected) {
                                qInfo("%d + %d * %d in %d..%d%s", value, step, steps, minimum, maximum,
                                      wrapping ? ", wrapping" : "");
                                QCOMPARE(actual, expected);
                            }
                        }
                    }
                }
            }
        }
    }
}

template <class T>
T digitCountedStep(T value, int steps)
{
    qint64 magnitude = value;
    const bool isNegative = magnitude < 0;
    if (isNegative)
        magnitude = value == std::numeric_limits<T>::min() ? 0 : -magnitude;
    if (magnitude < 100)
        return 1;
    if (isNegative != (steps < 0))
        --magnitude;
    qint64 step = 1;
    for (; magnitude >= 100; magnitude /= 10)
        step *= 10;
    return static_cast<T>(step);
}

template <class T>
void compareAdaptiveOverAllValues()
{
    for (int n = std::numeric_limits<T>::min(); n <= std::numeric_limits<T>::max(); ++n) {
        for (const int steps : {1, -1, most, least}) {
            if (IntegerStep::adaptive(static_cast<T>(n), steps) != digitCountedStep(static_cast<T>(n), steps)) {
                qInfo("%d, %d steps", n, steps);
                QCOMPARE(IntegerStep::adaptive(static_cast<T>(n), steps), digitCountedStep(static_cast<T>(n), steps));
            }
        }
    }
}

//! A remainder is the offset but for whole moduli, and from 0 up to one below a positive modulus.
template <class W>
void compareRemainders()
{
    using IntegerStep::remainder;
    QCOMPARE(remainder(W(0), W(10)), W(0));
    QCOMPARE(remainder(W(9), W(10)), W(9));
    QCOMPARE(remainder(W(10), W(10)), W(0));
    QCOMPARE(remainder(W(123), W(10)), W(3));
    QCOMPARE(remainder(W(5), W(1)), W(0));
    QCOMPARE(remainder(std::numeric_limits<W>::max(), std::numeric_limits<W>::max()), W(0));
    if constexpr (std::is_signed_v<W>) {
        QCOMPARE(remainder(W(-1), W(10)), W(9));
        QCOMPARE(remainder(W(-10), W(10)), W(0));
        QCOMPARE(remainder(W(-123), W(10)), W(7));
        QCOMPARE(remainder(W(-1), W(1)), W(0));
        QCOMPARE(remainder(std::numeric_limits<W>::min(), W(2)), W(0));
        // A modulus of a range wider than half the type has wrapped: it is added to a negative remainder all the same.
        QCOMPARE(remainder(W(7), W(-10)), W(7));
        QCOMPARE(remainder(W(-7), W(-10)), W(-17));
        QCOMPARE(remainder(W(7), W(-1)), W(0));
        QCOMPARE(remainder(W(-7), W(-1)), W(0));
        QCOMPARE(remainder(std::numeric_limits<W>::min(), W(-1)), W(0));
        QCOMPARE(remainder(W(-1), std::numeric_limits<W>::min()), std::numeric_limits<W>::max());
        QCOMPARE(remainder(std::numeric_limits<W>::min(), std::numeric_limits<W>::min()), W(0));
    }
}

//! All values of a signed type but one have a modulus of -1, which leaves a remainder of nothing and no trap.
template <class T>
void compareWrapsOverAllValuesButOne()
{
    constexpr T low = std::numeric_limits<T>::min();
    constexpr T high = std::numeric_limits<T>::max();
    for (const T value : {T(low + 1), T(-1), T(0), T(5), T(high - 1)}) {
        for (const int steps : {1, -1, 0, 10, most, least}) {
            QCOMPARE(IntegerStep::moved(value, T(1), steps, low, T(high - 1), true), low);
            QCOMPARE(IntegerStep::moved(value, T(7), steps, T(low + 1), high, true), T(low + 1));
        }
    }
    QCOMPARE(IntegerStep::moved(low, T(0), 1, low, T(high - 1), true), low);
    QCOMPARE(IntegerStep::moved(T(5), T(1), 1, low, T(high - 1), false), T(6));
}

template <class T>
void compareWrapsOverTheWholeType()
{
    constexpr T low = std::numeric_limits<T>::min();
    constexpr T high = std::numeric_limits<T>::max();
    for (const bool wrapping : {false, true}) {
        QCOMPARE(IntegerStep::moved(high, T(1), 1, low, high, wrapping), low);
        QCOMPARE(IntegerStep::moved(low, T(1), -1, low, high, wrapping), high);
        QCOMPARE(IntegerStep::moved(high, T(1), 10, low, high, wrapping), T(low + 9));
        QCOMPARE(IntegerStep::moved(low, T(1), -10, low, high, wrapping), T(high - 9));
        QCOMPARE(IntegerStep::moved(T(5), high, 1, low, high, wrapping), T(low + 4));
        QCOMPARE(IntegerStep::moved(T(5), high, 0, low, high, wrapping), T(5));
        for (const int steps : {most, least}) {
            using Bits = std::make_unsigned_t<T>;
            const quint64 sum = quint64(5) + quint64(high) * static_cast<quint64>(steps);
            QCOMPARE(IntegerStep::moved(T(5), high, steps, low, high, wrapping),
                     static_cast<T>(static_cast<Bits>(sum)));
        }
    }
}

} // namespace

//! The arithmetic behind the steps of the integer spin boxes, without any box.
class tst_IntegerStep : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyAdaptiveStepOfTheNarrowTypesIsATenth();
    void theMostNegativeValueStepsByOne();
    void anAdaptiveStepIsSmallerTowardsZero_data();
    void anAdaptiveStepIsSmallerTowardsZero();
    void anAdaptiveStepOfAnUnsignedValueIsTakenFromAllItsBits();
    void aRemainderIsMadeNonNegativeByItsModulus();
    void aStepOverAllValuesButOneGoesToTheMinimum();
    void everyStepOfAnEightBitValueAgreesWithPlainArithmetic();
    void everyStepOfASixteenBitValueAgreesWithPlainArithmetic();
    void aStepOverTheWholeTypeWrapsInTheType();
    void aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus();
    void aStepIsNotClamped();
};

void tst_IntegerStep::everyAdaptiveStepOfTheNarrowTypesIsATenth()
{
    compareAdaptiveOverAllValues<signed char>();
    compareAdaptiveOverAllValues<unsigned char>();
    compareAdaptiveOverAllValues<short>();
    compareAdaptiveOverAllValues<unsigned short>();
}

void tst_IntegerStep::theMostNegativeValueStepsByOne()
{
    for (const int steps : {1, -1, most, least}) {
        QCOMPARE(IntegerStep::adaptive(std::numeric_limits<signed char>::min(), steps), static_cast<signed char>(1));
        QCOMPARE(IntegerStep::adaptive(std::numeric_limits<short>::min(), steps), short(1));
        QCOMPARE(IntegerStep::adaptive(std::numeric_limits<int>::min(), steps), 1);
        QCOMPARE(IntegerStep::adaptive(std::numeric_limits<long long>::min(), steps), 1LL);
    }
}

void tst_IntegerStep::anAdaptiveStepIsSmallerTowardsZero_data()
{
    QTest::addColumn<long long>("value");
    QTest::addColumn<long long>("away");
    QTest::addColumn<long long>("towards");
    QTest::newRow("0") << 0LL << 1LL << 1LL;
    QTest::newRow("99") << 99LL << 1LL << 1LL;
    QTest::newRow("100") << 100LL << 10LL << 1LL;
    QTest::newRow("101") << 101LL << 10LL << 10LL;
    QTest::newRow("999") << 999LL << 10LL << 10LL;
    QTest::newRow("10^3") << 1000LL << 100LL << 10LL;
    QTest::newRow("10^6") << 1000000LL << 100000LL << 10000LL;
    QTest::newRow("2147483647") << 2147483647LL << 100000000LL << 100000000LL;
    QTest::newRow("10^9") << 1000000000LL << 100000000LL << 10000000LL;
    QTest::newRow("10^14") << 100000000000000LL << 10000000000000LL << 1000000000000LL;
    // In double precision the logarithm of one less is a whole number from here on.
    QTest::newRow("10^15") << 1000000000000000LL << 100000000000000LL << 100000000000000LL;
    QTest::newRow("10^18") << 1000000000000000000LL << 100000000000000000LL << 100000000000000000LL;
    QTest::newRow("2^63 - 1") << 9223372036854775807LL << 100000000000000000LL << 100000000000000000LL;
}

void tst_IntegerStep::anAdaptiveStepIsSmallerTowardsZero()
{
    QFETCH(long long, value);
    QFETCH(long long, away);
    QFETCH(long long, towards);
    for (const int steps : {1, 10, most}) {
        QCOMPARE(IntegerStep::adaptive(value, steps), away);
        QCOMPARE(IntegerStep::adaptive(value, -steps), towards);
        if (value != 0) {
            QCOMPARE(IntegerStep::adaptive(-value, -steps), away);
            QCOMPARE(IntegerStep::adaptive(-value, steps), towards);
        }
        const auto bits = static_cast<unsigned long long>(value);
        QCOMPARE(IntegerStep::adaptive(bits, steps), static_cast<unsigned long long>(away));
        QCOMPARE(IntegerStep::adaptive(bits, -steps), static_cast<unsigned long long>(towards));
        if (value <= most) {
            QCOMPARE(IntegerStep::adaptive(static_cast<int>(value), steps), static_cast<int>(away));
            QCOMPARE(IntegerStep::adaptive(static_cast<int>(value), -steps), static_cast<int>(towards));
            QCOMPARE(IntegerStep::adaptive(static_cast<uint>(value), steps), static_cast<uint>(away));
            QCOMPARE(IntegerStep::adaptive(static_cast<uint>(value), -steps), static_cast<uint>(towards));
        }
    }
}

void tst_IntegerStep::anAdaptiveStepOfAnUnsignedValueIsTakenFromAllItsBits()
{
    QCOMPARE(IntegerStep::adaptive(4294967295U, 1), 100000000U);
    QCOMPARE(IntegerStep::adaptive(4294967295U, -1), 100000000U);
    QCOMPARE(IntegerStep::adaptive(18446744073709551615ULL, 1), 1000000000000000000ULL);
    QCOMPARE(IntegerStep::adaptive(18446744073709551615ULL, -1), 1000000000000000000ULL);
    QCOMPARE(IntegerStep::adaptive(10000000000000000000ULL, 1), 1000000000000000000ULL);
    QCOMPARE(IntegerStep::adaptive(9223372036854775808ULL, 1), 100000000000000000ULL);
}

void tst_IntegerStep::aRemainderIsMadeNonNegativeByItsModulus()
{
    compareRemainders<int>();
    compareRemainders<unsigned int>();
    compareRemainders<long long>();
    compareRemainders<unsigned long long>();
}

void tst_IntegerStep::aStepOverAllValuesButOneGoesToTheMinimum()
{
    compareWrapsOverAllValuesButOne<int>();
    compareWrapsOverAllValuesButOne<long long>();
}

void tst_IntegerStep::everyStepOfAnEightBitValueAgreesWithPlainArithmetic()
{
    std::vector<int> stepCounts = {most, most - 1, least, least + 1, 1000000, -1000000};
    for (int steps = -300; steps <= 300; steps += 7)
        stepCounts.push_back(steps);
    compareMovedOverAllValues<signed char>({-128, -127, -100, -10, -1, 0, 1, 10, 99, 126, 127}, {0, 1, 3, 100, 127},
                                           stepCounts);
    compareMovedOverAllValues<unsigned char>({0, 1, 10, 99, 100, 127, 128, 200, 254, 255}, {0, 1, 3, 100, 255},
                                             stepCounts);
}

void tst_IntegerStep::everyStepOfASixteenBitValueAgreesWithPlainArithmetic()
{
    const std::vector<int> stepCounts = {0, 1, -1, 10, -10, 1000, -1000, most, least};
    compareMovedOverAllValues<short>({-32768, -1, 0, 99, 32767}, {1, 1000, 32767}, stepCounts);
    compareMovedOverAllValues<unsigned short>({0, 99, 32768, 65535}, {1, 1000, 65535}, stepCounts);
}

void tst_IntegerStep::aStepOverTheWholeTypeWrapsInTheType()
{
    compareWrapsOverTheWholeType<signed char>();
    compareWrapsOverTheWholeType<unsigned char>();
    compareWrapsOverTheWholeType<short>();
    compareWrapsOverTheWholeType<unsigned short>();
    compareWrapsOverTheWholeType<int>();
    compareWrapsOverTheWholeType<unsigned int>();
    compareWrapsOverTheWholeType<long long>();
    compareWrapsOverTheWholeType<unsigned long long>();
}

void tst_IntegerStep::aRangeWiderThanHalfTheTypeWrapsByAWrappedModulus()
{
    constexpr int billions = 2000000000; // the modulus is -294967295
    QCOMPARE(IntegerStep::moved(billions, 1, 1, -billions, billions, true), -billions);
    QCOMPARE(IntegerStep::moved(-billions, 1, -1, -billions, billions, true), billions);
    QCOMPARE(IntegerStep::moved(0, 1, 1, -billions, billions, true), -1769803769);
    constexpr long long high = std::numeric_limits<long long>::max(); // the modulus is -40
    QCOMPARE(IntegerStep::moved(0LL, 1LL, 1, -high + 19, high - 20, true), -9223372036854775759LL);
}

void tst_IntegerStep::aStepIsNotClamped()
{
    QCOMPARE(IntegerStep::moved(95, 1, 10, 0, 99, false), 105);
    QCOMPARE(IntegerStep::moved(5, 1, -10, 0, 99, false), -5);
    QCOMPARE(IntegerStep::moved(5U, 1U, -10, 0U, 99U, false), 4294967291U);
    using Byte = unsigned char;
    QCOMPARE(IntegerStep::moved(Byte(5), Byte(1), -10, Byte(0), Byte(99), false), Byte(251));
    QCOMPARE(IntegerStep::moved(95, 1, 10, 0, 99, true), 5);
    QCOMPARE(IntegerStep::moved(5, 1, -10, 0, 99, true), 95);
}

TESSERA_TEST_APPLESS_MAIN(tst_IntegerStep)
#include "tst_IntegerStep.moc"
