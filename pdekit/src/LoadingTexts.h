// SPDX-License-Identifier: Apache-2.0
// The sentences about bundles, as texts of the translation catalogue that a dialog installs.
#pragma once

#include <QCoreApplication>

namespace pdekit
{

/// English without such a catalogue.
struct LoadingTexts {
    Q_DECLARE_TR_FUNCTIONS(pdekit::LoadingTexts)
};

} // namespace pdekit
