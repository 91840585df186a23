// SPDX-License-Identifier: Apache-2.0
// What the fuzz targets share: the check that ends the run on a breach, and what a number in a job looks like.
#pragma once

#include <QString>
#include <QStringView>

#include <cstdint>
#include <cstdlib>

/// libFuzzer's entry point; the replay in the ordinary test run calls it, too. \return always 0.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size);

namespace fuzz
{

/// Ends the process on a breach: libFuzzer then keeps the input.
inline void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

/// A sign, digits, and at most one point with digits on both sides; no exponent, no "inf", no "nan".
inline bool isDecimalNumber(QStringView text)
{
    qsizetype at = text.startsWith(u'-') ? 1 : 0;
    const auto skipDigits = [&text, &at] {
        const qsizetype from = at;
        while (at < text.size() && text[at] >= u'0' && text[at] <= u'9') {
            ++at;
        }
        return at > from;
    };
    if (!skipDigits()) {
        return false;
    }
    if (at == text.size()) {
        return true;
    }
    return text[at++] == u'.' && skipDigits() && at == text.size();
}

/// The bytes of an input as text.
inline QString inputText(const std::uint8_t *data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
}

} // namespace fuzz
