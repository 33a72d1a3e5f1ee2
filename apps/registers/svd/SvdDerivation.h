// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#include <optional>
#include <vector>

namespace registers {

/// How far an element has come in taking over what its base gives.
enum class SvdDerivationState : quint8 { Open, Busy, Done };

using SvdDerivationStates = std::vector<SvdDerivationState>;

constexpr qint32 kNoBase = -1;

/// Follows the bases of an element to one that has none or is done, then goes back and merges each base into
/// what derives from it. Loops rather than recurs, since a chain may be as long as the file.
///
/// @p baseOf gives the base of an element, kNoBase, or nothing after a problem. @p merge takes an element and
/// its base (or kNoBase) and returns false after a problem. @p cycle is told of the element whose base derives
/// from the element itself, and which therefore counts as having none. Returns false after a problem.
template <typename BaseOf, typename Merge, typename Cycle>
bool followDerivation(qint32 id, SvdDerivationStates* states, BaseOf baseOf, Merge merge, Cycle cycle)
{
    std::vector<qint32> chain;
    qint32 at = id;
    while (at != kNoBase && (*states)[size_t(at)] != SvdDerivationState::Done) {
        if ((*states)[size_t(at)] == SvdDerivationState::Busy) {
            cycle(chain.empty() ? at : chain.back());
            at = kNoBase;
            break;
        }
        (*states)[size_t(at)] = SvdDerivationState::Busy;
        chain.push_back(at);
        const std::optional<qint32> base = baseOf(at);
        if (!base) {
            return false;
        }
        at = *base;
    }
    for (auto derived = chain.crbegin(); derived != chain.crend(); ++derived) {
        if (!merge(*derived, at)) {
            return false;
        }
        (*states)[size_t(*derived)] = SvdDerivationState::Done;
        at = *derived;
    }
    return true;
}

} // namespace registers
