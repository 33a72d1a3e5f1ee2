// SPDX-License-Identifier: MIT
#pragma once

#include "svd/SvdDescription.h"

#include <QStringView>

#include <optional>

namespace registers {

// The words of the format, and the ways of writing them that are met. Case does not matter, nor what stands between
// the parts of a word. Nothing for any other word.

std::optional<Access> parseSvdAccess(QStringView text);
std::optional<RawUsage> parseSvdUsage(QStringView text);
/// Whether reading changes something.
std::optional<bool> parseSvdReadAction(QStringView text);

} // namespace registers
