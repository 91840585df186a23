// SPDX-License-Identifier: Apache-2.0
// Ends of sentences, also those of Chinese and Japanese.
#include "job/Reason.h"

#include "job/PlainText.h"

namespace tapeprint::job
{

namespace
{

constexpr QStringView pauses = u".,;:\u3002";

} // namespace

QString reasonText(const QString &reason)
{
    QString text = harmless(reason.simplified());
    while (!text.isEmpty() && (pauses.contains(text.back()) || text.back().isSpace())) {
        text.chop(1);
    }
    return text;
}

} // namespace tapeprint::job
