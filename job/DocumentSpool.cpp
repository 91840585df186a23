// SPDX-License-Identifier: Apache-2.0
// Looking at the documents before a job is made, so that no job is left behind for a document that cannot be read.
#include "job/DocumentSpool.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>

#include <cstdio>

#include <unistd.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;

bool isReadable(const QString &path, QString *error)
{
    const QFileInfo info(path);
    QFile file(path);
    if (info.isDir()) {
        *error = QStringLiteral("The document %1 cannot be read (it is a folder): name a file.").arg(path);
        return false;
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *error =
            QStringLiteral("The document %1 cannot be read (%2): name a readable file.").arg(path, file.errorString());
        return false;
    }
    if (info.isFile() && info.size() == 0) {
        *error = QStringLiteral("The document %1 is empty: name a file with something to print.").arg(path);
        return false;
    }
    return true;
}

/// Copies standard input into a file. \return null, and a sentence in *error, when there is nothing or no room.
std::unique_ptr<QTemporaryFile> spoolStandardInput(QString *error)
{
    if (isatty(STDIN_FILENO) != 0) {
        *error = QStringLiteral("No document is named: give a FILE, or pipe one into standard input.");
        return nullptr;
    }
    QFile input;
    auto spool = std::make_unique<QTemporaryFile>();
    if (!input.open(stdin, QIODevice::ReadOnly) || !spool->open()) {
        *error = QStringLiteral("Standard input cannot be kept in a temporary file (%1): name a FILE.")
                     .arg(spool->errorString());
        return nullptr;
    }
    for (QByteArray piece = input.read(pieceBytes); !piece.isEmpty(); piece = input.read(pieceBytes)) {
        if (spool->write(piece) != piece.size()) {
            *error = QStringLiteral("Standard input cannot be kept in %1 (%2): make room there, or name a FILE.")
                         .arg(spool->fileName(), spool->errorString());
            return nullptr;
        }
    }
    if (!spool->flush()) {
        *error = QStringLiteral("Standard input cannot be kept in %1 (%2): make room there, or name a FILE.")
                     .arg(spool->fileName(), spool->errorString());
        return nullptr;
    }
    if (spool->size() == 0) {
        *error = QStringLiteral("Standard input is empty: give a FILE, or pipe a document in.");
        return nullptr;
    }
    return spool;
}

} // namespace

DocumentSpool::DocumentSpool() = default;
DocumentSpool::~DocumentSpool() = default;
DocumentSpool::DocumentSpool(DocumentSpool &&) noexcept = default;
DocumentSpool &DocumentSpool::operator=(DocumentSpool &&) noexcept = default;

std::optional<DocumentSpool> DocumentSpool::collect(const QStringList &files, QString *error)
{
    DocumentSpool documents;
    for (const QString &file : files) {
        if (!isReadable(file, error)) {
            return std::nullopt;
        }
    }
    documents.mFiles = files;
    if (files.isEmpty()) {
        documents.mStandardInput = spoolStandardInput(error);
        if (!documents.mStandardInput) {
            return std::nullopt;
        }
        documents.mFiles.append(documents.mStandardInput->fileName());
    }
    return documents;
}

QString DocumentSpool::title(const QString &asked) const
{
    if (!asked.isEmpty()) {
        return asked;
    }
    return mStandardInput ? QStringLiteral("(stdin)") : QFileInfo(mFiles.value(0)).fileName();
}

} // namespace tapeprint::job
