// SPDX-License-Identifier: Apache-2.0
// The logging category of the print dialog extension. One object in the process, so that one filter rule covers the
// dialog and every panel.
#include "pdekit/Log.h"

namespace pdekit
{
Q_LOGGING_CATEGORY(lcPde, "pde")
} // namespace pdekit
