// SPDX-License-Identifier: Apache-2.0
// Calls are many and short: the thread is not woken for each, but looks once in five seconds while there are some.
#include "dialog/CallWatch.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <system_error>

#include <unistd.h>

namespace tapeprint::dialog
{

namespace
{

/// After so long a panel is named. Calls take milliseconds.
constexpr std::chrono::seconds longestSilence(5);

} // namespace

CallWatch::~CallWatch()
{
    if (!mThread.joinable()) {
        return;
    }
    {
        const std::lock_guard lock(mMutex);
        mIsOver = true;
    }
    mWaking.notify_one();
    mThread.join();
}

void CallWatch::begin(const QByteArray &who)
{
    start();
    const std::lock_guard lock(mMutex);
    mWho = who;
    countFromNow();
}

void CallWatch::rest()
{
    const std::lock_guard lock(mMutex);
    mSince.reset();
}

void CallWatch::goOn()
{
    const std::lock_guard lock(mMutex);
    countFromNow();
}

void CallWatch::sleep(bool isAsleep)
{
    const std::lock_guard lock(mMutex);
    mIsAsleep = isAsleep;
}

void CallWatch::countFromNow()
{
    if (mIsAsleep) {
        return;
    }
    mSince = Clock::now();
    if (mIsIdle) {
        mWaking.notify_one();
    }
}

void CallWatch::start()
{
    if (mThread.joinable()) {
        return;
    }
    try {
        mThread = std::thread([this] { run(); });
    } catch (const std::system_error &) { // no thread is to be had: calls go unwatched
    }
}

void CallWatch::run()
{
    std::unique_lock lock(mMutex);
    while (!mIsOver) {
        if (!mSince) {
            mIsIdle = true;
            mWaking.wait(lock);
            mIsIdle = false;
        } else if (const auto due = *mSince + longestSilence; Clock::now() < due) {
            mWaking.wait_until(lock, due);
        } else {
            tell();
            mSince.reset();
        }
    }
}

void CallWatch::tell() const
{
    // Neither translated nor put together: the panel may hold whatever lock there is, that of the memory too.
    const std::array<const char *, 4> parts{
        program_invocation_short_name, ": ", mWho.constData(),
        " does not come back. End the program if it never does, and remove the bundle to print without it.\n"};
    for (const char *part : parts) {
        if (write(STDERR_FILENO, part, std::strlen(part)) < 0) {
            break; // there is nobody to read it
        }
    }
}

} // namespace tapeprint::dialog
