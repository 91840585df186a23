// SPDX-License-Identifier: Apache-2.0
// Pages are rendered ten dots to a point.
#include "tests/job/DocumentPictures.h"

#include "job/PdfPages.h"
#include "tests/support/TextPrinting.h"

#include <QFile>

#include <atomic>

#include <gtest/gtest.h>

namespace jobtest
{

QString Folder::write(const QString &name, const QByteArray &bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        ADD_FAILURE() << "cannot write " << name.toStdString();
    }
    return path(name);
}

QByteArray contentsOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QRectF inkOf(const QString &pdf, int page, const QRectF &partPt)
{
    constexpr double dotsPerPoint = 10.0;
    constexpr int half = 128;
    const std::atomic<bool> goOn = false;
    tapeprint::job::Problem error;
    const auto pages = tapeprint::job::PdfPages::open(pdf, &error);
    if (!pages) {
        ADD_FAILURE() << error.sentence.toStdString();
        return {};
    }
    const tapeprint::job::RenderedPage rendered = pages->render(page, dotsPerPoint, goOn, partPt);
    QRect ink;
    for (int y = 0; y < rendered.image.height(); ++y) {
        for (int x = 0; x < rendered.image.width(); ++x) {
            if (qGray(rendered.image.pixel(x, y)) < half) {
                ink |= QRect(x, y, 1, 1);
            }
        }
    }
    return ink.isNull() ? QRectF()
                        : QRectF(rendered.rectPt.topLeft() + QPointF(ink.topLeft()) / dotsPerPoint,
                                 QSizeF(ink.size()) / dotsPerPoint);
}

} // namespace jobtest
