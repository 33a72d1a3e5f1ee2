// SPDX-License-Identifier: MIT
#pragma once

#include <QStringView>

#include <optional>

namespace registers {

/// A number of which some bits may be left open.
struct MaskedNumber
{
    quint64 value = 0;          ///< open bits are 0
    quint64 mask = ~quint64(0); ///< the bits that count
};

/// A number as CMSIS-SVD writes it: decimal, hexadecimal (0x) or binary (# or 0b), with an optional plus sign
/// in front and an optional k, m, g or t (powers of 1024) behind. Surrounding white space is ignored. Nothing
/// when the text is anything else, or needs more than 64 bits.
std::optional<quint64> parseSvdNumber(QStringView text);

/// As parseSvdNumber(), and binary digits may be x: bits that do not count.
std::optional<MaskedNumber> parseSvdMaskedNumber(QStringView text);

/// true, false, 1 or 0, in any case.
std::optional<bool> parseSvdBool(QStringView text);

} // namespace registers
