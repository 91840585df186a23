// SPDX-License-Identifier: Apache-2.0
// The drawing is embedded as its format asks for: moved to the page's corner, and without a page of its own.
#include "job/EpsPage.h"

#include "job/WriteFailure.h"

#include <QFile>
#include <QRegularExpression>

#include <pdekit/Numbers.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;
constexpr int decimals = 4;

QByteArray number(double value)
{
    return pdekit::fixedDecimals(value, decimals).toLatin1();
}

} // namespace

std::optional<QRectF> epsBoxOf(const QByteArray &beginning)
{
    const QString text = QString::fromLatin1(beginning);
    if (!text.startsWith(QLatin1String("%!PS-Adobe")) ||
        !text.section(QRegularExpression(QStringLiteral("[\r\n]")), 0, 0).contains(QLatin1String(" EPSF"))) {
        return std::nullopt;
    }
    for (const char *comment : {"%%HiResBoundingBox:", "%%BoundingBox:"}) {
        static const QString four = QStringLiteral("\\s+(-?[\\d.]+)").repeated(4);
        const QRegularExpressionMatch match = QRegularExpression(QLatin1String(comment) + four).match(text);
        if (match.hasMatch()) {
            const auto corner = [&match](int index) { return pdekit::doubleValue(match.captured(index)); };
            const QRectF box(QPointF(corner(1), corner(2)), QPointF(corner(3), corner(4)));
            return box.isEmpty() ? std::nullopt : std::optional(box);
        }
    }
    return std::nullopt;
}

bool writeEpsPage(const QString &eps, const QRectF &boxPt, const QString &path, QString *error)
{
    QFile drawing(eps);
    QFile page(path);
    if (!drawing.open(QIODevice::ReadOnly)) {
        *error = drawing.errorString();
        return false;
    }
    const QByteArray before = "%!PS-Adobe-3.0\n<< /PageSize [" + number(boxPt.width()) + ' ' + number(boxPt.height()) +
                              "] >> setpagedevice\n" + number(-boxPt.left()) + ' ' + number(-boxPt.top()) +
                              " translate\n/showpage {} def\n";
    bool written = page.open(QIODevice::WriteOnly) && page.write(before) == before.size();
    while (written && !drawing.atEnd()) {
        const QByteArray piece = drawing.read(pieceBytes);
        written = page.write(piece) == piece.size();
    }
    static const QByteArray after = "\nsystemdict /showpage get exec\n";
    written = written && page.write(after) == after.size() && page.flush();
    *error = whyNotWritten(page);
    return written;
}

} // namespace tapeprint::job
