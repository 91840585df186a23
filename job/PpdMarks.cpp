// SPDX-License-Identifier: Apache-2.0
// Marks in a PPD. ppdMarkOption keeps the old mark in silence when a choice is not listed, so listing is asked first.
#include "job/PpdMarks.h"

#include <algorithm>
#include <span>

namespace tapeprint::job
{

namespace
{

const QLatin1String customPrefix("Custom.");

/// libcups marks and has no call that unmarks: a mark stands at the choice and in a list beside it.
void removeMarks(ppd_file_t *ppd)
{
    if (ppd == nullptr) {
        return;
    }
    while (auto *choice = static_cast<ppd_choice_t *>(cupsArrayFirst(ppd->marked))) {
        choice->marked = 0;
        cupsArrayRemove(ppd->marked, choice);
    }
    for (ppd_size_t &size : std::span(ppd->sizes, static_cast<std::size_t>(std::max(ppd->num_sizes, 0)))) {
        size.marked = 0;
    }
}

} // namespace

ppd_option_t *findOption(ppd_file_t *ppd, const QString &key)
{
    return ppd == nullptr || key.isEmpty() ? nullptr : ppdFindOption(ppd, key.toUtf8().constData());
}

QString listedChoice(ppd_file_t *ppd, const QString &key, const QString &choice)
{
    ppd_option_t *option = findOption(ppd, key);
    if (option == nullptr || choice.isEmpty()) {
        return {};
    }
    // ppdFindChoice answers the choice "Custom" for a custom value, if the option allows one.
    const ppd_choice_t *found = ppdFindChoice(option, choice.toUtf8().constData());
    if (found == nullptr) {
        return {};
    }
    return choice.startsWith(customPrefix, Qt::CaseInsensitive) ? choice : QString::fromUtf8(found->choice);
}

bool markChoice(ppd_file_t *ppd, const QString &key, const QString &choice)
{
    const QString listed = listedChoice(ppd, key, choice);
    if (listed.isNull()) {
        return false;
    }
    ppdMarkOption(ppd, key.toUtf8().constData(), listed.toUtf8().constData());
    return true;
}

QString markedChoice(ppd_file_t *ppd, const QString &key)
{
    const ppd_choice_t *marked = ppd == nullptr ? nullptr : ppdFindMarkedChoice(ppd, key.toUtf8().constData());
    return marked == nullptr ? QString() : QString::fromUtf8(marked->choice);
}

bool setDefaultChoice(ppd_file_t *ppd, const QString &key, const QString &value)
{
    ppd_option_t *option = findOption(ppd, key);
    const QByteArray bytes = value.toUtf8();
    if (option == nullptr || static_cast<std::size_t>(bytes.size()) >= sizeof option->defchoice) {
        return false;
    }
    const std::span<char> record(option->defchoice);
    std::fill(std::copy(bytes.begin(), bytes.end(), record.begin()), record.end(), '\0');
    return true;
}

PpdMarks takeMarks(ppd_file_t *ppd)
{
    PpdMarks marks;
    forEachOption(ppd, [&marks](const ppd_option_t &option) {
        for (const ppd_choice_t &choice :
             std::span(option.choices, static_cast<std::size_t>(std::max(option.num_choices, 0)))) {
            if (choice.marked != 0) {
                marks.emplace_back(QString::fromUtf8(option.keyword), QString::fromUtf8(choice.choice));
            }
        }
    });
    return marks;
}

void putMarks(ppd_file_t *ppd, const PpdMarks &marks)
{
    removeMarks(ppd);
    for (const auto &[key, choice] : marks) {
        markChoice(ppd, key, choice);
    }
}

PpdMarks takeDefaults(ppd_file_t *ppd)
{
    PpdMarks defaults;
    forEachOption(ppd, [&defaults](const ppd_option_t &option) {
        defaults.emplace_back(QString::fromUtf8(option.keyword), QString::fromUtf8(option.defchoice));
    });
    return defaults;
}

void putDefaults(ppd_file_t *ppd, const PpdMarks &defaults)
{
    for (const auto &[key, choice] : defaults) {
        const ppd_option_t *option = findOption(ppd, key);
        if (option != nullptr && QString::fromUtf8(option->defchoice) != choice) {
            setDefaultChoice(ppd, key, choice);
        }
    }
}

} // namespace tapeprint::job
