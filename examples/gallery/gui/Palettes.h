// SPDX-License-Identifier: MIT
#pragma once

#include "Look.h"

#include <QPalette>

namespace gallery {

/// The host's palette, complete for every group.
QPalette paletteOf(Shade shade);

} // namespace gallery
