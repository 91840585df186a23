// SPDX-License-Identifier: Apache-2.0
// The file "lpoptions", in which CUPS keeps what a person saved for queues and their instances. libcups writes it anew
// from what a print server lists: what that server does not know is lost then, comments are, and on a full disk
// everything is. Here one line is changed, every other byte stays, and the file is replaced whole or not at all.
#pragma once

#include "job/JobOptions.h"
#include "job/Problem.h"

#include <QByteArray>
#include <QByteArrayList>
#include <QString>

#include <optional>
#include <utility>
#include <vector>

namespace tapeprint::job
{

class LpOptionsFile
{
public:
    /// What one line says of a queue or an instance of it.
    struct Entry {
        QString queue;
        QString instance; ///< empty for the queue itself
        JobOptions options;
        bool isDefault = false; ///< where the person prints who names no printer
    };

    /// Reads a file; one that is not there holds nothing. \param error takes a sentence when there is one that cannot
    /// be read.
    static std::optional<LpOptionsFile> read(const QString &path, Problem *error);

    /// What stands in the file, in its order. Where several lines are about one queue or instance the first counts, as
    /// it does with lp.
    std::vector<Entry> entries() const;
    std::optional<Entry> find(const QString &queue, const QString &instance) const;

    /// Sets the options of a queue or instance, in its line or in a new one. \return false, with a sentence, and
    /// nothing changed, when libcups could not read them back.
    bool set(const QString &queue, const QString &instance, const JobOptions &options, Problem *error);
    void remove(const QString &queue, const QString &instance);
    void rename(const QString &queue, const QString &instance, const QString &newInstance);
    /// Makes a queue or instance the one where the person prints who names none, and no other.
    void makeDefault(const QString &queue, const QString &instance);

    /// Writes the file, with the folder that it stands in. \return false, with a sentence, and the file as it was, when
    /// that cannot be done.
    bool write(Problem *error) const;

private:
    explicit LpOptionsFile(QString path) : mPath(std::move(path)) {}

    QString mPath;
    QByteArrayList mLines;
};

} // namespace tapeprint::job
