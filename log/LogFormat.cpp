// SPDX-License-Identifier: Apache-2.0
// Walks a format one placeholder at a time, so that "%@" can stand among those that C's printf knows. Numbers are
// printed by C's printf itself.
#include "log/LogFormat.h"

#include "pdekit/CLocale.h"
#include "pdekit/Numbers.h"

#include <QByteArray>
#include <QRegularExpression>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <optional>
#include <string>
#include <type_traits>

namespace pdelog
{
namespace
{

/// The arguments still to come. A va_list may be read by one owner only; this is the owner.
class Arguments
{
public:
    explicit Arguments(va_list list) { va_copy(mList, list); }
    ~Arguments() { va_end(mList); }
    Arguments(const Arguments &) = delete;
    Arguments &operator=(const Arguments &) = delete;

    template <typename Type>
    Type next()
    {
        return va_arg(mList, Type); // NOLINT(clang-analyzer-valist.Uninitialized): the constructor has copied it
    }

private:
    va_list mList;
};

struct Placeholder {
    QByteArray flags;
    int width = 0; ///< negative: as many columns, with the text at their left
    std::optional<int> precision;
    QByteArray length; ///< "l", "hh" and their kin
    char16_t conversion = u'%';
};

/// Wider, or with more digits, than this nothing is printed: six digits are more than any line needs, and a number that
/// was never meant as a width asks for no gigabytes.
constexpr int kWidest = 999'999;

/// A width or a precision: its digits, or "*" for an int argument.
int number(QStringView digits, Arguments &arguments)
{
    return digits == u'*' ? arguments.next<int>() : pdekit::intValue(digits);
}

/// One argument as C's own snprintf prints it. \param length the modifier that fits Value.
template <typename Value>
QString printed(const Placeholder &placeholder, const char *length, Value value)
{
    const int precision = std::min(placeholder.precision.value_or(-1), kWidest); // -1 is none
    const QByteArray shape = "%" + placeholder.flags + "*.*" + length + static_cast<char>(placeholder.conversion);
#pragma GCC diagnostic push
// The shape is put together from a checked pattern to fit the value's type; it cannot be a literal.
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    const int size = std::snprintf(nullptr, 0, shape.constData(), placeholder.width, precision, value);
    std::string text(static_cast<std::size_t>(std::max(size, 0)), '\0');
    std::snprintf(text.data(), text.size() + 1, shape.constData(), placeholder.width, precision, value);
#pragma GCC diagnostic pop
    return QString::fromLatin1(text.data(), static_cast<qsizetype>(text.size()));
}

/// An integer argument by its length modifier, widened: 64 bits of it are printed.
template <bool isSigned>
QString printedInteger(const Placeholder &placeholder, Arguments &arguments)
{
    using Wide = std::conditional_t<isSigned, long long, unsigned long long>;
    using Long = std::conditional_t<isSigned, long, unsigned long>;
    using Int = std::conditional_t<isSigned, int, unsigned>;
    using Short = std::conditional_t<isSigned, short, unsigned short>;
    using Char = std::conditional_t<isSigned, signed char, unsigned char>;
    const QByteArray &length = placeholder.length;
    Wide value{};
    if (length == "ll" || length == "q" || length == "j" || length == "L") {
        value = arguments.next<Wide>();
    } else if (length == "l" || length == "z" || length == "t") {
        value = arguments.next<Long>();
    } else if (length == "hh") {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): "%hhd" asks for the signed byte
        value = static_cast<Char>(arguments.next<Int>());
    } else if (length == "h") {
        value = static_cast<Short>(arguments.next<Int>());
    } else {
        value = arguments.next<Int>();
    }
    return printed(placeholder, "ll", value);
}

QString printedReal(const Placeholder &placeholder, Arguments &arguments)
{
    return placeholder.length == "L" ? printed(placeholder, "L", arguments.next<long double>())
                                     : printed(placeholder, "", arguments.next<double>());
}

/// A text in its width. \param taken the columns that the text counts for.
QString justified(const Placeholder &placeholder, const QString &text, qsizetype taken)
{
    const qsizetype columns = std::abs(placeholder.width);
    const QString blanks(std::max<qsizetype>(columns - taken, 0), u' ');
    return placeholder.width < 0 || placeholder.flags.contains('-') ? text + blanks : blanks + text;
}

/// The length of UTF-8 without a character at its end that has been cut in two. Other bytes that are no UTF-8 stay.
qsizetype lengthOfWholeCharacters(QByteArrayView bytes)
{
    constexpr qsizetype kLongestCharacter = 4;
    for (qsizetype tail = 1; tail <= std::min(kLongestCharacter, bytes.size()); ++tail) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - tail]);
        if (byte >= 0xC0U) { // the first byte of a character says how many there are
            const qsizetype whole = byte >= 0xF0U ? 4 : byte >= 0xE0U ? 3 : 2;
            return whole > tail ? bytes.size() - tail : bytes.size();
        }
        if (byte < 0x80U) {
            break;
        }
    }
    return bytes.size();
}

