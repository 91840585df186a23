// SPDX-License-Identifier: Apache-2.0
// The numbers come from the system's own source of randomness.
#include "portal/Tokens.h"

#include <QRandomGenerator>

#include <algorithm>
#include <utility>

namespace tapeprint::portal
{

std::uint32_t Tokens::add(const QString &program, ChosenSettings settings)
{
    dropOld();
    if (mEntries.size() >= most) {
        mEntries.erase(mEntries.begin());
    }
    const auto isTaken = [this](std::uint32_t token) {
        return token == 0 || std::any_of(mEntries.begin(), mEntries.end(),
                                         [token](const Entry &entry) { return entry.token == token; });
    };
    std::uint32_t token = 0;
    while (isTaken(token)) {
        token = QRandomGenerator::system()->generate();
    }
    mEntries.push_back({token, program, mClock(), std::move(settings)});
    return token;
}

std::optional<ChosenSettings> Tokens::take(std::uint32_t token, const QString &program)
{
    dropOld();
    const auto found = std::find_if(mEntries.begin(), mEntries.end(), [&](const Entry &entry) {
        return entry.token == token && entry.program == program;
    });
    if (found == mEntries.end()) {
        return std::nullopt;
    }
    ChosenSettings settings = std::move(found->settings);
    mEntries.erase(found);
    return settings;
}

bool Tokens::isEmpty()
{
    dropOld();
    return mEntries.empty();
}

void Tokens::dropOld()
{
    const auto now = mClock();
    std::erase_if(mEntries, [now](const Entry &entry) { return now - entry.madeAt > validity; });
}

} // namespace tapeprint::portal
