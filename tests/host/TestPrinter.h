// SPDX-License-Identifier: Apache-2.0
// A printer description for the tests, and what they need around it.
#pragma once

#include "dialog/Panels.h"

#include <QStringList>
#include <QTemporaryDir>

namespace hosttest
{

/// A PPD: tapes W12 (the default, 36 x 288 points) and W24 (72 x 144 points), KsMargin 2.0 (the default) and 5.0,
/// CutMedia None (the default) and Label, KsMirror False (the default) and True. \param more lines added at the end.
QByteArray testPpd(const QByteArray &more = {});

/// Writes a file and answers its path.
QString writeFile(const QTemporaryDir &folder, const QString &name, const QByteArray &bytes);

/// The test PPD, opened.
tapeprint::job::Destination testDestination(const QTemporaryDir &folder, const QByteArray &more = {});

/// Options from NAME, VALUE pairs.
tapeprint::job::JobOptions options(std::initializer_list<tapeprint::job::JobOptions::Entry> entries);

/// The folder with the plug-in of the tests.
QStringList goodBundles();

/// What the test panel wrote down, emptied for the next look.
QStringList takeCalls();

} // namespace hosttest
