// SPDX-License-Identifier: MIT
// The meta-object of the contract, compiled once for all tests of it.
#include "ItemModelContract.h"

#include "moc_ItemModelContract.cpp"
