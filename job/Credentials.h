// SPDX-License-Identifier: Apache-2.0
// Who a person is to a print server, and how one is asked. What is kept of it, and how long, is KeptPasswords.h's.
#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <optional>
#include <vector>

namespace tapeprint::job
{

/// Bytes that are overwritten when nobody needs them any more. They are moved, and never copied by accident.
class Secret
{
public:
    Secret() = default;
    /// Takes the bytes over and overwrites those given.
    explicit Secret(QByteArray &bytes);
    ~Secret();
    Secret(Secret &&other) noexcept;
    Secret &operator=(Secret &&other) noexcept;
    Secret(const Secret &) = delete;
    Secret &operator=(const Secret &) = delete;

    Secret copy() const;
    /// Ends with a null byte. Valid as long as this object.
    const char *text() const { return mBytes.empty() ? "" : mBytes.data(); }

private:
    void wipe();

    std::vector<char> mBytes;
};

/// What a server wants to know.
struct PasswordQuestion {
    QString server;  ///< who asks, as a person knows it
    QString user;    ///< who it takes the person for so far
    int attempt = 1; ///< above 1 when the last answer was not accepted
};

/// What the person answers.
struct Credentials {
    QString user;
    Secret password;
};

/// Asks the person, in the thread that talks with the server, and returns when there is an answer: none when the person
/// declines. \param isOver asked a few times a second; when it says yes, nobody wants the answer any more.
using PasswordAsker =
    std::function<std::optional<Credentials>(const PasswordQuestion &question, const std::function<bool()> &isOver)>;

/// Sets who is asked when a server wants a password; null, as at first: nobody, and what needs one fails. A program's
/// one front end sets it, before its threads start.
void setPasswordAsker(PasswordAsker asker);
PasswordAsker passwordAsker();

} // namespace tapeprint::job
