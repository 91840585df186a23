// SPDX-License-Identifier: Apache-2.0
// A PDF document as Poppler draws it and QPDF reads its boxes.
#pragma once

#include "job/DrawerWords.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace poppler
{
class document;
class image;
} // namespace poppler

namespace tapeprint::drawing
{

class DrawnDocument
{
public:
    /// \param bytes the whole of it; they stay the caller's, and must outlive this object.
    DrawnDocument(const char *bytes, int length);
    ~DrawnDocument();
    DrawnDocument(const DrawnDocument &) = delete;
    DrawnDocument &operator=(const DrawnDocument &) = delete;

    job::DrawerDocument::State state() const;
    /// All pages; none as long as the document is locked, or when there are more than mostDrawerPages. \param count
    /// takes how many pages there are by their boxes.
    std::vector<job::DrawerPage> pages(std::size_t *count) const;
    /// A part of a page on white; invalid when it cannot be drawn.
    poppler::image draw(const job::DrawerQuestion &part) const;

private:
    const char *mBytes;
    int mLength;
    std::unique_ptr<poppler::document> mPdf; ///< null when it is none
};

/// The rectangle of a picture's dots that are not white; empty when all are.
job::DrawerRect inkOf(const poppler::image &image);

} // namespace tapeprint::drawing
