// SPDX-License-Identifier: Apache-2.0
// The first name that is free, after the document.
#include "tapeprint/OutputPath.h"

#include "job/PrivateFile.h"

#include <QDir>
#include <QFileInfo>

namespace tapeprint
{

QString freeOutputPath(const QString &documentTitle)
{
    const bool currentIsWritable = QFileInfo(QDir::currentPath()).isWritable();
    const QDir folder(currentIsWritable ? QDir::currentPath() : job::temporaryFolder());
    QString stem = QFileInfo(documentTitle).completeBaseName();
    if (stem.isEmpty() || stem.startsWith(u'(')) {
        stem = QStringLiteral("tapeprint");
    }
    QString path = folder.absoluteFilePath(stem + QLatin1String(".prn"));
    for (int number = 2; QFileInfo::exists(path); ++number) {
        path = folder.absoluteFilePath(QStringLiteral("%1-%2.prn").arg(stem, QString::number(number)));
    }
    return path;
}

void nameOutput(job::JobRequest &request, const QString &documentTitle)
{
    if (!request.ppdPath.isEmpty() && request.queue.isEmpty() && request.outputPath.isEmpty() &&
        request.pdfPath.isEmpty()) {
        request.outputPath = freeOutputPath(documentTitle);
        request.mayReplaceOutput = false;
    }
}

} // namespace tapeprint
