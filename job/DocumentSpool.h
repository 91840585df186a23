// SPDX-License-Identifier: Apache-2.0
// The documents of a job: the files named, and what comes through pipes kept in files until the job is through.
#pragma once

#include "job/FileStamp.h"
#include "job/Problem.h"

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>
#include <vector>

class QFile;

namespace tapeprint::job
{

class PrivateFile;

class DocumentSpool
{
public:
    DocumentSpool();
    ~DocumentSpool();
    DocumentSpool(DocumentSpool &&) noexcept;
    DocumentSpool &operator=(DocumentSpool &&) noexcept;

    /// The documents of a command line; standard input when it names no file. Pipes and devices are read here, once, to
    /// their end. \param error takes a sentence about a document that cannot be read or is empty.
    static std::optional<DocumentSpool> collect(const QStringList &files, Problem *error);

    /// Plain files with the documents.
    const QStringList &files() const { return mFiles; }
    /// What the person named, as it was when it was collected: none of it may be written to.
    const FileStamps &sources() const { return mSources; }
    /// The job's title: the one asked for, or the first document's name.
    QString title(const QString &asked) const;

private:
    bool add(const QString &file, Problem *error);
    bool addStandardInput(Problem *error);
    bool keep(QFile &input, const QString &name, const QString &shownAs, Problem *error);

    QString mTitle;
    QStringList mFiles;
    FileStamps mSources;
    std::vector<std::unique_ptr<PrivateFile>> mKept;
};

} // namespace tapeprint::job
