// SPDX-License-Identifier: Apache-2.0
// Pages are copied by a worker of the moment: its process waits for the next one.
#include "job/ChosenPages.h"

namespace tapeprint::job
{

std::vector<ChosenPage> chosenPages(const std::vector<PageSizes> &documents, const JobOptions &options)
{
    std::vector<ChosenPage> all;
    for (std::size_t document = 0; document < documents.size(); ++document) {
        for (std::size_t page = 0; page < documents[document].size(); ++page) {
            all.push_back({document, static_cast<int>(page)});
        }
    }
    std::vector<ChosenPage> chosen;
    for (const int index : selectedPages(static_cast<int>(all.size()), options)) {
        chosen.push_back(all[static_cast<std::size_t>(index)]);
    }
    return chosen;
}

bool writeChosenPages(const std::vector<ChosenPage> &pages, const QStringList &pdfs, const QString &path,
                      const std::atomic<bool> &stop, Problem *error)
{
    return PdfWorker().choose(pages, pdfs, path, stop, error);
}

} // namespace tapeprint::job
