// SPDX-License-Identifier: Apache-2.0
// Wishes go to the worker under a lock, answers come back as queued calls.
#include "dialog/PageRenderer.h"

#include "dialog/DetachedThread.h"

#include <QMetaObject>

#include <algorithm>
#include <atomic>
#include <chrono>
#include <cmath>
#include <condition_variable>
#include <memory>
#include <mutex>
#include <utility>
#include <vector>

namespace tapeprint::dialog
{

namespace
{

constexpr double mostDotsAPage = 16e6;      ///< a page that would take more is shown less sharp
constexpr qsizetype mostBytes = 64LL << 20; ///< of all pictures kept
/// A worker with nothing to do, or whose page can be stopped, is gone within this.
constexpr std::chrono::milliseconds farewell(30);

bool isWhite(const QImage &image)
{
    const QImage dots = image.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < dots.height(); ++y) {
        const auto *line = reinterpret_cast<const QRgb *>(dots.constScanLine(y));
        if (!std::all_of(line, line + dots.width(), [](QRgb dot) { return (dot & RGB_MASK) == RGB_MASK; })) {
            return false;
        }
    }
    return true;
}

} // namespace

/// What the worker's thread and the window's share. Everything but the documents is read and written under the lock.
class PageRenderer::Worker
{
public:
    explicit Worker(PageRenderer *owner) : mOwner(owner) {}

    static std::shared_ptr<Worker> start(PageRenderer *owner)
    {
        auto worker = std::make_shared<Worker>(owner);
        startDetached([worker] { worker->run(); });
        return worker;
    }

    void read(quint64 generation, QStringList paths, QStringList shownAs)
    {
        const std::lock_guard lock(mMutex);
        mGeneration = generation;
        mPaths = std::move(paths);
        mShownAs = std::move(shownAs);
        mIsToRead = true;
        mWanted.clear();
        mStop = true;
        mWake.notify_all();
    }

    void want(std::vector<WantedPage> pages)
    {
        const std::lock_guard lock(mMutex);
        mWanted = std::move(pages);
        if (mCurrent && std::find(mWanted.begin(), mWanted.end(), *mCurrent) == mWanted.end()) {
            mStop = true;
        }
        mWake.notify_all();
    }

    void measure()
    {
        const std::lock_guard lock(mMutex);
        mIsToMeasure = true;
        mWake.notify_all();
    }

    void leave()
    {
        std::unique_lock lock(mMutex);
        mOwner = nullptr;
        mStop = true;
        mWake.notify_all();
        mWake.wait_for(lock, farewell, [this] { return mHasEnded; });
    }

private:
    void run()
    {
        std::unique_lock lock(mMutex);
        while (mOwner != nullptr) {
            if (mIsToRead) {
                readDocuments(lock);
            } else if (!mWanted.empty()) {
                renderFirst(lock);
            } else if (mIsToMeasure) {
                measureNext(lock);
            } else {
                mWake.wait(lock);
            }
        }
        mHasEnded = true;
        mWake.notify_all();
    }

    void readDocuments(std::unique_lock<std::mutex> &lock)
    {
        mIsToRead = false;
        mStop = false;
        const quint64 generation = mGeneration;
        const QStringList paths = mPaths;
        const QStringList shownAs = mShownAs;
        lock.unlock();
        mPages.clear();
        std::vector<ReadDocument> documents;
        for (qsizetype i = 0; i < paths.size() && !mStop; ++i) {
            ReadDocument document;
            job::Problem problem;
            mPages.push_back(job::PdfPages::open(paths[i], &problem, shownAs.value(i)));
            document.problem = problem.sentence;
            for (int page = 0; mPages.back() != nullptr && page < mPages.back()->count() && !mStop; ++page) {
                document.sizes.push_back(mPages.back()->sizePt(page));
            }
            documents.push_back(std::move(document));
        }
        lock.lock();
        deliver([generation, documents = std::move(documents)](PageRenderer *owner) mutable {
            owner->takeDocuments(generation, std::move(documents));
        });
    }

