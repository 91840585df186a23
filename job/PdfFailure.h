// SPDX-License-Identifier: Apache-2.0
// What libqpdf says of a document, as a sentence for the person.
#pragma once

#include <QString>

#include <exception>

namespace tapeprint::job
{

/// The reason alone, to be put into a sentence.
QString pdfFailureReason(const std::exception &failure);

/// The sentence about a document that cannot be opened. \param shownAs how the sentence names it.
QString pdfOpeningFailure(const QString &shownAs, const std::exception &failure);

} // namespace tapeprint::job
