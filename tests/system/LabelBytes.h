// SPDX-License-Identifier: Apache-2.0
// Reading what the sample printers are sent: labels in ZPL, each an image of so many dots.
#pragma once

#include <QByteArray>

#include <vector>

namespace systemtest
{

/// One label: an image is downloaded, "~DGR:NAME,BYTES,BYTES-A-ROW,", and then printed, "^XA ... ^XZ".
struct Label {
    int bytesPerRow = 0;
    int rows = 0;
    int copies = 1; ///< of "^PQ"
};

/// The labels in a printer's bytes. \return none when the bytes are anything but labels from the first to the last.
std::vector<Label> labelsIn(const QByteArray &bytes);

} // namespace systemtest
