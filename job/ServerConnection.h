// SPDX-License-Identifier: Apache-2.0
// A connection to the print server that never holds its thread up: it hears of a change of mind, gives up on a server
// that has gone silent, and asks the front end, not the terminal, for a password.
#pragma once

#include "job/KeptPasswords.h"
#include "job/LineCutter.h"

#include <QString>

#include <atomic>
#include <chrono>
#include <functional>
#include <memory>
#include <optional>

#include <cups/cups.h>

namespace tapeprint::job
{

/// For one thread, which opens it, uses it and destroys it. While it lives, its thread's password questions go to
/// setPasswordAsker()'s function; a password given is good for this connection, and for others to the same server as
/// long as there is a PasswordKeeping.
///
///     const auto server = ServerConnection::open(stop);
///     if (server->isOpen()) {
///         const Response response(cupsDoRequest(server->http(), request, "/"));
///         if (!response) { *error = server->problem(); }
///
/// No call with CUPS_HTTP_DEFAULT has any of this.
class ServerConnection
{
public:
    /// Patience with a server that says nothing, not with long answers.
    struct Patience {
        std::chrono::milliseconds beforeWord{10000}; ///< a server that works says something within this time
        std::chrono::milliseconds longest{10000};    ///< then it is taken for gone
        /// Says that a server is waited for; once for each connection, in the connection's thread. May be null.
        std::function<void(const QString &server)> tell = nullptr;
    };
    /// Of all connections of the program; set before the first. A person at a window changes the printer or the server,
    /// a program that nobody sits at prints when a busy server comes to it.
    static void setPatience(Patience patience);

    /// Whether the person is asked when the server wants a password. One that is kept is given in any case.
    enum class Passwords { Ask, GoWithout };

    /// Connects to the server of libcups's settings, whichever the thread has. \param stop when it becomes true every
    /// call on the connection fails within about a second; null: nobody stops it. \return never null, but maybe not
    /// open.
    static std::unique_ptr<ServerConnection> open(const std::atomic<bool> *stop, Passwords passwords = Passwords::Ask);
    ~ServerConnection();
    ServerConnection(const ServerConnection &) = delete;
    ServerConnection &operator=(const ServerConnection &) = delete;

    bool isOpen() const;
    /// For libcups's calls; null when there was no server at all. Owned by this object.
    http_t *http() const { return mHttp; }
    /// Connects anew, as the same person, after a call failed. \return whether there is a server.
    bool reconnect();
    /// The same amid a question, to which the server wants a password or encryption first: one attempt. \return whether
    /// there is a server.
    bool connectAgain() const;
    /// From now on the stop flag means nothing, nobody is asked for a password, and all calls end at the given time
    /// from now: for putting in order what was begun.
    void allowOnly(std::chrono::milliseconds time);

    /// Whether calls fail because the stop flag is set.
    bool isStopped() const;
    /// Whether calls fail because the server is gone or silent.
    bool isUnreachable() const;
    /// Whether calls fail because the server was given no password that it accepts.
    bool wasRefused() const { return mWasRefused; }
    /// Whether, of those, the person pressed Cancel in a window's question. Then they need not be told in another.
    bool wasDeclined() const { return mWasDeclined; }
    /// Keeps what a server said of a request, for problem(): libcups knows of the answers that it has read itself.
    /// \param words null for nothing.
    void hear(const QString &words) const { mWords = words; }
    /// That the server knows the person now, and does not let them do this: for the next call another may be asked for.
    void hearRefusal() const;
    /// Why the last call failed, as a sentence; null when it was stopped. For use in the connection's own thread.
    QString problem() const;
    /// That the server cannot be reached, as a sentence.
    static QString noAnswer();

private:
    using Clock = std::chrono::steady_clock;

    ServerConnection(const std::atomic<bool> *stop, Passwords passwords);
    bool isOver() const;
    bool mayWaitOn();
    const char *answerPassword(const http_t *http);
    void watchLine();

    http_t *mHttp = nullptr;
    const std::atomic<bool> *mStop = nullptr;
    Passwords mPasswords;
    std::optional<Clock::time_point> mEnd; ///< when all calls end
    Clock::time_point mLastTick;           ///< when libcups last waited in vain
    Clock::time_point mSilentSince;
    bool mHasLine = false; ///< it was connected, whatever became of that since
    bool mIsSilent = false;
    bool mIsToldOf = false; ///< its silence
    bool mHasBeenOpen = false;
    int mQuestions = 0;
    bool mWasRefused = false;          ///< no password was given, or none that is good
    bool mWasDeclined = false;         ///< the person pressed Cancel when asked for one
    mutable QString mWords;            ///< asking leaves the connection as it is
    PasswordPlace mPlace;              ///< whom passwords are for
    mutable std::uint64_t mKeptAs = 0; ///< the password given last, where it is kept; else 0
    Secret mPassword;                  ///< libcups reads it from here
    QByteArray mThreadsUser;           ///< who the thread's calls are made for, before any question
    ServerConnection *mOuter;          ///< the thread's connection before this one
    std::unique_ptr<LineCutter> mCutter;
};

} // namespace tapeprint::job
