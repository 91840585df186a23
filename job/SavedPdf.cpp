// SPDX-License-Identifier: Apache-2.0
// The PDF is made in a private file first: its name is given to it when it is whole.
#include "job/SavedPdf.h"

#include "job/ChosenPages.h"
#include "job/Conversion.h"
#include "job/LaidOutJob.h"
#include "job/OutputFile.h"
#include "job/PrivateFile.h"
#include "job/Texts.h"
#include "job/UsualOptions.h"

#include <QFile>

#include <algorithm>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;

bool writeChosen(const SettledJob &job, const PdfDocuments &documents, const QString &path,
                 const std::atomic<bool> &stop, Problem *error)
{
    std::vector<ChosenPage> pages = chosenPages(documents.sizes, job.options);
    if (pages.empty()) {
        *error = noPageIsChosen();
        return false;
    }
    if (isReversed(job.options)) {
        std::reverse(pages.begin(), pages.end());
    }
    return writeChosenPages(pages, documents.pdfs, path, stop, error);
}

bool copyTo(OutputFile &output, const QString &path, Problem *error)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        *error = noRoomForTemporaryFiles(file.errorString());
        return false;
    }
    for (QByteArray piece = file.read(pieceBytes); !piece.isEmpty(); piece = file.read(pieceBytes)) {
        if (!output.write(piece, error)) {
            return false;
        }
    }
    if (file.error() != QFileDevice::NoError) {
        *error = noRoomForTemporaryFiles(file.errorString());
        return false;
    }
    return output.commit(error);
}

} // namespace

std::optional<FilterOutput> saveAsPdf(const SettledJob &job, const QStringList &files, const std::atomic<bool> &stop,
                                      Problem *error)
{
    SettledJob unmoved = job;
    unmoved.shift = {}; // what the printer displaces is none of the document's
    const std::optional<PdfDocuments> documents = collectPdfs(unmoved, files, stop, error);
    if (!documents) {
        return std::nullopt;
    }
    QString reason;
    const std::unique_ptr<PrivateFile> made = PrivateFile::create(QStringLiteral("saved.pdf"), &reason);
    if (!made) {
        *error = noRoomForTemporaryFiles(reason);
        return std::nullopt;
    }
    const bool isMade = job.page.isTape ? layOutJob(unmoved, *documents, made->path(), stop, error).has_value()
                                        : writeChosen(unmoved, *documents, made->path(), stop, error);
    if (!isMade || !areUnchanged(job.documents, error)) {
        return std::nullopt;
    }
    const std::unique_ptr<OutputFile> output =
        OutputFile::open({job.pdfPath, job.mayReplaceOutput, job.documents, &stop}, error);
    if (!output || !copyTo(*output, made->path(), error)) {
        return std::nullopt;
    }
    return FilterOutput{job.pdfPath, output->bytes()};
}

} // namespace tapeprint::job
