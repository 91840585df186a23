// SPDX-License-Identifier: Apache-2.0
// A description may hold anything: choices twice, options in two groups, groups without a name.
#include "job/OptionGroups.h"

#include "job/PpdMarks.h"
#include "job/PpdTexts.h"
#include "job/Texts.h"

#include <QHash>

#include <algorithm>
#include <span>

namespace tapeprint::job
{

namespace
{

const QLatin1String installedGroup("InstallableOptions");
const QLatin1String groupOfTheRest("General"); // libcups puts there what stands in no group
const QLatin1String groupOfCommands("JCL");    // and there what the description has sent in a printer's job language

/// How a person compares two texts.
QString wording(const QString &text)
{
    return text.simplified().toCaseFolded();
}

/// Adds the keyword to each text that stands there more than once.
template <typename Named>
void tellApart(const std::vector<Named *> &items)
{
    QHash<QString, int> times;
    for (const Named *item : items) {
        ++times[wording(item->text)];
    }
    for (Named *item : items) {
        if (times.value(wording(item->text)) > 1 && item->text != item->keyword) {
            item->text = Texts::tr("%1 (%2)", "a text and the keyword that tells it from another of the same wording")
                             .arg(item->text, item->keyword);
        }
    }
}

std::vector<OfferedChoice> choicesToOffer(const ppd_option_t &option, bool hasCustomValues)
{
    std::vector<OfferedChoice> choices;
    QSet<QString> keywords;
    for (const ppd_choice_t &choice : choicesOf(option)) {
        const QString keyword = QString::fromUtf8(choice.choice);
        const QString lowered = keyword.toLower();
        if ((hasCustomValues && lowered == QLatin1String("custom")) || keywords.contains(lowered)) {
            continue; // of two choices with one keyword the first is meant
        }
        keywords.insert(lowered);
        choices.push_back({keyword, choiceText(choice)});
    }
    std::vector<OfferedChoice *> all;
    std::transform(choices.begin(), choices.end(), std::back_inserter(all),
                   [](OfferedChoice &choice) { return &choice; });
    tellApart(all);
    return choices;
}

OfferedOption offered(ppd_file_t *ppd, const ppd_option_t &option)
{
    OfferedOption result;
    result.keyword = QString::fromUtf8(option.keyword);
    result.text = optionText(option);
    result.takesSeveral = option.ui == PPD_UI_PICKMANY;
    result.customValues = customParameters(ppd, result.keyword);
    // "Custom" is a choice like others where no parameter stands behind it.
    result.choices = choicesToOffer(option, ppdFindCustomOption(ppd, option.keyword) != nullptr);
    return result;
}

bool hasSomethingToChoose(const OfferedOption &option)
{
    const std::size_t least = option.takesSeveral ? 1 : 2;
    return option.choices.size() >= least || !option.customValues.empty();
}

class Gatherer
{
public:
    Gatherer(ppd_file_t *ppd, const QSet<QString> &shownElsewhere) : mPpd(ppd)
    {
        for (const QString &key : shownElsewhere) {
            mShownElsewhere.insert(key.toLower());
        }
    }

    void gather(const ppd_group_t *groups, int count, const QString &within)
    {
        for (const ppd_group_t &group : std::span(groups, static_cast<std::size_t>(std::max(count, 0)))) {
            const QString text = titleOf(group, within);
            OptionGroup result{QString::fromUtf8(group.name), text, {}, {}};
            result.isInstalled = result.name.compare(installedGroup, Qt::CaseInsensitive) == 0;
            for (const ppd_option_t &option :
                 std::span(group.options, static_cast<std::size_t>(std::max(group.num_options, 0)))) {
                add(option, result);
            }
            if (!result.options.empty()) {
                mGroups.push_back(std::move(result));
            }
            gather(group.subgroups, group.num_subgroups, text);
        }
    }

    std::vector<OptionGroup> take()
    {
        std::vector<OfferedOption *> all;
        for (OptionGroup &group : mGroups) {
            std::transform(group.options.begin(), group.options.end(), std::back_inserter(all),
                           [](OfferedOption &option) { return &option; });
        }
        tellApart(all);
        return std::move(mGroups);
    }

private:
    static QString titleOf(const ppd_group_t &group, const QString &within)
    {
        QString text = ppdText(group.text);
        if (text.isEmpty()) {
            text = ppdText(group.name);
        }
        if (text == groupOfTheRest) {
            text = Texts::tr("General", "options that the printer's description puts in no group");
        }
        if (text == groupOfCommands) {
            text = Texts::tr("Printer Commands", "options that are sent before the job, in the printer's own language");
        }
        return within.isEmpty() ? text
                                : Texts::tr("%1: %2", "a group of options and a group within it").arg(within, text);
    }

    void add(const ppd_option_t &option, OptionGroup &group)
    {
        const QString key = QString::fromUtf8(option.keyword).toLower();
        // What stands in two groups is one option.
        if (mShownElsewhere.contains(key) || mSeen.contains(key)) {
            return;
        }
        mSeen.insert(key);
        if (OfferedOption found = offered(mPpd, option); hasSomethingToChoose(found)) {
            group.options.push_back(std::move(found));
        }
    }

    ppd_file_t *mPpd;
    QSet<QString> mShownElsewhere;
    QSet<QString> mSeen;
    std::vector<OptionGroup> mGroups;
};

} // namespace

OfferedOption offeredOption(ppd_file_t *ppd, const QString &key)
{
    const ppd_option_t *option = findOption(ppd, key);
    return option == nullptr ? OfferedOption() : offered(ppd, *option);
}

std::vector<OptionGroup> optionGroups(ppd_file_t *ppd, const QSet<QString> &shownElsewhere)
{
    if (ppd == nullptr) {
        return {};
    }
    Gatherer gatherer(ppd, shownElsewhere);
    gatherer.gather(ppd->groups, ppd->num_groups, QString());
    return gatherer.take();
}

} // namespace tapeprint::job
