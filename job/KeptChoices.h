// SPDX-License-Identifier: Apache-2.0
// What a person chose on one printer and keeps when they turn to another: what the other printer's PPD has as well.
#pragma once

#include "job/JobOptions.h"

#include <QSet>
#include <QString>

#include <optional>

#include <pdekit/PrintingCore.h>

#include <cups/ppd.h>

namespace tapeprint::job
{

class KeptChoices
{
public:
    /// The person leaves a printer.
    /// \param opened the options that the job had when the printer was opened, \param left those it has now.
    /// \param ppd the printer's; may be null.
    void leave(const JobOptions &opened, const JobOptions &left, ppd_file_t *ppd);

    /// What of it a printer can have: a choice that its PPD lists, an own value within its limits, a number that was no
    /// listed choice before either and so is a panel's, a paper of the same size whatever it is called, and everything
    /// that is no matter of a PPD, such as copies and pages.
    /// \param ppd the printer's; may be null. \param saved what the person saved with the instance that they turn to:
    /// it goes before what they chose elsewhere.
    JobOptions fitting(ppd_file_t *ppd, const JobOptions &saved) const;

    bool isEmpty() const { return mGeneral.entries().empty() && mOfPpd.entries().empty(); }

private:
    QString fittingPaper(ppd_file_t *ppd, const QString &name) const;

    JobOptions mGeneral;                 ///< what every printer takes
    JobOptions mOfPpd;                   ///< options of some printer's PPD
    QSet<QString> mUnlisted;             ///< those of them whose value that PPD did not list
    std::optional<pdekit::Paper> mPaper; ///< the paper behind PageSize in mOfPpd
};

} // namespace tapeprint::job
