// SPDX-License-Identifier: Apache-2.0
// The text helpers of PDEUtilsMethod13 that the edit formatter stands on.
#include "ppd/PDEUtilsMethod13.h"

#include "pdekit/StringEncoding.h"

unsigned PDEUtilsMethod13::stringLengthConvertedToEncoding(const QString &text)
{
    if (text.isNull()) {
        return 0;
    }
    if (const auto bytes = pdekit::bytesFromString(text, pdekit::systemEncoding())) {
        return static_cast<unsigned>(bytes->size());
    }
    for (const pdekit::StringEncoding &encoding : pdekit::availableStringEncodings()) {
        if (const auto bytes = pdekit::bytesFromString(text, encoding)) {
            return static_cast<unsigned>(bytes->size());
        }
    }
    return 0;
}

bool PDEUtilsMethod13::scanString(const QString &text, const QString &searched)
{
    return !searched.isEmpty() && text.contains(searched);
}

QString PDEUtilsMethod13::deleteString(const QString &text, const QString &deleted)
{
    if (!scanString(text, deleted)) {
        return {};
    }
    // What is left may be nothing: that is an empty text, not null.
    return QLatin1StringView("") + QString(text).remove(text.indexOf(deleted), deleted.size());
}
