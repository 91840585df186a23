// SPDX-License-Identifier: Apache-2.0
// The panels that work on a job, and the order in which job and panels are told of each other's changes.
//
//   Panels
//     ├─ pdekit::LoadedBundle ...   principal objects
//     ├─ PanelHost ...              what the panels of each see of the job's objects
//     └─ PanelEntry ...             panels, released before everything that they borrow
#pragma once

#include "dialog/PanelCalls.h"
#include "dialog/PanelHost.h"
#include "job/Conflicts.h"
#include "job/Job.h"
#include "job/Problem.h"
#include "job/ReplacedOptions.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <deque>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include <pdekit/BundleLoading.h>
#include <pdekit/PanelProtocol.h>

namespace tapeprint::dialog
{

/// A panel and what it said of itself.
struct PanelEntry {
    std::shared_ptr<pdekit::Panel> panel;
    QString name;           ///< the bundle's, when the panel has none
    QString who;            ///< panel and bundle, as sentences name them
    QByteArray terminalWho; ///< the same in the encoding of the terminal
    QStringList supportedKeys;
    QPointer<QWidget> view;          ///< null when the panel could not make it
    std::map<QString, QString> told; ///< the choice of each option that it was told last
};

/// One panel's summary: title and value, in the panel's own order.
struct PanelSummary {
    QString panelName;
    std::vector<std::pair<QString, QString>> lines;
};

class Panels : public QObject
{
    Q_OBJECT

public:
    /// \param job not owned; outlives the panels, which borrow its objects.
    Panels(job::Job &job, QStringList bundleFolders);
    ~Panels() override;

    /// Releases the panels, opens the job's next destination, and makes that destination's panels.
    void open(job::Destination destination, const job::JobOptions &asked);
    /// Releases the panels, opens the same queue once more with other saved options, and makes its panels. What
    /// revert() goes back to stays. No call of a panel may be under way.
    void reopen(const QString &instance, const job::JobOptions &saved, const job::JobOptions &asked);

    /// Sentences about bundles and panels that are not used or went wrong, and about what was laid down and a panel
    /// replaced, as long as the job carries what the panel put there.
    QStringList notices() const;
    /// Of these, the sentences about options asked for that a panel replaced by more than rounding.
    QStringList replacements(const job::JobOptions &asked) const;
    const std::vector<PanelEntry> &entries() const { return mPanels; }
    /// Whether a panel announced an option as its own.
    bool announced(const QString &key) const;

    /// Whether a call of a panel is under way: nothing that frees panels or the job's objects may be done.
    bool isInCall() const { return mCalls.isUnderWay(); }

    /// The panel is about to be seen, or is seen and its controls are to follow a change.
    void show(std::size_t index);
    /// Whether a panel lets the person turn to another one.
    bool mayHide(std::size_t index);
    /// Whether a panel has help to show, and wants a way to it.
    bool hasHelp(std::size_t index) const;
    /// The person asks for a panel's help.
    void showHelp(std::size_t index);
    /// Every panel is shown, as far as that goes without a window, and hands over its values: the job is what would be
    /// printed now. \param error takes the sentence of a panel that could not.
    bool settle(job::Problem *error);
    /// The person picks another paper. Panels hand over what was typed before the change, and hear of it once more when
    /// they have been shown with the new paper: what they learn by that shows in every control.
    void changePaper(const QString &paper);

    /// The job's options change as a resolution of conflicts says; panels hear of it.
    void apply(const job::Resolution &resolution);

    /// Every panel's controls are to follow the job's objects.
    void showAll();

    /// The panels are released and made anew on the job as it stands: what they keep in their fields alone is gone. No
    /// call of a panel may be under way.
    void remake();

    /// Every panel hands over its values. \param error takes the sentence of the panel that could not.
    bool saveValues(job::Problem *error);
    /// Every panel's last word. \param refusedBy takes panel and bundle of the one that says no, as sentences name
    /// them.
    bool shouldPrint(QString *refusedBy);
    /// Job and panels go back to the values that the dialog was opened with. \param error takes the sentence of a panel
    /// that could not.
    bool revert(job::Problem *error);
    /// The job's options with what each panel's controls say this moment laid over them, sent or not.
    job::JobOptions currentOptions() const;
    /// What the panels set.
    std::vector<PanelSummary> summary() const;

    /// Tells every panel that the window closes.
    void windowWillClose(bool userPrinted);
    /// Something in a panel's view threw: kept as a sentence. \param receiver who was handed an event; may be null.
    /// \param reason may be empty. \return whether it was in a panel's view.
    static bool takeThrow(const QObject *receiver, const QString &reason);
    /// The panel in whose view somebody is who was handed an event, as sentences name it, in the encoding of the
    /// terminal. \param receiver may be null. \return null when it is in no panel's view.
    static QByteArray nameOfWhoseView(const QObject *receiver);
    /// From the callback: a panel sends a choice. One that no job can carry is left out, and that is said.
    bool takeChoice(const QString &key, const QString &choice, const QString &bundlePath);
    /// From the callback: a panel changed the size of its view.
    void panelViewDidResize() { Q_EMIT panelResized(); }
    /// Views have come to rest after a change of their size or the window's: a panel that changed its view's size and
    /// waits for that takes it up.
    void tellAreasChanged();

Q_SIGNALS:
    void panelResized();

private:
    static std::pair<Panels *, const PanelEntry *> inWhoseView(const QObject *receiver);
    void release();
    void make();
    void makePanelsOf(const pdekit::LoadedBundle &bundle);
    void addPanel(const std::shared_ptr<pdekit::Panel> &panel, const QString &bundlePath);
    void tell(const QString &key, const QString &choice);
    void tellPaperAgain();
    QString failure(const QString &sentence, const QString &reason) const;
    bool isOnlyInTheJob(const QString &key) const;
    QString panelOf(const QString &key) const;
    bool isStillCarried(const job::ReplacedOption &replaced) const;

    job::Job &mJob;
    QStringList mBundleFolders;
    QStringList mNotices;
    std::vector<job::ReplacedOption> mReplaced; ///< as the panels settled
    mutable PanelCalls mCalls; ///< asking a panel leaves the panels as they are, whatever the panel does
    std::vector<std::shared_ptr<PanelHost>> mHosts;
    std::vector<pdekit::LoadedBundle> mBundles;
    std::vector<PanelEntry> mPanels;
    std::map<QString, QString> mSenders;             ///< of each option that panels sent, the bundle that sent it last
    std::deque<std::pair<QString, QString>> mToTell; ///< changes that wait until the panels heard of the one before
    bool mIsTelling = false;
};

} // namespace tapeprint::dialog
