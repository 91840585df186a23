// SPDX-License-Identifier: Apache-2.0
// One choice of a PPD option as the panel holds it: its title for the person and its keyword for the job.
#pragma once

#include <QString>

#include <optional>
#include <vector>

#include <cups/ppd.h>

/// Wraps a choice of the PPD. The choice is borrowed: it lives in the PPD, which outlives every record.
///
/// Both titles are made on first request and kept, so that a long list of choices costs nothing until it is read.
class PDEChoice
{
public:
    /// A new record for a choice of the PPD.
    static PDEChoice choiceWithChoice(const ppd_choice_t *choice);
    /// initWithChoice: stores the pointer; no title is made yet.
    explicit PDEChoice(const ppd_choice_t *choice);

    /// The choice's text, read as UTF-8. Null when the text is not valid UTF-8.
    QString userTitle() const;
    /// The choice's keyword, read as ASCII. Null when it holds anything else.
    QString ppdTitle() const;
    /// Whether the keyword is that text. A keyword that cannot be read is none, not even the empty text.
    bool hasPPDTitle(const QString &keyword) const;
    /// The wrapped choice.
    const ppd_choice_t *choice() const { return mChoice; }
    /// Whether the keyword is the owning option's default, in the 41 characters that a PPD keyword may have.
    bool isDefaultChoice() const;
    /// The record for a developer's eye: class, address, titles, mark and position among the option's choices.
    QString description() const;

private:
    mutable std::optional<QString> mUserTitle;
    mutable std::optional<QString> mPPDTitle;
    const ppd_choice_t *mChoice;
};

/// The choices of one option, in the PPD's order. A selection points at the very element.
using PDEChoiceArray = std::vector<PDEChoice>;
