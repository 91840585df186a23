// SPDX-License-Identifier: Apache-2.0
// Marks what libpdekit offers to dialogs and panels; everything else in the library is hidden.
#pragma once

#include <QtCore/qglobal.h>

/// \namespace pdekit
/// What a print dialog and the panels of plug-ins both stand on.

/// Marks a class or function as offered.
#if defined(PDEKIT_BUILD)
#define PDEKIT_EXPORT Q_DECL_EXPORT
#else
#define PDEKIT_EXPORT Q_DECL_IMPORT
#endif
