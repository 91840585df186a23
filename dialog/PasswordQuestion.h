// SPDX-License-Identifier: Apache-2.0
// The window's answer to a print server that wants a password.
#pragma once

#include "job/Credentials.h"

#include <QDialog>

#include <memory>

class QLineEdit;

namespace tapeprint::dialog
{

/// Asks for a user's name and a password. Nothing of what is typed stays when it is gone.
class PasswordDialog : public QDialog
{
    Q_OBJECT

public:
    explicit PasswordDialog(const job::PasswordQuestion &question, QWidget *parent = nullptr);
    ~PasswordDialog() override;

    /// What was typed. The password can be taken once.
    job::Credentials takeCredentials();

private:
    QLineEdit *mUser;
    QLineEdit *mPassword;
};

/// While it lives, the questions of print servers are asked in windows over the one that is active. It lives in the
/// window's thread, which nothing holds up: the thread that talks with the server waits for the answer. A question that
/// comes before there is a window waits a moment for one, which would open above it; one whose window goes is asked
/// over another. One that nobody waits for any more closes by itself.
class PasswordDesk : public QObject
{
    Q_OBJECT

public:
    explicit PasswordDesk(QObject *parent = nullptr);
    ~PasswordDesk() override;

private:
    struct Door;
    struct Exchange;
    void ask(const job::PasswordQuestion &question, const std::shared_ptr<Exchange> &exchange, int looks);
    void show(const job::PasswordQuestion &question, const std::shared_ptr<Exchange> &exchange, QWidget *window);

    std::shared_ptr<Door> mDoor;
};

} // namespace tapeprint::dialog
