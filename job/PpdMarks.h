// SPDX-License-Identifier: Apache-2.0
// Marks and defaults in the dialog's own copy of a PPD. Every function accepts a null PPD, which has no options.
#pragma once

#include <QString>

#include <algorithm>
#include <span>
#include <utility>
#include <vector>

#include <cups/ppd.h>

namespace tapeprint::job
{

/// Marks, or default choices, of a PPD at one moment: option keyword and value, in the PPD's order.
using PpdMarks = std::vector<std::pair<QString, QString>>;

/// The option of a keyword, whatever its letters' case; null when the PPD does not define it.
ppd_option_t *findOption(ppd_file_t *ppd, const QString &key);

/// The choices of an option.
inline std::span<ppd_choice_t> choicesOf(const ppd_option_t &option)
{
    return {option.choices, static_cast<std::size_t>(std::max(option.num_choices, 0))};
}

/// What an own value of an option consists of. \param custom may be null.
std::vector<ppd_cparam_t *> parametersOf(ppd_coption_t *custom);

/// The choice keyword of an option as the PPD spells it; a custom value the PPD allows as it is given; of an option
/// that takes several choices their keywords, joined by commas, in the PPD's order; null when the PPD does not list the
/// choice.
QString listedChoice(ppd_file_t *ppd, const QString &key, const QString &choice);

/// Marks a choice. \return whether the PPD lists it; a choice that it does not list leaves the marks as they are.
bool markChoice(ppd_file_t *ppd, const QString &key, const QString &choice);

/// The keyword of the marked choice of an option; null when none is marked. A custom value is "Custom".
QString markedChoice(ppd_file_t *ppd, const QString &key);

/// The value that marks an option as it is now marked: the choice; a custom value with its parameters, such as
/// Custom.36x72 in points; of an option that takes several choices their keywords, joined by commas. Null when none is
/// marked.
QString markedValue(ppd_file_t *ppd, const QString &key);

/// Makes a value the default choice of its option, whether or not the PPD lists it. A value that does not fit the
/// PPD's record (40 bytes) is left out. \return whether it was set.
bool setDefaultChoice(ppd_file_t *ppd, const QString &key, const QString &value);

/// Every mark of the PPD.
PpdMarks takeMarks(ppd_file_t *ppd);
/// Puts marks back; an option that had none loses its own.
void putMarks(ppd_file_t *ppd, const PpdMarks &marks);

/// The default choice of every option, in the PPD's order.
PpdMarks takeDefaults(ppd_file_t *ppd);
/// Puts default choices back.
void putDefaults(ppd_file_t *ppd, const PpdMarks &defaults);

/// Calls a function for each option of the PPD, subgroups included, in the PPD's order.
template <typename Function>
void forEachOption(ppd_group_t *groups, int count, const Function &function)
{
    for (int i = 0; i < count; ++i) {
        ppd_group_t &group = groups[i];
        for (int j = 0; j < group.num_options; ++j) {
            function(group.options[j]);
        }
        forEachOption(group.subgroups, group.num_subgroups, function);
    }
}
template <typename Function>
void forEachOption(ppd_file_t *ppd, const Function &function)
{
    if (ppd != nullptr) {
        forEachOption(ppd->groups, ppd->num_groups, function);
    }
}

} // namespace tapeprint::job
