// SPDX-License-Identifier: Apache-2.0
// XML property lists through libplist. Its trees are walked and freed by recursion, so what nests too deep is refused
// before a tree is made of it; see PlainXml.h for what libplist is given.
#include "pdekit/PropertyList.h"

#include "PlainXml.h"
#include "pdekit/CLocale.h"
#include "pdekit/Numbers.h"

#include <QDateTime>
#include <QStringList>
#include <QVariantMap>

#include <cmath>
#include <cstdlib>
#include <limits>
#include <memory>
#include <type_traits>

#include <plist/plist.h>

namespace pdekit
{

namespace
{

/// Seconds from the Unix epoch to the epoch of property-list dates, 2001-01-01T00:00:00Z.
constexpr qint64 kPropertyListEpoch = 978307200;

struct PlistDeleter {
    void operator()(void *node) const { plist_free(node); }
};
using Plist = std::unique_ptr<std::remove_pointer_t<plist_t>, PlistDeleter>;

struct MallocDeleter {
    void operator()(void *memory) const { std::free(memory); }
};
using CString = std::unique_ptr<char, MallocDeleter>;

std::optional<QVariant> valueOfNode(plist_t node);

std::optional<QVariant> valueOfArray(plist_t node)
{
    QVariantList list;
    const std::uint32_t count = plist_array_get_size(node);
    for (std::uint32_t i = 0; i < count; ++i) {
        const std::optional<QVariant> item = valueOfNode(plist_array_get_item(node, i));
        if (!item) {
            return std::nullopt;
        }
        list.append(*item);
    }
    return list;
}

std::optional<QVariant> valueOfDictionary(plist_t node)
{
    QVariantMap map;
    plist_dict_iter rawIterator = nullptr;
    plist_dict_new_iter(node, &rawIterator);
    const std::unique_ptr<void, MallocDeleter> iterator(rawIterator);
    for (;;) {
        char *rawKey = nullptr;
        plist_t child = nullptr;
        plist_dict_next_item(node, iterator.get(), &rawKey, &child);
        const CString key(rawKey);
        if (child == nullptr) {
            return map;
        }
        const std::optional<QVariant> item = valueOfNode(child);
        if (!item) {
            return std::nullopt;
        }
        map.insert(QString::fromUtf8(key.get()), *item);
    }
}

QVariant valueOfDate(plist_t node)
{
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    return QDateTime::fromMSecsSinceEpoch((kPropertyListEpoch + seconds) * 1000 + microseconds / 1000, Qt::UTC);
}

std::optional<QVariant> valueOfNode(plist_t node)
{
    char *text = nullptr;
    std::uint64_t integer = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return flag != 0;
    }
    case PLIST_UINT:
        plist_get_uint_val(node, &integer);
        return QVariant::fromValue(static_cast<qlonglong>(integer));
    case PLIST_REAL: {
        double real = 0.0;
        plist_get_real_val(node, &real);
        return real;
    }
    case PLIST_STRING: {
        plist_get_string_val(node, &text);
        const CString owned(text);
        return text == nullptr ? QStringLiteral("") : QString::fromUtf8(text);
    }
    case PLIST_DATA: {
        plist_get_data_val(node, &text, &integer);
        const CString owned(text);
        return QByteArray(text, static_cast<qsizetype>(integer));
    }
    case PLIST_DATE:
        return valueOfDate(node);
    case PLIST_ARRAY:
        return valueOfArray(node);
    case PLIST_DICT:
        return valueOfDictionary(node);
    case PLIST_UID:
        plist_get_uid_val(node, &integer);
        return QVariantMap{{QStringLiteral("CF$UID"), static_cast<qlonglong>(integer)}};
    case PLIST_KEY:
    case PLIST_NONE:
        break;
    }
    return std::nullopt;
}

/// Whether XML can hold a text: no control characters but white space, no halves of surrogate pairs.
bool isXmlText(const QString &text)
{
    for (const QChar c : text) {
        const bool isWhiteSpace = c == u'\t' || c == u'\n' || c == u'\r';
        if ((c < u' ' && !isWhiteSpace) || c == QChar(0xFFFE) || c == QChar(0xFFFF)) {
            return false;
        }
    }
    return text.isValidUtf16();
}

Plist nodeOfValue(const QVariant &value, int depth);

