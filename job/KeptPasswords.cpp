// SPDX-License-Identifier: Apache-2.0
// One list for the process, under a lock: the threads that talk with a server are many.
#include "job/KeptPasswords.h"

#include <algorithm>
#include <chrono>
#include <mutex>
#include <utility>
#include <vector>

namespace tapeprint::job
{

namespace
{

constexpr std::chrono::milliseconds lookInterval{100};

struct Entry {
    PasswordPlace place;
    KeptPassword kept;
};

struct Keep {
    std::mutex mutex;
    int keepings = 0; ///< under the lock, as all that follows
    std::uint64_t lastNumber = 0;
    std::uint64_t declined = 0; ///< how many questions the person has declined
    std::vector<Entry> entries;
    std::timed_mutex question; ///< held by the thread that asks the person
};

Keep &keep()
{
    static Keep ofAll;
    return ofAll;
}

bool isSame(const PasswordPlace &left, const PasswordPlace &right)
{
    return left.server == right.server && left.isEncrypted == right.isEncrypted && left.user == right.user;
}

Credentials copyOf(const Credentials &credentials)
{
    return {credentials.user, credentials.password.copy()};
}

} // namespace

PasswordKeeping::PasswordKeeping()
{
    const std::lock_guard lock(keep().mutex);
    ++keep().keepings;
}

PasswordKeeping::~PasswordKeeping()
{
    const std::lock_guard lock(keep().mutex);
    if (--keep().keepings == 0) {
        keep().entries.clear();
    }
}

std::optional<KeptPassword> keptPassword(const PasswordPlace &place)
{
    const std::lock_guard lock(keep().mutex);
    const std::vector<Entry> &entries = keep().entries;
    const auto found = std::find_if(entries.begin(), entries.end(),
                                    [&place](const Entry &entry) { return isSame(entry.place, place); });
    if (found == entries.end()) {
        return std::nullopt;
    }
    return KeptPassword{copyOf(found->kept.credentials), found->kept.number};
}

std::uint64_t keepPassword(const PasswordPlace &place, const Credentials &credentials)
{
    const std::lock_guard lock(keep().mutex);
    if (keep().keepings == 0) {
        return 0;
    }
    std::vector<Entry> &entries = keep().entries;
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [&place](const Entry &entry) { return isSame(entry.place, place); }),
                  entries.end());
    entries.push_back({place, {copyOf(credentials), ++keep().lastNumber}});
    return keep().lastNumber;
}

void forgetPassword(std::uint64_t number)
{
    const std::lock_guard lock(keep().mutex);
    std::vector<Entry> &entries = keep().entries;
    entries.erase(std::remove_if(entries.begin(), entries.end(),
                                 [number](const Entry &entry) { return entry.kept.number == number; }),
                  entries.end());
}

std::optional<KeptPassword> keptOrAsked(const PasswordPlace &place, const std::function<bool()> &isOver,
                                        const std::function<std::optional<Credentials>()> &ask)
{
    const auto declined = [] {
        const std::lock_guard lock(keep().mutex);
        return keep().declined;
    };
    const std::uint64_t declinedBefore = declined();
    std::unique_lock turn(keep().question, std::defer_lock);
    while (!turn.try_lock_for(lookInterval)) {
        if (isOver()) {
            return std::nullopt;
        }
    }
    if (std::optional<KeptPassword> kept = keptPassword(place)) {
        return kept;
    }
    if (declined() != declinedBefore) {
        return std::nullopt; // for this one, too: it would come up at once in the place of the one just closed
    }
    std::optional<Credentials> answer = ask();
    if (!answer) {
        if (!isOver()) {
            const std::lock_guard lock(keep().mutex);
            ++keep().declined;
        }
        return std::nullopt;
    }
    const std::uint64_t number = keepPassword(place, *answer);
    return KeptPassword{std::move(*answer), number};
}

} // namespace tapeprint::job