/// "%s": width and precision count bytes, as C's do, and no byte beyond the precision is read. Where the precision cuts
/// a character in two, C prints the half and the line is no UTF-8 any more: here the whole character is left out, and
/// the width is filled by as many blanks more.
QString printedBytes(const Placeholder &placeholder, QByteArrayView bytes)
{
    const bool isCut = placeholder.precision == bytes.size();
    const QByteArrayView whole = isCut ? bytes.first(lengthOfWholeCharacters(bytes)) : bytes;
    return justified(placeholder, QString::fromUtf8(whole), whole.size());
}

QString nullText(const Placeholder &placeholder)
{
    const QString text = QStringLiteral("(null)");
    return justified(placeholder, text, text.size());
}

QString printedByteString(const Placeholder &placeholder, Arguments &arguments)
{
    const auto *bytes = arguments.next<const char *>();
    if (bytes == nullptr) {
        return nullText(placeholder);
    }
    const std::size_t size =
        placeholder.precision ? qstrnlen(bytes, static_cast<std::size_t>(*placeholder.precision)) : std::strlen(bytes);
    return printedBytes(placeholder, QByteArrayView(bytes, static_cast<qsizetype>(size)));
}

/// "%ls": counted in the bytes of its UTF-8. Each wide character is at least one byte, so that none beyond the
/// precision is read.
QString printedWideString(const Placeholder &placeholder, Arguments &arguments)
{
    const auto *characters = arguments.next<const wchar_t *>();
    if (characters == nullptr) {
        return nullText(placeholder);
    }
    const std::size_t size = placeholder.precision
                                 ? wcsnlen(characters, static_cast<std::size_t>(*placeholder.precision))
                                 : std::wcslen(characters);
    const QByteArray bytes = QString::fromWCharArray(characters, static_cast<qsizetype>(size)).toUtf8();
    return printedBytes(placeholder, QByteArrayView(bytes).first(
                                         std::min<qsizetype>(placeholder.precision.value_or(INT_MAX), bytes.size())));
}

/// "%@": width and precision count the text's own characters.
QString printedObject(const Placeholder &placeholder, Arguments &arguments)
{
    const auto *string = arguments.next<const QString *>();
    if (string == nullptr || string->isNull()) {
        return nullText(placeholder);
    }
    const QString text = placeholder.precision ? string->left(*placeholder.precision) : *string;
    return justified(placeholder, text, text.size());
}

/// "%c" is one byte. One beyond ASCII is no character of UTF-8 by itself: it is read as Latin-1.
QString printedCharacter(const Placeholder &placeholder, Arguments &arguments)
{
    if (placeholder.length == "l") {
        const char32_t character = arguments.next<wint_t>();
        const QString text = QString::fromUcs4(&character, 1);
        return justified(placeholder, text, text.toUtf8().size());
    }
    return justified(placeholder, QString(QLatin1Char(static_cast<char>(arguments.next<int>()))), 1);
}

QString filled(const Placeholder &placeholder, Arguments &arguments)
{
    switch (placeholder.conversion) {
    case u'%':
        return QStringLiteral("%");
    case u'@':
        return printedObject(placeholder, arguments);
    case u's':
        return placeholder.length == "l" ? printedWideString(placeholder, arguments)
                                         : printedByteString(placeholder, arguments);
    case u'c':
        return printedCharacter(placeholder, arguments);
    case u'd':
    case u'i':
        return printedInteger<true>(placeholder, arguments);
    case u'u':
    case u'x':
    case u'X':
    case u'o':
        return printedInteger<false>(placeholder, arguments);
    case u'p':
        return printed(placeholder, "", arguments.next<void *>());
    default: // the pattern lets only the letters of real numbers through to here
        return printedReal(placeholder, arguments);
    }
}

/// What a match says, its stars filled from the arguments: a negative width is a width with the flag "-", a negative
/// precision is none.
Placeholder placeholderOf(const QRegularExpressionMatch &match, Arguments &arguments)
{
    Placeholder placeholder;
    placeholder.conversion = match.capturedView(5).front().unicode();
    if (placeholder.conversion == u'%') {
        return placeholder;
    }
    placeholder.flags = match.captured(1).toLatin1();
    placeholder.width = std::clamp(number(match.capturedView(2), arguments), -kWidest, kWidest);
    if (match.hasCaptured(3)) {
        const int precision = number(match.capturedView(3), arguments);
        placeholder.precision = precision < 0 ? std::nullopt : std::optional(precision);
    }
    placeholder.length = match.captured(4).toLatin1();
    return placeholder;
}

} // namespace

QString formatted(const QString &format, va_list list)
{
    static const QRegularExpression placeholders(
        QStringLiteral("%([-+ #0]*)(\\*|[0-9]*)(?:\\.(\\*|[0-9]*))?(hh|h|ll|l|q|j|z|t|L)?"
                       "([@sdiuxXocpfFeEgGaA%])"));
    const pdekit::CLocale locale;
    Arguments arguments(list);
    QString result = QLatin1String("");
    qsizetype from = 0;
    for (auto matches = placeholders.globalMatch(format); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(format).mid(from, match.capturedStart() - from);
        result += filled(placeholderOf(match, arguments), arguments);
        from = match.capturedEnd();
    }
    return result.append(QStringView(format).mid(from));
}

} // namespace pdelog
