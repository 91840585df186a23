// SPDX-License-Identifier: Apache-2.0
// The options of a print job, kept as a list: a job has few of them, and their order is shown to people.
#include "job/JobOptions.h"

#include <algorithm>
#include <cmath>

namespace tapeprint::job
{

namespace
{

template <typename Entries>
auto findEntry(Entries &entries, const QString &name)
{
    return std::find_if(entries.begin(), entries.end(), [&name](const auto &entry) { return entry.first == name; });
}

} // namespace

void JobOptions::set(const QString &name, const QString &value)
{
    const auto found = findEntry(mEntries, name);
    if (found == mEntries.end()) {
        mEntries.emplace_back(name, value);
    } else {
        found->second = value;
    }
}

void JobOptions::remove(const QString &name)
{
    const auto found = findEntry(mEntries, name);
    if (found != mEntries.end()) {
        mEntries.erase(found);
    }
}

bool JobOptions::contains(const QString &name) const
{
    return findEntry(mEntries, name) != mEntries.end();
}

QString JobOptions::value(const QString &name) const
{
    const auto found = findEntry(mEntries, name);
    return found == mEntries.end() ? QString() : found->second;
}

QStringList JobOptions::lines() const
{
    QStringList lines;
    for (const auto &[name, value] : mEntries) {
        lines.append(name + u'=' + value);
    }
    return lines;
}

bool isNumber(const QString &text)
{
    bool isOne = false;
    const double number = text.toDouble(&isOne);
    return isOne && std::isfinite(number);
}

} // namespace tapeprint::job
