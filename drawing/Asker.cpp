// SPDX-License-Identifier: Apache-2.0
// A socket. Documents are seen as memory: nothing of them is copied before it is read.
#include "drawing/Asker.h"

#include <array>
#include <cerrno>
#include <cstring>

#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace tapeprint::drawing
{

namespace
{

constexpr int asker = STDIN_FILENO;

} // namespace

bool say(const void *bytes, std::size_t length)
{
    const auto *next = static_cast<const char *>(bytes);
    while (length > 0) {
        const ssize_t sent = send(asker, next, length, MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR) {
            continue;
        }
        if (sent <= 0) {
            return false;
        }
        next += sent;
        length -= static_cast<std::size_t>(sent);
    }
    return true;
}

bool listen(void *bytes, std::size_t length, int *handle)
{
    auto *next = static_cast<char *>(bytes);
    while (length > 0) {
        iovec place{next, length};
        alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> space{};
        msghdr message{};
        message.msg_iov = &place;
        message.msg_iovlen = 1;
        message.msg_control = space.data();
        message.msg_controllen = space.size();
        const ssize_t taken = recvmsg(asker, &message, MSG_WAITALL | MSG_CMSG_CLOEXEC);
        if (taken < 0 && errno == EINTR) {
            continue;
        }
        if (taken <= 0) {
            return false;
        }
        const cmsghdr *header = CMSG_FIRSTHDR(&message);
        if (handle != nullptr && header != nullptr && header->cmsg_type == SCM_RIGHTS) {
            std::memcpy(handle, CMSG_DATA(header), sizeof *handle);
        }
        next += taken;
        length -= static_cast<std::size_t>(taken);
    }
    return true;
}

Bytes take(int handle)
{
    Bytes document;
    struct stat about {
    };
    if (fstat(handle, &about) == 0 && about.st_size > 0) {
        const auto length = static_cast<std::size_t>(about.st_size);
        void *bytes = mmap(nullptr, length, PROT_READ, MAP_PRIVATE, handle, 0);
        if (bytes != MAP_FAILED) {
            document = {static_cast<const char *>(bytes), length};
        }
    }
    close(handle);
    return document;
}

void drop(const Bytes &document)
{
    if (document.bytes != nullptr) {
        munmap(const_cast<char *>(document.bytes), document.length); // NOLINT(*-const-cast): memory of this program's
    }
}

} // namespace tapeprint::drawing
