// SPDX-License-Identifier: Apache-2.0
// An answer is read in large pieces, and taken apart from memory.
#include "job/IppQuestion.h"

#include <algorithm>
#include <array>

namespace tapeprint::job
{

namespace
{

/// A question is asked so often of a server that wants something first: a password that was kept and three that are
/// typed, each of which libcups sends twice, and encryption. One that always wants more is left.
constexpr int mostTimes = 10;

/// A connection as ippReadIO reads from it. It ends with the message, whatever comes after that.
struct Source {
    http_t *http = nullptr;
    std::array<char, 65536> piece{};
    std::size_t filled = 0;
    std::size_t at = 0;

    /// As many bytes as asked for, or fewer at the end of what there is.
    static ssize_t read(void *context, ipp_uchar_t *to, std::size_t wanted)
    {
        auto *source = static_cast<Source *>(context);
        std::size_t done = 0;
        while (done < wanted && (source->at < source->filled || source->fill())) {
            const std::size_t count = std::min(wanted - done, source->filled - source->at);
            std::copy_n(source->piece.data() + source->at, count, to + done);
            source->at += count;
            done += count;
        }
        return static_cast<ssize_t>(done);
    }

    bool fill()
    {
        const ssize_t size = httpRead2(http, piece.data(), piece.size());
        at = 0;
        filled = size > 0 ? static_cast<std::size_t>(size) : 0;
        return size > 0;
    }
};

Response readAnswer(http_t *http)
{
    const auto source = std::make_unique<Source>();
    source->http = http;
    Response answer(ippNew());
    ipp_state_t state = IPP_STATE_IDLE;
    while (state != IPP_STATE_DATA && state != IPP_STATE_ERROR) {
        state = ippReadIO(source.get(), Source::read, 1, nullptr, answer.get());
    }
    if (state != IPP_STATE_DATA) {
        httpFlush(http); // the next answer does not begin in the middle of this one
        return nullptr;
    }
    return answer;
}

/// What has come of a request that is out. A server may answer before it has read the question, and hang up: then
/// writing failed, or only the first line of its answer was read.
http_status_t statusOfAnswer(http_t *http)
{
    http_status_t status = HTTP_STATUS_CONTINUE;
    while (status == HTTP_STATUS_CONTINUE) {
        status = httpUpdate(http);
    }
    return status;
}

/// What libcups would have to say of an answer: null when all is well.
QString wordsOf(ipp_t *answer)
{
    const ipp_status_t status = answer != nullptr ? ippGetStatusCode(answer) : IPP_STATUS_ERROR_INTERNAL;
    if (status <= IPP_STATUS_OK_EVENTS_COMPLETE) {
        return {};
    }
    const char *words = ippGetString(ippFindAttribute(answer, "status-message", IPP_TAG_TEXT), 0, nullptr);
    return QString::fromUtf8(words != nullptr ? words : ippErrorString(status));
}

Response heardAnswer(const ServerConnection &server)
{
    Response answer = readAnswer(server.http());
    const ipp_status_t status = answer ? ippGetStatusCode(answer.get()) : IPP_STATUS_OK;
    if (status == IPP_STATUS_ERROR_FORBIDDEN || status == IPP_STATUS_ERROR_NOT_AUTHENTICATED ||
        status == IPP_STATUS_ERROR_NOT_AUTHORIZED) {
        server.hearRefusal();
    }
    server.hear(wordsOf(answer.get()));
    return answer;
}

http_status_t statusOfQuestion(http_t *http, ipp_t *request, const char *resource)
{
    const http_status_t status = cupsSendRequest(http, request, resource, ippLength(request));
    return status <= HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK ? statusOfAnswer(http) : status;
}

/// Does what a server wants before it answers: gives a password, or goes over to encryption.
/// \param status takes why not. \return whether the question is to be asked again.
bool complies(const ServerConnection &server, const char *resource, http_status_t *status)
{
    http_t *http = server.http();
    if (*status != HTTP_STATUS_UNAUTHORIZED && *status != HTTP_STATUS_UPGRADE_REQUIRED) {
        return false;
    }
    httpFlush(http);
    if (*status == HTTP_STATUS_UNAUTHORIZED && cupsDoAuthentication(http, "POST", resource) != 0) {
        *status = HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED;
        return false;
    }
    if (!server.connectAgain()) {
        *status = HTTP_STATUS_ERROR;
        return false;
    }
    return *status != HTTP_STATUS_UPGRADE_REQUIRED || httpEncryption(http, HTTP_ENCRYPTION_REQUIRED) == 0;
}

} // namespace

Response askServer(const ServerConnection &server, ipp_t *request, const char *resource)
{
    const Response owned(request);
    server.hear({});
    http_status_t status = HTTP_STATUS_ERROR;
    bool isToBeAsked = true;
    for (int times = 0; isToBeAsked && times < mostTimes; ++times) {
        status = statusOfQuestion(server.http(), request, resource);
        isToBeAsked = complies(server, resource, &status);
    }
    if (status == HTTP_STATUS_OK) {
        return heardAnswer(server);
    }
    if (status >= HTTP_STATUS_BAD_REQUEST && status < HTTP_STATUS_CUPS_AUTHORIZATION_CANCELED) {
        httpFlush(server.http());
        server.hear(QString::fromUtf8(httpStatus(status)));
    }
    return nullptr;
}

Response answerToData(const ServerConnection &server)
{
    http_t *http = server.http();
    server.hear({});
    if (httpWrite2(http, "", 0) < 0) { // the end mark
        return nullptr;
    }
    const http_status_t status = statusOfAnswer(http);
    if (status == HTTP_STATUS_OK) {
        return heardAnswer(server);
    }
    httpFlush(http);
    server.hear(QString::fromUtf8(httpStatus(status)));
    return nullptr;
}

} // namespace tapeprint::job
