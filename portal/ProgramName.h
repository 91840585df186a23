// SPDX-License-Identifier: Apache-2.0
// What a person calls the program that prints.
#pragma once

#include <QString>

namespace tapeprint::portal
{

/// The name of a program in the person's language, by its identity, which is that of its desktop entry; the identity
/// where no entry is found; empty for a program without one.
QString programName(const QString &identity);

} // namespace tapeprint::portal
