// SPDX-License-Identifier: Apache-2.0
// Questions to the print server whose answers may be long, or late.
#pragma once

#include "job/ServerConnection.h"

#include <memory>

#include <cups/cups.h>

namespace tapeprint::job
{

struct ResponseDeleter {
    void operator()(ipp_t *response) const { ippDelete(response); }
};
using Response = std::unique_ptr<ipp_t, ResponseDeleter>;

/// As cupsDoRequest, passwords and encryption included, but the answer is waited for as long as the connection has
/// patience, and read in large pieces.
/// libcups waits for an answer's first byte after its head no longer than until its next look whether to wait on, and
/// then takes the answer for lost, which a busy server is still writing. And it reads each value by itself, and asks
/// the system twice before each whether there is any: for the list of five hundred printers a hundred thousand times.
/// \param request becomes this function's. \return null when there is no answer: the connection knows why.
Response askServer(const ServerConnection &server, ipp_t *request, const char *resource = "/");

/// The answer to a request whose data have been written to their end, as cupsGetResponse, and waited for and read in
/// the same way.
Response answerToData(const ServerConnection &server);

} // namespace tapeprint::job
