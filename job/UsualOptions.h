// SPDX-License-Identifier: Apache-2.0
// What any print job can be asked for, by the names that CUPS has for it, and what the values of these options mean.
#pragma once

#include "job/JobOptions.h"

#include <QTime>

#include <optional>

#include <cups/ppd.h>

namespace tapeprint::job
{

namespace OptionName
{
inline const QString jobName = QStringLiteral("job-name");
inline const QString jobPriority = QStringLiteral("job-priority");
inline const QString holdUntil = QStringLiteral("job-hold-until");
inline const QString billing = QStringLiteral("job-billing");
inline const QString pageSet = QStringLiteral("page-set");
inline const QString outputOrder = QStringLiteral("outputorder");
inline const QString collate = QStringLiteral("collate");
inline const QString sides = QStringLiteral("sides");
inline const QString sheetCollate = QStringLiteral("sheet-collate");
inline const QString documentHandling = QStringLiteral("multiple-document-handling");
inline const QString printScaling = QStringLiteral("print-scaling");
inline const QString orientation = QStringLiteral("orientation-requested");
inline const QString position = QStringLiteral("position");
inline const QString numberUp = QStringLiteral("number-up");
inline const QString numberUpLayout = QStringLiteral("number-up-layout");
inline const QString pageBorder = QStringLiteral("page-border");
} // namespace OptionName

/// Which of the pages are printed, counted from 1; of several pages a sheet, which of the sheets.
enum class PageSet { All, Odd, Even };
PageSet pageSetOf(const JobOptions &options);

/// Whether the last page comes first.
bool isReversed(const JobOptions &options);

/// Whether copies come out one after the other, instead of all copies of each page. \param ppd its marks count where
/// the job says nothing; may be null.
bool isCollated(const JobOptions &options, ppd_file_t *ppd);

/// Whether paper is printed on both sides. \param ppd as above.
bool isTwoSided(const JobOptions &options, ppd_file_t *ppd);

/// The options that make copies collated or not, of those that the filters read; where a PPD has an option of its own
/// for it, by that option's name.
JobOptions collating(bool collated, const JobOptions &options, ppd_file_t *ppd);

/// The value of job-hold-until for a time of the person's clock, and back. Print servers count it in UTC.
QString holdUntilTime(const QTime &local);
std::optional<QTime> timeOfHoldUntil(const QString &value);

/// A title that every print server takes, and shows as it is: control characters are blanks, and what is longer than
/// IPP's 255 bytes is cut at the end of a character.
QString jobTitle(const QString &text);

} // namespace tapeprint::job
