// SPDX-License-Identifier: Apache-2.0
// The requests, by the job's own URI: a server's numbers are one row over all its queues.
#include "job/JobRequests.h"

#include "job/PlainText.h"

#include <algorithm>
#include <array>
#include <memory>
#include <utility>
#include <vector>

namespace tapeprint::job
{

namespace
{

constexpr std::array jobAttributes{"job-state",           "job-state-reasons",          "job-printer-state-message",
                                   "number-of-documents", "number-of-intervening-jobs", "job-media-sheets-completed"};
constexpr std::array printerAttributes{"printer-state", "printer-state-reasons", "printer-state-message"};

void addUser(ipp_t *request)
{
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "requesting-user-name", nullptr, cupsUser());
}

ipp_t *aboutJob(ipp_op_t operation, int jobId)
{
    ipp_t *request = ippNewRequest(operation);
    // Servers look at the path alone.
    const QByteArray uri = "ipp://localhost/jobs/" + QByteArray::number(jobId);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "job-uri", nullptr, uri.constData());
    addUser(request);
    return request;
}

ipp_t *aboutPrinter(ipp_op_t operation, const QString &queue)
{
    std::array<char, HTTP_MAX_URI> uri{};
    httpAssembleURIf(HTTP_URI_CODING_ALL, uri.data(), static_cast<int>(uri.size()), "ipp", nullptr, "localhost", 0,
                     "/printers/%s", queue.toUtf8().constData());
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, uri.data());
    addUser(request);
    return request;
}

template <std::size_t count>
void askFor(ipp_t *request, const std::array<const char *, count> &attributes)
{
    ippAddStrings(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "requested-attributes", static_cast<int>(count), nullptr,
                  attributes.data());
}

int numberIn(const Response &response, const char *name, ipp_tag_t tag, int otherwise)
{
    ipp_attribute_t *attribute = ippFindAttribute(response.get(), name, tag);
    return attribute == nullptr ? otherwise : ippGetInteger(attribute, 0);
}

QStringList wordsIn(const Response &response, const char *name)
{
    QStringList words;
    ipp_attribute_t *attribute = ippFindAttribute(response.get(), name, IPP_TAG_ZERO);
    for (int i = 0; attribute != nullptr && i < ippGetCount(attribute); ++i) {
        words.append(harmless(QString::fromUtf8(ippGetString(attribute, i, nullptr))));
    }
    return words;
}

struct DestinationDeleter {
    void operator()(cups_dest_t *destination) const { cupsFreeDests(1, destination); }
};
struct InfoDeleter {
    void operator()(cups_dinfo_t *info) const { cupsFreeDestInfo(info); }
};

ipp_t *aboutQueue(ipp_op_t operation, const QueueAddress &address)
{
    ipp_t *request = ippNewRequest(operation);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_URI, "printer-uri", nullptr, address.uri.constData());
    return request;
}

QueueAddress addressIn(const char *uri)
{
    std::array<char, HTTP_MAX_URI> scheme{};
    std::array<char, HTTP_MAX_URI> user{};
    std::array<char, HTTP_MAX_URI> host{};
    std::array<char, HTTP_MAX_URI> resource{};
    int port = 0;
    const http_uri_status_t status =
        httpSeparateURI(HTTP_URI_CODING_ALL, uri, scheme.data(), static_cast<int>(scheme.size()), user.data(),
                        static_cast<int>(user.size()), host.data(), static_cast<int>(host.size()), &port,
                        resource.data(), static_cast<int>(resource.size()));
    return status < HTTP_URI_STATUS_OK ? QueueAddress() : QueueAddress{uri, resource.data()};
}

std::optional<QueueAddress> readAddress(const char *uri)
{
    const QueueAddress address = uri == nullptr ? QueueAddress() : addressIn(uri);
    return address.uri.isEmpty() ? std::nullopt : std::optional(address);
}

