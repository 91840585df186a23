// SPDX-License-Identifier: Apache-2.0
// XML as libplist can take it: in UTF-8, of elements and text alone, and of a depth that can be walked.
#pragma once

#include <QByteArray>

#include <optional>

namespace pdekit
{

/// How deep elements, or values, may nest: real settings nest a handful deep.
inline constexpr int kMaximumDepth = 128;

/// The elements and texts of a document, whatever its encoding, without attributes, comments and declarations; whole
/// numbers are written as libplist reads them. Takes memory and time in proportion to the document's size.
/// \return std::nullopt for bytes that are no well-formed XML in the encoding they name, that nest too deep to be
/// walked, or that refer to entities of their own: no property list needs one, and a few of them can stand for
/// gigabytes or for somebody's file.
std::optional<QByteArray> plainXml(const QByteArray &xml);

} // namespace pdekit
