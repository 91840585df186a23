// SPDX-License-Identifier: Apache-2.0
// The traffic with panels. Panels borrow the job's objects, so they always go first.
#include "dialog/Panels.h"

#include "dialog/CallWatch.h"
#include "job/IppAttributeNames.h"
#include "job/LaidDownOptions.h"
#include "job/PlainText.h"
#include "job/PpdMarks.h"
#include "job/Reason.h"

#include <QFileInfo>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include <algorithm>

#include <pdekit/NotificationCenter.h>

namespace tapeprint::dialog
{

namespace
{

/// Panels that correct one another's values never come to an end by themselves.
constexpr std::size_t mostChangesInARow = 1000;
/// So much of a panel's text is shown in a sentence.
constexpr qsizetype mostShown = 60;

/// The notice about a view at the end of a change of its areas.
const QString areasChangedNotice = QStringLiteral("NSViewDidUpdateTrackingAreasNotification");

/// Whether a text can be an option's keyword in a job: printable ASCII, and nothing that ends it.
bool isKeyword(const QString &text)
{
    return std::all_of(text.begin(), text.end(), [](QChar letter) {
        return letter > u' ' && letter < QChar(0x7F) && !QStringView(u"=\"'{}\\").contains(letter);
    });
}

bool hasControlCharacters(const QString &text)
{
    return std::any_of(text.begin(), text.end(),
                       [](QChar letter) { return letter.category() == QChar::Other_Control; });
}

/// While a bundle is guarded, its guard says that it does not come back.
class LeftToGuard
{
public:
    LeftToGuard() { CallWatch::ofWindow().sleep(true); }
    ~LeftToGuard() { CallWatch::ofWindow().sleep(false); }
    LeftToGuard(const LeftToGuard &) = delete;
    LeftToGuard &operator=(const LeftToGuard &) = delete;
};

/// The panels of all windows of the program.
std::vector<Panels *> &allPanels()
{
    static std::vector<Panels *> all;
    return all;
}

} // namespace

Panels::Panels(job::Job &job, QStringList bundleFolders) : mJob(job), mBundleFolders(std::move(bundleFolders))
{
    allPanels().push_back(this);
    // Every panel hears of every change once, the sender of it too: a panel that takes its state from what the dialog
    // reports stays right. A choice that it was told already is no change.
    connect(&mJob, &job::Job::optionChanged, this, &Panels::tell, Qt::DirectConnection);
}

Panels::~Panels()
{
    release();
    allPanels().erase(std::remove(allPanels().begin(), allPanels().end(), this), allPanels().end());
}

void Panels::release()
{
    mToTell.clear();
    mPanels.clear();
    mBundles.clear();
    // A view or a closure may still hold the callback: it answers null from now on.
    for (const std::shared_ptr<PanelHost> &host : mHosts) {
        host->detach();
    }
    mHosts.clear();
    mSenders.clear();
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
    mCalls.forget();
    pdekit::LoadedBundles loaded;
    {
        const LeftToGuard leftToGuard;
        loaded = pdekit::loadBundles(mBundleFolders, mJob.ppd());
    }
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
        makePanelsOf(bundle);
    }
}

void Panels::makePanelsOf(const pdekit::LoadedBundle &bundle)
{
    const pdekit::BundleGuard guard(bundle.path, pdekit::BundleGuard::Step::MakingPanels);
    if (!guard.reasonToSkip().isNull()) {
        mNotices.append(tr("The plug-in %1 is not used: %2. Printing works without it.")
                            .arg(bundle.path, job::reasonText(guard.reasonToSkip())));
        return;
    }
    const LeftToGuard leftToGuard;
    const auto host = mHosts.emplace_back(std::make_shared<PanelHost>(mJob, *this, bundle.path));
    // A copy: the array is the plug-in's, and its panels are called before all of it is read. An empty one is an
    // answer.
    pdekit::PanelArray panels{nullptr};
    mCalls.make(tr("The plug-in %1").arg(bundle.path), [&] {
        if (const pdekit::PanelArray *made =
                bundle.principal->PDEPanelsForType(pdekit::kPrinterModulePanelType, host)) {
            panels = *made;
        }
    });
    const auto missing = std::remove(panels.begin(), panels.end(), nullptr);
    if (missing != panels.end()) {
        panels.erase(missing, panels.end());
        mNotices.append(tr("The plug-in %1 could not make its panel: printing works without it.").arg(bundle.path));
    }
    for (const std::shared_ptr<pdekit::Panel> &panel : panels) {
        addPanel(panel, bundle.path);
    }
}

