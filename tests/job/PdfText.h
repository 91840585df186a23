// SPDX-License-Identifier: Apache-2.0
// PDF documents written by hand, so that a test says each of their boxes, turns and objects itself.
#pragma once

#include <QByteArray>
#include <QByteArrayList>

#include <vector>

namespace jobtest
{

/// A page: what stands in its dictionary beside /Type, /Parent and /Contents, and the operators that draw it.
struct PdfPage {
    QByteArray entries; ///< such as "/MediaBox [0 0 200 100]"
    QByteArray drawing;
};

/// A document. \param objects more objects; the first is "3 0 R", the next "4 0 R", and so on. \param catalog what
/// stands in the catalogue beside /Type and /Pages.
QByteArray pdfOf(const std::vector<PdfPage> &pages, const QByteArrayList &objects = {}, const QByteArray &catalog = {});

/// A stream object. \param entries what stands in its dictionary beside /Length.
QByteArray streamObject(const QByteArray &entries, const QByteArray &bytes);

/// Operators that fill a rectangle with black; y goes upwards.
QByteArray block(double x, double y, double width, double height);

/// A page of this size with one block on it.
PdfPage blockPage(double width, double height, const QByteArray &drawing, const QByteArray &entries = {});

} // namespace jobtest
