// SPDX-License-Identifier: Apache-2.0
// The parts of this program that read documents: programs of their own, which stand where bundles do, found from the
// program's own place, in a build tree and installed.
#pragma once

#include "job/DrawerProcess.h"

#include <QString>

#include <atomic>
#include <cstdint>
#include <memory>

namespace tapeprint::job
{

/// Where the programs stand.
QString moduleFolder();

/// Starts a program where nobody has waited for it to be tried whether this machine confines anything, and does not
/// wait until it is ready. \return null when it cannot be started.
std::unique_ptr<DrawerProcess> startAhead(const QString &program);

/// Starts a program and waits until it has greeted. Where it cannot be confined it runs with bounds alone.
/// \param greeting its first word. \param problem takes why there is none.
std::unique_ptr<DrawerProcess> startProgram(const QString &program, std::uint32_t greeting,
                                            const std::atomic<bool> &stop, QString *problem);

/// The problem of a part of this program that is missing or does not start. \param reason as startProgram() says it.
QString partMissing(const QString &reason);

} // namespace tapeprint::job
