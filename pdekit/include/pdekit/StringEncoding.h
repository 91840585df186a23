// SPDX-License-Identifier: Apache-2.0
// Text encodings by name: the system's, Mac OS Roman, and all that are available (ICU's converters).
#pragma once

#include "pdekit/Export.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

#include <optional>
#include <vector>

namespace pdekit
{

/// An encoding, by the name ICU knows it by, such as "UTF-8" or "macos-0_2-10.2".
using StringEncoding = QByteArray;

/// The encoding of the session's locale, such as "UTF-8".
PDEKIT_EXPORT StringEncoding systemEncoding();
/// For tests: another encoding stands for the system's until it is set back with an empty name.
PDEKIT_EXPORT void setSystemEncoding(const StringEncoding &encoding);
/// Mac OS Roman.
PDEKIT_EXPORT StringEncoding macRomanEncoding();
/// Every encoding that can be used, always in the same order: the Unicode forms first, UTF-8 before all.
PDEKIT_EXPORT const std::vector<StringEncoding> &availableStringEncodings();

/// Bytes to text. \return a null string when the bytes are not valid in the encoding, or the encoding is unknown.
PDEKIT_EXPORT QString stringFromBytes(QByteArrayView bytes, const StringEncoding &encoding);
/// Text to bytes without loss. \return std::nullopt when the encoding cannot express the text.
PDEKIT_EXPORT std::optional<QByteArray> bytesFromString(const QString &text, const StringEncoding &encoding);
/// Whether the encoding expresses the whole text without loss.
PDEKIT_EXPORT bool canBeConvertedToEncoding(const QString &text, const StringEncoding &encoding);

/// A NUL-terminated byte string in UTF-8 to text.
/// \return a null string when the pointer is null or the bytes are not valid in the encoding.
PDEKIT_EXPORT QString stringFromUtf8(const char *bytes);
/// The same for ASCII.
PDEKIT_EXPORT QString stringFromAscii(const char *bytes);
/// The same for the system's encoding.
PDEKIT_EXPORT QString stringFromSystemEncoding(const char *bytes);

} // namespace pdekit
