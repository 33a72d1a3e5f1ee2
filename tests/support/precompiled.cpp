// SPDX-License-Identifier: MIT
// Owns the precompiled headers of the tests.
