// SPDX-License-Identifier: Apache-2.0
// PDF pages of an exact size, smaller than any PDF writer's whole points would allow.
#pragma once

#include <QByteArray>

#include <vector>

namespace printertest
{

/// A filled rectangle in millimetres from the page's top left corner.
struct Block {
    double x = 0.0;
    double y = 0.0;
    double width = 0.0;
    double height = 0.0;
};

/// A PDF of one page of this size, in which the blocks are black.
QByteArray pageWith(double widthMm, double lengthMm, const std::vector<Block> &blocks = {});

} // namespace printertest