Plist nodeOfDictionary(const QVariantMap &map, int depth)
{
    Plist node(plist_new_dict());
    for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry) {
        Plist child = nodeOfValue(*entry, depth + 1);
        if (!child || !isXmlText(entry.key())) {
            return nullptr;
        }
        plist_dict_set_item(node.get(), entry.key().toUtf8().constData(), child.release());
    }
    return node;
}

Plist nodeOfList(const QVariantList &list, int depth)
{
    Plist node(plist_new_array());
    for (const QVariant &item : list) {
        Plist child = nodeOfValue(item, depth + 1);
        if (!child) {
            return nullptr;
        }
        plist_array_append_item(node.get(), child.release());
    }
    return node;
}

Plist nodeOfString(const QString &text)
{
    return Plist(isXmlText(text) ? plist_new_string(text.toUtf8().constData()) : nullptr);
}

/// Dates are held in 32-bit seconds from 2001: 1932 to 2069.
Plist nodeOfDate(const QDateTime &date)
{
    const qint64 seconds = date.toSecsSinceEpoch() - kPropertyListEpoch;
    if (!date.isValid() || seconds < std::numeric_limits<std::int32_t>::min() ||
        seconds > std::numeric_limits<std::int32_t>::max()) {
        return nullptr;
    }
    return Plist(plist_new_date(static_cast<std::int32_t>(seconds), 0));
}

Plist nodeOfValue(const QVariant &value, int depth)
{
    if (depth > kMaximumDepth) {
        return nullptr;
    }
    switch (value.typeId()) {
    case QMetaType::Bool:
        return Plist(plist_new_bool(value.toBool() ? 1 : 0));
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
        return Plist(plist_new_uint(static_cast<std::uint64_t>(value.toLongLong())));
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return Plist(plist_new_uint(value.toULongLong()));
    case QMetaType::Float:
    case QMetaType::Double:
        return Plist(std::isfinite(value.toDouble()) ? plist_new_real(value.toDouble()) : nullptr);
    case QMetaType::QString:
        return nodeOfString(value.toString());
    case QMetaType::QByteArray: {
        const QByteArray data = value.toByteArray();
        return Plist(plist_new_data(data.constData(), static_cast<std::uint64_t>(data.size())));
    }
    case QMetaType::QDateTime:
        return nodeOfDate(value.toDateTime());
    case QMetaType::QStringList:
    case QMetaType::QVariantList:
        return nodeOfList(value.toList(), depth);
    case QMetaType::QVariantMap:
        return nodeOfDictionary(value.toMap(), depth);
    default:
        return nullptr;
    }
}

} // namespace

std::optional<QVariant> propertyListFromXml(const QByteArray &xml)
{
    const std::optional<QByteArray> plain = plainXml(xml);
    if (!plain || plain->size() > std::numeric_limits<std::int32_t>::max()) {
        return std::nullopt;
    }
    const CLocale locale; // libplist reads and writes reals with the C library
    plist_t root = nullptr;
    plist_from_xml(plain->constData(), static_cast<std::uint32_t>(plain->size()), &root);
    const Plist owned(root);
    return root == nullptr ? std::nullopt : valueOfNode(root);
}

QByteArray propertyListToXml(const QVariant &value)
{
    const CLocale locale;
    const Plist root = nodeOfValue(value, 0);
    if (!root) {
        return {};
    }
    char *text = nullptr;
    std::uint32_t length = 0;
    plist_to_xml(root.get(), &text, &length);
    const CString owned(text);
    return text == nullptr ? QByteArray() : QByteArray(text, static_cast<qsizetype>(length));
}

std::optional<std::int32_t> propertyListInt32(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
        return value.toBool() ? 1 : 0;
    case QMetaType::Float:
    case QMetaType::Double:
        return truncatedInt32(value.toDouble());
    case QMetaType::ULong:
    case QMetaType::ULongLong:
        return static_cast<std::int32_t>(static_cast<std::uint32_t>(value.toULongLong() & 0xFFFFFFFFU));
    case QMetaType::Int:
    case QMetaType::LongLong:
    case QMetaType::UInt:
    case QMetaType::Short:
    case QMetaType::UShort:
    case QMetaType::Long:
        return static_cast<std::int32_t>(
            static_cast<std::uint32_t>(static_cast<std::uint64_t>(value.toLongLong()) & 0xFFFFFFFFU));
    default:
        return std::nullopt;
    }
}

} // namespace pdekit