/// The address of a queue that the server makes when it is asked about the printer.
std::optional<QueueAddress> addressOnNetwork(const ServerConnection &server, const QString &queue)
{
    const QByteArray name = queue.toUtf8();
    const auto find = [&server, &name] {
        return std::unique_ptr<cups_dest_t, DestinationDeleter>(
            cupsGetNamedDest(server.http(), name.constData(), nullptr));
    };
    const auto uriOf = [](const cups_dest_t &destination) {
        return cupsGetOption("printer-uri-supported", destination.num_options, destination.options);
    };
    auto destination = find();
    if (destination && uriOf(*destination) == nullptr && !server.isStopped()) {
        const std::unique_ptr<cups_dinfo_t, InfoDeleter> made(cupsCopyDestInfo(server.http(), destination.get()));
        destination = made ? find() : nullptr;
    }
    return destination && !server.isStopped() ? readAddress(uriOf(*destination)) : std::nullopt;
}

/// A job as the server lists it among others. What was not asked for is as here.
struct ListedJob {
    int id = 0;
    ipp_jstate_t state = IPP_JSTATE_PENDING;
    int priority = 0;
    int documents = -1;
    QString name = {};
};

/// The jobs of a queue that have not ended. \param areOwn those of this user alone.
template <std::size_t count>
Response askForJobs(const ServerConnection &server, const QString &queue,
                    const std::array<const char *, count> &attributes, bool areOwn)
{
    ipp_t *request = aboutPrinter(IPP_OP_GET_JOBS, queue);
    if (areOwn) {
        ippAddBoolean(request, IPP_TAG_OPERATION, "my-jobs", 1);
    }
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "which-jobs", nullptr, "not-completed");
    askFor(request, attributes);
    return askServer(server, request);
}

std::vector<ListedJob> jobsIn(const Response &response)
{
    std::vector<ListedJob> jobs;
    ListedJob job;
    const auto finishJob = [&jobs, &job] {
        if (job.id != 0) {
            jobs.push_back(std::exchange(job, {}));
        }
    };
    // An attribute without a name divides the jobs.
    for (ipp_attribute_t *attribute = ippFirstAttribute(response.get()); attribute != nullptr;
         attribute = ippNextAttribute(response.get())) {
        const QLatin1String name(ippGetName(attribute));
        if (name.isEmpty()) {
            finishJob();
        } else if (name == QLatin1String("job-id")) {
            job.id = ippGetInteger(attribute, 0);
        } else if (name == QLatin1String("job-state")) {
            job.state = static_cast<ipp_jstate_t>(ippGetInteger(attribute, 0));
        } else if (name == QLatin1String("job-priority")) {
            job.priority = ippGetInteger(attribute, 0);
        } else if (name == QLatin1String("job-name")) {
            job.name = QString::fromUtf8(ippGetString(attribute, 0, nullptr));
        } else if (name == QLatin1String("number-of-documents")) {
            job.documents = ippGetInteger(attribute, 0);
        }
    }
    finishJob();
    return jobs;
}

/// How many jobs a queue prints before one that is pending. CUPS knows number-of-intervening-jobs and does not tell it.
int countJobsBefore(const ServerConnection &server, const QString &queue, int jobId)
{
    static constexpr std::array attributes{"job-id", "job-state", "job-priority"};
    const std::vector<ListedJob> jobs = jobsIn(askForJobs(server, queue, attributes, false));
    const auto own = std::find_if(jobs.begin(), jobs.end(), [jobId](const ListedJob &job) { return job.id == jobId; });
    if (own == jobs.end()) {
        return 0;
    }
    const auto isBefore = [&own](const ListedJob &job) {
        const bool comesFirst = job.priority > own->priority || (job.priority == own->priority && job.id < own->id);
        return job.state == IPP_JSTATE_PROCESSING || (job.state == IPP_JSTATE_PENDING && comesFirst);
    };
    return static_cast<int>(std::count_if(jobs.begin(), jobs.end(), isBefore));
}

} // namespace