void Panels::addPanel(const std::shared_ptr<pdekit::Panel> &panel, const QString &bundlePath)
{
    PanelEntry entry;
    entry.panel = panel;
    entry.who = tr("The plug-in %1").arg(bundlePath);
    mCalls.make(entry.who, [&] { entry.name = job::harmless(panel->panelName().simplified()); });
    if (entry.name.isEmpty()) {
        entry.name = QFileInfo(bundlePath).completeBaseName();
    }
    entry.who = tr("The panel \"%1\" of %2").arg(entry.name, bundlePath);
    // The kind is asked for in the protocol's order; this dialog has no use for it.
    mCalls.make(entry.who, [&] { panel->panelKind(); });
    mCalls.make(entry.who, [&] {
        if (const QStringList *keys = panel->supportedPPDOptionKeys()) {
            entry.supportedKeys = *keys;
        }
    });
    mCalls.make(entry.who, [&] { entry.view = panel->panelView(); });
    if (entry.view == nullptr) {
        mNotices.append(tr("The panel \"%1\" of %2 has no view: its values are printed as they are laid down.")
                            .arg(entry.name, bundlePath));
    }
    entry.terminalWho = entry.who.toLocal8Bit();
    mPanels.push_back(std::move(entry));
}

std::pair<Panels *, const PanelEntry *> Panels::inWhoseView(const QObject *receiver)
{
    for (const QObject *object = receiver; object != nullptr; object = object->parent()) {
        for (Panels *panels : allPanels()) {
            for (const PanelEntry &entry : panels->mPanels) {
                if (object == entry.view) {
                    return {panels, &entry};
                }
            }
        }
    }
    return {};
}

bool Panels::takeThrow(const QObject *receiver, const QString &reason)
{
    const auto [panels, entry] = inWhoseView(receiver);
    if (entry != nullptr) {
        panels->mCalls.tellThrown(entry->who, reason);
    }
    return entry != nullptr;
}

QByteArray Panels::nameOfWhoseView(const QObject *receiver)
{
    const PanelEntry *entry = inWhoseView(receiver).second;
    return entry != nullptr ? entry->terminalWho : QByteArray();
}

bool Panels::takeChoice(const QString &key, const QString &choice, const QString &bundlePath)
{
    const bool isCarried = (job::findOption(mJob.ppd(), key) != nullptr || isKeyword(key)) &&
                           !hasControlCharacters(choice) && mJob.takeChoice(key, choice);
    if (isCarried) {
        mSenders[key] = bundlePath;
    } else {
        mCalls.tell(tr("The plug-in %1 sent an option that no job can carry, which was left out: %2.")
                        .arg(bundlePath, job::harmless((key + u'=' + choice).left(mostShown))));
    }
    return isCarried;
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
    const QScopedValueRollback telling(mIsTelling, true);
    for (std::size_t told = 0; !mToTell.empty(); ++told) {
        const QString changedKey = mToTell.front().first;
        const QString newChoice = mToTell.front().second;
        mToTell.pop_front();
        if (told == mostChangesInARow) {
            const auto sender = mSenders.find(changedKey);
            mCalls.tell(tr("Panels change %1 without end (%2): it is printed as it stands.")
                            .arg(changedKey, sender == mSenders.end() ? QString() : sender->second));
            break;
        }
        for (PanelEntry &entry : mPanels) {
            const auto known = entry.told.find(changedKey);
            if (known == entry.told.end() || known->second != newChoice) {
                entry.told[changedKey] = newChoice;
                mCalls.make(entry.who, [&] { entry.panel->PPDOptionKeyValueDidChange(changedKey, newChoice); });
            }
        }
    }
    mToTell.clear();
}

void Panels::show(std::size_t index)
{
    if (index < mPanels.size()) {
        mCalls.make(mPanels[index].who, [&] { mPanels[index].panel->willShow(); });
    }
}

