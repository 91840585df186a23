// SPDX-License-Identifier: Apache-2.0
// Poppler by its interface for plain C++: that brings no toolkit along, which would take half the time of a start.
#include "drawing/DrawnDocument.h"

#include "drawing/PageBoxes.h"

#include <algorithm>
#include <cstddef>
#include <exception>
#include <iterator>
#include <string>
#include <utility>

#include <poppler-document.h>
#include <poppler-global.h>
#include <poppler-image.h>
#include <poppler-page-renderer.h>
#include <poppler-page.h>
#include <qpdf/QPDF.hh>

namespace tapeprint::drawing
{

namespace
{

constexpr double unitsPerInch = 72.0;

job::DrawerPage drawnPage(const poppler::document &pdf, int index)
{
    job::DrawerPage drawn;
    const std::unique_ptr<poppler::page> page(pdf.create_page(index));
    if (page == nullptr) {
        return drawn;
    }
    const poppler::rectf rect = page->page_rect();
    const poppler::page::orientation_enum turn = page->orientation();
    drawn.width = rect.width();
    drawn.height = rect.height();
    if (turn == poppler::page::landscape || turn == poppler::page::seascape) {
        std::swap(drawn.width, drawn.height);
    }
    return drawn;
}

/// Boxes of a document's pages; none when QPDF cannot read what can be drawn.
std::vector<job::DrawerPage> readBoxes(const char *bytes, int length)
{
    try {
        QPDF document;
        document.setSuppressWarnings(true);
        document.processMemoryFile("document", bytes, static_cast<std::size_t>(length));
        return pageBoxesOf(document);
    } catch (const std::exception &) {
        return {};
    }
}

} // namespace

DrawnDocument::DrawnDocument(const char *bytes, int length) : mBytes(bytes), mLength(length)
{
    // What Poppler has to say of a document's flaws is for its developers.
    poppler::set_debug_error_function([](const std::string &, void *) {}, nullptr);
    mPdf.reset(poppler::document::load_from_raw_data(bytes, length));
}

DrawnDocument::~DrawnDocument() = default;

job::DrawerDocument::State DrawnDocument::state() const
{
    if (mPdf == nullptr) {
        return job::DrawerDocument::None;
    }
    return mPdf->is_locked() ? job::DrawerDocument::Locked : job::DrawerDocument::Whole;
}

std::vector<job::DrawerPage> DrawnDocument::pages(std::size_t *count) const
{
    std::vector<job::DrawerPage> pages;
    if (state() != job::DrawerDocument::Whole || mPdf->pages() > job::mostDrawerPages) {
        return pages;
    }
    const std::vector<job::DrawerPage> boxes = readBoxes(mBytes, mLength);
    *count = boxes.size();
    for (int index = 0; index < mPdf->pages(); ++index) {
        const job::DrawerPage drawn = drawnPage(*mPdf, index);
        const auto place = static_cast<std::size_t>(index);
        job::DrawerPage page = place < boxes.size() ? boxes[place] : job::DrawerPage();
        page.width = drawn.width;
        page.height = drawn.height;
        pages.push_back(page);
    }
    return pages;
}

poppler::image DrawnDocument::draw(const job::DrawerQuestion &part) const
{
    const std::unique_ptr<poppler::page> page(mPdf == nullptr ? nullptr : mPdf->create_page(part.page));
    if (page == nullptr) {
        return {};
    }
    poppler::page_renderer renderer;
    renderer.set_render_hint(poppler::page_renderer::antialiasing, part.isSmooth != 0);
    renderer.set_render_hint(poppler::page_renderer::text_antialiasing, true); // a faint letter is a letter
    const double dotsPerInch = part.dotsPerUnit * unitsPerInch;
    const job::DrawerRect &dots = part.dots;
    return renderer.render_page(page.get(), dotsPerInch, dotsPerInch, dots.x, dots.y, dots.width, dots.height);
}

job::DrawerRect inkOf(const poppler::image &image)
{
    // Poppler makes white a shade less where it enlarges a picture; no printer makes a dot of that.
    constexpr std::uint32_t leastWhite = 254;
    constexpr std::uint32_t byte = 0xff;
    const auto isInk = [](std::uint32_t dot) {
        return (dot & byte) < leastWhite || (dot >> 8U & byte) < leastWhite || (dot >> 16U & byte) < leastWhite;
    };
    const int width = image.width();
    int left = width;
    int right = 0;
    int top = 0;
    int bottom = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto *line = reinterpret_cast<const std::uint32_t *>(image.const_data() + static_cast<std::ptrdiff_t>(y) *
                                                                                            image.bytes_per_row());
        const std::uint32_t *end = line + width;
        const std::uint32_t *first = std::find_if(line, end, isInk);
        if (first == end) {
            continue;
        }
        const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isInk);
        top = right == 0 ? y : top;
        bottom = y + 1;
        left = std::min(left, static_cast<int>(first - line));
        right = std::max(right, static_cast<int>(last.base() - line));
    }
    return right == 0 ? job::DrawerRect() : job::DrawerRect{left, top, right - left, bottom - top};
}

} // namespace tapeprint::drawing
