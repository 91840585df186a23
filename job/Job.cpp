// SPDX-License-Identifier: Apache-2.0
// The objects of one job are changed here and nowhere else, so that they always agree.
#include "job/Job.h"

#include "job/CustomValues.h"
#include "job/FilterOptions.h"
#include "job/FilterRun.h"
#include "job/LaidDownOptions.h"
#include "job/MistypedOptions.h"
#include "job/PpdTexts.h"
#include "job/RefusedValues.h"

#include <utility>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

void Job::open(Destination destination, const JobOptions &asked)
{
    close();
    mDestination = std::move(destination);
    translateTexts(ppd(), mLanguages);
    describePrinter();
    layDownOptions(asked);
    rememberAsOpened();
    Q_EMIT changed();
}

void Job::reopen(const QString &instance, const JobOptions &saved, const JobOptions &asked)
{
    if (!mDestination.queue) {
        return;
    }
    takeFreshPpd();
    mDestination.queue->instance = instance;
    mDestination.queue->options = saved;
    clearOptions();
    describePrinter();
    layDownOptions(asked);
    Q_EMIT changed();
}

void Job::takeFreshPpd()
{
    if (PpdFile fresh = freshCopy(mDestination.ppd)) {
        mDestination.ppd = std::move(fresh);
        translateTexts(ppd(), mLanguages);
    }
}

void Job::close()
{
    clearOptions();
    mPrinter = {};
    mOpenedWith = {};
    mDestination = {};
}

void Job::clearOptions()
{
    mSession = {};
    mSettings = {};
    mPageFormat = {};
    mOptions = {};
    mLaidDown = {};
    mTape = {};
    mChosen = {};
    mLastChanged.clear();
}

void Job::describePrinter()
{
    if (ppd() != nullptr && ppd()->nickname != nullptr) {
        mPrinter.makeModel = QString::fromUtf8(ppd()->nickname);
    }
    if (mDestination.queue) {
        mPrinter.name = mDestination.queue->name;
        mPrinter.instance = mDestination.queue->instance;
        mPrinter.deviceUri = mDestination.queue->deviceUri;
        if (!mDestination.queue->makeModel.isEmpty()) {
            mPrinter.makeModel = mDestination.queue->makeModel;
        }
    }
}

void Job::layDownOptions(const JobOptions &asked)
{
    // Each is named before they are joined: a PageRegion that is asked for counts more than a saved PageSize.
    mLaidDown = mDestination.queue ? withNamedSize(mDestination.queue->options, ppd()) : JobOptions();
    const JobOptions named = withNamedSize(asked, ppd());
    if (named.contains(OptionName::media) && !named.contains(OptionName::pageSize)) {
        mLaidDown.remove(OptionName::pageSize); // the media asked for is another paper
    }
    for (const auto &[name, value] : named.entries()) {
        mLaidDown.set(name, value);
    }
    mChosen = mLaidDown;
    layDown(mLaidDown, ppd(), &mOptions);
    layDownPages();
    followMarkedTape();
}

void Job::setTape(TapeKeywords tape)
{
    mTape = std::move(tape);
    if (const std::optional<double> lengthMm = laidDownLengthMm(mLaidDown, ppd(), mTape.lengthOption)) {
        setPaperLengthMm(*lengthMm);
    }
}

void Job::layDownPages()
{
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::copies, copies(), false);
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::firstPage, QVariant(), false);
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::lastPage, QVariant(), false);
    const QString pages = mOptions.value(OptionName::pageRanges);
    if (pages.isEmpty()) {
        return;
    }
    // The settings know one range: from the first page named to the last; an open end has no last page.
    const auto first = static_cast<std::uint32_t>(qMax(1, pdekit::intValue(pages)));
    pdekit::PMSetFirstPage(&mSettings, first, false);
    const qsizetype lastNumberAt = qMax(pages.lastIndexOf(u','), pages.lastIndexOf(u'-')) + 1;
    const std::int32_t last = pdekit::intValue(QStringView(pages).mid(lastNumberAt));
    if (last > 0) {
        pdekit::PMSetLastPage(&mSettings, static_cast<std::uint32_t>(last), false);
    }
}

