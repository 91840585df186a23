// SPDX-License-Identifier: Apache-2.0
// fontconfig keeps what it has read for whoever asks in the process, and may be called by any thread.
#include "dialog/FontReading.h"

#include <clocale>

#include <fontconfig/fontconfig.h>

namespace tapeprint::dialog
{

FontReading::FontReading()
{
    // The application object takes the person's locale as well; from here on that changes nothing under the thread.
    std::setlocale(LC_ALL, "");
    mThread = std::thread([] { FcInit(); });
}

FontReading::~FontReading()
{
    mThread.join();
}

} // namespace tapeprint::dialog
