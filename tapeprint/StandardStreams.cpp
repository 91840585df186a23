// SPDX-License-Identifier: Apache-2.0
// The number of a closed stream is the next that is given out: it is given to /dev/null, opened the wrong way round.
#include "tapeprint/StandardStreams.h"

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace tapeprint
{

void prepareStandardStreams()
{
    for (int stream = STDIN_FILENO; stream <= STDERR_FILENO; ++stream) {
        if (fcntl(stream, F_GETFD) < 0) {
            static_cast<void>(open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY)); // for those below, too
        }
    }
    std::signal(SIGPIPE, SIG_IGN);
    std::signal(SIGXFSZ, SIG_IGN);
}

} // namespace tapeprint
