// SPDX-License-Identifier: Apache-2.0
// Numbers to text and back without the C library's locale: a tape of 12.5 mm is "12.5" in every language.
#include "pdekit/Numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>

namespace pdekit
{

namespace
{

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

bool isSign(QChar c)
{
    return c == u'+' || c == u'-';
}

QStringView withoutLeadingSpace(QStringView text)
{
    qsizetype start = 0;
    while (start < text.size() && text[start].isSpace()) {
        ++start;
    }
    return text.sliced(start);
}

/// Where the digits end that begin at a position.
qsizetype endOfDigits(QStringView text, qsizetype from)
{
    while (from < text.size() && isDigit(text[from])) {
        ++from;
    }
    return from;
}

/// The length of the longest decimal number that a text begins with; 0 when it begins with none.
qsizetype decimalLength(QStringView text)
{
    const qsizetype digits = (!text.isEmpty() && isSign(text[0])) ? 1 : 0;
    qsizetype end = endOfDigits(text, digits);
    qsizetype digitCount = end - digits;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fractionEnd = endOfDigits(text, end + 1);
        digitCount += fractionEnd - end - 1;
        end = fractionEnd;
    }
    if (digitCount == 0) {
        return 0;
    }
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        qsizetype exponent = end + 1;
        if (exponent < text.size() && isSign(text[exponent])) {
            ++exponent;
        }
        const qsizetype exponentEnd = endOfDigits(text, exponent);
        if (exponentEnd > exponent) {
            end = exponentEnd;
        }
    }
    return end;
}

/// Whether a number that is out of range is too large (else it is too small): its first digit other than 0 stands
/// before the point once the exponent has been applied. \param number a decimal number without a sign.
bool isTooLarge(const std::string &number)
{
    const std::size_t mantissaEnd = std::min(number.find_first_of("eE"), number.size());
    const std::size_t point = std::min(number.find('.'), mantissaEnd);
    const std::size_t firstDigit = number.find_first_of("123456789");
    if (firstDigit == std::string::npos || firstDigit >= mantissaEnd) {
        return false;
    }
    const auto places = static_cast<std::int64_t>(point) - static_cast<std::int64_t>(firstDigit);
    std::int64_t exponent = 0;
    if (mantissaEnd < number.size()) {
        const bool negative = number[mantissaEnd + 1] == '-';
        const std::size_t start = mantissaEnd + (negative || number[mantissaEnd + 1] == '+' ? 2 : 1);
        // Beyond any length a text can have; more digits of the exponent decide nothing.
        constexpr std::int64_t kEnough = 1'000'000'000'000;
        for (std::size_t i = start; i < number.size() && exponent < kEnough; ++i) {
            exponent = exponent * 10 + (number[i] - '0');
        }
        exponent = negative ? -exponent : exponent;
    }
    return places + exponent > 0;
}

template <typename Real>
Real realValue(QStringView text)
{
    const QStringView rest = withoutLeadingSpace(text);
    const QStringView number = rest.first(decimalLength(rest));
    if (number.isEmpty()) {
        return Real{0};
    }
    const bool negative = number[0] == u'-';
    const std::string digits = number.sliced(isSign(number[0]) ? 1 : 0).toLatin1().toStdString();
    Real value{0};
    const std::from_chars_result result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (result.ec == std::errc::result_out_of_range) {
        value = isTooLarge(digits) ? std::numeric_limits<Real>::max() : Real{0};
    }
    value = std::min(value, std::numeric_limits<Real>::max());
    return negative ? -value : value;
}

/// \param past the first number above the range of Integer, as a double: exact, as it is a power of two.
template <typename Integer>
Integer truncated(double value, double past)
{
    if (std::isnan(value)) {
        return 0;
    }
    if (value >= past) {
        return std::numeric_limits<Integer>::max();
    }
    if (value <= -past) {
        return std::numeric_limits<Integer>::min();
    }
    return static_cast<Integer>(value);
}

} // namespace

double doubleValue(QStringView text)
{
    return realValue<double>(text);
}

float floatValue(QStringView text)
{
    return realValue<float>(text);
}

std::int32_t intValue(QStringView text)
{
    const QStringView rest = withoutLeadingSpace(text);
    const qsizetype start = (!rest.isEmpty() && isSign(rest[0])) ? 1 : 0;
    const bool negative = start == 1 && rest[0] == u'-';
    // One more than the largest value is enough: the number is held at the ends of the range.
    constexpr std::int64_t kLimit = std::int64_t{std::numeric_limits<std::int32_t>::max()} + 1;
    std::int64_t value = 0;
    for (qsizetype i = start; i < rest.size() && isDigit(rest[i]); ++i) {
        value = std::min<std::int64_t>(value * 10 + (rest[i].unicode() - u'0'), kLimit);
    }
    value = negative ? -value : std::min(value, kLimit - 1);
    return static_cast<std::int32_t>(value);
}

QString fixedDecimals(double value, int decimals)
{
    const int precision = std::max(decimals, 0);
    // Sign, the digits of the largest double, point, decimals.
    std::string text(static_cast<std::size_t>(std::numeric_limits<double>::max_exponent10) + 4 +
                         static_cast<std::size_t>(precision),
                     '\0');
    const std::to_chars_result result =
        std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, precision);
    return QString::fromLatin1(text.data(), result.ptr - text.data());
}

std::int32_t truncatedInt32(double value)
{
    return truncated<std::int32_t>(value, 0x1p31);
}

std::int64_t truncatedInt64(double value)
{
    return truncated<std::int64_t>(value, 0x1p63);
}

QString wholeNumber(double value)
{
    return QString::number(truncatedInt32(value));
}

QString shortestText(float value)
{
    char text[64];
    const std::to_chars_result result = std::to_chars(std::begin(text), std::end(text), value);
    return QString::fromLatin1(std::begin(text), result.ptr - std::begin(text));
}

} // namespace pdekit
