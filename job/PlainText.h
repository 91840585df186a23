// SPDX-License-Identifier: Apache-2.0
// Text of strangers: printer descriptions, filters, print servers, file names. It reaches a terminal and a message only
// as what it looks like.
#pragma once

#include <QString>

namespace tapeprint::job
{

/// The text with everything that would steer a terminal or change how the rest is read written out: control characters
/// as "\n", "\t" or "\x1B", marks that turn the direction of writing and ends of line of Unicode as "\u202E", lone
/// surrogates as "\uD800". All other text stays as it is.
QString harmless(const QString &text);

} // namespace tapeprint::job
