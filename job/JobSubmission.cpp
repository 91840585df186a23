// SPDX-License-Identifier: Apache-2.0
// The job calls of libcups: create, a document at a time, finish. Every answer is looked at.
#include "job/JobSubmission.h"

#include "job/CupsOptions.h"
#include "job/PlainText.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <memory>
#include <span>

#include <cups/cups.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;

struct DestinationDeleter {
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
struct InfoDeleter {
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};

/// What the job calls need of a destination.
struct Target {
    std::unique_ptr<cups_dest_t, DestinationDeleter> destination;
    std::unique_ptr<cups_dinfo_t, InfoDeleter> info;
};

QString serverSays()
{
    return harmless(QString::fromUtf8(cupsLastErrorString()));
}

bool sendDocument(const Target &target, int jobId, const QString &path, const QString &name, bool isLast,
                  Problem *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = {
            Problem::BadDocument,
            Texts::tr("The document %1 cannot be read (%2): name a readable file.").arg(path, file.errorString())};
        return false;
    }
    cups_dest_t *destination = target.destination.get();
    http_status_t status =
        cupsStartDestDocument(CUPS_HTTP_DEFAULT, destination, target.info.get(), jobId, name.toUtf8().constData(),
                              CUPS_FORMAT_AUTO, 0, nullptr, isLast ? 1 : 0);
    for (QByteArray piece = file.read(pieceBytes); status == HTTP_STATUS_CONTINUE && !piece.isEmpty();
         piece = file.read(pieceBytes)) {
        status = cupsWriteRequestData(CUPS_HTTP_DEFAULT, piece.constData(), static_cast<std::size_t>(piece.size()));
    }
    const bool sent = status == HTTP_STATUS_CONTINUE && file.error() == QFileDevice::NoError;
    // Finished in any case: the connection waits for it.
    const ipp_status_t finished = cupsFinishDestDocument(CUPS_HTTP_DEFAULT, destination, target.info.get());
    if (!sent || finished > IPP_STATUS_OK_CONFLICTING) {
        *error = {Problem::RejectedJob,
                  Texts::tr("The print server did not take the document %1 (%2): see that it is a kind of document "
                            "that the queue prints.")
                      .arg(path, serverSays())};
        return false;
    }
    return true;
}

QString stateOfJob(const PrintQueue &queue, int jobId)
{
    cups_job_t *jobs = nullptr;
    const int count = cupsGetJobs2(CUPS_HTTP_DEFAULT, &jobs, queue.name.toUtf8().constData(), 0, CUPS_WHICHJOBS_ALL);
    QString state;
    for (const cups_job_t &job : std::span(jobs, static_cast<std::size_t>(count > 0 ? count : 0))) {
        if (job.id == jobId) {
            state = QString::fromLatin1(ippEnumString("job-state", static_cast<int>(job.state)));
        }
    }
    cupsFreeJobs(count, jobs);
    return state.isNull() ? QStringLiteral("sent") : state;
}

} // namespace

std::optional<SubmittedJob> submitJob(const PrintQueue &queue, const QString &title, const JobOptions &options,
                                      const QStringList &files, Problem *error)
{
    if (!serverAnswers(error)) {
        return std::nullopt;
    }
    Target target;
    target.destination.reset(cupsGetNamedDest(CUPS_HTTP_DEFAULT, queue.name.toUtf8().constData(), nullptr));
    if (target.destination) {
        target.info.reset(cupsCopyDestInfo(CUPS_HTTP_DEFAULT, target.destination.get()));
    }
    if (!target.info) {
        *error = {Problem::NoSuchPrinter,
                  Texts::tr("The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.")
                      .arg(queue.name, serverSays())};
        return std::nullopt;
    }

    const CupsOptions cupsOptions(options);
    SubmittedJob job;
    const ipp_status_t created =
        cupsCreateDestJob(CUPS_HTTP_DEFAULT, target.destination.get(), target.info.get(), &job.id,
                          title.toUtf8().constData(), cupsOptions.count(), cupsOptions.data());
    if (created > IPP_STATUS_OK_CONFLICTING || job.id == 0) {
        *error = {
            Problem::RejectedJob,
            Texts::tr("The queue %1 did not take the job (%2): see lpstat -p %1 -l.").arg(queue.name, serverSays())};
        return std::nullopt;
    }
    for (const QString &file : files) {
        // A single document goes by the job's title: standard input has no name of its own.
        const QString name = files.size() == 1 ? title : QFileInfo(file).fileName();
        if (!sendDocument(target, job.id, file, name, &file == &files.last(), error)) {
            cupsCancelDestJob(CUPS_HTTP_DEFAULT, target.destination.get(), job.id);
            return std::nullopt;
        }
    }
    job.state = stateOfJob(queue, job.id);
    return job;
}

} // namespace tapeprint::job
