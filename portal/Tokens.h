// SPDX-License-Identifier: Apache-2.0
// Between its two calls a program holds a number: with it the settings that the person chose are found again, once, by
// that program, and not for long.
#pragma once

#include "job/KeptPasswords.h"
#include "job/SettledJob.h"

#include <QString>

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::portal
{

/// What a person chose, and waits for the program's pages.
struct ChosenSettings {
    job::SettledJob job;
    std::function<bool()> keep; ///< keeps them for the next time, when the job has been printed; may be null
    QString jobName = {};       ///< empty: the program has not told it yet
    /// Who chose with a password is not asked for it again to print; null keeps nothing.
    std::shared_ptr<job::PasswordKeeping> passwords = {};
};

class Tokens
{
public:
    using Clock = std::function<std::chrono::steady_clock::time_point()>;

    static constexpr std::chrono::seconds validity{300};
    /// When more are given out, the oldest is forgotten.
    static constexpr std::size_t most = 64;

    explicit Tokens(Clock clock = std::chrono::steady_clock::now) : mClock(std::move(clock)) {}

    /// \param program the identity that the portal has for the program. \return a number that cannot be guessed; never
    /// 0, which stands for none.
    std::uint32_t add(const QString &program, ChosenSettings settings);
    /// The settings behind a number, which is used up by it. Nothing for a number that is unknown, too old or another
    /// program's: to that program it stays good.
    std::optional<ChosenSettings> take(std::uint32_t token, const QString &program);
    /// Whether none is good any more.
    bool isEmpty();

private:
    struct Entry {
        std::uint32_t token = 0;
        QString program;
        std::chrono::steady_clock::time_point madeAt;
        ChosenSettings settings;
    };
    void dropOld();

    Clock mClock;
    std::vector<Entry> mEntries; ///< the oldest first
};

} // namespace tapeprint::portal
