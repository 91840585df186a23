// SPDX-License-Identifier: Apache-2.0
// Opens what the command line names, shows the window, and says what became of the job.
#include "host/WindowRun.h"

#include "host/PrintDialog.h"
#include "host/Printing.h"
#include "host/Translations.h"

namespace tapeprint
{

RunReport runWindow(const CommandLine &line)
{
    QString error;
    std::optional<DocumentSpool> documents = DocumentSpool::collect(line.files, &error);
    if (!documents) {
        return {{}, {error}, 1};
    }
    std::optional<Destination> destination = openDestination(line, &error);
    if (!destination) {
        return {{}, {error}, 1};
    }
    // With a PPD file alone no print server is asked for anything.
    std::vector<PrintQueue> queues = destination->queue ? listQueues() : std::vector<PrintQueue>();

    // The window speaks the person's language; what is said on standard output and standard error does not, because
    // scripts read it.
    auto translations = std::make_optional<Translations>();
    DialogModel model(bundleSearchPath());
    model.open(std::move(*destination), line.options);
    PrintDialog dialog(model, line, *documents, std::move(queues));
    dialog.exec();
    translations.reset();

    RunReport report;
    if (!dialog.result().isNull() && !line.silent) {
        report.output.append(dialog.result());
    }
    return report;
}

} // namespace tapeprint
