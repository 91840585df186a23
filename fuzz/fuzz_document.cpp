// SPDX-License-Identifier: Apache-2.0
// Any bytes as a document: its page tree and boxes are read, its pages planned and laid out on labels, and what was
// written is a document of as many pages. The same bytes are looked at for a drawing's box.
#include "fuzz/Invariants.h"
#include "fuzz/MemoryFile.h"

#include "job/DocumentCheck.h"
#include "job/EpsPage.h"
#include "job/LaidOutDocument.h"

#include <QFile>

#include <cmath>

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

void checkSizes(const PageSizes &sizes)
{
    require(!sizes.empty());
    for (const QSizeF &size : sizes) {
        require(std::isfinite(size.width()) && std::isfinite(size.height()));
    }
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

void checkLaidOut(const LabelPlan &plan, const QString &document)
{
    static const fuzz::MemoryFile output;
    output.hold(nullptr, 0);
    const std::atomic<bool> stop{false};
    Problem error;
    if (!writeLaidOut(plan, {document}, RasterShift(), output.path(), stop, &error)) {
        require(!error.sentence.isEmpty());
        return;
    }
    const std::optional<PageSizes> written = pageSizesOf(output.path(), &error);
    require(written && written->size() == plan.labels.size());
    for (const QSizeF &size : *written) {
        require(std::abs(size.width() - plan.page.sizePt.width()) < 0.01);
        require(std::abs(size.height() - plan.page.sizePt.height()) < 0.01);
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
    Problem error;
    if (!areWhole({path}, &error)) {
        require(!error.sentence.isEmpty());
    }
    error = {};
    if (const std::optional<PageSizes> sizes = pageSizesOf(path, &error)) {
        checkSizes(*sizes);
        checkLaidOut(planOf(*sizes), path);
    } else {
        require(!error.sentence.isEmpty());
    }
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    if (const std::optional<QRectF> box = epsBoxOf(bytes)) {
        require(std::isfinite(box->width()) && std::isfinite(box->height()) && box->isValid());
        checkDrawing(path, *box, bytes);
    }
    return 0;
}
