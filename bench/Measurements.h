// SPDX-License-Identifier: Apache-2.0
// The measurements of one size of printer description.
#pragma once

#include "Scenery.h"

#include <string>
#include <vector>

/// Milliseconds of the steps up to a painted panel, and of the floor beside them.
struct ShowingTimes {
    double openPpd = 0.0;   ///< floor: libcups reads the description
    double bareShow = 0.0;  ///< floor: the interface file by itself, loaded, shown and painted
    double construct = 0.0; ///< the dialog's request for panels
    double show = 0.0;      ///< from there to the painted panel
    double panel() const { return construct + show; }
    double floor() const { return openPpd + bareShow; }
};

/// Milliseconds of one action of the person or the dialog.
struct ActionTime {
    std::string name;
    double milliseconds = 0.0;
};

struct Measurement {
    PpdSize size = {};
    ShowingTimes showing;
    double repaint = 0.0; ///< painting the whole view once more
    std::vector<ActionTime> actions;
    double bytes = 0.0; ///< memory of a shown panel, with what its callback recorded
    double action(const std::string &name) const;
};

/// Names of actions that a goal speaks of; the others are all listed by their own names.
inline constexpr const char *kTick = "slider tick";
inline constexpr const char *kFullCheck = "slider key, full check";
inline constexpr const char *kSave = "save (check and ten values)";

Measurement measure(const LoadedBundle &loaded, const PpdSize &size);
