// SPDX-License-Identifier: Apache-2.0
// The printers that the window offers, live, and the one that is open: everything that needs a server for it is done in
// threads, and only what is finished crosses into the window's.
//
//   PrinterDesk
//     ├─ PrinterModel       the rows of the pop-up
//     ├─ reading            all printers of the server, about once a second
//     ├─ looking            printers on the network, now and then
//     ├─ opening            the printer that was picked last
//     └─ checking           whether the open printer's PPD is still the same
#pragma once

#include "dialog/BackgroundWork.h"
#include "dialog/PrinterModel.h"
#include "dialog/PrinterSource.h"

#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>
#include <memory>
#include <optional>

namespace tapeprint::dialog
{

class PrinterDesk : public QObject
{
    Q_OBJECT

public:
    /// \param request what was asked for at the start: the printer that is opened first.
    PrinterDesk(PrinterSource source, job::JobRequest request, QObject *parent = nullptr);

    /// The destination that is open by now, if there is one; else it is opened. From now on the list is live.
    void start(const job::Destination &open);
    /// Asked before a destination is handed over: while it says no, the destination waits.
    void setGate(std::function<bool()> isOpen) { mGate = std::move(isOpen); }

    /// The person picks a printer by QUEUE or QUEUE/INSTANCE. The newest pick counts; the open printer, picked again,
    /// ends the opening of another.
    void pick(const QString &name);
    /// Opens once more what the person declined to give a password for.
    void askAgain();
    /// Takes the open printer's new PPD, after hasNewDescription().
    void takeNewDescription();

    PrinterModel &model() { return mModel; }
    /// The row to show: of the printer that is being opened, or else of the one that is open; -1 when there is none.
    int currentRow() const;
    bool hasOpen() const { return mOpen.has_value(); }
    /// Whether a printer is being opened, or waits to be handed over.
    bool isOpening() const { return mWanted.has_value(); }
    /// Whether a job can go to the open printer.
    bool canPrint() const { return hasOpen() && !isOpening() && !isGone(); }
    /// Whether the person gave no password, or none that is good, for the printer that was to be opened last, or for a
    /// look at the open one's PPD.
    bool wasDeclined() const { return mDeclined.has_value() || mIsLookDeclined; }
    /// Whether the server's PPD of the open printer is another one by now.
    bool hasNewDescription() const { return mFresh != nullptr; }
    /// Sentences about printers and server as they are now.
    QStringList notices() const;
    void setIsTape(bool isTape);

Q_SIGNALS:
    /// A destination is open; the window takes it out of the pointer.
    void opened(const std::shared_ptr<tapeprint::job::Destination> &destination);
    /// Rows, notices or the state changed.
    void changed();

private:
    using Arrival = std::shared_ptr<job::Destination>;

    void open(const QString &name);
    QString firstWish() const;
    bool isLastUsedLost(const job::Problem &problem) const;
    QString lossNotice() const;
    void finishOpening(const Arrival &destination, const job::Problem &problem);
    void deliver();
    void take(const job::Destination &destination);
    void read();
    void takeList(const std::optional<job::PrinterList> &printers, const job::Problem &problem);
    void followOpenPrinter();
    void look();
    void openWhatTheServerAllows();
    void openTheOnlyPrinter();
    bool lacksDefault() const;
    void followDescription();
    void takeTimeOf(const job::Destination &destination);
    void checkDescription();
    void takeCheck(const Arrival &destination);
    void fillRows();
    const job::Printer *openPrinter() const;
    bool isGone() const;
    job::JobRequest requestFor(const QString &name) const;

    PrinterSource mSource;
    job::JobRequest mRequest;
    std::function<bool()> mGate;
    PrinterModel mModel;
    BackgroundWork mReading;
    BackgroundWork mLooking;
    BackgroundWork mOpening;
    BackgroundWork mChecking;
    QTimer mReadTimer;
    QTimer mLookTimer;
    QTimer mGateTimer;  ///< asks a closed gate again
    QTimer mAgainTimer; ///< looks once more at a description that may not have been the last of its second

    std::optional<job::PrinterList> mPrinters; ///< as the server told last
    job::PrinterList mOnNetwork;
    std::optional<PrinterRow> mFirst; ///< the row of what was opened without being listed
    std::optional<QString> mOpen;     ///< the name of the open printer; empty for a destination that is no queue
    std::optional<QString> mWanted;   ///< the name of the printer that is being opened
    job::Printer mLastKnown;          ///< the open printer as the server told of it last
    bool mIsOfNetwork = false;        ///< the open printer was found on the network
    bool mWasListed = false;          ///< the open printer has been on the server's list
    bool mTriedTheOnly = false;       ///< the server's only printer was opened without being asked for
    int mConfiguredAt = 0;            ///< of the open printer, when its PPD was looked at
    int mChecksLeft = 0;              ///< looks at its PPD that may still fail, one after the other
    QByteArray mDigest;               ///< of the open printer's PPD
    bool mIsLookDeclined = false;     ///< the person gave no password that is good for the last look at its PPD
    Arrival mArrived;                 ///< waits for the gate
    Arrival mFresh;                   ///< the open printer with its new PPD
    job::Problem mOpenProblem;
    job::Problem mServerProblem;
    job::Problem mLoss;               ///< why the printer that was used last was not opened; none when the person picks
    std::optional<QString> mDeclined; ///< what was to be opened when the person gave no password that is good
    bool mIsTape = false;
};

} // namespace tapeprint::dialog
