// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>

//! Bytes that malloc and operator new hold at the moment, as the allocator accounts for them.
std::size_t heapBytes();
