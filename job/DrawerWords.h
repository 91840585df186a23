// SPDX-License-Identifier: Apache-2.0
// What this program and the one that draws pages say to each other, over a socket between two processes of one machine:
// structures as they stand in memory.
#pragma once

#include <cstdint>

namespace tapeprint::job
{

/// The drawing program's first word, before anything is asked: it has been started, and is of this build's kind.
constexpr std::uint32_t drawerGreeting = 0x54504431;

/// More pages than this are no document for labels.
constexpr std::int32_t mostDrawerPages = 200000;

/// Dots of a page's grid.
struct DrawerRect {
    std::int32_t x = 0;
    std::int32_t y = 0;
    std::int32_t width = 0;
    std::int32_t height = 0;
};

struct DrawerQuestion {
    enum Kind : std::uint32_t {
        Open, ///< the first question of each process; the document's handle comes with it
        Draw, ///< a part of a page, as a picture
        Find, ///< the rectangle of the dots of a part that are drawn on
    };
    std::uint32_t kind = Open;
    std::int32_t page = 0;
    DrawerRect dots;
    double dotsPerUnit = 1.0;
    std::uint32_t isSmooth = 0;
    std::uint32_t padding = 0;
};

/// The answer to Open. As many pages as it says follow.
struct DrawerDocument {
    enum State : std::uint32_t { None, Locked, Whole };
    std::uint32_t state = None;
    std::int32_t pages = 0;
    std::int32_t boxes = 0; ///< how many pages the document has when its boxes are read; 0: they cannot be
};

/// A page's size as it is drawn, and its box: see PageBox.h.
struct DrawerPage {
    struct Rect {
        double x = 0.0;
        double y = 0.0;
        double width = 0.0;
        double height = 0.0;
    };
    double width = 0.0; ///< 0: it cannot be drawn
    double height = 0.0;
    Rect page;
    Rect seen;
    double unitPt = 1.0;
    std::int32_t turn = 0;
    std::int32_t hasBox = 0;
};

/// The answer to Draw and Find. Draw: as large as the part, and its dots follow, 32 bits each, row after row (blue
/// first in memory); or empty, when there is no picture. Find: the rectangle, counted from the part's top left; empty
/// when nothing is drawn.
struct DrawerPart {
    DrawerRect dots;
    std::uint32_t isDrawn = 0; ///< 0: the page cannot be drawn
};

} // namespace tapeprint::job