    void renderFirst(std::unique_lock<std::mutex> &lock)
    {
        const WantedPage wanted = mWanted.front();
        const quint64 generation = mGeneration;
        mCurrent = wanted;
        mStop = false;
        lock.unlock();
        PagePicture picture = render(wanted);
        lock.lock();
        mCurrent.reset();
        if (mStop) {
            return;
        }
        mWanted.erase(std::remove(mWanted.begin(), mWanted.end(), wanted), mWanted.end());
        deliver([generation, wanted, picture = std::move(picture)](PageRenderer *owner) mutable {
            owner->takePicture(generation, wanted, std::move(picture));
        });
    }

    /// One page at a time, so that pictures need not wait for all of them.
    void measureNext(std::unique_lock<std::mutex> &lock)
    {
        const auto isWhole = [this] {
            const auto &pages = mPages[mDrawn.size() - 1];
            return mDrawn.back().size() == (pages == nullptr ? 0 : static_cast<std::size_t>(pages->count()));
        };
        if (mDrawn.empty() ? mPages.empty() : mDrawn.size() == mPages.size() && isWhole()) {
            mIsToMeasure = false;
            deliver([generation = mGeneration, drawn = mDrawn](PageRenderer *owner) mutable {
                owner->takeDrawn(generation, std::move(drawn));
            });
            return;
        }
        if (mDrawn.empty() || isWhole()) {
            mDrawn.emplace_back();
            return;
        }
        mStop = false;
        const job::PdfPages &pages = *mPages[mDrawn.size() - 1];
        const auto page = static_cast<int>(mDrawn.back().size());
        lock.unlock();
        const std::optional<QRectF> drawn = pages.drawnRect(page, mStop);
        lock.lock();
        if (!mStop) {
            mDrawn.back().push_back(drawn.value_or(QRectF()));
        }
    }

    PagePicture render(const WantedPage &wanted) const
    {
        PagePicture picture;
        picture.dotsPerPoint = wanted.dotsPerPoint;
        if (wanted.document < mPages.size() && mPages[wanted.document] != nullptr) {
            const job::PdfPages &pages = *mPages[wanted.document];
            picture.page = pages.render(wanted.page, wanted.dotsPerPoint, mStop);
            // What is fine enough to vanish in a small picture is drawn all the same.
            picture.isBlank =
                !picture.page.image.isNull() && isWhite(picture.page.image) && !pages.drawnRect(wanted.page, mStop);
        }
        return picture;
    }

    /// Calls back in the owner's thread, as long as there is an owner.
    template <typename Call>
    void deliver(Call &&call)
    {
        if (mOwner != nullptr) {
            QMetaObject::invokeMethod(
                mOwner, [owner = mOwner, call = std::forward<Call>(call)]() mutable { call(owner); },
                Qt::QueuedConnection);
        }
    }

    std::mutex mMutex;
    std::condition_variable mWake;
    PageRenderer *mOwner; ///< null when it has gone
    quint64 mGeneration = 0;
    QStringList mPaths;
    QStringList mShownAs;
    bool mIsToRead = false;
    bool mIsToMeasure = false;
    bool mHasEnded = false;
    std::vector<WantedPage> mWanted;
    std::optional<WantedPage> mCurrent;
    std::atomic<bool> mStop = false;
    std::vector<std::unique_ptr<job::PdfPages>> mPages; ///< the worker's alone
    std::vector<job::DrawnRects> mDrawn;                ///< likewise, as far as it got
};

PageRenderer::PageRenderer(QObject *parent) : QObject(parent) {}

PageRenderer::~PageRenderer()
{
    if (mWorker) {
        mWorker->leave();
    }
}

void PageRenderer::setDocuments(const QStringList &pdfPaths, const QStringList &shownAs)
{
    ++mGeneration;
    mDocuments.clear();
    mDrawn.clear();
    mIsMeasuring = false;
    mWanted.clear();
    mIsReading = true;
    // A worker that is deep in an earlier document may take its time: another one takes over.
    if (mWorker) {
        mWorker->leave();
    }
    mWorker = Worker::start(this);
    mWorker->read(mGeneration, pdfPaths, shownAs);
}

