// SPDX-License-Identifier: Apache-2.0
// A constraint is a list of option and choice, or of options alone for any choice that does something. libcups tells
// whether options conflict, but not with which of several, so the constraints are read here as well.
#include "job/Conflicts.h"

#include "job/CupsOptions.h"
#include "job/PpdMarks.h"
#include "job/PpdTexts.h"
#include "job/Texts.h"

#include <QSet>

#include <algorithm>
#include <array>
#include <span>

namespace tapeprint::job
{

namespace
{

const QLatin1String anyOwn("Custom");

struct Term {
    QString key;
    QString choice; ///< empty: any that does something
};
using Constraint = std::vector<Term>;

/// PageRegion is PageSize under another name, and *CustomPageSize True a choice of it.
Term termOf(ppd_file_t *ppd, QString key, QString choice)
{
    if (key.startsWith(anyOwn) && findOption(ppd, key) == nullptr && choice == u"True") {
        key = key.mid(anyOwn.size());
        choice = anyOwn;
    }
    if (key.compare(OptionName::pageRegion, Qt::CaseInsensitive) == 0 &&
        findOption(ppd, OptionName::pageSize) != nullptr) {
        key = OptionName::pageSize;
    }
    return {key, choice};
}

/// "*Option Choice *Option Choice", with or without choices.
Constraint parse(ppd_file_t *ppd, const char *text)
{
    Constraint constraint;
    const QStringList words = QString::fromUtf8(text).simplified().split(u' ', Qt::SkipEmptyParts);
    for (qsizetype i = 0; i < words.size(); ++i) {
        if (words.at(i).startsWith(u'*')) {
            const bool hasChoice = i + 1 < words.size() && !words.at(i + 1).startsWith(u'*');
            constraint.push_back(termOf(ppd, words.at(i).mid(1), hasChoice ? words.at(i + 1) : QString()));
        }
    }
    return constraint;
}

/// Both kinds count, the newer and the older.
std::vector<Constraint> constraintsOf(ppd_file_t *ppd)
{
    std::vector<Constraint> constraints;
    for (const ppd_attr_t *found = ppdFindAttr(ppd, "cupsUIConstraints", nullptr); found != nullptr;
         found = ppdFindNextAttr(ppd, "cupsUIConstraints", nullptr)) {
        constraints.push_back(parse(ppd, found->value));
    }
    for (const ppd_const_t &found : std::span(ppd->consts, static_cast<std::size_t>(std::max(ppd->num_consts, 0)))) {
        constraints.push_back({termOf(ppd, QString::fromUtf8(found.option1), QString::fromUtf8(found.choice1)),
                               termOf(ppd, QString::fromUtf8(found.option2), QString::fromUtf8(found.choice2))});
    }
    return constraints;
}

bool doesSomething(const ppd_choice_t &choice)
{
    constexpr std::array nothings{"None", "Off", "False"};
    return std::none_of(nothings.begin(), nothings.end(),
                        [&choice](const char *nothing) { return qstricmp(choice.choice, nothing) == 0; });
}

/// The marked choice that a term speaks of; null when it speaks of none.
const ppd_choice_t *markedFor(const ppd_option_t &option, const Term &term)
{
    const QByteArray wanted = term.choice.toUtf8();
    for (const ppd_choice_t &choice : choicesOf(option)) {
        if (choice.marked != 0 &&
            (wanted.isEmpty() ? doesSomething(choice) : qstricmp(choice.choice, wanted.constData()) == 0)) {
            return &choice;
        }
    }
    return nullptr;
}

QSet<QString> installedKeys(const ppd_file_t *ppd)
{
    QSet<QString> keys;
    for (const ppd_group_t &group : std::span(ppd->groups, static_cast<std::size_t>(std::max(ppd->num_groups, 0)))) {
        if (qstricmp(group.name, "InstallableOptions") == 0) {
            for (const ppd_option_t &option :
                 std::span(group.options, static_cast<std::size_t>(std::max(group.num_options, 0)))) {
                keys.insert(QString::fromUtf8(option.keyword));
            }
        }
    }
    return keys;
}

QString named(const ppd_option_t &option, const ppd_choice_t &choice)
{
    return Texts::tr("%1: %2", "an option and its choice").arg(optionText(option), choiceText(choice));
}

/// The conflict that a constraint makes of the marked choices; without choices when it makes none.
Conflict conflictBy(ppd_file_t *ppd, const Constraint &constraint, const QSet<QString> &installed)
{
    Conflict conflict;
    QSet<QString> keys;
    for (const Term &term : constraint) {
        const ppd_option_t *option = findOption(ppd, term.key);
        const ppd_choice_t *choice = option == nullptr ? nullptr : markedFor(*option, term);
        if (choice == nullptr) {
            return {};
        }
        const QString key = QString::fromUtf8(option->keyword);
        keys.insert(key);
        conflict.choices.push_back(
            {key, QString::fromUtf8(choice->choice), named(*option, *choice), installed.contains(key)});
    }
    if (keys.size() < 2) {
        return {}; // an option alone is in no conflict
    }
    std::stable_partition(conflict.choices.begin(), conflict.choices.end(),
                          [](const ConflictingChoice &choice) { return !choice.isInstalled; });
    return conflict;
}

/// What makes two conflicts one.
QString identity(const Conflict &conflict)
{
    QStringList choices;
    for (const ConflictingChoice &choice : conflict.choices) {
        choices.append(choice.key + u'=' + choice.choice);
    }
    choices.sort();
    choices.removeDuplicates();
    return choices.join(u' ');
}

/// Puts the marks back when it goes.
class MarksKept
{
public:
    explicit MarksKept(ppd_file_t *ppd) : mPpd(ppd), mMarks(takeMarks(ppd)) {}
    ~MarksKept() { putMarks(mPpd, mMarks); }
    MarksKept(const MarksKept &) = delete;
    MarksKept &operator=(const MarksKept &) = delete;

private:
    ppd_file_t *mPpd;
    PpdMarks mMarks;
};

using Choices = std::vector<std::pair<QString, QString>>;

/// What libcups would change; nothing when it knows no way that leaves an option as it is.
std::optional<Choices> libcupsWayOut(ppd_file_t *ppd, const QString &keptKey)
{
    const QByteArray key = keptKey.toUtf8();
    const QByteArray choice = markedChoice(ppd, keptKey).toUtf8();
    int count = 0;
    cups_option_t *options = nullptr;
    const bool isFound = cupsResolveConflicts(ppd, key.isEmpty() ? nullptr : key.constData(),
                                              key.isEmpty() ? nullptr : choice.constData(), &count, &options) != 0;
    Choices choices;
    for (const cups_option_t &option : std::span(options, static_cast<std::size_t>(std::max(count, 0)))) {
        choices.emplace_back(QString::fromUtf8(option.name), QString::fromUtf8(option.value));
    }
    cupsFreeOptions(count, options);
    return isFound ? std::optional(choices) : std::nullopt;
}

/// Changes choices until no conflict is left, an option of each conflict at a time: first to its default, then to
/// whatever helps. The marks are changed by it.
class Search
{
public:
    Search(ppd_file_t *ppd, QString keptKey) : mPpd(ppd), mKeptKey(std::move(keptKey)) {}

