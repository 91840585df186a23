// SPDX-License-Identifier: Apache-2.0
// One reading at a time, the next a while after it: a server that says nothing piles nothing up.
#include "dialog/PrinterDesk.h"

#include "job/PlainText.h"

#include <QDateTime>

#include <algorithm>
#include <cstdlib>
#include <utility>

namespace tapeprint::dialog
{

namespace
{

constexpr int firstLookMs = 300;
constexpr int lookPauseMs = 10000;
constexpr int gatePauseMs = 50;
constexpr int lookAgainMs = 1500;
constexpr qint64 justConfiguredSeconds = 3;
constexpr int mostChecks = 5;

/// Whether the person gave no password for what was to be opened, or none that is good.
bool lacksPassword(const job::Problem &problem)
{
    return !problem.isNull() && (problem.kind == job::Problem::Cancelled || problem.kind == job::Problem::RejectedJob);
}

PrinterRow rowOfDestination(const job::Destination &destination)
{
    PrinterRow row;
    if (destination.queue) {
        row.printer.name = destination.queue->name;
        row.printer.instance = destination.queue->instance;
        row.printer.info = destination.queue->info;
    } else {
        row.printer.info = destination.title();
    }
    return row;
}

} // namespace

PrinterDesk::PrinterDesk(PrinterSource source, job::JobRequest request, QObject *parent)
    : QObject(parent), mSource(std::move(source)), mRequest(std::move(request))
{
    for (QTimer *timer : {&mReadTimer, &mLookTimer, &mGateTimer, &mAgainTimer}) {
        timer->setSingleShot(true);
    }
    mReadTimer.setInterval(mSource.pause);
    mLookTimer.setInterval(lookPauseMs);
    mGateTimer.setInterval(gatePauseMs);
    mAgainTimer.setInterval(lookAgainMs);
    connect(&mReadTimer, &QTimer::timeout, this, &PrinterDesk::read);
    connect(&mLookTimer, &QTimer::timeout, this, &PrinterDesk::look);
    connect(&mGateTimer, &QTimer::timeout, this, &PrinterDesk::deliver);
    connect(&mAgainTimer, &QTimer::timeout, this, &PrinterDesk::checkDescription);
}

void PrinterDesk::start(const job::Destination &destination)
{
    if (destination.queue || destination.ppd) {
        take(destination);
    } else if (mSource.open) {
        open(firstWish());
    }
    fillRows();
    read();
    // Printers of the network take their time in any case: the window is made first.
    QTimer::singleShot(firstLookMs, this, &PrinterDesk::look);
}

job::JobRequest PrinterDesk::requestFor(const QString &name) const
{
    // What was asked for is opened as it was asked for, with its own PPD and output; any other queue as it is.
    if (name.compare(mRequest.fullQueueName(), Qt::CaseInsensitive) == 0) {
        return mRequest;
    }
    const job::QueueName queue = job::QueueName::parse(name);
    job::JobRequest request;
    request.queue = queue.queue;
    request.instance = queue.instance;
    return request;
}

/// What is opened before anybody has picked.
QString PrinterDesk::firstWish() const
{
    return mSource.lastUsed.isEmpty() || !mLoss.isNull() ? mRequest.fullQueueName() : mSource.lastUsed;
}

void PrinterDesk::pick(const QString &name)
{
    mLoss = {};
    open(name);
}

void PrinterDesk::open(const QString &name)
{
    if (!mSource.open || name == mWanted) {
        return;
    }
    mArrived = nullptr;
    mOpenProblem = {};
    mDeclined.reset();
    if (name == mOpen) {
        mOpening.drop();
        mWanted.reset();
    } else {
        mWanted = name;
        mOpening.start([this, request = requestFor(name),
                        open = mSource.open](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
            job::Problem problem;
            std::optional<job::Destination> opened = open(request, stop, &problem);
            Arrival destination = opened ? std::make_shared<job::Destination>(std::move(*opened)) : nullptr;
            return [this, destination, problem] { finishOpening(destination, problem); };
        });
    }
    fillRows();
    Q_EMIT changed();
}

void PrinterDesk::askAgain()
{
    if (mDeclined) {
        open(QString(*mDeclined)); // which forgets it
    } else if (std::exchange(mIsLookDeclined, false)) {
        mChecksLeft = mostChecks;
        checkDescription();
        Q_EMIT changed();
    }
}

/// Whether the printer that was used last is what failed to open, for a reason that does not pass by itself.
bool PrinterDesk::isLastUsedLost(const job::Problem &problem) const
{
    return !hasOpen() && mLoss.isNull() && !mSource.lastUsed.isEmpty() && mWanted == mSource.lastUsed &&
           !problem.isNull() && !lacksPassword(problem) && problem.kind != job::Problem::Unreachable;
}

void PrinterDesk::finishOpening(const Arrival &destination, const job::Problem &problem)
{
    if (destination != nullptr) {
        mArrived = destination;
        deliver();
        return;
    }
    if (isLastUsedLost(problem)) {
        mLoss = problem;
        mWanted.reset();
        open(firstWish());
        return;
    }
    mDeclined = lacksPassword(problem) ? mWanted : std::nullopt;
    mWanted.reset();
    mOpenProblem = problem;
    fillRows();
    Q_EMIT changed();
    openTheOnlyPrinter();
}

void PrinterDesk::deliver()
{
    if (mArrived == nullptr) {
        return; // another printer was picked meanwhile
    }
    if (mGate && !mGate()) {
        mGateTimer.start();
        return;
    }
    const Arrival destination = std::exchange(mArrived, nullptr);
    take(*destination);
    fillRows();
    Q_EMIT opened(destination);
    Q_EMIT changed();
}

void PrinterDesk::take(const job::Destination &destination)
{
    mChecking.drop();
    mFresh = nullptr;
    mIsLookDeclined = false;
    mWanted.reset();
    mDeclined.reset();
    mOpenProblem = {};
    mOpen = destination.queue ? destination.queue->fullName() : QString(QLatin1String(""));
    takeTimeOf(destination);
    mDigest = destination.ppdDigest;
    mWasListed = false;
    mIsOfNetwork = std::any_of(mOnNetwork.begin(), mOnNetwork.end(),
                               [this](const job::Printer &printer) { return printer.fullName() == *mOpen; });
    mLastKnown = rowOfDestination(destination).printer;
    followOpenPrinter();
    // A destination that is no queue stays on offer, whatever is picked.
    if (!destination.queue) {
        mFirst = rowOfDestination(destination);
    }
}

void PrinterDesk::takeNewDescription()
{
    if (mFresh != nullptr && !isOpening()) {
        mWanted = mOpen;
        mArrived = std::exchange(mFresh, nullptr);
        deliver();
    }
}

void PrinterDesk::read()
{
    if (!mSource.list) {
        return;
    }
    mReading.start([this, list = mSource.list](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
        job::Problem problem;
        std::optional<job::PrinterList> printers = list(stop, &problem);
        return [this, printers = std::move(printers), problem] { takeList(printers, problem); };
    });
}

void PrinterDesk::takeList(const std::optional<job::PrinterList> &printers, const job::Problem &problem)
{
    mReadTimer.start();
    const bool wasSilent = !mServerProblem.isNull();
    if (printers ? !wasSilent && printers == mPrinters : problem.sentence == mServerProblem.sentence) {
        if (printers && mOpenProblem.kind == job::Problem::Unreachable) {
            openWhatTheServerAllows(); // it has failed at that alone
        }
        followDescription(); // a look at it may have failed, or been too early
        return;              // as a rule
    }
    mServerProblem = problem;
    if (printers) {
        mServerProblem = {};
        mPrinters = printers;
    }
    followOpenPrinter();
    fillRows();
    Q_EMIT changed();
    if (printers) {
        openWhatTheServerAllows();
        openTheOnlyPrinter();
    }
}

void PrinterDesk::followOpenPrinter()
{
    if (const job::Printer *printer = openPrinter()) {
        mWasListed = true;
        mLastKnown = *printer;
        mLastKnown.instance = job::QueueName::parse(*mOpen).instance;
        followDescription();
    }
}

void PrinterDesk::followDescription()
{
    // A reading from before the printer was opened may be older than what was opened.
    const job::Printer *printer = openPrinter();
    if (printer != nullptr && printer->configuredAt > mConfiguredAt && mChecksLeft > 0) {
        checkDescription();
    }
}

/// The server counts in whole seconds, and lpadmin changes a queue in several steps: what was read in the second of a
/// change may be what was there before the last of them.
void PrinterDesk::takeTimeOf(const job::Destination &destination)
{
    mConfiguredAt = destination.queue ? destination.queue->configuredAt : 0;
    mChecksLeft = mostChecks;
    if (std::abs(QDateTime::currentSecsSinceEpoch() - mConfiguredAt) <= justConfiguredSeconds) {
        mAgainTimer.start();
    }
}

void PrinterDesk::look()
{
    if (!mSource.network) {
        return;
    }
    mLooking.start([this, network = mSource.network](const std::atomic<bool> & /*stop*/) -> BackgroundWork::Delivery {
        return [this, found = network()] {
            mLookTimer.start();
            if (mOnNetwork != found) {
                mOnNetwork = found;
                fillRows();
                Q_EMIT changed();
            }
        };
    });
}

void PrinterDesk::openWhatTheServerAllows()
{
    if (hasOpen() || isOpening() || !mSource.open) {
        return;
    }
    // The server was silent when the printer was to be opened, or the printer was not there.
    const QString asked = firstWish();
    const bool isThere = std::any_of(mPrinters->begin(), mPrinters->end(),
                                     [&asked](const job::Printer &printer) { return printer.fullName() == asked; });
    if (mOpenProblem.kind == job::Problem::Unreachable ||
        (isThere && mOpenProblem.kind == job::Problem::NoSuchPrinter)) {
        open(asked);
    }
}

void PrinterDesk::openTheOnlyPrinter()
{
    // Nobody named a default, but there is nothing to choose either.
    if (lacksDefault() && !isOpening() && mPrinters && mPrinters->size() == 1 && !std::exchange(mTriedTheOnly, true)) {
        open(mPrinters->front().fullName());
    }
}

bool PrinterDesk::lacksDefault() const
{
    return !hasOpen() && mRequest.queue.isEmpty() && mOpenProblem.kind == job::Problem::NoSuchPrinter;
}

void PrinterDesk::checkDescription()
{
    if (!mSource.open || !hasOpen() || isOpening() || mChecking.isRunning()) {
        return;
    }
    --mChecksLeft;
    mChecking.start([this, request = requestFor(*mOpen),
                     open = mSource.open](const std::atomic<bool> &stop) -> BackgroundWork::Delivery {
        job::Problem problem;
        std::optional<job::Destination> opened = open(request, stop, &problem);
        Arrival destination = opened ? std::make_shared<job::Destination>(std::move(*opened)) : nullptr;
        return [this, destination, isDeclined = lacksPassword(problem)] {
            mIsLookDeclined = isDeclined;
            if (isDeclined) {
                mChecksLeft = 0; // nobody is asked again and again
                Q_EMIT changed();
            }
            takeCheck(destination);
        };
    });
}

void PrinterDesk::takeCheck(const Arrival &destination)
{
    if (destination == nullptr || !destination->queue) {
        return; // the next reading asks again
    }
    takeTimeOf(*destination);
    mFresh = destination->ppdDigest == mDigest ? nullptr : destination;
    Q_EMIT changed();
}

const job::Printer *PrinterDesk::openPrinter() const
{
    if (!mPrinters || !mOpen) {
        return nullptr;
    }
    // An instance stands and falls with its queue: presets are deleted while they are in use.
    const QString queue = job::QueueName::parse(*mOpen).queue;
    const auto found = std::find_if(mPrinters->begin(), mPrinters->end(),
                                    [&queue](const job::Printer &printer) { return printer.name == queue; });
    return found == mPrinters->end() ? nullptr : &*found;
}

bool PrinterDesk::isGone() const
{
    // A printer that was named without being listed may be there all the same. The server takes the queue of one on the
    // network away when nobody has used it for a while, and makes it anew for a job.
    return mWasListed && !mIsOfNetwork && mPrinters && openPrinter() == nullptr;
}

void PrinterDesk::fillRows()
{
    std::vector<PrinterRow> rows;
    const auto isListed = [&rows](const QString &name) {
        return std::any_of(rows.begin(), rows.end(),
                           [&name](const PrinterRow &row) { return row.printer.fullName() == name; });
    };
    if (mFirst) {
        rows.push_back(*mFirst);
    }
    for (const job::Printer &printer : mPrinters ? *mPrinters : job::PrinterList()) {
        rows.push_back({printer, false});
    }
    for (const job::Printer &printer : mOnNetwork) {
        if (!isListed(printer.fullName())) {
            rows.push_back({printer, false});
        }
    }
    // The open printer stays on offer, and so does the one that is being opened or that wants a password.
    if (mOpen && !isListed(*mOpen)) {
        rows.insert(rows.begin(), PrinterRow{mLastKnown, isGone()});
    }
    const std::optional<QString> &wanted = mWanted ? mWanted : mDeclined;
    if (wanted && !wanted->isEmpty() && !isListed(*wanted)) {
        PrinterRow row;
        const job::QueueName name = job::QueueName::parse(*wanted);
        row.printer.name = name.queue;
        row.printer.instance = name.instance;
        rows.insert(rows.begin(), row);
    }
    mModel.setRows(rows);
}

int PrinterDesk::currentRow() const
{
    if (mWanted) {
        return mWanted->isEmpty() && !mFirst ? -1 : mModel.rowOf(*mWanted);
    }
    return mOpen ? mModel.rowOf(*mOpen) : -1;
}

void PrinterDesk::setIsTape(bool isTape)
{
    mIsTape = isTape;
    mModel.setIsTape(isTape);
}

/// Nobody is to send a job to another printer than the last one without having been told.
QString PrinterDesk::lossNotice() const
{
    const QString loss =
        mLoss.kind == job::Problem::NoSuchPrinter
            ? tr("The printer %1, which was used last, is not there any more.").arg(job::harmless(mSource.lastUsed))
            : mLoss.sentence;
    return mOpen ? loss + u' ' + tr("The printer %1 is taken in its place.").arg(job::harmless(*mOpen)) : loss;
}

QStringList PrinterDesk::notices() const
{
    QStringList notices;
    if (!mLoss.isNull()) {
        notices.append(lossNotice());
    }
    const bool isSilent = !mServerProblem.isNull();
    if (isSilent && mServerProblem.kind == job::Problem::Unreachable) {
        notices.append(tr("The print server does not answer. Its printers come back when it does."));
    } else if (isSilent && !hasOpen()) { // for an open printer a password was given, and its list can be done without
        notices.append(mServerProblem.sentence);
    }
    if (!mOpenProblem.isNull() && !(isSilent && mOpenProblem.kind == job::Problem::Unreachable) &&
        !notices.contains(mOpenProblem.sentence)) {
        notices.append(lacksDefault() ? tr("There is no default printer. Choose a printer.") : mOpenProblem.sentence);
    }
    if (isGone()) {
        notices.append(tr("The printer %1 is not there any more. Choose another, or wait until it is back: what you "
                          "have set is kept.")
                           .arg(job::harmless(*mOpen)));
    } else if (const job::Printer *printer = openPrinter()) {
        if (const QString notice = printer->notice(mIsTape); !notice.isNull()) {
            notices.append(notice);
        }
    }
    if (mIsLookDeclined) {
        notices.append(tr("The printer %1 was changed on the print server, and without a password its description was "
                          "not looked at. Ask again before you print.")
                           .arg(job::harmless(*mOpen)));
    }
    if (hasNewDescription()) {
        notices.append(tr("The description of the printer %1 has changed on the print server. Load it anew before you "
                          "print.")
                           .arg(job::harmless(*mOpen)));
    }
    return notices;
}

} // namespace tapeprint::dialog
