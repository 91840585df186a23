// SPDX-License-Identifier: Apache-2.0
// Which room may include whom: the arrows between the folders, as a table, and the reader that checks sources against
// it. The linker holds the same for code; this holds it for what is only read.
#ifndef TAPEPRINT_LAYERS_INCLUDERULES_H
#define TAPEPRINT_LAYERS_INCLUDERULES_H

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace tapeprint::layers
{

/// What one reading of a source tree found.
struct Report {
    std::size_t files = 0; ///< sources that were read
    std::vector<std::string>
        findings; ///< "file:line: what is wrong", files relative to the tree's root, in their order
};

/// Reads every source and header of the rooms below \p root and checks each of their #include lines; names folders of
/// code that are no room. \p widgetFolders where Qt keeps the headers of its widgets, which some rooms may not include.
Report checkIncludes(const std::filesystem::path &root, const std::vector<std::filesystem::path> &widgetFolders);

} // namespace tapeprint::layers

#endif
