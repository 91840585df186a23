// SPDX-License-Identifier: Apache-2.0
// Ends of sentences, also those of Chinese and Japanese.
#include "job/Reason.h"

#include "job/PlainText.h"

namespace tapeprint::job
{

namespace
{

constexpr QStringView pauses = u".,;:\u3002";
constexpr QStringView ends = u".!?\u2026\u3002\uFF01\uFF1F";

} // namespace

QString reasonText(const QString &reason)
{
    QString text = harmless(reason.simplified());
    while (!text.isEmpty() && (pauses.contains(text.back()) || text.back().isSpace())) {
        text.chop(1);
    }
    return text;
}

QString reasonSentence(const QString &reason)
{
    const QString text = harmless(reason.simplified());
    if (text.isEmpty() || (ends.contains(text.back()) && !text.endsWith(QLatin1String("..")))) {
        return text;
    }
    return reasonText(text) + u'.';
}

} // namespace tapeprint::job