bool Panels::mayHide(std::size_t index)
{
    bool mayHide = true;
    if (index < mPanels.size()) {
        mCalls.make(mPanels[index].who, [&] { mayHide = mPanels[index].panel->shouldHide(); });
    }
    return mayHide;
}

bool Panels::hasHelp(std::size_t index) const
{
    bool hasHelp = false;
    if (index < mPanels.size() && dynamic_cast<pdekit::PanelHelp *>(mPanels[index].panel.get()) != nullptr) {
        mCalls.make(mPanels[index].who, [&] { hasHelp = mPanels[index].panel->shouldShowHelp(); });
    }
    return hasHelp;
}

void Panels::showHelp(std::size_t index)
{
    if (auto *help = index < mPanels.size() ? dynamic_cast<pdekit::PanelHelp *>(mPanels[index].panel.get()) : nullptr) {
        mCalls.make(mPanels[index].who, [&] { help->showHelp(); });
    }
}

void Panels::showAll()
{
    for (std::size_t i = 0; i < mPanels.size(); ++i) {
        show(i);
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
    job::JobOptions ofNoPanel;
    for (const auto &[key, value] : mJob.options().entries()) {
        const bool isTapes = key == mJob.tape().lengthOption || key == mJob.tape().marginOption;
        if (!isTapes && !announced(key) && mSenders.find(key) == mSenders.end()) {
            ofNoPanel.set(key, value);
        }
    }
    notices += job::unlistedNumbers(mJob.ppd(), ofNoPanel);
    for (const auto &[key, bundlePath] : mSenders) {
        if (isOnlyInTheJob(key)) {
            notices.append(tr("The plug-in %1 sends %2=%3, which the printer's description does not know.")
                               .arg(bundlePath, key, mJob.options().value(key)));
        }
    }
    return notices + mCalls.sentences();
}

bool Panels::isOnlyInTheJob(const QString &key) const
{
    const bool isKnown = job::findOption(mJob.ppd(), key) != nullptr || job::isIppJobAttribute(key) ||
                         key == mJob.tape().lengthOption; // which goes to the printer by whatever description
    return !isKnown && mJob.options().contains(key);
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
        for (PanelEntry &entry : mPanels) {
            entry.told.erase(job::OptionName::pageSize);
        }
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
        bool isSaved = false;
        mCalls.make(entry.who, [&] { isSaved = entry.panel->saveValuesAndReturnError(&reason); });
        if (!isSaved) {
            *error = failure(tr("%1 could not hand over its values").arg(entry.who), reason);
            return false;
        }
    }
    return true;
}

/// A sentence with the reason that a panel gives, or without one.
QString Panels::failure(const QString &sentence, const QString &reason) const
{
    const QString text = job::reasonText(reason);
    return (text.isEmpty() ? sentence : tr("%1: %2", "what failed, why").arg(sentence, text)) + u'.';
}

bool Panels::shouldPrint(QString *refusedBy)
{
    for (const PanelEntry &entry : mPanels) {
        bool mayPrint = false;
        mCalls.make(entry.who, [&] { mayPrint = entry.panel->shouldPrint(); });
        if (!mayPrint) {
            *refusedBy = entry.who;
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
        bool isRestored = false;
        mCalls.make(entry.who, [&] { isRestored = entry.panel->restoreValuesAndReturnError(&reason); });
        if (!isRestored) {
            *error = failure(tr("%1 could not restore its values").arg(entry.who), reason);
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
            std::vector<std::pair<QString, QString>> values;
            mCalls.make(entry.who, [&] { values = live->currentValues(); });
            for (const auto &[key, choice] : values) {
                if (isKeyword(key) && !key.isEmpty() && !choice.isEmpty()) {
                    options.set(key, choice);
                }
            }
        }
    }
    return options;
}

std::vector<PanelSummary> Panels::summary() const
{
    std::vector<PanelSummary> summaries;
    for (const PanelEntry &entry : mPanels) {
        std::optional<QVariantMap> info;
        mCalls.make(entry.who, [&] { info = entry.panel->summaryInfo(); });
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
        mCalls.make(entry.who, [&] { entry.panel->printWindowWillClose(userPrinted); });
    }
}

} // namespace tapeprint::dialog
