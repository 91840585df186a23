// SPDX-License-Identifier: Apache-2.0
// Placeholders are found by one pattern and filled one at a time, so that no format can read beyond its one value.
#include "controls/ValueFormat.h"

#include "pdekit/Numbers.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>
#include <array>
#include <charconv>
#include <limits>

namespace controls
{
namespace
{

QString realText(double value)
{
    std::array<char, 32> buffer{};
    const std::to_chars_result result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    return QString::fromLatin1(buffer.data(), result.ptr - buffer.data());
}

bool isReal(const QVariant &value)
{
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

/// One placeholder filled by the toolkit's printf, which knows no locale.
template <typename Value>
QString printed(const QString &placeholder, Value value)
{
    const QByteArray bytes = placeholder.toUtf8();
#pragma GCC diagnostic push
// The format is put together from a checked pattern whose conversion fits the value's type; it cannot be a literal.
#pragma GCC diagnostic ignored "-Wformat-nonliteral"
    return QString::asprintf(bytes.constData(), value);
#pragma GCC diagnostic pop
}

/// Text in a field of a width, cut to a precision: what C does for "%s", by characters.
QString padded(const QString &text, const QRegularExpressionMatch &placeholder)
{
    const QString precision = placeholder.captured(QStringLiteral("precision"));
    const QString cut = precision.isNull() ? text : text.left(precision.toInt());
    const qsizetype width = placeholder.captured(QStringLiteral("width")).toInt();
    const bool left = placeholder.captured(QStringLiteral("flags")).contains(QLatin1Char('-'));
    return left ? cut.leftJustified(width) : cut.rightJustified(width);
}

QString filled(const QRegularExpressionMatch &placeholder, const QString &text, std::int32_t number)
{
    const QString conversion = placeholder.captured(QStringLiteral("conversion"));
    const QString precision = placeholder.captured(QStringLiteral("precision"));
    const QString shape = QLatin1Char('%') + placeholder.captured(QStringLiteral("flags")) +
                          placeholder.captured(QStringLiteral("width")) +
                          (precision.isNull() ? QString() : QLatin1Char('.') + precision) + conversion;
    switch (conversion.at(0).unicode()) {
    case u'@':
    case u's':
        return padded(text, placeholder);
    case u'd':
    case u'i':
    case u'c':
        return printed(shape, static_cast<int>(number));
    case u'u':
    case u'x':
    case u'X':
    case u'o':
        return printed(shape, static_cast<unsigned>(number));
    case u'f':
    case u'e':
    case u'g':
        return printed(shape, static_cast<double>(number));
    default:
        return QStringLiteral("%");
    }
}

} // namespace

QString valueText(const QVariant &value)
{
    // A null text is a missing one, too; the variant itself does not count it as null.
    const bool isText = value.typeId() == QMetaType::QString;
    if (value.isNull() || (isText && value.toString().isNull())) {
        return QStringLiteral("(null)");
    }
    if (isReal(value)) {
        return realText(value.toDouble());
    }
    if (value.typeId() == QMetaType::Bool) {
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    }
    if (value.typeId() == QMetaType::QDateTime) {
        return value.toDateTime().toString(Qt::ISODate);
    }
    return value.toString();
}

std::int32_t valueInteger(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString) {
        return pdekit::intValue(value.toString());
    }
    if (isReal(value)) {
        return pdekit::truncatedInt32(value.toDouble());
    }
    if (value.typeId() == QMetaType::ULongLong) {
        return static_cast<std::int32_t>(
            std::min(value.toULongLong(), static_cast<qulonglong>(std::numeric_limits<std::int32_t>::max())));
    }
    return static_cast<std::int32_t>(std::clamp(value.toLongLong(),
                                                static_cast<qlonglong>(std::numeric_limits<std::int32_t>::min()),
                                                static_cast<qlonglong>(std::numeric_limits<std::int32_t>::max())));
}

QString formattedValue(const QString &format, const QString &text, std::int32_t number)
{
    if (format.isNull()) {
        return {};
    }
    static const QRegularExpression placeholders(
        QStringLiteral("%(?<flags>[-+ #0]*)(?<width>[0-9]{0,4})(?:\\.(?<precision>[0-9]{0,4}))?(?:hh|h|ll|l|q|j|z|t)?"
                       "(?<conversion>[@sdicuxXofeg%])"));
    QString result = QLatin1String("");
    qsizetype from = 0;
    for (auto matches = placeholders.globalMatch(format); matches.hasNext();) {
        const QRegularExpressionMatch placeholder = matches.next();
        result += QStringView(format).mid(from, placeholder.capturedStart() - from);
        result += filled(placeholder, text, number);
        from = placeholder.capturedEnd();
    }
    return result.append(QStringView(format).mid(from));
}

} // namespace controls