void PageRenderer::takeDocuments(quint64 generation, std::vector<ReadDocument> documents)
{
    if (generation != mGeneration) {
        return;
    }
    mIsReading = false;
    mDocuments = std::move(documents);
    const auto isGone = [this](const Kept &each) { return !hasPage(each.document, each.page); };
    mKept.erase(std::remove_if(mKept.begin(), mKept.end(), isGone), mKept.end());
    Q_EMIT documentsRead();
}

bool PageRenderer::hasPage(std::size_t document, int page) const
{
    return document < mDocuments.size() && page >= 0 &&
           static_cast<std::size_t>(page) < mDocuments[document].sizes.size();
}

void PageRenderer::measure()
{
    if (mWorker && !mIsMeasuring && mDrawn.empty()) {
        mIsMeasuring = true;
        mWorker->measure();
    }
}

void PageRenderer::takeDrawn(quint64 generation, std::vector<job::DrawnRects> drawn)
{
    if (generation != mGeneration) {
        return;
    }
    mIsMeasuring = false;
    mDrawn = std::move(drawn);
    Q_EMIT documentsRead();
}

void PageRenderer::want(std::vector<WantedPage> pages)
{
    for (WantedPage &wanted : pages) {
        const QSizeF size = hasPage(wanted.document, wanted.page)
                                ? mDocuments[wanted.document].sizes[static_cast<std::size_t>(wanted.page)]
                                : QSizeF();
        wanted.dotsPerPoint =
            size.isEmpty() ? 0.0
                           : std::min(wanted.dotsPerPoint, std::sqrt(mostDotsAPage / size.width() / size.height()));
    }
    const auto isNothing = [this](const WantedPage &wanted) {
        return !(wanted.dotsPerPoint > 0.0) || isSharpEnough(wanted);
    };
    pages.erase(std::remove_if(pages.begin(), pages.end(), isNothing), pages.end());
    if (mWorker && pages != mWanted) {
        mWanted = pages;
        mWorker->want(std::move(pages));
    }
}

void PageRenderer::takePicture(quint64 generation, const WantedPage &wanted, PagePicture picture)
{
    if (generation != mGeneration) {
        return;
    }
    mWanted.erase(std::remove(mWanted.begin(), mWanted.end(), wanted), mWanted.end());
    if (Kept *before = kept(wanted.document, wanted.page)) {
        before->picture = std::move(picture);
        before->generation = generation;
    } else {
        mKept.push_back({wanted.document, wanted.page, std::move(picture), ++mUses, generation});
        keepWithinBounds();
    }
    Q_EMIT rendered();
}

PageRenderer::Kept *PageRenderer::kept(std::size_t document, int page)
{
    const auto found = std::find_if(mKept.begin(), mKept.end(), [document, page](const Kept &each) {
        return each.document == document && each.page == page;
    });
    return found == mKept.end() ? nullptr : &*found;
}

bool PageRenderer::isSharpEnough(const WantedPage &wanted)
{
    constexpr double almost = 0.999;
    const Kept *there = kept(wanted.document, wanted.page);
    return there != nullptr && there->generation == mGeneration &&
           there->picture.dotsPerPoint >= wanted.dotsPerPoint * almost;
}

void PageRenderer::keepWithinBounds()
{
    qsizetype bytes = 0;
    for (const Kept &each : mKept) {
        bytes += each.picture.page.image.sizeInBytes();
    }
    while (bytes > mostBytes && mKept.size() > 1) {
        const auto oldest = std::min_element(
            mKept.begin(), mKept.end(), [](const Kept &one, const Kept &other) { return one.lastUse < other.lastUse; });
        bytes -= oldest->picture.page.image.sizeInBytes();
        mKept.erase(oldest);
    }
}

const PagePicture *PageRenderer::picture(std::size_t document, int page)
{
    Kept *found = kept(document, page);
    if (found == nullptr) {
        return nullptr;
    }
    found->lastUse = ++mUses;
    return &found->picture;
}

} // namespace tapeprint::dialog
