// SPDX-License-Identifier: Apache-2.0
// What tape and ink look like, and in which unit a printer counts, as its description and a job's choices say.
#pragma once

#include "dialog/MeasureUnit.h"
#include "job/JobOptions.h"
#include "job/TapeKeywords.h"

#include <QColor>

#include <optional>

#include <cups/ppd.h>

namespace tapeprint::dialog
{

struct TapeLook {
    QColor tape = Qt::white; ///< with an alpha: one can see through it
    QColor ink = Qt::black;
    LengthUnit unit = LengthUnit::Millimetre; ///< in which its measures are told

    bool isClear() const { return tape.alpha() < 255; }
    /// Whether ink and tape differ so little that the print is hard to see.
    bool isFaint() const;
    bool operator==(const TapeLook &) const = default;
};

/// \param ppd may be null. \param options have the last word over its marks. A colour that nobody says is white for the
/// tape and black for the ink. The unit is the reader's to say.
TapeLook tapeLookOf(ppd_file_t *ppd, const job::JobOptions &options, const job::TapeKeywords &keywords);

/// The unit in which a tape printer's panel counts; nothing for paper, of which the description does not say.
std::optional<LengthUnit> describedUnit(ppd_file_t *ppd, const job::TapeKeywords &keywords);

} // namespace tapeprint::dialog
