// SPDX-License-Identifier: Apache-2.0
// Encapsulated PostScript is a drawing without a page: by itself the filters put it on a sheet of office paper.
#pragma once

#include <QByteArray>
#include <QRectF>
#include <QString>

#include <optional>

namespace tapeprint::job
{

/// The box of an encapsulated drawing, in points with y upwards, as its comments say. \param beginning the file's first
/// bytes. \return nothing when the file is none, or says its box only at its end.
std::optional<QRectF> epsBoxOf(const QByteArray &beginning);

/// Writes a drawing as a PostScript file of one page that is the box. \param error takes what the system says.
bool writeEpsPage(const QString &eps, const QRectF &boxPt, const QString &path, QString *error);

} // namespace tapeprint::job
