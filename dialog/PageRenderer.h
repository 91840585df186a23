// SPDX-License-Identifier: Apache-2.0
// Documents read and their pages rendered away from the window's thread. Nothing here ever waits for a document.
#pragma once

#include "job/LabelPlan.h"
#include "job/PdfPages.h"

#include <QObject>
#include <QStringList>

#include <cstddef>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::dialog
{

/// A document as it was read.
struct ReadDocument {
    job::PageSizes sizes; ///< of its pages; none when it cannot be shown
    QString problem;      ///< the sentence that says why; null when it can
};

/// A page that somebody wants to see.
struct WantedPage {
    std::size_t document = 0;
    int page = 0;
    double dotsPerPoint = 1.0; ///< how large at least

    bool operator==(const WantedPage &) const = default;
};

/// A page that has been rendered.
struct PagePicture {
    job::RenderedPage page;    ///< without an image when it cannot be rendered
    double dotsPerPoint = 0.0; ///< as it was rendered
    bool isBlank = false;      ///< nothing is drawn on the page
};

/// One worker thread a renderer. The worker owns what it works on: when a renderer goes while its document takes long,
/// the worker is left to end by itself, and a program that ends meanwhile does not wait for it either.
class PageRenderer : public QObject
{
    Q_OBJECT

public:
    explicit PageRenderer(QObject *parent = nullptr);
    ~PageRenderer() override;

    /// Takes the documents to show, given as paths of PDF files; earlier ones are dropped. Their pictures stand for the
    /// new ones' until these are read and rendered.
    /// \param shownAs how sentences name them, one by one; where it ends, by their paths.
    void setDocuments(const QStringList &pdfPaths, const QStringList &shownAs = {});
    /// Whether the documents are still being read.
    bool isReading() const { return mIsReading; }
    /// The documents in their order; none as long as they are being read.
    const std::vector<ReadDocument> &documents() const { return mDocuments; }

    /// Asks what of every page is drawn on; documentsRead() is sent once more when that is known.
    void measure();
    /// What is drawn on the documents' pages; none as long as nobody asked or it is not known yet.
    const std::vector<job::DrawnRects> &drawn() const { return mDrawn; }
    bool isMeasuring() const { return mIsMeasuring; }

    /// Asks for pictures, the first first. What was asked for before and is not any more is given up. A page of which
    /// there is a picture at least that sharp is not rendered again.
    void want(std::vector<WantedPage> pages);
    /// Whether pictures that were asked for are still to come.
    bool isRendering() const { return !mWanted.empty(); }
    /// The sharpest picture of a page that there is; null when there is none. Stays until the next call of this object.
    const PagePicture *picture(std::size_t document, int page);

Q_SIGNALS:
    /// What is known of the documents has changed.
    void documentsRead();
    /// A picture has come.
    void rendered();

private:
    class Worker;
    struct Kept {
        std::size_t document;
        int page;
        PagePicture picture;
        quint64 lastUse;
        quint64 generation; ///< of the documents that it was rendered from
    };

    void takeDocuments(quint64 generation, std::vector<ReadDocument> documents);
    void takeDrawn(quint64 generation, std::vector<job::DrawnRects> drawn);
    void takePicture(quint64 generation, const WantedPage &wanted, PagePicture picture);
    bool hasPage(std::size_t document, int page) const;
    Kept *kept(std::size_t document, int page);
    bool isSharpEnough(const WantedPage &wanted);
    void keepWithinBounds();

    std::shared_ptr<Worker> mWorker;
    quint64 mGeneration = 0; ///< of the documents
    bool mIsReading = false;
    bool mIsMeasuring = false;
    std::vector<ReadDocument> mDocuments;
    std::vector<job::DrawnRects> mDrawn;
    std::vector<WantedPage> mWanted; ///< what the worker has not delivered yet
    std::vector<Kept> mKept;
    quint64 mUses = 0;
};

} // namespace tapeprint::dialog
