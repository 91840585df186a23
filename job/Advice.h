// SPDX-License-Identifier: Apache-2.0
// What to do about a problem depends on where the person sits: who reads a sentence in a window cannot type an option.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// While one lives, advice is for a person at a window; else it is for one at a command line. Made and destroyed in the
/// window's thread, asked for in any.
class AdviceForTheWindow
{
public:
    AdviceForTheWindow();
    ~AdviceForTheWindow();
    AdviceForTheWindow(const AdviceForTheWindow &) = delete;
    AdviceForTheWindow &operator=(const AdviceForTheWindow &) = delete;
};

/// Whether the person sits at a window of this program.
bool isAtTheWindow();

/// The one of two pieces of advice that is for the person.
QString advice(const QString &atTheWindow, const QString &onTheCommandLine);

} // namespace tapeprint::job
