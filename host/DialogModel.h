// SPDX-License-Identifier: Apache-2.0
// The print dialog without its window: the objects of one job, the panels that work on them, and the order in which
// the two are told of each other's changes.
//
//   DialogModel ── PrintSession, PrintSettings, PageFormat, Printer, PPD (own copy), JobOptions
//     ├─ HostCallback          what panels see of these objects
//     ├─ LoadedBundle ...      principal objects
//     └─ PanelEntry ...        panels, released before everything that they borrow
#pragma once

#include "host/HostCallback.h"
#include "host/JobOptions.h"
#include "host/PluginLoader.h"
#include "host/PpdFile.h"
#include "host/PpdMarks.h"
#include "host/Printers.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

#include <pdekit/PanelProtocol.h>

namespace tapeprint
{

/// Where a job goes: a queue, or with a PPD file alone through that PPD's filters.
struct Destination {
    std::optional<PrintQueue> queue;
    QString ppdPath; ///< the local PPD file; empty when the PPD is the queue's
    PpdFile ppd;     ///< null when the queue has none

    /// The name for the person.
    QString title() const;
};

/// A panel and what it said of itself.
struct PanelEntry {
    std::shared_ptr<pdekit::Panel> panel;
    QString name;
    QString kind;
    QStringList supportedKeys;
    QPointer<QWidget> view; ///< null when the panel could not make it
};

/// One panel's summary: title and value, in the panel's own order.
struct PanelSummary {
    QString panelName;
    std::vector<std::pair<QString, QString>> lines;
};

class DialogModel : public QObject
{
    Q_OBJECT

public:
    explicit DialogModel(QStringList bundleFolders);
    ~DialogModel() override;

    /// Takes a destination: lays down its saved options and the command line's, and makes the panels. An earlier
    /// destination's panels are released first.
    void open(Destination destination, const JobOptions &commandLine);

    /// Sentences about what the person should know of this destination: skipped bundles, options that get lost.
    QStringList notices() const { return mNotices; }

    const Destination &destination() const { return mDestination; }
    ppd_file_t *ppd() const { return mDestination.ppd.get(); }
    pdekit::PrintSession &session() { return mSession; }
    pdekit::PrintSettings &settings() { return mSettings; }
    pdekit::PageFormat &pageFormat() { return mPageFormat; }
    pdekit::Printer &printer() { return mPrinter; }
    const JobOptions &job() const { return mJob; }
    const std::vector<PanelEntry> &panels() const { return mPanels; }
    /// Whether a panel announced an option as its own.
    bool isPanelOption(const QString &key) const;

    /// A panel sends a choice: marked when the PPD lists it, recorded in the job in any case, and told to every panel,
    /// the sender included.
    /// \return false, and nothing changed, for an empty keyword or choice and for a value that no job can carry.
    bool takeFromPanel(const QString &key, const QString &choice);
    /// The person changes an option in the dialog itself: marked, recorded, and told to every panel.
    void changeOption(const QString &key, const QString &choice);
    /// The number of copies, at least 1.
    void setCopies(int copies);
    int copies() const;

    /// The panel is about to be seen, or is seen and its controls are to follow a change.
    void showPanel(std::size_t index);
    /// Every panel is shown, as far as that goes without a window.
    void showAllPanels();

    /// The job as it stands now is what Revert goes back to: the panels have shown their first values.
    void rememberAsOpened() { mOpenedWith = takeSnapshot(); }

    /// Every panel hands over its values. \param error takes the sentence of the panel that could not.
    bool saveValues(QString *error);
    /// Every panel's last word. \param refusedBy takes the name of the panel that says no.
    bool shouldPrint(QString *refusedBy);
    /// Goes back to the values that the dialog was opened with. \param error takes the sentence of a panel that could
    /// not.
    bool revert(QString *error);
    /// What the panels set.
    std::vector<PanelSummary> summary() const;

    /// Tells every panel that the window closes.
    void windowWillClose(bool userPrinted);
    /// From the callback: a panel changed the size of its view.
    void panelViewDidResize() { Q_EMIT panelResized(); }

Q_SIGNALS:
    /// The job's options changed.
    void jobChanged();
    void panelResized();

private:
    /// What "the values that the dialog was opened with" are.
    struct Snapshot {
        JobOptions job;
        PpdMarks marks;
        pdekit::PageFormat pageFormat;
        pdekit::PrintSettings settings;
    };

    void close();
    void describePrinter();
    void layDownOptions(const JobOptions &commandLine);
    void layDownPages();
    void makePanels();
    void followMarkedTape();
    void setPaperLengthMm(double lengthMm);
    void tellPanels(const QString &key, const QString &choice);
    Snapshot takeSnapshot();

    QStringList mBundleFolders;
    QStringList mNotices;
    Destination mDestination;
    pdekit::PrintSession mSession;
    pdekit::PrintSettings mSettings;
    pdekit::PageFormat mPageFormat;
    pdekit::Printer mPrinter;
    JobOptions mJob;
    Snapshot mOpenedWith;
    std::shared_ptr<HostCallback> mCallback;
    std::vector<LoadedBundle> mBundles;
    std::vector<PanelEntry> mPanels;
};

} // namespace tapeprint
