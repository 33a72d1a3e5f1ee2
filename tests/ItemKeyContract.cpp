// SPDX-License-Identifier: MIT
// The meta-objects of both contracts, compiled once for all tests of them.
#include "ItemKeyContract.h"
#include "ItemViewContract.h"

#include "moc_ItemKeyContract.cpp"
#include "moc_ItemViewContract.cpp"
