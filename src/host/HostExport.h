// SPDX-License-Identifier: MIT
#pragma once

#include <QtGlobal>

#ifdef TesseraHost_EXPORTS
#define TESSERA_HOST_EXPORT Q_DECL_EXPORT
#else
#define TESSERA_HOST_EXPORT Q_DECL_IMPORT
#endif
