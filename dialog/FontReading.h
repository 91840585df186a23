// SPDX-License-Identifier: Apache-2.0
// The machine's fonts, read while the toolkit starts. It would read them itself for the first text, and wait for it: a
// sixth of the time to the first painting.
#pragma once

#include <thread>

namespace tapeprint::dialog
{

/// Lives from before the application object until before the first widget: its end waits until all is read. What cannot
/// be read is left to the toolkit.
class FontReading
{
public:
    FontReading();
    ~FontReading();
    FontReading(const FontReading &) = delete;
    FontReading &operator=(const FontReading &) = delete;

private:
    std::thread mThread;
};

} // namespace tapeprint::dialog
