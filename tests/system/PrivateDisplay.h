// SPDX-License-Identifier: Apache-2.0
// A display without a screen, of the test's own, on which a program's real window is seen and worked.
#pragma once

#include "tests/system/PrivateFolder.h"

#include <QProcess>
#include <QString>

namespace systemtest
{

class PrivateDisplay
{
public:
    PrivateDisplay();
    ~PrivateDisplay();
    PrivateDisplay(const PrivateDisplay &) = delete;
    PrivateDisplay &operator=(const PrivateDisplay &) = delete;

    /// Why no display can be run on this machine; null when one can.
    static QString reasonToSkip();

    /// Starts the display, on a number that is free. \return null, or why it does not start.
    QString start();
    /// What DISPLAY is set to.
    QString name() const { return mName; }

    /// Runs xdotool on this display. \return what it prints; null when it fails.
    QByteArray xdotool(const QStringList &arguments) const;
    /// Takes a picture of a window into a file.
    bool takePicture(const QString &window, const QString &path) const;

private:
    QByteArray run(const QString &program, const QStringList &arguments) const;

    QProcess mServer;
    QString mName;
};

} // namespace systemtest
