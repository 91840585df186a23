// SPDX-License-Identifier: Apache-2.0
// Walks a format one placeholder at a time, so that "%@" can stand among those that the toolkit's printf knows.
#include "log/LogFormat.h"

#include <QRegularExpression>

#include <array>
#include <cstddef>
#include <cstdint>
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
    QString flags;
    QString width;     ///< digits, or "*" for an argument
    QString precision; ///< the same; null for none
    QString length;    ///< "l", "hh" and their kin
    char16_t conversion;
};

template <typename Value>
QString printed(const QString &shape, Value value)
{
    const QByteArray bytes = shape.toUtf8();
#pragma GCC diagnostic push
// The shape is put together from a checked pattern to fit the value's type; it cannot be a literal.
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    return QString::asprintf(bytes.constData(), value);
#pragma GCC diagnostic pop
}

/// "*" as a width or a precision stands for an int argument. A negative width is a width with the flag "-", a negative
/// precision is none.
void readStars(Placeholder &placeholder, Arguments &arguments)
{
    if (placeholder.width == QLatin1Char('*')) {
        placeholder.width = QString::asprintf("%d", arguments.next<int>());
    }
    if (placeholder.precision == QLatin1Char('*')) {
        const int precision = arguments.next<int>();
        placeholder.precision = precision < 0 ? QString() : QString::asprintf("%d", precision);
    }
}

QString shapeOf(const Placeholder &placeholder, const char *length)
{
    QString shape = QLatin1Char('%') + placeholder.flags + placeholder.width;
    if (!placeholder.precision.isNull()) {
        shape += QLatin1Char('.') + placeholder.precision;
    }
    return shape + QLatin1String(length) + QChar(placeholder.conversion);
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
    const QString &length = placeholder.length;
    Wide value{};
    if (length == QLatin1String("ll") || length == QLatin1Char('q') || length == QLatin1Char('j')) {
        value = arguments.next<Wide>();
    } else if (length == QLatin1Char('l') || length == QLatin1Char('z') || length == QLatin1Char('t')) {
        value = arguments.next<Long>();
    } else if (length == QLatin1String("hh")) {
        // NOLINTNEXTLINE(bugprone-signed-char-misuse): "%hhd" asks for the signed byte
        value = static_cast<Char>(arguments.next<Int>());
    } else if (length == QLatin1Char('h')) {
        value = static_cast<Short>(arguments.next<Int>());
    } else {
        value = arguments.next<Int>();
    }
    return printed(shapeOf(placeholder, "ll"), value);
}

QString printedReal(const Placeholder &placeholder, Arguments &arguments)
{
    const double value = placeholder.length == QLatin1Char('L') ? static_cast<double>(arguments.next<long double>())
                                                                : arguments.next<double>();
    return printed(shapeOf(placeholder, ""), value);
}

/// Text in its width, cut to its precision. For "%s" the bytes beyond the precision are not looked at.
QString printedText(const Placeholder &placeholder, Arguments &arguments)
{
    const bool hasPrecision = !placeholder.precision.isNull();
    const qsizetype precision = placeholder.precision.toInt();
    QString text = QStringLiteral("(null)");
    if (placeholder.conversion == u'@') {
        const auto *string = arguments.next<const QString *>();
        if (string != nullptr && !string->isNull()) {
            text = hasPrecision ? string->left(precision) : *string;
        }
    } else {
        const auto *bytes = arguments.next<const char *>();
        if (bytes != nullptr) {
            text = hasPrecision ? QString::fromUtf8(bytes, qsizetype(qstrnlen(bytes, std::size_t(precision))))
                                : QString::fromUtf8(bytes);
        }
    }
    bool left = placeholder.flags.contains(QLatin1Char('-'));
    qsizetype width = placeholder.width.toInt();
    if (width < 0) {
        left = true;
        width = -width;
    }
    return left ? text.leftJustified(width) : text.rightJustified(width);
}

QString filled(Placeholder placeholder, Arguments &arguments)
{
    if (placeholder.conversion == u'%') {
        return QStringLiteral("%");
    }
    readStars(placeholder, arguments);
    switch (placeholder.conversion) {
    case u'@':
    case u's':
        return printedText(placeholder, arguments);
    case u'd':
    case u'i':
        return printedInteger<true>(placeholder, arguments);
    case u'u':
    case u'x':
    case u'X':
    case u'o':
        return printedInteger<false>(placeholder, arguments);
    case u'c':
        return printed(shapeOf(placeholder, ""), arguments.next<int>());
    case u'p':
        return printed(shapeOf(placeholder, ""), arguments.next<void *>());
    default: // the pattern lets only the letters of real numbers through to here
        return printedReal(placeholder, arguments);
    }
}

} // namespace

QString formatted(const QString &format, va_list list)
{
    static const QRegularExpression placeholders(
        QStringLiteral("%([-+ #0]*)(\\*|[0-9]{0,6})(?:\\.(\\*|[0-9]{0,6}))?(hh|h|ll|l|q|j|z|t|L)?"
                       "([@sdiuxXocpfFeEgGaA%])"));
    Arguments arguments(list);
    QString result = QLatin1String("");
    qsizetype from = 0;
    for (auto matches = placeholders.globalMatch(format); matches.hasNext();) {
        const QRegularExpressionMatch match = matches.next();
        result += QStringView(format).mid(from, match.capturedStart() - from);
        result += filled({match.captured(1), match.captured(2), match.captured(3), match.captured(4),
                          match.captured(5).at(0).unicode()},
                         arguments);
        from = match.capturedEnd();
    }
    return result.append(QStringView(format).mid(from));
}

} // namespace pdelog
