// SPDX-License-Identifier: Apache-2.0
// When a display's picture changes, seen from outside: what a person sees of a program, whatever toolkit draws it.
#pragma once

#include <memory>
#include <optional>
#include <string>

namespace bench
{

/// Seconds on the clock that never goes back.
double now();

/// The first and the last change of a screen that has come to rest, in seconds on the clock.
struct Paints {
    double first = 0.0;
    double last = 0.0;
};

class ScreenWatch
{
public:
    /// \param display as DISPLAY names it. Ends the program with a sentence when it cannot be watched.
    explicit ScreenWatch(const std::string &display);
    ~ScreenWatch();
    ScreenWatch(const ScreenWatch &) = delete;
    ScreenWatch &operator=(const ScreenWatch &) = delete;

    /// Forgets the changes so far.
    void clear();
    /// Waits until the screen has changed and come to rest: nothing larger than a text cursor for restSeconds.
    /// \return nothing when it has not changed within patienceSeconds, or does not rest for as long again.
    std::optional<Paints> watch(double restSeconds, double patienceSeconds);

private:
    struct Connection;
    std::unique_ptr<Connection> mConnection;
};

} // namespace bench
