// SPDX-License-Identifier: Apache-2.0
// The logging category of the print dialog extension: "pde".
#pragma once

#include "pdekit/Export.h"

#include <QLoggingCategory>

namespace pdekit
{
/// The category, for qCWarning() and its kin.
PDEKIT_EXPORT Q_DECLARE_LOGGING_CATEGORY(lcPde)
} // namespace pdekit
