// SPDX-License-Identifier: Apache-2.0
// Panels are made before the window is, when their printer is known by then.
#include "dialog/JobWindow.h"

#include "job/Printing.h"

#include <QLocale>

#include <utility>

#include <pdekit/BundleLoading.h>

namespace tapeprint::dialog
{

namespace
{

/// The job as the window is to find it.
job::Job &opened(job::Job &job, Panels &panels, std::optional<job::Destination> destination,
                 const job::JobOptions &options)
{
    job.setLanguages(QLocale().uiLanguages());
    if (destination) {
        panels.open(std::move(*destination), options);
    }
    return job;
}

} // namespace

JobWindow::JobWindow(const PrintDialog::Setup &setup, PrintDialog::PrintAction print,
                     std::optional<job::Destination> destination)
    : mPanels(mJob, pdekit::bundleSearchPath()),
      mDialog(opened(mJob, mPanels, std::move(destination), setup.request.options), mPanels, setup, std::move(print))
{
}

PrintDialog::PrintAction JobWindow::printing(const QString &title, const QStringList &files,
                                             const job::FileStamps &sources)
{
    return [title, files, sources](const job::SettledJob &settled, const job::PrintWatch &watch, job::Problem *reason) {
        return job::areUnchanged(sources, reason) ? job::printJob(settled, title, files, watch, reason) : std::nullopt;
    };
}

} // namespace tapeprint::dialog
