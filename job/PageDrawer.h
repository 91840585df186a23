// SPDX-License-Identifier: Apache-2.0
// What draws the pages of a PDF, as an interface: the code behind it is loaded when the first document is looked at.
#pragma once

#include <QImage>
#include <QRect>
#include <QSizeF>
#include <QString>

#include <atomic>
#include <memory>

namespace tapeprint::job
{

/// One PDF document. Its grid has the top left of what viewers see of a page as its origin, and is drawn in the
/// document's own units, /Rotate applied. Used by one thread at a time.
class PageDrawer
{
public:
    PageDrawer() = default;
    virtual ~PageDrawer() = default;
    PageDrawer(const PageDrawer &) = delete;
    PageDrawer &operator=(const PageDrawer &) = delete;

    /// A part of a page's grid.
    struct Part {
        QRect dots;
        double dotsPerUnit = 1.0;
        bool isSmooth = true; ///< lines and areas anti-aliased; letters are in any case
    };

    /// Whether it wants a password.
    virtual bool isLocked() const = 0;
    virtual int count() const = 0;
    /// The size of what viewers see of a page, in the document's units; empty for one that cannot be drawn.
    virtual QSizeF size(int page) const = 0;
    /// \param stop when it becomes true, drawing ends. \return the part on white; null when it was stopped, or cannot
    /// be drawn.
    virtual QImage draw(int page, const Part &part, const std::atomic<bool> &stop) const = 0;
};

/// Opens a document, which is only read. \param problem takes why none can be opened here at all: a part of this
/// program is missing. \return null also for a document that is none, or broken; the problem is null then.
std::unique_ptr<PageDrawer> openDrawer(const QString &path, QString *problem);

/// The same with the module of a certain folder. It stays loaded.
std::unique_ptr<PageDrawer> openDrawerOf(const QString &folder, const QString &path, QString *problem);

} // namespace tapeprint::job
