// SPDX-License-Identifier: Apache-2.0
// libcups' option arrays, owned: what the C functions fill and free is held by one object.
#pragma once

#include "job/JobOptions.h"

#include <QByteArray>

#include <cups/cups.h>

namespace tapeprint::job
{

/// An option array of libcups with its deleter. As in libcups, adding an option that is there replaces its value.
class CupsOptions
{
public:
    CupsOptions() = default;
    explicit CupsOptions(const JobOptions &options)
    {
        for (const auto &[name, value] : options.entries()) {
            add(name, value);
        }
    }
    ~CupsOptions() { cupsFreeOptions(mCount, mOptions); }
    CupsOptions(const CupsOptions &) = delete;
    CupsOptions &operator=(const CupsOptions &) = delete;

    void add(const QString &name, const QString &value)
    {
        mCount = cupsAddOption(name.toUtf8().constData(), value.toUtf8().constData(), mCount, &mOptions);
    }
    /// Adds what a text of NAME=VALUE words, separated by blanks, says.
    void parse(const QByteArray &text) { mCount = cupsParseOptions(text.constData(), mCount, &mOptions); }

    int count() const { return mCount; }
    cups_option_t *data() const { return mOptions; }
    const cups_option_t *begin() const { return mOptions; }
    const cups_option_t *end() const { return mOptions + mCount; }

private:
    int mCount = 0;
    cups_option_t *mOptions = nullptr;
};

} // namespace tapeprint::job
