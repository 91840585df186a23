// SPDX-License-Identifier: Apache-2.0
// Pages drawn by Poppler, in a module that the program loads when it looks at the first document.
#include "job/PageDrawer.h"

#include <exception>
#include <utility>

#include <poppler-qt6.h>

namespace tapeprint::drawing
{

namespace
{

constexpr double unitsPerInch = 72.0;

/// What Poppler has to say of a document's flaws is for its developers.
void silencePoppler()
{
    [[maybe_unused]] static const bool silenced = [] {
        Poppler::setDebugErrorFunction([](const QString &, const QVariant &) {}, {});
        return true;
    }();
}

bool isStopped(const QVariant &stop)
{
    return static_cast<const std::atomic<bool> *>(stop.value<void *>())->load();
}

QVariant variantOf(const std::atomic<bool> &stop)
{
    return QVariant::fromValue<void *>(const_cast<std::atomic<bool> *>(&stop)); // a QVariant takes no pointer to const
}

class PopplerDrawer final : public job::PageDrawer
{
public:
    explicit PopplerDrawer(std::unique_ptr<Poppler::Document> pdf) : mPdf(std::move(pdf)) {}

    bool isLocked() const override { return mPdf->isLocked(); }
    int count() const override { return mPdf->numPages(); }

    QSizeF size(int page) const override
    {
        const std::unique_ptr<Poppler::Page> found = mPdf->page(page);
        return found == nullptr ? QSizeF() : found->pageSizeF();
    }

    QImage draw(int page, const Part &part, const std::atomic<bool> &stop) const override
    {
        mPdf->setRenderHint(Poppler::Document::Antialiasing, part.isSmooth);
        mPdf->setRenderHint(Poppler::Document::TextAntialiasing, true); // a faint letter is a letter
        const double dotsPerInch = part.dotsPerUnit * unitsPerInch;
        const QRect &dots = part.dots;
        try {
            const std::unique_ptr<Poppler::Page> found = mPdf->page(page);
            const QImage image =
                found == nullptr
                    ? QImage()
                    : found->renderToImage(dotsPerInch, dotsPerInch, dots.x(), dots.y(), dots.width(), dots.height(),
                                           Poppler::Page::Rotate0, nullptr, nullptr, isStopped, variantOf(stop));
            return stop ? QImage() : image;
        } catch (const std::exception &) { // of a picture that memory does not hold
            return {};
        }
    }

private:
    std::unique_ptr<Poppler::Document> mPdf;
};

} // namespace

} // namespace tapeprint::drawing

/// What the program asks for by name: see job/PageDrawer.h.
extern "C" Q_DECL_EXPORT tapeprint::job::PageDrawer *tapeprintOpenPdf(const QString &path)
{
    tapeprint::drawing::silencePoppler();
    std::unique_ptr<Poppler::Document> pdf = Poppler::Document::load(path);
    return pdf == nullptr ? nullptr : new tapeprint::drawing::PopplerDrawer(std::move(pdf));
}
