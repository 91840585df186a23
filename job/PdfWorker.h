// SPDX-License-Identifier: Apache-2.0
// What measures PDFs and makes PDFs of them. A document may be anybody's: that happens in a process of its own,
// confined, which sees nothing but the documents and has nothing to write to; what it answers is believed no further
// than it can be true.
#pragma once

#include "job/LabelPlan.h"
#include "job/PagesWords.h"
#include "job/Problem.h"
#include "job/RasterShift.h"

#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::job
{

class DrawerProcess;

/// A page of one of several documents.
struct ChosenPage {
    std::size_t document = 0;
    int page = 0; ///< from 0
};

/// Used by one thread. Its process waits for the next worker of the thread, and ends with the thread that it was
/// started in.
class PdfWorker
{
public:
    /// What is there for documents without end. 2,000 labels take a second of an idle machine.
    struct Limits {
        std::chrono::milliseconds longest = std::chrono::minutes(10); ///< for one page, or to open all documents
        qint64 mostBytes = qint64(4) << 30;                           ///< of the document that is made
    };

    /// The process is started when it is needed.
    PdfWorker();
    /// The same with the program of a certain folder.
    PdfWorker(const QString &folder, Limits limits);
    ~PdfWorker();
    PdfWorker(const PdfWorker &) = delete;
    PdfWorker &operator=(const PdfWorker &) = delete;

    /// Starts a process for the worker that will be there first, so that nobody has to wait for it.
    static void prepare();

    /// The sizes of a PDF's pages as they are read. \param shownAs how the sentence names it; null: by its path.
    /// \param stop when it becomes true, there is no answer and the sentence is null. \param error takes a sentence
    /// about one that is broken, wants a password, or has no page.
    std::optional<PageSizes> measure(const QString &pdf, const QString &shownAs, const std::atomic<bool> &stop,
                                     Problem *error);
    /// Writes the labels of a plan as a PDF. \param pdfs the documents of the plan, in its order; only read.
    /// \param path a file to write; what was begun is taken back. The others as above.
    bool layOut(const LabelPlan &plan, const QStringList &pdfs, RasterShift shift, const QString &path,
                const std::atomic<bool> &stop, Problem *error);
    /// Writes pages as a PDF, each as it is.
    bool choose(const std::vector<ChosenPage> &pages, const QStringList &pdfs, const QString &path,
                const std::atomic<bool> &stop, Problem *error);

private:
    class Conversation;
    struct Plan;

    std::optional<PageSizes> askSizes(const QString &pdf, const QString &name, const std::atomic<bool> &stop,
                                      Problem *problem);
    bool askForFile(const Plan &plan, const QStringList &pdfs, const QString &path, const std::atomic<bool> &stop,
                    Problem *problem);
    bool make(const Plan &plan, const QStringList &pdfs, const QString &path, const std::atomic<bool> &stop,
              Problem *error);

    QString mProgram;
    Limits mLimits;
    std::unique_ptr<DrawerProcess> mProcess; ///< null when there is none for the moment
};

/// A page of a plan as the process is told of it. \param toPdf from points of the label, y down, to those of its page.
PagesPlaced placedWord(const PlacedPage &placed, const QTransform &toPdf);

} // namespace tapeprint::job
