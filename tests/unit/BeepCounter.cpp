// SPDX-License-Identifier: Apache-2.0
// The program's own definition is found before the shared library's, so that a beep can be heard without a speaker.
#include "BeepCounter.h"

#include <QApplication>

namespace
{
int beepCount = 0;
} // namespace

void QApplication::beep()
{
    ++beepCount;
}

int tests::beeps()
{
    return beepCount;
}
