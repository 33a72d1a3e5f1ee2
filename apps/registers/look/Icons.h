// SPDX-License-Identifier: MIT
#pragma once

#include <QIcon>

namespace registers {

/// The application's icons: strokes in the palette's text colour, drawn anew for every size and state.
enum class LineIcon { Open, Load, Export, Undo, Redo, Reset, ResetAll, Search, Bits, Changes };

QIcon lineIcon(LineIcon icon);

/// The application's own icon.
QIcon applicationIcon();

} // namespace registers
