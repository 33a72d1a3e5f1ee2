// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#ifdef Tessera_EXPORTS
#define TESSERA_EXPORT Q_DECL_EXPORT
#else
#define TESSERA_EXPORT Q_DECL_IMPORT
#endif
