// SPDX-License-Identifier: MIT
#pragma once

#include <Tessera/Tessera.h>

namespace registers {

/// The smallest of the library's unsigned boxes that holds @p width bits, 1 to 64.
constexpr nsUI::e_ISpx_Type spinBoxType(int width)
{
    return width <= 8    ? nsUI::e_ISpx_U8
           : width <= 16 ? nsUI::e_ISpx_U16
           : width <= 32 ? nsUI::e_ISpx_U32
                         : nsUI::e_ISpx_U64;
}

} // namespace registers
