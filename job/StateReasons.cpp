// SPDX-License-Identifier: Apache-2.0
// The table of reasons. What drivers invent is shown as they write it.
#include "job/StateReasons.h"

#include "job/PlainText.h"
#include "job/Texts.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tapeprint::job
{

namespace
{

/// A keyword in words. Where tape and paper are called differently the second text is paper's.
struct Meaning {
    QLatin1String keyword;
    const char *text;
    const char *paperText = nullptr;
    ReasonWeight weightWithoutEnding = ReasonWeight::Error;
};

const char *const context = "tapeprint::job::Texts";

const std::array meanings{
    Meaning{QLatin1String("media-empty"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "out of tape"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "out of paper")},
    Meaning{QLatin1String("media-needed"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "other tape is needed"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "other paper is needed")},
    Meaning{QLatin1String("media-low"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "little tape is left"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "little paper is left"), ReasonWeight::Warning},
    Meaning{QLatin1String("media-jam"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the tape is jammed"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the paper is jammed")},
    Meaning{QLatin1String("cover-open"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the cover is open")},
    Meaning{QLatin1String("door-open"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "a door is open")},
    Meaning{QLatin1String("interlock-open"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "a door is open")},
    Meaning{QLatin1String("input-tray-missing"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "no cassette is in it"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the paper tray is missing")},
    Meaning{QLatin1String("output-area-full"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the output tray is full")},
    Meaning{QLatin1String("marker-supply-low"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "little ink is left"),
            nullptr, ReasonWeight::Warning},
    Meaning{QLatin1String("marker-supply-empty"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "out of ink")},
    Meaning{QLatin1String("toner-low"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "little toner is left"), nullptr,
            ReasonWeight::Warning},
    Meaning{QLatin1String("toner-empty"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "out of toner")},
    Meaning{QLatin1String("paused"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "paused")},
    Meaning{QLatin1String("moving-to-paused"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "paused after this job"),
            nullptr, ReasonWeight::Warning},
    Meaning{QLatin1String("hold-new-jobs"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "new jobs are held"), nullptr,
            ReasonWeight::Warning},
    Meaning{QLatin1String("offline"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "switched off or not connected")},
    Meaning{QLatin1String("shutdown"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "switched off or not connected")},
    Meaning{QLatin1String("timed-out"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "it does not answer")},
    Meaning{QLatin1String("connecting-to-device"), QT_TRANSLATE_NOOP("tapeprint::job::Texts", "being connected"),
            nullptr, ReasonWeight::Report},
    Meaning{QLatin1String("cups-waiting-for-job-completed"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the printer is at work"), nullptr, ReasonWeight::Report},
    Meaning{QLatin1String("spool-area-full"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the print server's disk is full")},
    Meaning{QLatin1String("cups-missing-filter"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "a part of its driver is missing")},
    Meaning{QLatin1String("cups-insecure-filter"),
            QT_TRANSLATE_NOOP("tapeprint::job::Texts", "the print server does not trust its driver")},
};

const Meaning *meaningOf(const QString &keyword)
{
    const auto *found = std::find_if(meanings.begin(), meanings.end(),
                                     [&keyword](const Meaning &meaning) { return meaning.keyword == keyword; });
    return found == meanings.end() ? nullptr : found;
}

} // namespace

StateReason StateReason::parse(const QString &keyword)
{
    static const std::array<std::pair<QLatin1String, ReasonWeight>, 3> endings{
        {{QLatin1String("-report"), ReasonWeight::Report},
         {QLatin1String("-warning"), ReasonWeight::Warning},
         {QLatin1String("-error"), ReasonWeight::Error}}};
    for (const auto &[ending, weight] : endings) {
        if (keyword.endsWith(ending)) {
            return {keyword.chopped(ending.size()), weight};
        }
    }
    // What the backend of network printers notes of a job there is no fault of the printer's.
    if (keyword.startsWith(QLatin1String("cups-remote-"))) {
        return {keyword, ReasonWeight::Report};
    }
    const Meaning *meaning = meaningOf(keyword);
    return {keyword, meaning == nullptr ? ReasonWeight::Error : meaning->weightWithoutEnding};
}

QString StateReason::words(bool isTape) const
{
    const Meaning *meaning = meaningOf(keyword);
    if (meaning == nullptr) {
        return harmless(keyword).replace(u'-', u' ');
    }
    const bool isPaper = !isTape && meaning->paperText != nullptr;
    return QCoreApplication::translate(context, isPaper ? meaning->paperText : meaning->text);
}

std::vector<StateReason> stateReasons(const QStringList &keywords)
{
    std::vector<StateReason> reasons;
    for (const QString &keyword : keywords) {
        if (!keyword.isEmpty() && keyword != u"none") {
            reasons.push_back(StateReason::parse(keyword));
        }
    }
    std::stable_sort(reasons.begin(), reasons.end(),
                     [](const StateReason &left, const StateReason &right) { return left.weight > right.weight; });
    return reasons;
}

} // namespace tapeprint::job
