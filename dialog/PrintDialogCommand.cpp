// SPDX-License-Identifier: Apache-2.0
// Show Command: the settings as they stand, typed ones too, as commands for a shell.
#include "dialog/PrintDialog.h"
#include "dialog/ShowCommand.h"
#include "job/CommandText.h"
#include "job/CustomValues.h"
#include "job/OutputFile.h"

#include <QDir>
#include <QHBoxLayout>
#include <QPushButton>

namespace tapeprint::dialog
{

void PrintDialog::addCommandButton()
{
    auto *button = new QPushButton(tr("Sho&w Command…"), mRevertButton->parentWidget());
    button->setObjectName(QStringLiteral("showCommand"));
    button->setToolTip(tr("The same job as a command for a shell"));
    button->setAutoDefault(false);
    mMoreButtonsPlace->addWidget(button);
    connect(button, &QPushButton::clicked, this, &PrintDialog::showCommand);
}

void PrintDialog::showCommand()
{
    job::CommandSource source;
    source.job = currentJob();
    // The command may be run in another folder.
    if (!source.job.ppdPath.isEmpty()) {
        source.job.ppdPath = QDir::current().absoluteFilePath(source.job.ppdPath);
    }
    if (!source.job.outputPath.isEmpty() && !job::isStandardOutput(source.job.outputPath)) {
        source.job.outputPath = QDir::current().absoluteFilePath(source.job.outputPath);
    }
    source.title = mSetup.title;
    for (const job::FileStamp &document : mSetup.request.documents) {
        if (!document.path.isNull()) { // standard input has no name to give
            source.files.append(QDir::current().absoluteFilePath(document.path));
        }
    }
    source.options = job::withoutSecrets(mJob.ppd(), source.job.options);
    source.carried = job::withoutSecrets(mJob.ppd(), source.job.carried());
    ShowCommand(job::tapeprintCommand(source), job::lpCommand(source), this).exec();
}

} // namespace tapeprint::dialog
