// SPDX-License-Identifier: Apache-2.0
// The program that reads and draws one document, which may be anybody's: it is started where it can do no harm, answers
// the questions of job/DrawerWords.h, and ends when nobody is there to ask.
#include "drawing/DrawnDocument.h"

#include <array>
#include <cerrno>
#include <climits>
#include <cstddef>
#include <cstring>
#include <exception>

#include <poppler-image.h>
#include <sys/mman.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{

using namespace tapeprint;

constexpr int asker = STDIN_FILENO;

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

template <typename Word>
bool say(const Word &word)
{
    return say(&word, sizeof word);
}

/// Waits for a question. \param handle takes that of a file that came along. \return false: nobody asks any more.
bool listen(job::DrawerQuestion *question, int *handle)
{
    iovec place{question, sizeof *question};
    alignas(cmsghdr) std::array<char, CMSG_SPACE(sizeof(int))> space{};
    msghdr message{};
    message.msg_iov = &place;
    message.msg_iovlen = 1;
    message.msg_control = space.data();
    message.msg_controllen = space.size();
    ssize_t length = -1;
    do {
        length = recvmsg(asker, &message, MSG_WAITALL | MSG_CMSG_CLOEXEC);
    } while (length < 0 && errno == EINTR);
    const cmsghdr *header = CMSG_FIRSTHDR(&message);
    if (header != nullptr && header->cmsg_type == SCM_RIGHTS) {
        std::memcpy(handle, CMSG_DATA(header), sizeof *handle);
    }
    return length == static_cast<ssize_t>(sizeof *question);
}

/// The document's bytes. Its handle is closed before any of them is looked at: who holds one could open the file anew,
/// for writing, past the room's walls.
struct Document {
    const char *bytes = nullptr;
    int length = 0;
};

Document take(int handle)
{
    Document document;
    struct stat about {
    };
    if (fstat(handle, &about) == 0 && about.st_size > 0 && about.st_size <= INT_MAX) { // Poppler counts in ints
        void *bytes = mmap(nullptr, static_cast<std::size_t>(about.st_size), PROT_READ, MAP_PRIVATE, handle, 0);
        if (bytes != MAP_FAILED) {
            document = {static_cast<const char *>(bytes), static_cast<int>(about.st_size)};
        }
    }
    close(handle);
    return document;
}

bool tellPages(const drawing::DrawnDocument &document)
{
    const std::vector<job::DrawerPage> pages = document.pages();
    const job::DrawerDocument answer{document.state(), static_cast<std::int32_t>(pages.size())};
    return say(answer) && say(pages.data(), pages.size() * sizeof(job::DrawerPage));
}

bool sayRows(const poppler::image &image)
{
    const auto row = static_cast<std::size_t>(image.width()) * sizeof(std::uint32_t);
    if (static_cast<std::size_t>(image.bytes_per_row()) == row) {
        return say(image.const_data(), row * static_cast<std::size_t>(image.height()));
    }
    for (int y = 0; y < image.height(); ++y) {
        if (!say(image.const_data() + static_cast<std::ptrdiff_t>(y) * image.bytes_per_row(), row)) {
            return false;
        }
    }
    return true;
}

bool tellPart(const drawing::DrawnDocument &document, const job::DrawerQuestion &question)
{
    const poppler::image image = document.draw(question);
    if (!image.is_valid()) {
        return say(job::DrawerPart());
    }
    if (question.kind == job::DrawerQuestion::Find) {
        return say(job::DrawerPart{drawing::inkOf(image), 1});
    }
    return say(job::DrawerPart{{0, 0, image.width(), image.height()}, 1}) && sayRows(image);
}

/// \return false: nobody listens.
bool answer(const drawing::DrawnDocument &document, const job::DrawerQuestion &question)
{
    try {
        return question.kind == job::DrawerQuestion::Open ? tellPages(document) : tellPart(document, question);
    } catch (const std::bad_alloc &) { // of a picture that memory does not hold
        return question.kind != job::DrawerQuestion::Open && say(job::DrawerPart());
    }
}

} // namespace

int main()
{
    job::DrawerQuestion question;
    int handle = -1;
    if (!say(job::drawerGreeting) || !listen(&question, &handle)) {
        return 0;
    }
    const Document bytes = take(handle);
    const drawing::DrawnDocument document(bytes.bytes, bytes.length);
    while (answer(document, question) && listen(&question, &handle)) {
    }
    return 0;
}
