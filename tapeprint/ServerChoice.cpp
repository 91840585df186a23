// SPDX-License-Identifier: Apache-2.0
// By the environment: libcups's functions for it are good for the calling thread alone.
#include "tapeprint/ServerChoice.h"

#include <QFile>

namespace tapeprint
{

void chooseServer(const CommandLine &line)
{
    if (!line.server.isEmpty()) {
        qputenv("CUPS_SERVER", QFile::encodeName(line.server));
    }
    if (!line.user.isEmpty()) {
        qputenv("CUPS_USER", line.user.toUtf8());
    }
    if (line.encrypts) {
        qputenv("CUPS_ENCRYPTION", "Required");
    }
}

} // namespace tapeprint
