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

bool isAtTheWindow()
{
    return windows() > 0;
}

QString advice(const QString &atTheWindow, const QString &onTheCommandLine)
{
    return isAtTheWindow() ? atTheWindow : onTheCommandLine;
}

} // namespace tapeprint::job
