// SPDX-License-Identifier: Apache-2.0
// The sentences of the backend that a person sees, as texts of the translation catalogues.
#pragma once

#include <QCoreApplication>

namespace tapeprint::portal
{

struct PortalTexts {
    Q_DECLARE_TR_FUNCTIONS(tapeprint::portal::PortalTexts)
};

} // namespace tapeprint::portal
