// SPDX-License-Identifier: Apache-2.0
// What reads and draws the pages of a PDF. A document may be anybody's: that happens in a process of its own, confined,
// which sees nothing but the document; what it answers is believed no further than it can be true.
#pragma once

#include "job/PageBox.h"

#include <QImage>
#include <QRect>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>
#include <optional>
#include <vector>

namespace tapeprint::job
{

/// One PDF document, as it was when it was opened. Its grid has the top left of what viewers see of a page as its
/// origin, and is drawn in the document's own units, /Rotate applied. Used by one thread at a time.
///
/// A page that the process dies of, or that takes a minute, cannot be drawn from then on; for the others there is
/// another process.
class PageDrawer
{
public:
    /// A part of a page's grid.
    struct Part {
        QRect dots;
        double dotsPerUnit = 1.0;
        bool isSmooth = true; ///< lines and areas anti-aliased; letters are in any case
    };

    /// Opens a document, which is only read. \param problem takes why none can be opened here at all: a part of this
    /// program is missing. \return null also for a document that is none, or broken; the problem is null then.
    static std::unique_ptr<PageDrawer> open(const QString &path, QString *problem);
    /// The same with the drawing program of a certain folder.
    static std::unique_ptr<PageDrawer> openWith(const QString &folder, const QString &path, QString *problem);
    /// Starts a process for the document that will be opened first, so that nobody has to wait for it. It ends with the
    /// thread that this is called in.
    static void prepare();
    /// The boxes of a document's pages by the process that prepare() has started, which keeps the document for open().
    /// Nothing when there is none that waits, or when the boxes cannot be read.
    static std::optional<std::vector<PageBox>> measureAhead(const QString &path, const std::atomic<bool> &stop);

    ~PageDrawer();
    PageDrawer(const PageDrawer &) = delete;
    PageDrawer &operator=(const PageDrawer &) = delete;

    /// Whether it wants a password.
    bool isLocked() const { return mIsLocked; }
    int count() const { return static_cast<int>(mPages.size()); }
    /// The size of what viewers see of a page, in the document's units; empty for one that cannot be drawn.
    QSizeF size(int page) const;
    /// The boxes of a page; nothing when they cannot be read though the page can be drawn.
    std::optional<PageBox> box(int page) const;
    /// \param stop when it becomes true, drawing ends. \return the part on white; null when it was stopped, or cannot
    /// be drawn.
    QImage draw(int page, const Part &part, const std::atomic<bool> &stop);
    /// The rectangle of a part's dots that are not white, on the page's grid; empty when all are. Nothing when it was
    /// stopped, or the page cannot be drawn.
    std::optional<QRect> drawnOn(int page, const Part &part, const std::atomic<bool> &stop);

private:
    struct Page {
        QSizeF size;
        std::optional<PageBox> box;
    };
    class Conversation;

    PageDrawer();

    std::unique_ptr<Conversation> mConversation;
    bool mIsLocked = false;
    std::vector<Page> mPages;
};

} // namespace tapeprint::job
