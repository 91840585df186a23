// SPDX-License-Identifier: Apache-2.0
// The requests of a job: create, a document at a time, finish. Every answer is looked at.
//
// A server keeps a job that does not get its last document for some minutes, and then prints what it has. A job of
// several documents is therefore held for good until the last one is in, and then set free, or held as the person wants
// it. A single document needs no such care: cut short, it is thrown away.
#include "job/JobSubmission.h"

#include "job/Advice.h"
#include "job/CupsOptions.h"
#include "job/JobRequests.h"
#include "job/LeftJobs.h"
#include "job/PlainText.h"
#include "job/Reason.h"
#include "job/ServerConnection.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <chrono>
#include <memory>
#include <thread>

#include <cups/cups.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;
/// So long a server may be gone before a job that was begun is left to it.
constexpr std::chrono::milliseconds timeToPutInOrder{5000};
constexpr std::chrono::milliseconds betweenAttempts{300};

const QString holdOption = QStringLiteral("job-hold-until");

/// One job on its way.
class Upload
{
public:
    Upload(const Submission &submission, const PrintWatch &watch)
        : mSubmission(submission), mReport(watch.report), mServer(ServerConnection::open(&watch.stop))
    {
        for (const QString &file : submission.files) {
            mProgress.ofBytes += QFileInfo(file).size();
        }
    }

    std::optional<SubmittedJob> run(Problem *error)
    {
        if (!findQueue(error)) {
            return std::nullopt;
        }
        takeBackLeftJobs(*mServer);
        if (!create(error)) {
            return std::nullopt;
        }
        const bool isThere = sendAll(error) || hasArrivedAllTheSame();
        if (!isThere || !release(error) || mServer->isStopped()) {
            return abandon(error);
        }
        *error = {};
        return SubmittedJob{mJobId, state()};
    }

private:
    /// The problem of a call that failed: what the server says stands in the sentence, unless it is gone.
    Problem problem(const Problem &said) const
    {
        if (mServer->isStopped()) {
            return {Problem::Cancelled, QString()};
        }
        if (mServer->wasRefused()) {
            return {mServer->wasDeclined() ? Problem::Cancelled : Problem::RejectedJob, mServer->problem()};
        }
        return mServer->isUnreachable() ? Problem(Problem::Unreachable, mServer->problem()) : said;
    }

    bool findQueue(Problem *error)
    {
        if (!mServer->isOpen()) {
            *error = problem({});
            return false;
        }
        mAddress = addressOf(*mServer, mSubmission.queue.name);
        if (!mAddress) {
            *error = problem({Problem::NoSuchPrinter,
                              advice(Texts::tr("The queue %1 cannot be reached (%2): choose another printer."),
                                     QStringLiteral("The queue %1 cannot be reached (%2): see lpstat -e for the queues "
                                                    "there are."))
                                  .arg(harmless(mSubmission.queue.name), reasonText(mServer->problem()))});
        }
        return mAddress.has_value();
    }

    bool create(Problem *error)
    {
        JobOptions options;
        JobOptions braced;
        for (const auto &[name, value] : mSubmission.options.entries()) {
            (value.startsWith(u'{') ? braced : options).set(name, value); // own values of several parameters
        }
        const std::optional<QString> usual =
            mSubmission.files.size() > 1 ? usualHold(*mServer, mSubmission.queue.name) : std::nullopt;
        if (usual) {
            mHoldUntil = options.contains(holdOption) ? options.value(holdOption) : *usual;
            options.remove(holdOption);
        }
        const std::optional<int> created = createJob(*mServer, *mAddress, mSubmission.title, CupsOptions(options));
        if (!created) {
            *error = problem(notTaken());
            cancelWithoutNumber();
            return false;
        }
        mJobId = *created;
        if (!addBracedOptions(*mServer, mJobId, braced)) {
            *error = problem(notTaken());
            abandon(error);
            return false;
        }
        // Held only now: a job whose number is lost on the way is not held for good.
        if (!mHoldUntil.isNull() && !holdJob(*mServer, mJobId, QStringLiteral("indefinite"))) {
            *error = problem(notTaken());
            abandon(error);
            return false;
        }
        return true;
    }

    Problem notTaken() const
    {
        return {Problem::RejectedJob,
                advice(Texts::tr("The queue %1 did not take the job (%2)."),
                       QStringLiteral("The queue %1 did not take the job (%2): see lpstat -p %1 -l."))
                    .arg(harmless(mSubmission.queue.name), reasonText(mServer->problem()))};
    }

    /// The server may have made the job, and only its number was lost: it is the one without documents.
    void cancelWithoutNumber()
    {
        const LeftJob left{mSubmission.queue.name, mSubmission.title};
        if ((mServer->isStopped() || mServer->isUnreachable()) &&
            !putInOrder([this, &left] { return takeBack(*mServer, left); })) {
            rememberLeftJob(left);
        }
    }

    bool sendAll(Problem *error)
    {
        for (const QString &file : mSubmission.files) {
            mIsLast = &file == &mSubmission.files.last();
            if (!send(file, error)) {
                return false;
            }
        }
        return true;
    }

