// SPDX-License-Identifier: Apache-2.0
// The program that reads and draws one document, which may be anybody's: it is started where it can do no harm, answers
// the questions of job/DrawerWords.h, and ends when nobody is there to ask.
#include "drawing/Asker.h"
#include "drawing/Bounds.h"
#include "drawing/DrawnDocument.h"

#include <climits>
#include <cstddef>
#include <new>

#include <poppler-image.h>

namespace
{

using namespace tapeprint;

using drawing::listen;
using drawing::say;

bool tellPages(const drawing::DrawnDocument &document)
{
    std::size_t boxes = 0;
    const std::vector<job::DrawerPage> pages = document.pages(&boxes);
    const job::DrawerDocument answer{document.state(), static_cast<std::int32_t>(pages.size()),
                                     static_cast<std::int32_t>(boxes)};
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
    drawing::takeBounds();
    job::DrawerQuestion question;
    int handle = -1;
    if (!say(job::drawerGreeting) || !listen(&question, &handle)) {
        return 0;
    }
    const drawing::Bytes bytes = drawing::take(handle);
    const bool isCountable = bytes.length <= INT_MAX; // Poppler counts in ints
    const drawing::DrawnDocument document(bytes.bytes, isCountable ? static_cast<int>(bytes.length) : 0);
    while (answer(document, question) && listen(&question)) {
    }
    return 0;
}
