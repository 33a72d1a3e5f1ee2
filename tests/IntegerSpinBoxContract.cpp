// SPDX-License-Identifier: MIT
// The meta-object of the contract, compiled once for all tests of it.
#include "IntegerSpinBoxContract.h"

#include "moc_IntegerSpinBoxContract.cpp"
