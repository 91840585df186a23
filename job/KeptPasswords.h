// SPDX-License-Identifier: Apache-2.0
// What a person has typed for a print server, in memory, so that it is not asked for again within one window or run.
#pragma once

#include "job/Credentials.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <optional>

namespace tapeprint::job
{

/// While one lives, passwords are kept in memory; with the last of them all go. Without one nothing is kept. A window,
/// or a run without one, has it as long as it may talk with its server.
class PasswordKeeping
{
public:
    PasswordKeeping();
    ~PasswordKeeping();
    PasswordKeeping(const PasswordKeeping &) = delete;
    PasswordKeeping &operator=(const PasswordKeeping &) = delete;
};

/// Whom a password is for. It goes to nobody else.
struct PasswordPlace {
    QString server;           ///< its name or address, with the port
    bool isEncrypted = false; ///< what was typed on an encrypted connection is not sent on one that is not
    QString user;             ///< who the program speaks for to the server
};

struct KeptPassword {
    Credentials credentials;
    std::uint64_t number = 0; ///< for forgetPassword(); never 0
};

// All from any thread.

std::optional<KeptPassword> keptPassword(const PasswordPlace &place);
/// Keeps a copy, in the place of what was kept for the same place. \return its number; 0 when nothing is kept.
std::uint64_t keepPassword(const PasswordPlace &place, const Credentials &credentials);
/// The server has refused it.
void forgetPassword(std::uint64_t number);

/// One question at a time is put to the person: who waits for another's may find the answer kept. \param isOver asked a
/// few times a second while others are being asked; when it says yes, nothing is answered.
std::optional<KeptPassword> keptOrAsked(const PasswordPlace &place, const std::function<bool()> &isOver,
                                        const std::function<std::optional<Credentials>()> &ask);

} // namespace tapeprint::job
