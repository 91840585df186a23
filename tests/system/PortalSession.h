// SPDX-License-Identifier: Apache-2.0
// A desktop session in small, for programs that print through the portal: bus, display, print server, the desktop's own
// portal, and the backend, which the bus starts. None of them is made up.
#pragma once

#include "tests/support/TextPrinting.h"
#include "tests/system/PrivateBus.h"
#include "tests/system/PrivateDisplay.h"
#include "tests/system/SystemTest.h"
#include "tests/system/WindowUnderTest.h"

#include <QDBusConnection>
#include <QDBusPendingCall>
#include <QVariantMap>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace systemtest
{

extern const QString portalName;  ///< of the desktop's portal on the bus
extern const QString portalPath;  ///< of its object, and of the backend's
extern const QString backendName; ///< of the backend on the bus

/// Long before the backend leaves for having nothing to do, which ends everything.
constexpr int soonMs = 20000;

/// Waits with the event loop running.
bool waitWithEvents(const std::function<bool()> &condition, int timeoutMs = patienceMs);

class PortalSession : public SystemTest
{
protected:
    void SetUp() override;
    void TearDown() override;

    /// Starts the session's bus and what it needs. \param withServer whether a print server with the queue "tape", the
    /// default printer, is part of it.
    void startSession(bool withServer);
    /// Starts the desktop's portal.
    void startPortal();
    /// Variables of a program in the session.
    std::vector<std::pair<QString, QString>> sessionVariables() const;
    /// Starts a program in the session.
    void startProgram(QProcess &program, const QString &file, const QStringList &arguments);

    /// Calls a method of the backend, as the desktop's portal does.
    QDBusPendingCall callBackend(const QString &method, const QVariantList &arguments);
    /// The dialog of the backend. \param known windows of it that are others.
    void openDialog(WindowUnderTest &dialog, const QStringList &known = {});
    /// Waits for the only job of the server to be printed. \return the runs of its filter.
    std::vector<FilterCall> printedJob(int id = 1);
    /// Waits until the backend says a sentence with these words on standard error.
    bool backendSays(const QByteArray &words);

    PrivateDisplay display;
    PrivateBus bus;
    QProcess portal;
    std::optional<QDBusConnection> session;                 ///< the test's own connection
    std::vector<std::pair<QString, QString>> moreOfSession; ///< variables
};

} // namespace systemtest
