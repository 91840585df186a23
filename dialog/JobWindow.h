// SPDX-License-Identifier: Apache-2.0
// A window with all that it stands on, for programs that show one: the job, its panels, the dialog, in the order in
// which they may come and go.
#pragma once

#include "dialog/Panels.h"
#include "dialog/PrintDialog.h"
#include "job/Destination.h"
#include "job/Job.h"

#include <optional>

namespace tapeprint::dialog
{

class JobWindow
{
public:
    /// \param destination one that is open already; else the window opens its own.
    JobWindow(const PrintDialog::Setup &setup, PrintDialog::PrintAction print,
              std::optional<job::Destination> destination = std::nullopt);

    PrintDialog &dialog() { return mDialog; }
    const job::Job &job() const { return mJob; }

    /// What Print does as a rule: the documents are printed if they are still what they were. The window may have been
    /// open for hours.
    static PrintDialog::PrintAction printing(const QString &title, const QStringList &files,
                                             const job::FileStamps &sources);

private:
    job::Job mJob;
    Panels mPanels;
    PrintDialog mDialog;
};

} // namespace tapeprint::dialog
