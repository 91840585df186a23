// SPDX-License-Identifier: Apache-2.0
// An answer is read in large pieces, and taken apart from memory.
#include "job/IppQuestion.h"

#include <algorithm>
#include <array>

namespace tapeprint::job
{

namespace
{

constexpr const char *resource = "/";

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

} // namespace

Response askServer(const ServerConnection &server, ipp_t *request)
{
    http_t *http = server.http();
    http_status_t status = cupsSendRequest(http, request, resource, ippLength(request));
    // A server may answer before it has read the question, and hang up: then writing failed, or only the first line of
    // its answer was read.
    if (status <= HTTP_STATUS_CONTINUE || status == HTTP_STATUS_OK) {
        do {
            status = httpUpdate(http);
        } while (status == HTTP_STATUS_CONTINUE);
    }
    if (status == HTTP_STATUS_OK || status == HTTP_STATUS_ERROR) {
        ippDelete(request);
        return status == HTTP_STATUS_OK ? readAnswer(http) : nullptr;
    }
    httpFlush(http);
    return Response(cupsDoRequest(http, request, resource)); // it gives a password, or goes over to encryption
}

} // namespace tapeprint::job
