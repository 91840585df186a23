// SPDX-License-Identifier: Apache-2.0
// Text encodings through ICU's converters. PPD texts pass through here by the ten thousand, so the two encodings that
// they come in, ASCII and UTF-8, need no converter, and every other converter is opened once.
#include "pdekit/StringEncoding.h"

#include <QHash>
#include <QStringDecoder>

#include <algorithm>
#include <array>
#include <limits>
#include <memory>
#include <unordered_map>

#include <langinfo.h>
#include <unicode/ucnv.h>

namespace pdekit
{

namespace
{

constexpr char kUtf8[] = "UTF-8";
constexpr char kAscii[] = "US-ASCII";

struct ConverterDeleter {
    void operator()(UConverter *converter) const { ucnv_close(converter); }
};
using Converter = std::unique_ptr<UConverter, ConverterDeleter>;

struct NameHash {
    std::size_t operator()(const QByteArray &name) const { return qHash(name); }
};

// ICU's own stop callbacks let invisible characters (a soft hyphen) vanish in silence. These leave the error standing.
void stopDecoding(const void *, UConverterToUnicodeArgs *, const char *, std::int32_t, UConverterCallbackReason,
                  UErrorCode *)
{
}

void stopEncoding(const void *, UConverterFromUnicodeArgs *, const UChar *, std::int32_t, UChar32,
                  UConverterCallbackReason, UErrorCode *)
{
}

Converter openConverter(const StringEncoding &encoding)
{
    // ICU takes an empty name for the default converter.
    if (encoding.isEmpty()) {
        return nullptr;
    }
    UErrorCode status = U_ZERO_ERROR;
    Converter converter(ucnv_open(encoding.constData(), &status));
    if (U_FAILURE(status) != 0) {
        return nullptr;
    }
    ucnv_setToUCallBack(converter.get(), stopDecoding, nullptr, nullptr, nullptr, &status);
    ucnv_setFromUCallBack(converter.get(), stopEncoding, nullptr, nullptr, nullptr, &status);
    ucnv_setFallback(converter.get(), 0);
    return U_FAILURE(status) != 0 ? nullptr : std::move(converter);
}

/// The thread's converter of an encoding; null when ICU does not know the encoding.
UConverter *converterOf(const StringEncoding &encoding)
{
    thread_local std::unordered_map<StringEncoding, Converter, NameHash> converters;
    const auto found = converters.find(encoding);
    if (found != converters.end()) {
        return found->second.get();
    }
    Converter converter = openConverter(encoding);
    if (!converter) {
        return nullptr;
    }
    return converters.emplace(encoding, std::move(converter)).first->second.get();
}

QString emptyString()
{
    return QStringLiteral("");
}

bool isAscii(QByteArrayView bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80U; });
}

