// SPDX-License-Identifier: Apache-2.0
// What a person can choose among a PPD's options, beside what panels and the dialog's own controls show: in the PPD's
// groups and order, under texts that tell one from another.
#pragma once

#include "job/CustomValues.h"

#include <QSet>
#include <QString>

#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// A choice of an option: what goes into the job, and what a person reads.
struct OfferedChoice {
    QString keyword;
    QString text;
};

/// An option with at least two choices, or with a value of one's own.
struct OfferedOption {
    QString keyword;
    QString text;
    bool takesSeveral = false;                 ///< any number of the choices
    std::vector<OfferedChoice> choices;        ///< without the choice "Custom" where that stands for own values
    std::vector<CustomParameter> customValues; ///< what a value of one's own consists of; empty: there is none
};

/// A group of the PPD that has something to choose.
struct OptionGroup {
    QString name;
    QString text;
    /// Whether it says what is built into the printer, which is the machine's matter and not the job's.
    bool isInstalled = false;
    std::vector<OfferedOption> options;
};

/// One option with its choices; without any when the PPD lacks it. \param ppd may be null.
OfferedOption offeredOption(ppd_file_t *ppd, const QString &key);

/// The PPD's groups in its order. Options and choices of the same wording have their keyword added in brackets.
/// \param ppd may be null: there are no groups. \param shownElsewhere keywords of options that others show.
std::vector<OptionGroup> optionGroups(ppd_file_t *ppd, const QSet<QString> &shownElsewhere);

} // namespace tapeprint::job
