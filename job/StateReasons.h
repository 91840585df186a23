// SPDX-License-Identifier: Apache-2.0
// The reasons that a printer gives for its state, as IPP keywords (RFC 8011, 5.4.12), and what they mean in words.
#pragma once

#include <QString>
#include <QStringList>

#include <vector>

namespace tapeprint::job
{

/// How much a reason weighs, in rising order.
enum class ReasonWeight {
    Report,  ///< for those who want to know
    Warning, ///< printing goes on for now
    Error    ///< somebody has to see to it
};

/// One reason: a keyword without its ending, and the weight that the ending stood for.
struct StateReason {
    QString keyword;
    ReasonWeight weight = ReasonWeight::Error;

    /// Reads a keyword such as "media-empty-error". Without an ending it is an error, as the standard has it, unless
    /// the keyword itself says something harmless.
    static StateReason parse(const QString &keyword);
    /// In words, such as "out of tape"; a keyword that is not known as it stands, with blanks between its parts.
    /// \param isTape whether the printer prints on tape; else it is paper that runs out.
    QString words(bool isTape) const;

    bool operator==(const StateReason &other) const = default;
};

/// The reasons among the values of printer-state-reasons, the heaviest first; "none" is none.
std::vector<StateReason> stateReasons(const QStringList &keywords);

} // namespace tapeprint::job
