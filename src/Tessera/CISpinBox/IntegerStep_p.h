// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <cmath>
#include <limits>
#include <type_traits>

namespace nsUI {

//! The arithmetic of stepping. Plain functions, no widgets.
namespace IntegerStep {

/*!
    The type that a step is computed in: 32-bit signed integers for the 8- and 16-bit types, the type itself for the
    others. Sums and products are taken in its unsigned counterpart, where wrapping is defined.
*/
template <class T>
using Work = std::conditional_t<(sizeof(T) < sizeof(int)), int, T>;

/*!
    The step of QAbstractSpinBox::AdaptiveDecimalStepType: a tenth of the value's decimal magnitude, at least 1. A
    value that is stepped towards zero counts as one less, so that 1000 steps down by 10 and not by 100.
*/
template <class T>
T adaptive(T nVal, int nSteps)
{
    bool towardsZero = nSteps < 0;
    T nMagnitude = nVal;
    if constexpr (std::is_signed_v<T>) {
        towardsZero = (nVal < 0) != (nSteps < 0);
        // The most negative value has no counterpart in its own width: it stays negative and steps by 1.
        if (nVal < 0 && nVal != std::numeric_limits<T>::min())
            nMagnitude = static_cast<T>(-nVal);
    }
    if (nMagnitude < 100)
        return 1;
    const int nExponent = static_cast<int>(std::log10(static_cast<double>(nMagnitude - (towardsZero ? 1 : 0))));
    return static_cast<T>(std::pow(10.0, nExponent - 1));
}

//! The remainder of \a nOffset by \a nModulus, made non-negative by adding the modulus.
template <class W>
W remainder(W nOffset, W nModulus)
{
    using Bits = std::make_unsigned_t<W>;
    if constexpr (std::is_signed_v<W>) {
        if (nModulus == -1) // of all values but one: it leaves nothing, but the lowest value's division would trap
            return 0;
    }
    const W nRemainder = static_cast<W>(nOffset % nModulus);
    return nRemainder < 0 ? static_cast<W>(static_cast<Bits>(nRemainder) + static_cast<Bits>(nModulus)) : nRemainder;
}

/*!
    \a nVal moved by \a nSteps times \a nStep, wrapped into the range if \a wrapping, then truncated to T and not yet
    clamped: a sum beyond the type's limits comes out on its other side. A range of all values has the modulus 0 and
    needs none: the sum has wrapped in the type.
*/
template <class T>
T moved(T nVal, T nStep, int nSteps, T nMinimum, T nMaximum, bool wrapping)
{
    using W = Work<T>;
    using Bits = std::make_unsigned_t<W>;
    const auto bits = [](auto n) { return static_cast<Bits>(n); };

    Bits nMoved = bits(nVal) + bits(nStep) * bits(nSteps);
    if (wrapping) {
        const W nModulus = static_cast<W>(bits(nMaximum) - bits(nMinimum) + 1);
        if (nModulus != 0)
            nMoved = bits(nMinimum) + bits(remainder(static_cast<W>(nMoved - bits(nMinimum)), nModulus));
    }
    return static_cast<T>(nMoved);
}

} // namespace IntegerStep
} // namespace nsUI