    bool send(const QString &path, Problem *error)
    {
        QFile file(path);
        if (!file.open(QIODevice::ReadOnly)) {
            *error = {
                Problem::BadDocument,
                Texts::tr("The document %1 cannot be read (%2): name a readable file.").arg(path, file.errorString())};
            return false;
        }
        // A single document goes by the job's title: standard input has no name of its own.
        const QString name = mSubmission.files.size() == 1 ? mSubmission.title : QFileInfo(path).fileName();
        http_status_t status = startDocument(*mServer, *mAddress, mJobId, name, mIsLast);
        for (QByteArray piece = file.read(pieceBytes);
             status == HTTP_STATUS_CONTINUE && !piece.isEmpty() && !mServer->isStopped();
             piece = file.read(pieceBytes)) {
            status = cupsWriteRequestData(mServer->http(), piece.constData(), static_cast<std::size_t>(piece.size()));
            mProgress.bytes += piece.size();
            if (mReport) {
                mReport(mProgress);
            }
        }
        if (mServer->isStopped() || file.error() != QFileDevice::NoError) {
            // The end mark is not written: what the server has is no document.
            *error = mServer->isStopped()
                         ? problem({})
                         : Problem(Problem::BadDocument,
                                   Texts::tr("The document %1 cannot be read (%2): name a readable file.")
                                       .arg(path, file.errorString()));
            return false;
        }
        const bool sent = status == HTTP_STATUS_CONTINUE;
        mIsAllWritten = sent && mIsLast;
        // Finished in any case: the connection waits for it.
        const Response answer = sent ? answerToData(*mServer) : Response(cupsGetResponse(mServer->http(), "/"));
        if (!sent || !isAccepted(answer.get())) {
            *error = problem({Problem::RejectedJob,
                              Texts::tr("The print server did not take the document %1 (%2): see that it is a kind "
                                        "of document that the queue prints.")
                                  .arg(name, mServer->problem())});
            return false;
        }
        mLastState = stateIn(answer.get());
        return true;
    }

    /// Whether only the server's last word was lost, and the job is whole.
    bool hasArrivedAllTheSame()
    {
        if (!mIsAllWritten || mServer->isStopped() || !mServer->isUnreachable()) {
            return false;
        }
        std::optional<JobStatus> status;
        putInOrder([this, &status] {
            status = readJob(*mServer, mSubmission.queue.name, mJobId);
            return status.has_value();
        });
        mServer->allowOnly(timeToPutInOrder); // for what is still to be asked
        return status && status->isWhole(static_cast<int>(mSubmission.files.size()));
    }

    bool release(Problem *error)
    {
        if (mHoldUntil.isNull() || holdJob(*mServer, mJobId, mHoldUntil)) {
            return true;
        }
        *error = problem(notTaken());
        return false;
    }

    /// How the job is now. The answer to the last document tells it, unless the job was held or set free after it.
    QString state() const
    {
        if (mHoldUntil.isNull() && !mLastState.isNull()) {
            return mLastState;
        }
        const std::optional<JobStatus> status = readJob(*mServer, mSubmission.queue.name, mJobId);
        return status ? status->stateName() : QStringLiteral("sent");
    }

    /// Cancels what was begun. \param error in it stands why it is not completed; its number is added where needed.
    std::optional<SubmittedJob> abandon(Problem *error)
    {
        if (!putInOrder([this] { return cancelJob(*mServer, mJobId); })) {
            // A job of several documents is held until it is set free, also when all of them are there.
            const int documents = static_cast<int>(mSubmission.files.size());
            rememberLeftJob(
                {mSubmission.queue.name, mSubmission.title, mJobId, mHoldUntil.isNull() ? documents : documents + 1});
            const QString left =
                advice(Texts::tr("Job %2-%1 may be left half sent on the server: cancel it in the desktop's printer "
                                 "settings."),
                       QStringLiteral("Job %1 may be left half sent on the server; cancel it with: cancel %2-%1"))
                    .arg(QString::number(mJobId), harmless(mSubmission.queue.name));
            error->sentence = error->isNull() ? left : error->sentence + u' ' + left;
            error->kind = error->kind == Problem::Cancelled ? Problem::FailedJob : error->kind; // nobody wanted that
        }
        return std::nullopt;
    }

    /// Tries to get something done on a new connection, because the old one may be in the middle of a document, until
    /// it is done or the time for that is over; all attempts share it.
    template <typename Act>
    bool putInOrder(const Act &act)
    {
        const auto now = std::chrono::steady_clock::now();
        mEndOfOrder = mEndOfOrder.value_or(now + timeToPutInOrder);
        mServer->allowOnly(std::chrono::ceil<std::chrono::milliseconds>(*mEndOfOrder - now));
        do {
            if (mServer->reconnect() && act()) {
                return true;
            }
            std::this_thread::sleep_for(betweenAttempts);
        } while (std::chrono::steady_clock::now() < *mEndOfOrder);
        return false;
    }

    const Submission &mSubmission;
    const SendReport &mReport;
    std::unique_ptr<ServerConnection> mServer;
    std::optional<QueueAddress> mAddress;
    int mJobId = 0;
    QString mLastState; ///< as the answer to the last document tells it; null before, and where it does not
    QString mHoldUntil; ///< what the job is held for when it is whole; null when it is not held meanwhile
    SendProgress mProgress;
    std::optional<std::chrono::steady_clock::time_point> mEndOfOrder; ///< none while nothing has gone wrong
    bool mIsLast = false;                                             ///< the document being sent is the job's last
    bool mIsAllWritten = false;                                       ///< the last document has gone out to its end
};

} // namespace

std::optional<SubmittedJob> submitJob(const Submission &submission, const PrintWatch &watch, Problem *error)
{
    return Upload(submission, watch).run(error);
}

} // namespace tapeprint::job
