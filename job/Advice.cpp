// SPDX-License-Identifier: Apache-2.0
// A program has its window open, or it has not.
#include "job/Advice.h"

#include <atomic>

namespace tapeprint::job
{

namespace
{

std::atomic<int> &windows()
{
    static std::atomic<int> count{0};
    return count;
}

} // namespace

AdviceForTheWindow::AdviceForTheWindow()
{
    ++windows();
}

AdviceForTheWindow::~AdviceForTheWindow()
{
    --windows();
}

QString advice(const QString &atTheWindow, const QString &onTheCommandLine)
{
    return windows() > 0 ? atTheWindow : onTheCommandLine;
}

} // namespace tapeprint::job
