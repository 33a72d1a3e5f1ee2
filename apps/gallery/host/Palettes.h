// SPDX-License-Identifier: MIT
#pragma once

#include "host/Look.h"

#include <QPalette>

namespace gallery {

/// The host's palette, complete for every group.
QPalette paletteOf(Shade shade);

} // namespace gallery