QString decodeUtf8(QByteArrayView bytes)
{
    if (bytes.isEmpty()) {
        return emptyString();
    }
    // Most texts of PPDs, of which there may be tens of thousands: copied without a decoder.
    if (isAscii(bytes)) {
        return QString::fromLatin1(bytes);
    }
    QStringDecoder decoder(QStringDecoder::Utf8,
                           QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    QString text = decoder.decode(bytes);
    return decoder.hasError() ? QString() : text;
}

QString decodeAscii(QByteArrayView bytes)
{
    if (!isAscii(bytes)) {
        return {};
    }
    return bytes.isEmpty() ? emptyString() : QString::fromLatin1(bytes);
}

QString decodeWithConverter(QByteArrayView bytes, UConverter *converter)
{
    if (bytes.size() > std::numeric_limits<std::int32_t>::max() / 2) {
        return {};
    }
    const auto size = static_cast<std::int32_t>(bytes.size());
    QString text(qsizetype{size} + 1, Qt::Uninitialized);
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    for (int attempt = 0; attempt < 2; ++attempt) {
        status = U_ZERO_ERROR;
        length = ucnv_toUChars(converter, reinterpret_cast<UChar *>(text.data()),
                               static_cast<std::int32_t>(text.size()), bytes.data(), size, &status);
        if (status != U_BUFFER_OVERFLOW_ERROR) {
            break;
        }
        text.resize(length);
    }
    if (U_FAILURE(status) != 0) {
        return {};
    }
    text.truncate(length);
    return text.isEmpty() ? emptyString() : text;
}

std::optional<QByteArray> encodeWithConverter(const QString &text, UConverter *converter)
{
    if (text.size() > std::numeric_limits<std::int32_t>::max() / 16) {
        return std::nullopt;
    }
    const auto size = static_cast<std::int32_t>(text.size());
    QByteArray bytes(UCNV_GET_MAX_BYTES_FOR_STRING(size, ucnv_getMaxCharSize(converter)), Qt::Uninitialized);
    std::int32_t length = 0;
    UErrorCode status = U_ZERO_ERROR;
    for (int attempt = 0; attempt < 2; ++attempt) {
        status = U_ZERO_ERROR;
        length = ucnv_fromUChars(converter, bytes.data(), static_cast<std::int32_t>(bytes.size()),
                                 reinterpret_cast<const UChar *>(text.utf16()), size, &status);
        if (status != U_BUFFER_OVERFLOW_ERROR) {
            break;
        }
        bytes.resize(length);
    }
    if (U_FAILURE(status) != 0) {
        return std::nullopt;
    }
    bytes.truncate(length);
    return bytes;
}

StringEncoding &replacedSystemEncoding()
{
    static StringEncoding encoding;
    return encoding;
}

/// The Unicode forms, the everyday ones first.
constexpr std::array kUnicodeForms = {
    kUtf8, "UTF-16", "UTF-16BE", "UTF-16LE", "UTF-32", "UTF-32BE", "UTF-32LE", "CESU-8", "UTF-7", "SCSU", "BOCU-1",
};

std::vector<StringEncoding> listEncodings()
{
    std::vector<StringEncoding> available;
    const std::int32_t count = ucnv_countAvailable();
    available.reserve(static_cast<std::size_t>(count));
    for (std::int32_t i = 0; i < count; ++i) {
        available.emplace_back(ucnv_getAvailableName(i));
    }
    const auto rank = [](const StringEncoding &name) {
        return std::find(kUnicodeForms.begin(), kUnicodeForms.end(), name) - kUnicodeForms.begin();
    };
    std::stable_sort(available.begin(), available.end(),
                     [&](const StringEncoding &a, const StringEncoding &b) { return rank(a) < rank(b); });
    return available;
}

} // namespace

StringEncoding systemEncoding()
{
    if (!replacedSystemEncoding().isEmpty()) {
        return replacedSystemEncoding();
    }
    // The C locale calls plain ASCII by the name of its standard.
    StringEncoding codeset(nl_langinfo(CODESET));
    if (codeset == "ANSI_X3.4-1968" || converterOf(codeset) == nullptr) {
        return kAscii;
    }
    return codeset;
}

void setSystemEncoding(const StringEncoding &encoding)
{
    replacedSystemEncoding() = encoding;
}

StringEncoding macRomanEncoding()
{
    return "macos-0_2-10.2";
}

const std::vector<StringEncoding> &availableStringEncodings()
{
    static const std::vector<StringEncoding> encodings = listEncodings();
    return encodings;
}

QString stringFromBytes(QByteArrayView bytes, const StringEncoding &encoding)
{
    if (encoding == kUtf8) {
        return decodeUtf8(bytes);
    }
    if (encoding == kAscii) {
        return decodeAscii(bytes);
    }
    UConverter *converter = converterOf(encoding);
    return converter == nullptr ? QString() : decodeWithConverter(bytes, converter);
}

std::optional<QByteArray> bytesFromString(const QString &text, const StringEncoding &encoding)
{
    if (encoding == kUtf8) {
        return text.isValidUtf16() ? std::optional(text.toUtf8()) : std::nullopt;
    }
    UConverter *converter = converterOf(encoding);
    return converter == nullptr ? std::nullopt : encodeWithConverter(text, converter);
}

bool canBeConvertedToEncoding(const QString &text, const StringEncoding &encoding)
{
    return bytesFromString(text, encoding).has_value();
}

QString stringFromUtf8(const char *bytes)
{
    return bytes == nullptr ? QString() : decodeUtf8(bytes);
}

QString stringFromAscii(const char *bytes)
{
    return bytes == nullptr ? QString() : decodeAscii(bytes);
}

QString stringFromSystemEncoding(const char *bytes)
{
    return bytes == nullptr ? QString() : stringFromBytes(bytes, systemEncoding());
}

} // namespace pdekit
