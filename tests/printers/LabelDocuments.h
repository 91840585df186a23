// SPDX-License-Identifier: Apache-2.0
// Documents of every kind and shape that people put on labels, black on white.
#pragma once

#include "tests/printers/EdgedPage.h"
#include "tests/system/PrivateFolder.h"

#include <QStringList>

#include <vector>

namespace printertest
{

/// A page of a document, in millimetres.
struct ShapedPage {
    double widthMm = 0.0;
    double heightMm = 0.0;
    std::vector<Block> blocks;
    int rotate = 0;
};

/// A PDF of several pages.
QByteArray pdfWith(const std::vector<ShapedPage> &pages);

/// A PDF with a standing, a lying, a large standing, a large lying and a turned page, a picture, a
/// PostScript file of two pages, and a text. \return their paths.
QStringList labelDocuments(const systemtest::PrivateFolder &folder);
constexpr int labelDocumentPages = 9;

} // namespace printertest
