// SPDX-License-Identifier: Apache-2.0
// A tape printer's description for the tests of a job, in whole points, and the words by which a job knows tapes.
#pragma once

#include "job/JobOptions.h"
#include "job/PpdFile.h"
#include "job/TapeKeywords.h"
#include "job/TapePage.h"

#include <QByteArray>
#include <QString>

#include <initializer_list>

namespace jobtest
{

/// The description's custom pages: from 36 x 36 to 144 x 720 points, with strips of 2 points at the left, 1 at the top,
/// 4 at the right and 5 at the bottom.
extern const QByteArray customPages;

/// A description that takes raster, with the papers
///   T72 (the default): 72 x 288 points (25.4 x 101.6 mm), strips of 3 points at the left and right
///   S72: 72 x 144 points (25.4 x 50.8 mm), without strips
///   DC72: 72 x 216 points (25.4 x 76.2 mm), strips of 3 points at the left, 4 at the top, 5 at the right, 6 at the
///   bottom.
/// \param more lines added at the end.
QByteArray tapePpdText(const QByteArray &more = customPages);

/// Opens a description; the test ends when it cannot be read.
tapeprint::job::PpdFile ppdOf(const QByteArray &text);

/// Lengths by the option Length, margins by Margin; papers that begin with DC or FL have a fixed length.
tapeprint::job::TapeKeywords tapeKeywords();

tapeprint::job::JobOptions options(std::initializer_list<tapeprint::job::JobOptions::Entry> entries);

/// The page of a description with its options marked.
tapeprint::job::TapePage pageOf(const QByteArray &ppdText,
                                std::initializer_list<tapeprint::job::JobOptions::Entry> entries);

} // namespace jobtest
