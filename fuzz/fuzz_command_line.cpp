// SPDX-License-Identifier: Apache-2.0
// Any arguments, one a line. A refused command line says why; an accepted one holds together.
#include "fuzz/Invariants.h"

#include "tapeprint/CommandLine.h"

#include <set>

using fuzz::require;

namespace
{

void checkOptions(const tapeprint::job::JobOptions &options)
{
    std::set<QString> names;
    for (const auto &[name, value] : options.entries()) {
        require(!name.isEmpty());
        require(names.insert(name).second);
        require(options.value(name) == value);
    }
    require(options.lines().size() == static_cast<qsizetype>(names.size()));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QStringList arguments = size == 0 ? QStringList() : fuzz::inputText(data, size).split(u'\n');
    tapeprint::job::Problem error;
    const std::optional<tapeprint::CommandLine> line = tapeprint::parseCommandLine(arguments, &error);
    if (!line) {
        require(!error.sentence.isEmpty());
        return 0;
    }
    require(line->request.outputPath.isEmpty() || line->request.pdfPath.isEmpty());
    require(line->files.size() <= arguments.size());
    require(line->submits() == !(line->showOptions || line->summary || line->check || !line->savePreset.isEmpty() ||
                                 line->onlyManagesPresets()));
    checkOptions(line->request.options);
    return 0;
}