std::optional<QueueAddress> addressOf(const ServerConnection &server, const QString &queue)
{
    ipp_t *request = aboutPrinter(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request, std::array{"printer-uri-supported"});
    const Response response = askServer(server, request);
    ipp_attribute_t *uri = ippFindAttribute(response.get(), "printer-uri-supported", IPP_TAG_URI);
    if (uri != nullptr) {
        return readAddress(ippGetString(uri, 0, nullptr));
    }
    // libcups asks a server that says nothing once more, on a connection of its own that hears of no change of mind.
    const bool isAnswered = response || !(server.isUnreachable() || server.wasRefused());
    return isAnswered && !server.isStopped() ? addressOnNetwork(server, queue) : std::nullopt;
}

std::optional<int> createJob(const ServerConnection &server, const QueueAddress &address, const QString &title,
                             const CupsOptions &options)
{
    ipp_t *request = aboutQueue(IPP_OP_CREATE_JOB, address);
    addUser(request);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "job-name", nullptr, title.toUtf8().constData());
    for (const ipp_tag_t group : {IPP_TAG_OPERATION, IPP_TAG_JOB, IPP_TAG_SUBSCRIPTION}) {
        cupsEncodeOptions2(request, options.count(), options.data(), group);
    }
    const Response response = askServer(server, request, address.resource.constData());
    const int id = numberIn(response, "job-id", IPP_TAG_INTEGER, 0);
    return isAccepted(response.get()) && id != 0 ? std::optional(id) : std::nullopt;
}

http_status_t startDocument(const ServerConnection &server, const QueueAddress &address, int jobId, const QString &name,
                            bool isLast)
{
    ipp_t *request = aboutQueue(IPP_OP_SEND_DOCUMENT, address);
    ippAddInteger(request, IPP_TAG_OPERATION, IPP_TAG_INTEGER, "job-id", jobId);
    addUser(request);
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_NAME, "document-name", nullptr, name.toUtf8().constData());
    ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_MIMETYPE, "document-format", nullptr, CUPS_FORMAT_AUTO);
    ippAddBoolean(request, IPP_TAG_OPERATION, "last-document", isLast ? 1 : 0);
    const http_status_t status =
        cupsSendRequest(server.http(), request, address.resource.constData(), CUPS_LENGTH_VARIABLE);
    ippDelete(request);
    return status;
}

std::optional<QString> usualHold(const ServerConnection &server, const QString &queue)
{
    static constexpr std::array attributes{"job-hold-until-default", "job-hold-until-supported"};
    ipp_t *request = aboutPrinter(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request, attributes);
    const Response response = askServer(server, request);
    ipp_attribute_t *supported = ippFindAttribute(response.get(), "job-hold-until-supported", IPP_TAG_ZERO);
    if (supported == nullptr || ippContainsString(supported, "indefinite") == 0) {
        return std::nullopt;
    }
    ipp_attribute_t *usual = ippFindAttribute(response.get(), "job-hold-until-default", IPP_TAG_ZERO);
    const QString until = QString::fromUtf8(ippGetString(usual, 0, nullptr));
    return until.isEmpty() ? QStringLiteral("no-hold") : until;
}

bool isAccepted(ipp_t *response)
{
    return response != nullptr && ippGetStatusCode(response) <= IPP_STATUS_OK_CONFLICTING;
}

QString stateIn(ipp_t *response)
{
    ipp_attribute_t *state = ippFindAttribute(response, "job-state", IPP_TAG_ENUM);
    return state == nullptr ? QString() : QString::fromLatin1(ippEnumString("job-state", ippGetInteger(state, 0)));
}

QString JobStatus::stateName() const
{
    return QString::fromLatin1(ippEnumString("job-state", static_cast<int>(state)));
}

bool JobStatus::isWhole(int documentsSent) const
{
    return documents >= documentsSent && !reasons.contains(QLatin1String("job-incoming"));
}

