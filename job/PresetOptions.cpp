// SPDX-License-Identifier: Apache-2.0
// The options of one document as a table, and passwords by what the PPD says of the parameters of own values.
#include "job/PresetOptions.h"

#include "job/CustomValues.h"
#include "job/PpdMarks.h"
#include "job/ReplacedOptions.h"

#include <algorithm>
#include <array>

namespace tapeprint::job
{

namespace
{

/// What says something of one document, and nothing of the next.
constexpr std::array documentOptions{
    QLatin1String("page-ranges"),
    QLatin1String("page-set"),
    QLatin1String("job-name"),
    QLatin1String("document-name"),
    QLatin1String("job-hold-until"),
    QLatin1String("document-format"),
    QLatin1String("job-originating-user-name"),
};
/// What nothing may keep, however the printer calls its own.
constexpr std::array secretOptions{
    QLatin1String("job-password"),
    QLatin1String("job-password-encryption"),
    QLatin1String("auth-info"),
};

template <typename Names>
bool isAmong(const Names &names, const QString &name)
{
    return std::any_of(names.begin(), names.end(),
                       [&name](QLatin1String one) { return name.compare(one, Qt::CaseInsensitive) == 0; });
}

/// Whether a value holds a password. A choice that the PPD lists is no secret.
bool holdsSecret(ppd_file_t *ppd, const JobOptions::Entry &entry)
{
    const auto &[key, value] = entry;
    const std::vector<CustomParameter> parameters = customParameters(ppd, key);
    return std::any_of(parameters.begin(), parameters.end(), [](const auto &one) { return one.isSecret(); }) &&
           (isCustomValue(value) || listedChoice(ppd, key, value).isNull());
}

} // namespace

JobOptions optionsForPreset(const JobOptions &options, ppd_file_t *ppd)
{
    JobOptions kept;
    for (const JobOptions::Entry &entry : options.entries()) {
        const auto &[name, value] = entry;
        // Fitting the length is a wish of the dialog's that says something only when it is one.
        const bool saysNothing = value.isEmpty() || (name == OptionName::copies && value == u"1") ||
                                 (name == OptionName::fitLength && value != u"true");
        if (!saysNothing && !isAmong(documentOptions, name) && !isAmong(secretOptions, name) &&
            !holdsSecret(ppd, entry)) {
            kept.set(name, value);
        }
    }
    return kept;
}

JobOptions optionsForNextTime(const JobOptions &options, ppd_file_t *ppd)
{
    JobOptions kept = optionsForPreset(options, ppd);
    kept.remove(OptionName::copies);
    return kept;
}

JobOptions optionsOfDocument(const JobOptions &options)
{
    JobOptions ofDocument;
    for (const auto &[name, value] : options.entries()) {
        if (name == OptionName::copies || isAmong(documentOptions, name)) {
            ofDocument.set(name, value);
        }
    }
    return ofDocument;
}

bool meanTheSame(const JobOptions &left, const JobOptions &right)
{
    const auto isIn = [&right](const JobOptions::Entry &entry) { return right.contains(entry.first); };
    const auto &entries = left.entries();
    return entries.size() == right.entries().size() && std::all_of(entries.begin(), entries.end(), isIn) &&
           replacedOptions(left, right).empty();
}

} // namespace tapeprint::job
