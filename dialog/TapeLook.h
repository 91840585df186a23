// SPDX-License-Identifier: Apache-2.0
// What tape and ink look like, and in which unit lengths are told, as a printer's description and a job's choices say.
#pragma once

#include "job/JobOptions.h"
#include "job/TapeKeywords.h"

#include <QColor>
#include <QString>

#include <cups/ppd.h>

namespace tapeprint::dialog
{

enum class LengthUnit { Millimetre, Inch };

struct TapeLook {
    QColor tape = Qt::white; ///< with an alpha: one can see through it
    QColor ink = Qt::black;
    LengthUnit unit = LengthUnit::Millimetre;

    bool isClear() const { return tape.alpha() < 255; }
    /// Whether ink and tape differ so little that the print is hard to see.
    bool isFaint() const;
    bool operator==(const TapeLook &) const = default;
};

/// \param ppd may be null. \param options have the last word over its marks. A colour that nobody says is white for the
/// tape and black for the ink.
TapeLook tapeLookOf(ppd_file_t *ppd, const job::JobOptions &options, const job::TapeKeywords &keywords);

/// A length with its unit: millimetres with one decimal, inches with two. The decimal point is a point in every
/// language.
QString measureText(double lengthPt, LengthUnit unit);

/// How much tape: in centimetres, from a metre on in metres, or in inches.
QString tapeText(double lengthPt, LengthUnit unit);

} // namespace tapeprint::dialog
