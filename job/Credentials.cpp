// SPDX-License-Identifier: Apache-2.0
// Overwriting secrets, and who is asked for them.
#include "job/Credentials.h"

#include <mutex>
#include <utility>

#include <string.h> // NOLINT(modernize-deprecated-headers): explicit_bzero is of POSIX, not of <cstring>

namespace tapeprint::job
{

namespace
{

std::mutex askerMutex;
PasswordAsker frontEndAsker; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables): set once, under the lock

} // namespace

Secret::Secret(QByteArray &bytes) : mBytes(bytes.cbegin(), bytes.cend())
{
    mBytes.push_back('\0');
    explicit_bzero(bytes.data(), static_cast<std::size_t>(bytes.size()));
    bytes.clear();
}

Secret::~Secret()
{
    wipe();
}

Secret::Secret(Secret &&other) noexcept : mBytes(std::exchange(other.mBytes, {})) {}

Secret &Secret::operator=(Secret &&other) noexcept
{
    if (this != &other) {
        wipe();
        mBytes = std::exchange(other.mBytes, {});
    }
    return *this;
}

Secret Secret::copy() const
{
    Secret same;
    same.mBytes = mBytes;
    return same;
}

void Secret::wipe()
{
    if (!mBytes.empty()) { // an empty one may have no address
        explicit_bzero(mBytes.data(), mBytes.size());
    }
    mBytes.clear();
}

void setPasswordAsker(PasswordAsker asker)
{
    const std::lock_guard lock(askerMutex);
    frontEndAsker = std::move(asker);
}

PasswordAsker passwordAsker()
{
    const std::lock_guard lock(askerMutex);
    return frontEndAsker;
}

} // namespace tapeprint::job
