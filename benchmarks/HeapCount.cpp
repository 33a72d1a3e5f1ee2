// SPDX-License-Identifier: MIT
#include "HeapCount.h"

#include <malloc.h>

std::size_t heapBytes()
{
    return mallinfo2().uordblks;
}