std::optional<JobStatus> readJob(const ServerConnection &server, const QString &queue, int jobId)
{
    ipp_t *request = aboutJob(IPP_OP_GET_JOB_ATTRIBUTES, jobId);
    askFor(request, jobAttributes);
    const Response job = askServer(server, request);
    ipp_attribute_t *state = ippFindAttribute(job.get(), "job-state", IPP_TAG_ENUM);
    if (state == nullptr) {
        return std::nullopt;
    }
    JobStatus status;
    status.state = static_cast<ipp_jstate_t>(ippGetInteger(state, 0));
    status.reasons = wordsIn(job, "job-state-reasons");
    status.message = wordsIn(job, "job-printer-state-message").join(u' ');
    status.documents = numberIn(job, "number-of-documents", IPP_TAG_INTEGER, 0);
    status.jobsBefore = numberIn(job, "number-of-intervening-jobs", IPP_TAG_INTEGER, -1);
    if (status.jobsBefore < 0) {
        status.jobsBefore = status.state == IPP_JSTATE_PENDING ? countJobsBefore(server, queue, jobId) : 0;
    }
    status.piecesOut = numberIn(job, "job-media-sheets-completed", IPP_TAG_INTEGER, 0);

    request = aboutPrinter(IPP_OP_GET_PRINTER_ATTRIBUTES, queue);
    askFor(request, printerAttributes);
    const Response printer = askServer(server, request);
    status.isStopped = numberIn(printer, "printer-state", IPP_TAG_ENUM, IPP_PSTATE_IDLE) == IPP_PSTATE_STOPPED;
    status.printerReasons = wordsIn(printer, "printer-state-reasons");
    status.printerMessage = wordsIn(printer, "printer-state-message").join(u' ');
    return status;
}

bool holdJob(const ServerConnection &server, int jobId, const QString &until)
{
    const bool isRelease = until == u"no-hold";
    ipp_t *request = aboutJob(isRelease ? IPP_OP_RELEASE_JOB : IPP_OP_HOLD_JOB, jobId);
    if (!isRelease) {
        ippAddString(request, IPP_TAG_OPERATION, IPP_TAG_KEYWORD, "job-hold-until", nullptr,
                     until.toUtf8().constData());
    }
    const Response response = askServer(server, request, "/jobs");
    return isAccepted(response.get());
}

bool addBracedOptions(const ServerConnection &server, int jobId, const JobOptions &options)
{
    if (options.entries().empty()) {
        return true;
    }
    ipp_t *request = aboutJob(IPP_OP_SET_JOB_ATTRIBUTES, jobId);
    for (const auto &[name, value] : options.entries()) {
        ippAddString(request, IPP_TAG_JOB, IPP_TAG_NAME, name.toUtf8().constData(), nullptr,
                     value.toUtf8().constData());
    }
    const Response response = askServer(server, request, "/jobs");
    return isAccepted(response.get());
}

std::optional<std::vector<int>> unfinishedJobs(const ServerConnection &server, const QString &queue,
                                               const QString &title, int documents)
{
    static constexpr std::array attributes{"job-id", "job-name", "number-of-documents"};
    const Response response = askForJobs(server, queue, attributes, true);
    if (!isAccepted(response.get())) {
        return std::nullopt;
    }
    std::vector<int> jobs;
    for (const ListedJob &job : jobsIn(response)) {
        if (job.documents >= 0 && job.documents < documents && job.name == title) {
            jobs.push_back(job.id);
        }
    }
    return jobs;
}

bool cancelJob(const ServerConnection &server, int jobId)
{
    const Response response = askServer(server, aboutJob(IPP_OP_CANCEL_JOB, jobId), "/jobs");
    // A job that is over cannot be cancelled; one that the server has forgotten is not found.
    const ipp_status_t status = response ? ippGetStatusCode(response.get()) : IPP_STATUS_ERROR_INTERNAL;
    return isAccepted(response.get()) || status == IPP_STATUS_ERROR_NOT_POSSIBLE ||
           status == IPP_STATUS_ERROR_NOT_FOUND;
}

} // namespace tapeprint::job