QStringList Job::notices() const
{
    QStringList notices = unlistedValues(ppd(), mOptions) + ownValuesNotTaken(ppd(), mOptions) +
                          optionsThatNeverArrive(mChosen) + mistypedOptions(ppd(), mChosen) +
                          bracedForNobody(ppd(), mOptions) + optionsWithoutEffect(mChosen, page());
    if (mDestination.isFile() && ppd() != nullptr) {
        notices += filterNotices(mDestination.ppdPath, ppd(), mDestination.trustsPpd);
    }
    return notices;
}

bool Job::takeChoice(const QString &key, const QString &choice)
{
    // A value in braces would be dropped by the print server.
    if (key.isEmpty() || choice.isEmpty() || choice.startsWith(u'{')) {
        return false;
    }
    record(key, choice);
    if (isNumber(choice)) {
        setDefaultChoice(ppd(), key, choice);
    }
    Q_EMIT optionChanged(key, choice);
    Q_EMIT changed();
    return true;
}

void Job::changeOption(const QString &key, const QString &choice)
{
    if (key.isEmpty() || choice.isEmpty()) {
        return;
    }
    record(key, choice);
    mChosen.set(key, choice);
    if (key == OptionName::pageRanges) {
        layDownPages();
    }
    if (key == mTape.lengthOption && pdekit::doubleValue(choice) > 0.0) {
        setPaperLengthMm(pdekit::doubleValue(choice));
    }
    Q_EMIT optionChanged(key, choice);
    Q_EMIT changed();
}

void Job::dropOption(const QString &key)
{
    mOptions.remove(key);
    mChosen.remove(key);
    if (key == OptionName::pageRanges) {
        layDownPages();
    }
    Q_EMIT changed();
}

void Job::record(const QString &key, const QString &choice)
{
    if (mOptions.value(key) != choice) {
        mLastChanged = key;
    }
    markChoice(ppd(), key, choice);
    mOptions.set(key, choice);
    if (key == OptionName::pageSize) {
        followMarkedTape();
    }
}

void Job::changePaperLength(double lengthMm)
{
    setPaperLengthMm(lengthMm);
    Q_EMIT changed();
}

void Job::renewPpd()
{
    takeFreshPpd();
    JobOptions already = mOptions;
    layDown(mOptions, ppd(), &already);
}

void Job::setCopies(int copies)
{
    const int count = qMax(1, copies);
    mOptions.set(OptionName::copies, QString::number(count));
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::copies, count, false);
    Q_EMIT changed();
}

int Job::copies() const
{
    return qMax(1, pdekit::intValue(mOptions.value(OptionName::copies)));
}

void Job::followMarkedTape()
{
    mPageFormat.paper = markedPaper(ppd());
    const QVariant name = mPageFormat.paper ? QVariant(mPageFormat.paper->ppdPaperName) : QVariant();
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::mediaName, name, false);
}

void Job::setPaperLengthMm(double lengthMm)
{
    if (mPageFormat.paper) {
        mPageFormat.paper->heightPt = heightPtFromMm(lengthMm);
    }
}

Job::Snapshot Job::takeSnapshot() const
{
    const PrintQueue queue = mDestination.queue.value_or(PrintQueue());
    return {mOptions,         mLaidDown,           queue.instance, queue.options,
            takeMarks(ppd()), takeDefaults(ppd()), mPageFormat,    mSettings};
}

void Job::revert()
{
    const JobOptions left = std::exchange(mOptions, mOpenedWith.options);
    putMarks(ppd(), mOpenedWith.marks);
    putDefaults(ppd(), mOpenedWith.defaults);
    mChosen = mLaidDown = mOpenedWith.laidDown;
    if (mDestination.queue) {
        mDestination.queue->instance = mOpenedWith.instance;
        mDestination.queue->options = mOpenedWith.saved;
        describePrinter();
    }
    mPageFormat = mOpenedWith.pageFormat;
    mSettings = mOpenedWith.settings;

    for (const auto &[key, choice] : mOpenedWith.options.entries()) {
        if (left.value(key) != choice) {
            Q_EMIT optionChanged(key, choice);
        }
    }
    for (const auto &[key, choice] : left.entries()) {
        const QString marked = markedValue(ppd(), key);
        if (!mOptions.contains(key) && !marked.isNull()) {
            Q_EMIT optionChanged(key, marked);
        }
    }
    Q_EMIT changed();
}

} // namespace tapeprint::job
