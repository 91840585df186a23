// SPDX-License-Identifier: Apache-2.0
// One job: the objects that a print dialog owns, and every change of them. Panels and windows are views on it.
//
//   Job ── Destination (queue, own copy of the PPD), PrintSession, PrintSettings, PageFormat, Printer, JobOptions
#pragma once

#include "job/Destination.h"
#include "job/JobOptions.h"
#include "job/PpdMarks.h"
#include "job/TapeKeywords.h"
#include "job/TapePage.h"

#include <QObject>
#include <QStringList>

#include <utility>

#include <pdekit/PrintingCore.h>

namespace tapeprint::job
{

class Job : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// The languages in which descriptions of printers are to be read, the preferred first; none: as they are written.
    void setLanguages(const QStringList &languages) { mLanguages = languages; }

    /// Takes a destination and lays down its saved options and those asked for, which have the last word. Whoever
    /// borrowed the objects of an earlier destination must have let go of them.
    void open(Destination destination, const JobOptions &asked);
    /// Opens the queue that is open once more, with other saved options: nothing that was marked or set in the PPD
    /// until now is left, and nobody is asked for anything. What revert() goes back to stays. Whoever borrowed the
    /// objects must have let go of them. Does nothing without a queue. \param instance the instance that the saved
    /// options belong to; empty for the queue itself.
    void reopen(const QString &instance, const JobOptions &saved, const JobOptions &asked);
    /// Lets go of the destination and its PPD.
    void close();

    /// Sentences about what the person should know of the job as it is now: options that get lost, values that the PPD
    /// does not list.
    QStringList notices() const;

    const Destination &destination() const { return mDestination; }
    ppd_file_t *ppd() const { return mDestination.ppd.get(); }
    pdekit::PrintSession &session() { return mSession; }
    pdekit::PrintSettings &settings() { return mSettings; }
    pdekit::PageFormat &pageFormat() { return mPageFormat; }
    const pdekit::PageFormat &pageFormat() const { return mPageFormat; }
    pdekit::Printer &printer() { return mPrinter; }
    const JobOptions &options() const { return mOptions; }
    /// What the options and attributes of a tape are called; empty as long as no panel says that the printer prints on
    /// tape.
    const TapeKeywords &tape() const { return mTape; }
    /// A panel's plug-in says what they are called: the paper takes the length that was laid down.
    void setTape(TapeKeywords tape);
    /// The page that comes out of the printer, with the options as they stand.
    TapePage page() const { return tapePageOf(ppd(), mOptions, mTape); }
    /// What was laid down for this job: the queue's or instance's saved options under those asked for. PageRegion
    /// stands there as PageSize.
    const JobOptions &laidDown() const { return mLaidDown; }

    /// A panel sends a choice: marked when the PPD lists it, recorded in any case. A number becomes the default choice
    /// too: a panel that fills a control anew, from the default, then finds what it sent last and not the PPD's.
    /// \return false, and nothing changed, for an empty keyword or choice and for a value that no job can carry.
    bool takeChoice(const QString &key, const QString &choice);
    /// The person changes an option in the dialog itself: the paper follows, too.
    void changeOption(const QString &key, const QString &choice);
    /// The option that was changed last; null when none was.
    const QString &lastChanged() const { return mLastChanged; }
    /// The person takes a choice back: the job does not say anything of the option any more. For options of print
    /// servers and filters alone, which no panel hears of.
    void dropOption(const QString &key);
    /// The paper becomes a tape of another length. Panels take it over when they are shown again.
    void changePaperLength(double lengthMm);
    /// The job's options are laid down in a PPD that is as it came, and become its defaults, from which panels that are
    /// made anew start. Whoever borrowed the PPD must have let go of it.
    void renewPpd();
    /// The number of copies, at least 1.
    void setCopies(int copies);
    int copies() const;

    /// The job as it stands now is what revert() goes back to.
    void rememberAsOpened() { mOpenedWith = takeSnapshot(); }
    /// The options of the job that revert() goes back to.
    const JobOptions &openedWith() const { return mOpenedWith.options; }
    /// Goes back to the remembered job, its instance and its marks. Each option that changes by it is told as a change.
    void revert();

Q_SIGNALS:
    /// An option has taken a choice; sent while the change is made, with the objects right already.
    void optionChanged(const QString &key, const QString &choice);
    /// The job's options changed.
    void changed();

private:
    /// What "the values that the dialog was opened with" are.
    struct Snapshot {
        JobOptions options;
        JobOptions laidDown;
        QString instance; ///< of the queue
        JobOptions saved; ///< for the queue or instance
        PpdMarks marks;
        PpdMarks defaults;
        pdekit::PageFormat pageFormat;
        pdekit::PrintSettings settings;
    };

    void describePrinter();
    void layDownOptions(const JobOptions &asked);
    void layDownPages();
    void record(const QString &key, const QString &choice);
    void followMarkedTape();
    void takeFreshPpd();
    void clearOptions();
    void setPaperLengthMm(double lengthMm);
    Snapshot takeSnapshot() const;

    QStringList mLanguages;
    Destination mDestination;
    pdekit::PrintSession mSession;
    pdekit::PrintSettings mSettings;
    pdekit::PageFormat mPageFormat;
    pdekit::Printer mPrinter;
    JobOptions mOptions;
    JobOptions mLaidDown;
    TapeKeywords mTape;
    JobOptions mChosen; ///< what was laid down, and what the person changed in the dialog since
    QString mLastChanged;
    Snapshot mOpenedWith;
};

} // namespace tapeprint::job
