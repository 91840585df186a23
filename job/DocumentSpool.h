// SPDX-License-Identifier: Apache-2.0
// The documents of a job: the files named, or standard input kept in a file until the job is through.
#pragma once

#include <QString>
#include <QStringList>

#include <memory>
#include <optional>

class QTemporaryFile;

namespace tapeprint::job
{

class DocumentSpool
{
public:
    DocumentSpool();
    ~DocumentSpool();
    DocumentSpool(DocumentSpool &&) noexcept;
    DocumentSpool &operator=(DocumentSpool &&) noexcept;

    /// The documents of a command line; standard input when it names no file. \param error takes a sentence about a
    /// document that cannot be read or is empty.
    static std::optional<DocumentSpool> collect(const QStringList &files, QString *error);

    const QStringList &files() const { return mFiles; }
    /// The job's title: the one asked for, or the first document's name.
    QString title(const QString &asked) const;

private:
    QStringList mFiles;
    std::unique_ptr<QTemporaryFile> mStandardInput;
};

} // namespace tapeprint::job
