// SPDX-License-Identifier: Apache-2.0
// The dialog's objects and the traffic with panels. Panels borrow everything here, so they always go first.
#include "host/DialogModel.h"

#include "host/LaidDownOptions.h"

#include <QFileInfo>

#include <utility>

#include <pdekit/Numbers.h>

namespace tapeprint
{

QString Destination::title() const
{
    if (!queue) {
        return ppd != nullptr && ppd->nickname != nullptr ? QString::fromUtf8(ppd->nickname)
                                                          : QFileInfo(ppdPath).fileName();
    }
    return queue->fullName();
}

DialogModel::DialogModel(QStringList bundleFolders) : mBundleFolders(std::move(bundleFolders)) {}

DialogModel::~DialogModel()
{
    close();
}

void DialogModel::close()
{
    mPanels.clear();
    mBundles.clear();
    // A view or a closure may still hold the callback: it answers null from now on.
    if (mCallback) {
        mCallback->detach();
        mCallback.reset();
    }
    mDestination = {};
}

void DialogModel::open(Destination destination, const JobOptions &commandLine)
{
    close();
    mDestination = std::move(destination);
    mNotices.clear();
    mSession = {};
    mSettings = {};
    mPageFormat = {};
    mJob = {};

    describePrinter();
    layDownOptions(commandLine);
    mNotices += unlistedValues(ppd(), mJob) + optionsThatNeverArrive(ppd(), mJob);
    makePanels();
    rememberAsOpened();
    Q_EMIT jobChanged();
}

void DialogModel::describePrinter()
{
    mPrinter = {};
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

void DialogModel::layDownOptions(const JobOptions &commandLine)
{
    // The person's saved options first; the command line has the last word.
    JobOptions chosen = mDestination.queue ? mDestination.queue->options : JobOptions();
    for (const auto &[name, value] : commandLine.entries()) {
        chosen.set(name, value);
    }
    layDown(chosen, ppd(), &mJob);
    layDownPages();
    followMarkedTape();
    if (const std::optional<double> lengthMm = laidDownLengthMm(chosen, ppd())) {
        setPaperLengthMm(*lengthMm);
    }
}

void DialogModel::layDownPages()
{
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::copies, copies(), false);
    const QString pages = mJob.value(OptionName::pageRanges);
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

void DialogModel::makePanels()
{
    mCallback = std::make_shared<HostCallback>(this);
    LoadedBundles loaded = loadBundles(mBundleFolders);
    mNotices += loaded.problems;
    mBundles = std::move(loaded.bundles);
    for (const LoadedBundle &bundle : mBundles) {
        const pdekit::PanelArray *panels =
            bundle.principal->PDEPanelsForType(pdekit::kPrinterModulePanelType, mCallback);
        if (panels == nullptr) {
            mNotices.append(tr("The plug-in %1 could not make its panel: printing works without it.").arg(bundle.path));
            continue;
        }
        for (const std::shared_ptr<pdekit::Panel> &panel : *panels) {
            PanelEntry entry;
            entry.panel = panel;
            entry.name = panel->panelName();
            entry.kind = panel->panelKind();
            if (const QStringList *keys = panel->supportedPPDOptionKeys()) {
                entry.supportedKeys = *keys;
            }
            entry.view = panel->panelView();
            if (entry.view == nullptr) {
                mNotices.append(tr("The panel \"%1\" of %2 has no view: its values are printed as they are "
                                   "laid down.")
                                    .arg(entry.name, bundle.path));
            }
            mPanels.push_back(std::move(entry));
        }
    }
}

bool DialogModel::isPanelOption(const QString &key) const
{
    for (const PanelEntry &entry : mPanels) {
        if (entry.supportedKeys.contains(key)) {
            return true;
        }
    }
    return false;
}

bool DialogModel::takeFromPanel(const QString &key, const QString &choice)
{
    // A value in braces would be dropped by the print server.
    if (key.isEmpty() || choice.isEmpty() || choice.startsWith(u'{')) {
        return false;
    }
    markChoice(ppd(), key, choice);
    mJob.set(key, choice);
    if (key == OptionName::pageSize) {
        followMarkedTape();
    }
    // Every panel hears of it, the sender too: a panel that takes its state from what the dialog reports stays right.
    tellPanels(key, choice);
    Q_EMIT jobChanged();
    return true;
}

void DialogModel::changeOption(const QString &key, const QString &choice)
{
    if (key.isEmpty() || choice.isEmpty()) {
        return;
    }
    markChoice(ppd(), key, choice);
    mJob.set(key, choice);
    // The objects are right before any panel looks at them.
    if (key == OptionName::pageSize) {
        followMarkedTape();
    } else if (key == OptionName::tapeLength && pdekit::doubleValue(choice) > 0.0) {
        setPaperLengthMm(pdekit::doubleValue(choice));
    }
    tellPanels(key, choice);
    Q_EMIT jobChanged();
}

void DialogModel::setCopies(int copies)
{
    const int count = qMax(1, copies);
    mJob.set(OptionName::copies, QString::number(count));
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::copies, count, false);
    Q_EMIT jobChanged();
}

int DialogModel::copies() const
{
    return qMax(1, pdekit::intValue(mJob.value(OptionName::copies)));
}

void DialogModel::followMarkedTape()
{
    mPageFormat.paper = markedPaper(ppd());
    const QVariant name = mPageFormat.paper ? QVariant(mPageFormat.paper->ppdPaperName) : QVariant();
    pdekit::PMPrintSettingsSetValue(&mSettings, pdekit::PrintSettingsKey::mediaName, name, false);
}

void DialogModel::setPaperLengthMm(double lengthMm)
{
    if (mPageFormat.paper) {
        mPageFormat.paper->heightPt = heightPtFromMm(lengthMm);
    }
}

void DialogModel::tellPanels(const QString &key, const QString &choice)
{
    for (const PanelEntry &entry : mPanels) {
        entry.panel->PPDOptionKeyValueDidChange(key, choice);
    }
}

void DialogModel::showPanel(std::size_t index)
{
    if (index < mPanels.size()) {
        mPanels[index].panel->willShow();
    }
}

void DialogModel::showAllPanels()
{
    for (std::size_t i = 0; i < mPanels.size(); ++i) {
        showPanel(i);
    }
    rememberAsOpened();
}

bool DialogModel::saveValues(QString *error)
{
    for (const PanelEntry &entry : mPanels) {
        QString reason;
        if (!entry.panel->saveValuesAndReturnError(&reason)) {
            *error = tr("The panel \"%1\" could not hand over its values: %2").arg(entry.name, reason);
            return false;
        }
    }
    return true;
}

bool DialogModel::shouldPrint(QString *refusedBy)
{
    for (const PanelEntry &entry : mPanels) {
        if (!entry.panel->shouldPrint()) {
            *refusedBy = entry.name;
            return false;
        }
    }
    return true;
}

DialogModel::Snapshot DialogModel::takeSnapshot()
{
    return {mJob, takeMarks(ppd()), mPageFormat, mSettings};
}

bool DialogModel::revert(QString *error)
{
    const JobOptions left = std::exchange(mJob, mOpenedWith.job);
    putMarks(ppd(), mOpenedWith.marks);
    mPageFormat = mOpenedWith.pageFormat;
    mSettings = mOpenedWith.settings;

    // For a panel these are changes made elsewhere in the dialog, like any other.
    for (const auto &[key, choice] : mOpenedWith.job.entries()) {
        if (left.value(key) != choice) {
            tellPanels(key, choice);
        }
    }
    for (const auto &[key, choice] : left.entries()) {
        const QString marked = markedChoice(ppd(), key);
        if (!mJob.contains(key) && !marked.isNull()) {
            tellPanels(key, marked);
        }
    }
    bool restored = true;
    for (const PanelEntry &entry : mPanels) {
        QString reason;
        if (!entry.panel->restoreValuesAndReturnError(&reason)) {
            *error = tr("The panel \"%1\" could not restore its values: %2").arg(entry.name, reason);
            restored = false;
        }
    }
    Q_EMIT jobChanged();
    return restored;
}

std::vector<PanelSummary> DialogModel::summary() const
{
    std::vector<PanelSummary> summaries;
    for (const PanelEntry &entry : mPanels) {
        const std::optional<QVariantMap> info = entry.panel->summaryInfo();
        if (!info) {
            continue;
        }
        PanelSummary summary{entry.name, {}};
        // A panel may name a title without a value, which has nothing to show. Titles out of the order come last.
        QStringList titles = info->value(pdekit::kSummaryDisplayOrder).toStringList();
        titles += info->keys();
        titles.removeAll(pdekit::kSummaryDisplayOrder);
        titles.removeDuplicates();
        for (const QString &title : titles) {
            if (!title.isEmpty() && info->contains(title)) {
                summary.lines.emplace_back(title, info->value(title).toString());
            }
        }
        summaries.push_back(std::move(summary));
    }
    return summaries;
}

void DialogModel::windowWillClose(bool userPrinted)
{
    for (const PanelEntry &entry : mPanels) {
        entry.panel->printWindowWillClose(userPrinted);
    }
}

} // namespace tapeprint