    std::optional<Choices> run()
    {
        std::vector<Conflict> left = conflictsOf(mPpd);
        while (!left.empty()) {
            if (!changeOneOf(left)) {
                return std::nullopt;
            }
            left = conflictsOf(mPpd);
        }
        return mChanged;
    }

private:
    bool changeOneOf(const std::vector<Conflict> &conflicts)
    {
        for (const Conflict &conflict : conflicts) {
            // What stands last in a conflict gives way first.
            for (auto choice = conflict.choices.rbegin(); choice != conflict.choices.rend(); ++choice) {
                if (!choice->isInstalled && choice->key != mKeptKey && change(choice->key, conflicts.size())) {
                    return true;
                }
            }
        }
        return false;
    }

    bool change(const QString &key, std::size_t conflictsBefore)
    {
        const ppd_option_t *option = findOption(mPpd, key);
        const QString before = markedValue(mPpd, key);
        std::vector<QString> choices{QString::fromUtf8(option->defchoice)};
        for (const ppd_choice_t &choice : choicesOf(*option)) {
            choices.push_back(QString::fromUtf8(choice.choice));
        }
        for (const QString &choice : choices) {
            if (++mTries > mostTries) {
                break;
            }
            if (choice != anyOwn && choice != before && markChoice(mPpd, key, choice) &&
                conflictsOf(mPpd).size() < conflictsBefore) {
                mChanged.emplace_back(key, choice);
                return true;
            }
        }
        markChoice(mPpd, key, before);
        return false;
    }

