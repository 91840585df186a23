// SPDX-License-Identifier: Apache-2.0
// The table of the choices in the panel's summary: their titles and the texts of their values.
#pragma once

#include "panel/ChoiceOption.h"

#include <span>

/// One choice's entry in the summary.
struct SummaryChoice {
    ChoiceOption::Item item;
    const char *titleKey; ///< when the PPD has no title
    /// The texts by marked index, when the PPD does not translate the choice. An index beyond them shows the title of
    /// the current selection. These are the summary's own keys; the controls use others.
    std::span<const char *const> valueKeys;

    static const SummaryChoice &vendorResolution();
    static const SummaryChoice &quality();
    static const SummaryChoice &tapeMaterial();
    static const SummaryChoice &tapeColour();
    static const SummaryChoice &inkColour();
    /// \param isMV the printer is of the MV family; the others have three resolutions.
    static const SummaryChoice &resolution(bool isMV);
    static const SummaryChoice &compression();
};
