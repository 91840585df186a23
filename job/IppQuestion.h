// SPDX-License-Identifier: Apache-2.0
// Questions to the print server whose answers may be long.
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

/// Asks the server what changes nothing there: it may be asked twice. As cupsDoRequest, but the answer is read in large
/// pieces. libcups reads each value by itself, and asks the system twice before each whether there is any: for the list
/// of five hundred printers a hundred thousand times. \param request becomes this function's. \return null when there
/// is no answer: the connection knows why.
Response askServer(const ServerConnection &server, ipp_t *request);

} // namespace tapeprint::job
