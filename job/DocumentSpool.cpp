// SPDX-License-Identifier: Apache-2.0
// Looking at the documents before a job is made, so that no job is left behind for a document that cannot be read.
#include "job/DocumentSpool.h"

#include "job/PlainText.h"
#include "job/PrivateFile.h"
#include "job/Texts.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>

#include <unistd.h>

namespace tapeprint::job
{

namespace
{

constexpr qint64 pieceBytes = 65536;

/// Whether a file can be read again and again under its name, by other programs as well. What the kernel makes up at
/// each reading cannot, nor a file that only a descriptor still holds.
bool staysAsNamed(const FileStamp &file)
{
    const QString place = QFileInfo(file.path).canonicalFilePath();
    return file.isPlainFile() && !place.isEmpty() && !place.startsWith(QLatin1String("/proc/")) &&
           !place.startsWith(QLatin1String("/sys/"));
}

void sayUnreadable(const QString &path, const QString &reason, Problem *error)
{
    *error = {Problem::BadDocument,
              Texts::tr("The document %1 cannot be read (%2): name a readable file.").arg(harmless(path), reason)};
}

} // namespace

DocumentSpool::DocumentSpool() = default;
DocumentSpool::~DocumentSpool() = default;
DocumentSpool::DocumentSpool(DocumentSpool &&) noexcept = default;
DocumentSpool &DocumentSpool::operator=(DocumentSpool &&) noexcept = default;

std::optional<DocumentSpool> DocumentSpool::collect(const QStringList &files, Problem *error)
{
    DocumentSpool documents;
    for (const QString &file : files) {
        if (!documents.add(file, error)) {
            return std::nullopt;
        }
    }
    if (files.isEmpty() && !documents.addStandardInput(error)) {
        return std::nullopt;
    }
    documents.mTitle = files.isEmpty() ? QStringLiteral("(stdin)") : QFileInfo(files.first()).fileName();
    return documents;
}

bool DocumentSpool::add(const QString &file, Problem *error)
{
    const std::optional<FileStamp> source = FileStamp::ofPath(file);
    if (!source) {
        sayUnreadable(file, qt_error_string(errno), error);
        return false;
    }
    if (S_ISDIR(source->mode)) {
        sayUnreadable(file, Texts::tr("it is a folder"), error);
        return false;
    }
    QFile input(file);
    if (!input.open(QIODevice::ReadOnly)) {
        sayUnreadable(file, input.errorString(), error);
        return false;
    }
    mSources.push_back(*source);
    if (!staysAsNamed(*source)) {
        return keep(input, QFileInfo(file).fileName(), QStringLiteral("The document %1").arg(harmless(file)), error);
    }
    if (source->size == 0) {
        *error = {Problem::BadDocument,
                  Texts::tr("The document %1 is empty: name a file with something to print.").arg(harmless(file))};
        return false;
    }
    mFiles.append(file);
    return true;
}

bool DocumentSpool::addStandardInput(Problem *error)
{
    if (isatty(STDIN_FILENO) != 0) {
        *error = {Problem::BadUsage,
                  QStringLiteral("No document is named: give a FILE, or pipe one into standard input.")};
        return false;
    }
    // It has no name under which it could be looked at again: a null path.
    if (const std::optional<FileStamp> source = FileStamp::ofDescriptor(STDIN_FILENO, QString())) {
        mSources.push_back(*source);
    }
    QFile input;
    if (!input.open(stdin, QIODevice::ReadOnly)) {
        *error = {Problem::BadDocument,
                  QStringLiteral("Standard input cannot be read (%1): name a FILE.").arg(input.errorString())};
        return false;
    }
    return keep(input, QStringLiteral("stdin"), QStringLiteral("Standard input"), error);
}

/// Reads to the end into a private file. \param shownAs begins a sentence.
bool DocumentSpool::keep(QFile &input, const QString &name, const QString &shownAs, Problem *error)
{
    QString reason;
    auto kept = PrivateFile::create(name, &reason);
    bool isKept = kept != nullptr;
    for (QByteArray piece = input.read(pieceBytes); isKept && !piece.isEmpty(); piece = input.read(pieceBytes)) {
        isKept = kept->fill(piece, &reason);
    }
    if (!isKept) {
        *error = QStringLiteral("%1 cannot be kept in a temporary file (%2): make room there, or name a plain FILE.")
                     .arg(shownAs, reason);
        return false;
    }
    if (input.error() != QFileDevice::NoError) {
        *error = {Problem::BadDocument,
                  QStringLiteral("%1 cannot be read (%2): name a readable FILE.").arg(shownAs, input.errorString())};
        return false;
    }
    if (kept->file().size() == 0) {
        *error = {Problem::BadDocument,
                  QStringLiteral("%1 is empty: give a FILE, or pipe a document in.").arg(shownAs)};
        return false;
    }
    mFiles.append(kept->path());
    mKept.push_back(std::move(kept));
    return true;
}

QString DocumentSpool::title(const QString &asked) const
{
    return asked.isEmpty() ? mTitle : asked;
}

} // namespace tapeprint::job
