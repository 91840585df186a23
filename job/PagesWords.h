// SPDX-License-Identifier: Apache-2.0
// What this program and the one that measures documents and lays them out say to each other, over a socket between two
// processes of one machine: structures as they stand in memory.
#pragma once

#include "job/DrawerWords.h"

#include <array>
#include <cstdint>

namespace tapeprint::job
{

/// The program's first word, before anything is asked: it has been started, and is of this build's kind.
constexpr std::uint32_t pagesGreeting = 0x54505031;

/// Such a word follows a question for each of its documents, and brings the document's handle along.
using PagesDocument = std::uint32_t;

/// The documents follow, then what the kind says.
struct PagesQuestion {
    enum Kind : std::uint32_t {
        Measure, ///< the boxes of one document's pages
        LayOut,  ///< a document of labels; for each label how many pages are on it, as std::uint32_t, then those pages
        Choose,  ///< a document of pages as they are; the pages follow
    };
    std::uint32_t kind = Measure;
    std::uint32_t documents = 0;
    std::uint32_t labels = 0;
    std::uint32_t pages = 0; ///< on all labels together
    double width = 0.0;      ///< of a label, in points
    double height = 0.0;
    double downPt = 0.0; ///< by which the content is moved against the rasteriser
};

/// One page of a document, and where it goes.
struct PagesPlaced {
    std::uint32_t document = 0;
    std::int32_t page = 0;
    /// From points of the document's page to points of the label, both from the top left: m11, m12, m21, m22, dx, dy.
    std::array<double, 6> place{1.0, 0.0, 0.0, 1.0, 0.0, 0.0};
    DrawerPage::Rect
        clip; ///< what of the label the page may cover, in the label's own units, y upwards; empty: nothing
};

/// A piece of the document that is made is no longer than this, and a reason neither.
constexpr std::uint32_t mostPieceBytes = 1U << 20U;
constexpr std::uint32_t mostReasonBytes = 4096;

/// Measure is answered by Measured or Failed. LayOut and Choose are answered by any number of Working and Piece, and at
/// last by Whole or Failed.
struct PagesAnswer {
    enum Kind : std::uint32_t {
        Measured, ///< so many DrawerPage follow, of which the boxes count
        Working,  ///< there is more to come
        Piece,    ///< so many bytes follow, the next of the document that is made
        Whole,    ///< the document has been said
        Failed,   ///< so many bytes follow: why, as libqpdf says it
    };
    enum Fault : std::uint32_t {
        Locked,  ///< a document wants a password
        Damaged, ///< a document cannot be opened
        Other,   ///< what was asked for cannot be made of them
    };
    std::uint32_t kind = Failed;
    std::uint32_t fault = Other;
    std::uint32_t document = 0; ///< the one at fault, unless that is Other
    std::uint32_t length = 0;
};

} // namespace tapeprint::job
