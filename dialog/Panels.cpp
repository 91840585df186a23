// SPDX-License-Identifier: Apache-2.0
// The traffic with panels. Panels borrow the job's objects, so they always go first.
#include "dialog/Panels.h"

#include "job/PlainText.h"

#include <pdekit/NotificationCenter.h>

namespace tapeprint::dialog
{

namespace
{

/// Panels that correct one another's values never come to an end by themselves.
constexpr std::size_t mostChangesInARow = 1000;

/// The notice about a view at the end of a change of its areas.
const QString areasChangedNotice = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

} // namespace

Panels::Panels(job::Job &job, QStringList bundleFolders) : mJob(job), mBundleFolders(std::move(bundleFolders))
{
    // Every panel hears of every change, the sender of it too: a panel that takes its state from what the dialog
    // reports stays right.
    connect(&mJob, &job::Job::optionChanged, this, &Panels::tell, Qt::DirectConnection);
}

Panels::~Panels()
{
    release();
}

void Panels::release()
{
    mToTell.clear();
    mPanels.clear();
    mBundles.clear();
    // A view or a closure may still hold the callback: it answers null from now on.
    if (mHost) {
        mHost->detach();
        mHost.reset();
    }
}

void Panels::open(job::Destination destination, const job::JobOptions &asked)
{
    release();
    mNotices.clear();
    mReplaced.clear();
    mJob.open(std::move(destination), asked);
    make();
    mJob.rememberAsOpened();
}

void Panels::reopen(const QString &instance, const job::JobOptions &saved, const job::JobOptions &asked)
{
    release();
    mNotices.clear();
    mReplaced.clear();
    mJob.reopen(instance, saved, asked);
    make();
}

void Panels::make()
{
    mHost = std::make_shared<PanelHost>(mJob, *this);
    pdekit::LoadedBundles loaded = pdekit::loadBundles(mBundleFolders, mJob.ppd());
    for (const QString &problem : loaded.problems) {
        mNotices.append(job::harmless(problem));
    }
    mBundles = std::move(loaded.bundles);
    for (const pdekit::LoadedBundle &bundle : mBundles) {
        if (mJob.tape().isEmpty()) {
            mJob.setTape(job::TapeKeywords::fromMetadata(bundle.metadata));
        }
    }
    for (const pdekit::LoadedBundle &bundle : mBundles) {
        const pdekit::PanelArray *panels = bundle.principal->PDEPanelsForType(pdekit::kPrinterModulePanelType, mHost);
        if (panels == nullptr) {
            mNotices.append(tr("The plug-in %1 could not make its panel: printing works without it.").arg(bundle.path));
            continue;
        }
        for (const std::shared_ptr<pdekit::Panel> &panel : *panels) {
            addPanel(panel, bundle.path);
        }
    }
}

void Panels::addPanel(const std::shared_ptr<pdekit::Panel> &panel, const QString &bundlePath)
{
    PanelEntry entry;
    entry.panel = panel;
    entry.name = panel->panelName();
    panel->panelKind(); // asked for in the protocol's order; this dialog has no use for it
    if (const QStringList *keys = panel->supportedPPDOptionKeys()) {
        entry.supportedKeys = *keys;
    }
    entry.view = panel->panelView();
    if (entry.view == nullptr) {
        mNotices.append(tr("The panel \"%1\" of %2 has no view: its values are printed as they are laid down.")
                            .arg(entry.name, bundlePath));
    }
    mPanels.push_back(std::move(entry));
}

bool Panels::announced(const QString &key) const
{
    for (const PanelEntry &entry : mPanels) {
        if (entry.supportedKeys.contains(key)) {
            return true;
        }
    }
    return false;
}

void Panels::tell(const QString &key, const QString &choice)
{
    mToTell.emplace_back(key, choice);
    // A panel that answers a notice with a change of its own is told of that one when all have heard of the first.
    if (mIsTelling) {
        return;
    }
    mIsTelling = true;
    for (std::size_t told = 0; !mToTell.empty() && told < mostChangesInARow; ++told) {
        const auto [changedKey, newChoice] = mToTell.front();
        mToTell.pop_front();
        for (const PanelEntry &entry : mPanels) {
            entry.panel->PPDOptionKeyValueDidChange(changedKey, newChoice);
        }
    }
    mToTell.clear();
    mIsTelling = false;
}

void Panels::show(std::size_t index)
{
    if (index < mPanels.size()) {
        mPanels[index].panel->willShow();
    }
}

void Panels::showAll()
{
    for (const PanelEntry &entry : mPanels) {
        entry.panel->willShow();
    }
}

void Panels::remake()
{
    release();
    mNotices.clear();
    mJob.renewPpd();
    make();
    showAll();
}

bool Panels::settle(job::Problem *error)
{
    showAll();
    const bool saved = saveValues(error);
    mReplaced = job::replacedOptions(mJob.laidDown(), mJob.options());
    return saved;
}

QStringList Panels::notices() const
{
    QStringList notices = mNotices;
    for (const job::ReplacedOption &replaced : mReplaced) {
        if (isStillCarried(replaced)) {
            notices.append(replaced.sentence(mJob.ppd(), panelOf(replaced.carried.first)));
        }
    }
    return notices;
}

QStringList Panels::replacements(const job::JobOptions &asked) const
{
    QStringList sentences;
    for (const job::ReplacedOption &replaced : mReplaced) {
        if (isStillCarried(replaced) && asked.contains(replaced.laidDown.first) && !replaced.isRounding()) {
            sentences.append(replaced.sentence(mJob.ppd(), panelOf(replaced.carried.first)));
        }
    }
    return sentences;
}

bool Panels::isStillCarried(const job::ReplacedOption &replaced) const
{
    return mJob.options().value(replaced.carried.first) == replaced.carried.second;
}

QString Panels::panelOf(const QString &key) const
{
    // A panel may send an option that it has not announced; where there is one panel alone, it was that one.
    QStringList names;
    for (const PanelEntry &entry : mPanels) {
        if (entry.supportedKeys.contains(key)) {
            return entry.name;
        }
        names.append(entry.name);
    }
    return names.join(QLatin1String(", "));
}

void Panels::changePaper(const QString &paper)
{
    showAll();
    mJob.changeOption(job::OptionName::pageSize, paper);
    showAll();
    tellPaperAgain();
}

void Panels::apply(const job::Resolution &resolution)
{
    for (const job::Resolution::Change &change : resolution.changes) {
        if (change.key == job::OptionName::pageSize) {
            changePaper(change.choice);
        } else {
            mJob.changeOption(change.key, change.choice);
        }
    }
}

void Panels::tellPaperAgain()
{
    if (const QString paper = mJob.options().value(job::OptionName::pageSize); !paper.isEmpty()) {
        tell(job::OptionName::pageSize, paper);
    }
}

void Panels::tellAreasChanged()
{
    for (const PanelEntry &entry : mPanels) {
        if (entry.view != nullptr) {
            pdekit::NotificationCenter::defaultCenter().postNotification(areasChangedNotice, entry.view.data());
        }
    }
}

bool Panels::saveValues(job::Problem *error)
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

bool Panels::shouldPrint(QString *refusedBy)
{
    for (const PanelEntry &entry : mPanels) {
        if (!entry.panel->shouldPrint()) {
            *refusedBy = entry.name;
            return false;
        }
    }
    return true;
}

bool Panels::revert(job::Problem *error)
{
    const QString paper = mJob.options().value(job::OptionName::pageSize);
    mJob.revert();
    mReplaced = job::replacedOptions(mJob.laidDown(), mJob.options());
    bool restored = true;
    for (const PanelEntry &entry : mPanels) {
        QString reason;
        if (!entry.panel->restoreValuesAndReturnError(&reason)) {
            *error = tr("The panel \"%1\" could not restore its values: %2").arg(entry.name, reason);
            restored = false;
        }
    }
    if (mJob.options().value(job::OptionName::pageSize) != paper) {
        tellPaperAgain();
    }
    return restored;
}

job::JobOptions Panels::currentOptions() const
{
    job::JobOptions options = mJob.options();
    for (const PanelEntry &entry : mPanels) {
        if (const auto *live = dynamic_cast<const pdekit::PanelLiveValues *>(entry.panel.get())) {
            for (const auto &[key, choice] : live->currentValues()) {
                options.set(key, choice);
            }
        }
    }
    return options;
}

std::vector<PanelSummary> Panels::summary() const
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

void Panels::windowWillClose(bool userPrinted)
{
    for (const PanelEntry &entry : mPanels) {
        entry.panel->printWindowWillClose(userPrinted);
    }
}

} // namespace tapeprint::dialog