    static constexpr int mostTries = 1000;
    ppd_file_t *mPpd;
    QString mKeptKey;
    Choices mChanged;
    int mTries = 0;
};

bool helps(ppd_file_t *ppd, const Choices &choices, const QString &keptKey)
{
    const MarksKept marks(ppd);
    const QString kept = markedValue(ppd, keptKey);
    const QSet<QString> installed = installedKeys(ppd);
    for (const auto &[key, choice] : choices) {
        if (installed.contains(key) || !markChoice(ppd, key, choice)) {
            return false;
        }
    }
    return markedValue(ppd, keptKey) == kept && conflictsOf(ppd).empty();
}

std::optional<Choices> wayOut(ppd_file_t *ppd, const QString &keptKey)
{
    std::optional<Choices> known = libcupsWayOut(ppd, keptKey);
    if (known && helps(ppd, *known, keptKey)) {
        return known;
    }
    const MarksKept marks(ppd);
    return Search(ppd, keptKey).run();
}

Resolution described(ppd_file_t *ppd, const Choices &choices)
{
    Resolution resolution;
    for (const auto &[name, choice] : choices) {
        ppd_option_t *option = findOption(ppd, name);
        const QString key = QString::fromUtf8(option->keyword);
        const ppd_choice_t *before = ppdFindMarkedChoice(ppd, option->keyword);
        const ppd_choice_t *after = ppdFindChoice(option, choice.toUtf8().constData());
        if (markedValue(ppd, key) == choice || after == nullptr) {
            continue; // libcups names the option that it was told to keep as well
        }
        resolution.changes.push_back(
            {key, choice,
             before == nullptr ? Texts::tr("\"%1\" becomes \"%2\".").arg(optionText(*option), choiceText(*after))
                               : Texts::tr("\"%1\" changes from \"%2\" to \"%3\".")
                                     .arg(optionText(*option), choiceText(*before), choiceText(*after))});
    }
    return resolution;
}

} // namespace

QString Conflict::sentence() const
{
    if (choices.size() == 2) {
        return Texts::tr("\"%1\" does not go with \"%2\".").arg(choices[0].text, choices[1].text);
    }
    QStringList texts;
    for (const ConflictingChoice &choice : choices) {
        texts.append(u'"' + choice.text + u'"');
    }
    return Texts::tr("%1 do not go together.").arg(texts.join(QLatin1String(", ")));
}

std::vector<Conflict> conflictsOf(ppd_file_t *ppd)
{
    std::vector<Conflict> conflicts;
    if (ppd == nullptr) {
        return conflicts;
    }
    const QSet<QString> installed = installedKeys(ppd);
    QSet<QString> seen;
    for (const Constraint &constraint : constraintsOf(ppd)) {
        Conflict conflict = conflictBy(ppd, constraint, installed);
        if (!conflict.choices.empty() && !seen.contains(identity(conflict))) {
            seen.insert(identity(conflict));
            conflicts.push_back(std::move(conflict));
        }
    }
    return conflicts;
}

QStringList sentencesOf(const std::vector<Conflict> &conflicts)
{
    QStringList sentences;
    for (const Conflict &conflict : conflicts) {
        sentences.append(conflict.sentence());
    }
    return sentences;
}

QString Resolution::sentence() const
{
    QStringList sentences;
    for (const Change &change : changes) {
        sentences.append(change.sentence);
    }
    return sentences.join(u' ');
}

std::optional<Resolution> resolutionOf(ppd_file_t *ppd, const QStringList &wanted)
{
    const std::vector<Conflict> conflicts = conflictsOf(ppd);
    if (conflicts.empty()) {
        return Resolution();
    }
    QStringList keys;
    for (const Conflict &conflict : conflicts) {
        for (const ConflictingChoice &choice : conflict.choices) {
            keys.append(choice.key);
        }
    }
    for (const QString &name : wanted) {
        const auto key = std::find_if(keys.begin(), keys.end(), [&name](const QString &one) {
            return one.compare(name, Qt::CaseInsensitive) == 0;
        });
        const std::optional<Choices> choices = key != keys.end() ? wayOut(ppd, *key) : std::nullopt;
        if (choices) {
            return described(ppd, *choices);
        }
    }
    const std::optional<Choices> choices = wayOut(ppd, QString());
    return choices ? std::optional(described(ppd, *choices)) : std::nullopt;
}

QStringList latestFirst(const JobOptions &options)
{
    QStringList names;
    for (const auto &[name, value] : options.entries()) {
        names.prepend(name);
    }
    return names;
}

} // namespace tapeprint::job
