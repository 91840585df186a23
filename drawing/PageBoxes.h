// SPDX-License-Identifier: Apache-2.0
// Which part of a PDF page is the page: one answer for whoever shows, measures or lays out a document.
#pragma once

#include "job/DrawerWords.h"

#include <vector>

class QPDF;
class QPDFPageObjectHelper;

namespace tapeprint::drawing
{

/// The box of a page, as job/PageBox.h tells it; of the word's members those of the box are filled. It is the one that
/// CUPS's pdftopdf takes: TrimBox, else CropBox, else MediaBox, whole even where it reaches beyond the MediaBox. The
/// filter muddles UserUnit (it enlarges the content, not the page); here the unit counts for both.
job::DrawerPage pageBoxOf(QPDFPageObjectHelper &page);

/// The boxes of all pages. Throws what QPDF throws of a document that it cannot read.
std::vector<job::DrawerPage> pageBoxesOf(QPDF &document);

} // namespace tapeprint::drawing
