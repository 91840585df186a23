// SPDX-License-Identifier: Apache-2.0
// Any bytes as a document: its page tree and boxes are read, its pages planned and laid out on labels, and what was
// written is a document of as many pages. The same bytes are looked at for a drawing's box.
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "drawing/PdfLayout.h"
#include "job/EpsPage.h"
#include "job/LabelPlan.h"
#include "job/PageBox.h"
#include "job/PdfWorker.h"

#include <QFile>

#include <cmath>

using namespace tapeprint;
using namespace tapeprint::job;
using fuzz::require;

namespace
{

TapePage label()
{
    TapePage page;
    page.pageSize = QStringLiteral("W12");
    page.sizePt = QSizeF(36.0, 288.0);
    page.isTape = true;
    return page;
}

/// The sizes of a document's pages; none when it cannot be opened, which is then that document's fault.
PageSizes sizesOf(const drawing::Bytes &document)
{
    std::vector<DrawerPage> pages;
    if (const std::optional<drawing::Failure> failure = drawing::measure(document, &pages)) {
        require(failure->fault != PagesAnswer::Other && failure->document == 0);
        return {};
    }
    PageSizes sizes;
    for (const DrawerPage &page : pages) {
        sizes.push_back(boxOf(page).sizePt());
        require(std::isfinite(page.page.width) && std::isfinite(page.page.height) && page.turn % 90 == 0);
    }
    return sizes;
}

/// The plan of all pages, two of them on a label.
LabelPlan planOf(const PageSizes &sizes)
{
    JobOptions options;
    options.set(QStringLiteral("number-up"), QStringLiteral("2"));
    LabelPlan plan = planLabels({sizes}, label(), options);
    require(plan.labelCount() == (sizes.size() + 1) / 2);
    return plan;
}

class Made : public drawing::Output
{
public:
    void tellProgress() override { ++steps; }
    void take(const unsigned char *piece, std::size_t length) override
    {
        bytes.append(reinterpret_cast<const char *>(piece), length);
    }

    std::size_t steps = 0;
    std::string bytes;
};

void checkLaidOut(const LabelPlan &plan, const drawing::Bytes &document)
{
    const QSizeF size = plan.page.sizePt;
    drawing::Labels labels{size.width(), size.height(), 0.0, {}};
    for (const Label &label : plan.labels) {
        std::vector<PagesPlaced> &pages = labels.pages.emplace_back();
        for (const PlacedPage &placed : label) {
            pages.push_back(placedWord(placed, QTransform(1, 0, 0, -1, 0, size.height())));
        }
    }
    Made made;
    if (drawing::layOut(labels, {document}, made)) {
        return;
    }
    require(made.steps == plan.labels.size());
    const PageSizes written = sizesOf({made.bytes.data(), made.bytes.size()});
    require(written.size() == plan.labels.size());
    for (const QSizeF &page : written) {
        require(std::abs(page.width() - size.width()) < 0.01);
        require(std::abs(page.height() - size.height()) < 0.01);
    }
}

void checkChosen(const PageSizes &sizes, const drawing::Bytes &document)
{
    std::vector<PagesPlaced> pages(sizes.size());
    for (std::size_t i = 0; i < pages.size(); ++i) {
        pages[i].page = static_cast<std::int32_t>(pages.size() - 1 - i);
    }
    Made made;
    if (!drawing::choose(pages, {document}, made)) {
        require(sizesOf({made.bytes.data(), made.bytes.size()}).size() == sizes.size());
    }
}

/// The page of a drawing holds the whole of it, behind what makes a page of it.
void checkDrawing(const QString &path, const QRectF &box, const QByteArray &bytes)
{
    static const fuzz::MemoryFile page;
    page.hold(nullptr, 0);
    QString said;
    require(writeEpsPage(path, box, page.path(), &said));
    QFile written(page.path());
    require(written.open(QIODevice::ReadOnly));
    const QByteArray text = written.readAll();
    require(text.startsWith("%!PS-Adobe-3.0\n<< /PageSize [") && text.contains(bytes));
}

} // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const fuzz::MemoryFile memory;
    const QString path = memory.hold(data, size);
    const drawing::Bytes document{reinterpret_cast<const char *>(data), size};
    if (const PageSizes sizes = sizesOf(document); !sizes.empty()) {
        checkLaidOut(planOf(sizes), document);
        checkChosen(sizes, document);
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (const std::optional<QRectF> box = epsBoxOf(bytes)) {
        require(std::isfinite(box->width()) && std::isfinite(box->height()) && box->isValid());
        checkDrawing(path, *box, bytes);
    }
    return 0;
}
