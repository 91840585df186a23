// SPDX-License-Identifier: Apache-2.0
// The options of a print job: names and values in the order they were first given. They end as the options argument
// that the printer's filters get.
#pragma once

#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace tapeprint::job
{

/// Options of one job. A name stands at most once; a new value takes the place of the old one.
class JobOptions
{
public:
    using Entry = std::pair<QString, QString>;

    /// Sets an option's value. An option that the job has already keeps its place in the order.
    void set(const QString &name, const QString &value);
    void remove(const QString &name);

    bool contains(const QString &name) const;
    /// The value of an option; a null string when the job does not have it.
    QString value(const QString &name) const;
    const std::vector<Entry> &entries() const { return mEntries; }

    /// The options as NAME=VALUE, in their order.
    QStringList lines() const;

    bool operator==(const JobOptions &other) const { return mEntries == other.mEntries; }

private:
    std::vector<Entry> mEntries;
};

/// Whether the value of an option is a number, written with a decimal point in every language.
bool isNumber(const QString &text);

/// Names of options that the dialog itself knows.
namespace OptionName
{
inline const QString copies = QStringLiteral("copies");
inline const QString pageRanges = QStringLiteral("page-ranges");
inline const QString pageSize = QStringLiteral("PageSize");
inline const QString pageRegion = QStringLiteral("PageRegion");
inline const QString media = QStringLiteral("media");
/// The dialog's own: the tape is made as long as what is drawn needs, and only that is laid out. Never leaves the job.
inline const QString fitLength = QStringLiteral("fit-length");
} // namespace OptionName

} // namespace tapeprint::job
