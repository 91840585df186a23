// SPDX-License-Identifier: Apache-2.0
// Laying options down in the dialog's own copy of a PPD, with libcups' own mapping of IPP attributes to PPD options.
#include "job/LaidDownOptions.h"

#include "job/CupsOptions.h"
#include "job/CustomSizes.h"
#include "job/IppAttributeNames.h"
#include "job/MediaWords.h"
#include "job/PpdMarks.h"
#include "job/Texts.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr double pointsPerInch = 72.0;
constexpr double inchesPerMm = 0.0393701;

/// Names and values as the PPD spells them, so that an option never stands twice in a job.
void layDownOne(const JobOptions::Entry &entry, ppd_file_t *ppd, JobOptions *job)
{
    const auto &[name, value] = entry;
    const ppd_option_t *option = isIppJobAttribute(name) ? nullptr : findOption(ppd, name);
    if (option == nullptr) {
        job->set(name, value);
        return;
    }
    const QString key = QString::fromUtf8(option->keyword);
    const QString listed = listedChoice(ppd, key, value);
    const QString spelled = listed.isNull() ? value : listed;
    job->set(key, spelled);
    markChoice(ppd, key, spelled);
    if (!listed.isNull() || isNumber(value)) {
        setDefaultChoice(ppd, key, spelled);
    }
}

/// The marked paper; null where the description's default is a size of one's own, of which it says no size.
QString markedPaper(ppd_file_t *ppd)
{
    const QString paper = markedValue(ppd, OptionName::pageSize);
    return isCustomValue(paper) && !customSizeOf(paper) ? QString() : paper;
}

/// The tape that is shown is the tape that is printed on, whatever the queue's default becomes in the meantime.
void nameTape(ppd_file_t *ppd, JobOptions *job)
{
    if (job->contains(OptionName::pageSize)) {
        return;
    }
    const QString own = ownSizeIn(ppd, job->value(OptionName::media));
    if (!own.isNull()) {
        markChoice(ppd, OptionName::pageSize, own);
    }
    const QString tape = own.isNull() ? markedPaper(ppd) : own;
    if (!tape.isNull()) {
        job->set(OptionName::pageSize, tape);
        setDefaultChoice(ppd, OptionName::pageSize, tape);
    }
}

/// A tray or a kind of paper that media calls by the printer's own word, which libcups does not take for one.
void nameTrays(ppd_file_t *ppd, JobOptions *job)
{
    for (const QString &word : job->value(OptionName::media).split(u',')) {
        const QString tray = trayNamed(ppd, word);
        if (!tray.isNull() && !job->contains(tray) && listedChoice(ppd, OptionName::pageSize, word).isNull()) {
            layDownOne({tray, word}, ppd, job);
        }
    }
}

/// A sentence for each option whose value, a number or none, the PPD does not list.
QStringList unlisted(ppd_file_t *ppd, const JobOptions &job, bool numbers)
{
    QStringList sentences;
    for (const auto &[name, value] : job.entries()) {
        const bool isPpdOption = !isIppJobAttribute(name) && findOption(ppd, name) != nullptr;
        if (isPpdOption && isNumber(value) == numbers && listedChoice(ppd, name, value).isNull()) {
            sentences.append(Texts::tr("%1=%2 is none of the choices that the printer's PPD lists.").arg(name, value));
        }
    }
    return sentences;
}

std::optional<double> positiveLength(const QString &text)
{
    const double length = pdekit::doubleValue(text);
    return length > 0.0 ? std::optional(length) : std::nullopt;
}

} // namespace

JobOptions withNamedSize(const JobOptions &options, ppd_file_t *ppd)
{
    if (findOption(ppd, OptionName::pageSize) == nullptr) {
        return options;
    }
    const auto isOption = [](const JobOptions::Entry &entry, const QString &name) {
        return entry.first.compare(name, Qt::CaseInsensitive) == 0;
    };
    const auto &entries = options.entries();
    const bool namesSize = std::any_of(entries.begin(), entries.end(), [&](const JobOptions::Entry &entry) {
        return isOption(entry, OptionName::pageSize);
    });
    JobOptions named;
    for (const JobOptions::Entry &entry : entries) {
        if (!isOption(entry, OptionName::pageRegion)) {
            named.set(entry.first, entry.second);
        } else if (!namesSize) {
            named.set(OptionName::pageSize, entry.second);
        }
    }
    return named;
}

void layDown(const JobOptions &options, ppd_file_t *ppd, JobOptions *job)
{
    // First libcups' mapping, for "media", "sides", "print-quality" and their kin; then every option under its own
    // name.
    if (ppd != nullptr) {
        const CupsOptions mapped(options);
        cupsMarkOptions(ppd, mapped.count(), mapped.data());
    }
    for (const JobOptions::Entry &entry : options.entries()) {
        layDownOne(entry, ppd, job);
    }
    nameTape(ppd, job);
    nameTrays(ppd, job);
}

std::optional<pdekit::Paper> markedPaper(ppd_file_t *ppd)
{
    const ppd_size_t *size = ppd == nullptr ? nullptr : ppdPageSize(ppd, nullptr);
    if (size == nullptr) {
        return std::nullopt;
    }
    return pdekit::Paper{QString::fromUtf8(size->name), static_cast<double>(size->width),
                         static_cast<double>(size->length)};
}

std::optional<double> laidDownLengthMm(const JobOptions &chosen, ppd_file_t *ppd, const QString &lengthOption)
{
    if (lengthOption.isEmpty()) {
        return std::nullopt;
    }
    if (chosen.contains(lengthOption)) {
        return positiveLength(chosen.value(lengthOption));
    }
    // A tape that was chosen brings its own length.
    if (chosen.contains(OptionName::pageSize) || chosen.contains(OptionName::media)) {
        return std::nullopt;
    }
    const ppd_option_t *option = findOption(ppd, lengthOption);
    return option == nullptr ? std::nullopt : positiveLength(QString::fromUtf8(option->defchoice));
}

double heightPtFromMm(double lengthMm)
{
    double heightPt = lengthMm * inchesPerMm * pointsPerInch;
    // A last bit lost on the way would turn 62 into 61 where a panel shows whole millimetres.
    while (heightPt / pointsPerInch / inchesPerMm < lengthMm) {
        heightPt = std::nextafter(heightPt, std::numeric_limits<double>::infinity());
    }
    return heightPt;
}

QStringList unlistedValues(ppd_file_t *ppd, const JobOptions &job)
{
    return unlisted(ppd, job, false);
}

QStringList unlistedNumbers(ppd_file_t *ppd, const JobOptions &job)
{
    return unlisted(ppd, job, true);
}

QStringList optionsThatNeverArrive(const JobOptions &chosen)
{
    QStringList sentences;
    for (const auto &[name, value] : chosen.entries()) {
        if (const QString attribute = ippJobAttributeInOtherLetters(name); !attribute.isNull()) {
            sentences.append(Texts::tr("Option %1 never reaches the printer's filter, because the print server takes "
                                       "it for its own attribute %2: give it another name in the PPD.")
                                 .arg(name, attribute));
        }
    }
    return sentences;
}

} // namespace tapeprint::job
