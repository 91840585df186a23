// SPDX-License-Identifier: Apache-2.0
// XML property lists to and from Qt values.
#pragma once

#include "pdekit/Export.h"

#include <QByteArray>
#include <QVariant>

#include <cstdint>
#include <optional>

namespace pdekit
{

/// Reads an XML property list. Dictionaries become QVariantMap, arrays QVariantList, strings QString, data QByteArray,
/// dates QDateTime (UTC), integers qlonglong, reals double, booleans bool.
/// The encoding is that of the byte order mark, else the one that the XML declaration names, else UTF-8; whole numbers
/// are decimal, whatever zeros they begin with.
/// \return std::nullopt when the bytes are not an XML property list in that encoding, nest deeper than 128, declare
/// entities or the like of their own, or hold a tag of more than 1024 characters.
PDEKIT_EXPORT std::optional<QVariant> propertyListFromXml(const QByteArray &xml);

/// Writes a value as an XML property list. \return empty bytes when the value holds something a property list cannot.
PDEKIT_EXPORT QByteArray propertyListToXml(const QVariant &value);

/// A property-list number as a signed 32-bit integer: an integer gives its low 32 bits, a real is truncated toward zero
/// and held at the ends of the range, a boolean gives 0 or 1. \return std::nullopt for anything that is no number.
PDEKIT_EXPORT std::optional<std::int32_t> propertyListInt32(const QVariant &value);

} // namespace pdekit
