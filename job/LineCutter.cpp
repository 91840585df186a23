// SPDX-License-Identifier: Apache-2.0
// A look at the flag every tenth of a second; shutdown() is heard by whoever reads or writes on the socket.
//
// In the middle of a call libcups connects anew by itself when a connection broke off, and says so to nobody: from the
// first cut on its socket is therefore looked at again and again. Its number is read while it may change; what it names
// is cut only if the print server is at its other end.
#include "job/LineCutter.h"

#include <cstring>

namespace tapeprint::job
{

namespace
{

constexpr std::chrono::milliseconds betweenLooks{100};

/// Who is at the other end of a socket; all zeros for what is none.
sockaddr_storage peerOf(int descriptor)
{
    sockaddr_storage peer{};
    socklen_t size = sizeof peer;
    // The socket interface takes every kind of address through this one type.
    if (getpeername(descriptor, reinterpret_cast<sockaddr *>(&peer), &size) != 0) {
        return {};
    }
    return peer;
}

} // namespace

LineCutter::LineCutter(http_t *connection, const std::atomic<bool> *stop, std::optional<Clock::time_point> end)
    : mConnection(connection), mServer(peerOf(httpGetFd(connection))), mStop(stop), mEnd(end)
{
    mThread = std::thread([this] { watch(); });
}

LineCutter::~LineCutter()
{
    {
        const std::lock_guard lock(mMutex);
        mIsDone = true;
    }
    mWaking.notify_one();
    mThread.join();
}

void LineCutter::watch()
{
    std::unique_lock lock(mMutex);
    while (!mIsDone) {
        if (isTime()) {
            cut();
        }
        mWaking.wait_for(lock, betweenLooks, [this] { return mIsDone; });
    }
}

void LineCutter::cut() const
{
    const int descriptor = httpGetFd(mConnection);
    const sockaddr_storage peer = peerOf(descriptor);
    if (descriptor >= 0 && std::memcmp(&peer, &mServer, sizeof peer) == 0) {
        shutdown(descriptor, SHUT_RDWR);
    }
}

bool LineCutter::isTime() const
{
    return (mStop != nullptr && *mStop) || (mEnd && Clock::now() >= *mEnd);
}

} // namespace tapeprint::job
