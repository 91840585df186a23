// SPDX-License-Identifier: Apache-2.0
// Documents measured and laid out on labels, and documents made of their pages. The confined program asks for it, and
// so do the fuzz targets.
#pragma once

#include "drawing/Asker.h"
#include "job/PagesWords.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace tapeprint::drawing
{

/// Why there is nothing.
struct Failure {
    job::PagesAnswer::Fault fault = job::PagesAnswer::Other;
    std::uint32_t document = 0; ///< the one at fault, unless that is Other
    std::string reason;         ///< as libqpdf says it
};

/// Where the document goes that is made, piece by piece.
class Output
{
public:
    Output() = default;
    virtual ~Output() = default;
    Output(const Output &) = delete;
    Output &operator=(const Output &) = delete;

    /// Another page has been made.
    virtual void tellProgress() = 0;
    virtual void take(const unsigned char *bytes, std::size_t length) = 0;
};

/// A document's labels, all of one size. \see job::PagesQuestion.
struct Labels {
    double width = 0.0;
    double height = 0.0;
    double downPt = 0.0;
    std::vector<std::vector<job::PagesPlaced>> pages; ///< of each label
};

/// The boxes of a document's pages.
std::optional<Failure> measure(const Bytes &document, std::vector<job::DrawerPage> *pages);

/// Writes labels as a PDF. The pages keep what they are made of: text stays text, nothing is rasterised. The same
/// documents give the same bytes.
std::optional<Failure> layOut(const Labels &labels, const std::vector<Bytes> &documents, Output &output);

/// Writes pages as a PDF, each as it is.
std::optional<Failure> choose(const std::vector<job::PagesPlaced> &pages, const std::vector<Bytes> &documents,
                              Output &output);

} // namespace tapeprint::drawing
