// SPDX-License-Identifier: Apache-2.0
// Documents as they look: written to a folder of the test's, and measured on a rendered page.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>
#include <QTemporaryDir>

namespace jobtest
{

/// Files of one test, gone with it.
class Folder
{
public:
    QString path(const QString &name) const { return mFolder.filePath(name); }
    /// Writes a file and answers its path.
    QString write(const QString &name, const QByteArray &bytes) const;

private:
    QTemporaryDir mFolder;
};

QByteArray contentsOf(const QString &path);

/// The smallest rectangle with everything that is darker than half on a page, in points from its top left, to a tenth
/// of a point; null when there is nothing.
QRectF inkOf(const QString &pdf, int page = 0, const QRectF &partPt = {});

} // namespace jobtest
