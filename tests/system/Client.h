// SPDX-License-Identifier: Apache-2.0
// Running a program as a person without files, settings or a display would: what it prints, where, and its status.
#pragma once

#include <QByteArray>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace systemtest
{

/// A program to be run.
struct Client {
    QString program;
    QStringList arguments;
    std::vector<std::pair<QString, QString>> variables; ///< set in an environment that lacks what a session brings
    QString folder = {};                                ///< to work in; empty: the test's own
    QByteArray input = {};                              ///< standard input
};

struct Outcome {
    int status = -1; ///< -1: it crashed or did not end
    QByteArray output;
    QByteArray messages;
};

/// The environment of a client: that of the test without the session, its display and its printers.
QProcessEnvironment clientEnvironment(const std::vector<std::pair<QString, QString>> &variables);

/// Runs a program to its end.
Outcome runClient(const Client &client);

} // namespace systemtest
