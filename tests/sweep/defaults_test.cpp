// SPDX-License-Identifier: Apache-2.0
// On a printer that no panel belongs to, the job carries the PPD's defaults and what was set, as libcups sees them:
// nothing invented, nothing changed.
#include "tests/sweep/PpdFolder.h"

#include "dialog/Panels.h"
#include "job/CupsOptions.h"
#include "job/IppAttributeNames.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

#include <optional>
#include <span>

namespace
{

using namespace tapeprint::job;
using sweeptest::libcupsView;
using tapeprint::dialog::Panels;
using Entry = JobOptions::Entry;

/// Every option with its marked choice and its default.
QStringList stateOf(ppd_file_t *ppd)
{
    QStringList lines;
    forEachOption(ppd, [&](const ppd_option_t &option) {
        const ppd_choice_t *marked = ppdFindMarkedChoice(ppd, option.keyword);
        lines.append(QString::fromUtf8(option.keyword) + u'=' +
                     (marked == nullptr ? QString() : QString::fromUtf8(marked->choice)) + u" default "_qs +
                     QString::fromUtf8(option.defchoice));
    });
    return lines;
}

/// A choice of an option that is not the marked one and needs no value; none when there is no other.
std::optional<Entry> otherChoice(ppd_file_t *ppd, const ppd_option_t &option)
{
    const QString key = QString::fromUtf8(option.keyword);
    const QString marked = markedChoice(ppd, key);
    for (const ppd_choice_t &choice : std::span(option.choices, static_cast<std::size_t>(option.num_choices))) {
        const QString keyword = QString::fromUtf8(choice.choice);
        if (keyword != marked && keyword != u"Custom" && !keyword.isEmpty()) {
            return Entry(key, keyword);
        }
    }
    return std::nullopt;
}

/// Whether libcups takes an option for its own one of that name, and marks another.
bool isTakenByLibcups(const QString &key)
{
    return isIppJobAttribute(key) || !ippJobAttributeInOtherLetters(key).isNull() ||
           key.compare(u"mirror", Qt::CaseInsensitive) == 0;
}

/// The first option, beside the paper, that has another choice.
std::optional<Entry> otherChoice(ppd_file_t *ppd)
{
    std::optional<Entry> found;
    forEachOption(ppd, [&](const ppd_option_t &option) {
        const QString key = QString::fromUtf8(option.keyword);
        const bool isOneOf = option.ui == PPD_UI_PICKONE || option.ui == PPD_UI_BOOLEAN;
        if (!found && isOneOf && key != OptionName::pageSize && key != OptionName::pageRegion &&
            !isTakenByLibcups(key)) {
            found = otherChoice(ppd, option);
        }
    });
    return found;
}

std::optional<Entry> otherPaper(ppd_file_t *ppd)
{
    const ppd_option_t *papers = findOption(ppd, OptionName::pageSize);
    return papers == nullptr ? std::nullopt : otherChoice(ppd, *papers);
}

/// One printer in the dialog, as it goes to print without a window.
class Opened
{
public:
    Opened(const QString &path, const JobOptions &asked) : mPanels(mJob, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)})
    {
        mPanels.open(sweeptest::destinationOf(path), asked);
    }

    Job &job() { return mJob; }

    /// What is wrong with the job. \param reference libcups' view with the same set; \param expected the job's options.
    QString difference(ppd_file_t *reference, JobOptions expected)
    {
        Problem error;
        if (!mPanels.entries().empty()) {
            return u"a panel is loaded: "_qs + mPanels.entries().front().name;
        }
        if (!mPanels.settle(&error) || !mPanels.saveValues(&error) || !mPanels.shouldPrint(&error.sentence)) {
            return u"nothing would be printed: "_qs + error.sentence;
        }
        const QString paper = markedChoice(reference, OptionName::pageSize);
        // A size of one's own that is the default has no size, and so is none.
        if (!paper.isNull() && paper != u"Custom" && !expected.contains(OptionName::pageSize)) {
            expected.set(OptionName::pageSize, paper);
        }
        QStringList carried = mJob.options().lines();
        QStringList wanted = expected.lines();
        carried.sort();
        wanted.sort();
        if (carried != wanted) {
            return u"other options: the job carries "_qs + carried.join(u' ') + u" instead of "_qs + wanted.join(u' ');
        }
        const QStringList notices = mJob.notices() + mPanels.notices();
        if (!notices.isEmpty()) {
            return u"a notice nobody needs: "_qs + notices.join(u' ');
        }
        return differenceOfMarks(reference);
    }

private:
    QString differenceOfMarks(ppd_file_t *reference)
    {
        const QStringList ours = stateOf(mJob.ppd());
        const QStringList theirs = stateOf(reference);
        for (qsizetype i = 0; i < qMax(ours.size(), theirs.size()); ++i) {
            // What was laid down is the default of the dialog's own copy; the mark in front of it is libcups' own.
            const QString mine = ours.value(i);
            const QString its = theirs.value(i);
            const bool isSet = mJob.options().contains(mine.section(u'=', 0, 0));
            const auto compared = [isSet](const QString &line) { return isSet ? line.section(u' ', 0, 0) : line; };
            if (compared(mine) != compared(its)) {
                return u"other marks: "_qs + mine + u" instead of "_qs + its;
            }
        }
        return {};
    }

    Job mJob;
    Panels mPanels;
};

JobOptions only(const Entry &entry)
{
    JobOptions options;
    options.set(entry.first, entry.second);
    return options;
}

/// What is wrong when one value is asked for from the start, as by -o.
QString differenceWhenAsked(const QString &path, const Entry &set)
{
    const PpdFile reference = libcupsView(path);
    const CupsOptions asked(only(set));
    cupsMarkOptions(reference.get(), asked.count(), asked.data());
    return Opened(path, only(set)).difference(reference.get(), only(set));
}

TEST(Defaults, WithNothingSet_TheJobCarriesThePpds)
{
    sweeptest::forEveryPpd([](const QString &path) {
        const PpdFile reference = libcupsView(path);
        return Opened(path, {}).difference(reference.get(), {});
    });
}

TEST(Defaults, WithAnOptionAskedFor_TheJobCarriesItBesideThePpds)
{
    sweeptest::forEveryPpd([](const QString &path) {
        const std::optional<Entry> set = otherChoice(libcupsView(path).get());
        return set ? differenceWhenAsked(path, *set) : QString();
    });
}

TEST(Defaults, WithAPaperAskedFor_TheJobCarriesIt)
{
    sweeptest::forEveryPpd([](const QString &path) {
        const std::optional<Entry> set = otherPaper(libcupsView(path).get());
        return set ? differenceWhenAsked(path, *set) : QString();
    });
}

TEST(Defaults, WithAnOptionPicked_TheJobCarriesItBesideThePpds)
{
    sweeptest::forEveryPpd([](const QString &path) {
        const PpdFile reference = libcupsView(path);
        const std::optional<Entry> set = otherChoice(reference.get());
        if (!set) {
            return QString();
        }
        ppdMarkOption(reference.get(), set->first.toUtf8().constData(), set->second.toUtf8().constData());
        Opened opened(path, {});
        opened.job().changeOption(set->first, set->second);
        return opened.difference(reference.get(), only(*set));
    });
}

} // namespace
