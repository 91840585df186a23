// SPDX-License-Identifier: Apache-2.0
// Printing with settings that were chosen before the program's pages came: without a window, but not without a word
// when it goes wrong.
#pragma once

#include "dialog/PrintRun.h"
#include "portal/Tokens.h"

#include <QObject>
#include <QString>
#include <QTimer>

namespace tapeprint::portal
{

/// Prints a document with chosen settings, in the calling thread. Pages that the program has laid out on the very paper
/// that it was told are printed as they are. As job::printJob() otherwise.
std::optional<job::PrintedJob> printChosen(const job::SettledJob &chosen, const QString &title, const QString &document,
                                           const job::PrintWatch &watch, job::Problem *error);

class SilentPrint : public QObject
{
    Q_OBJECT

public:
    SilentPrint(ChosenSettings settings, QString document, QObject *parent = nullptr);

    void start();
    /// Nobody wants it any more: what is not sent yet is not printed.
    void cancel();

Q_SIGNALS:
    /// The print server has the job.
    void sent();
    /// Nothing is printed, or not as it should be. Without a sentence it was stopped.
    void failed(const job::Problem &problem);
    /// There is nothing more to wait for.
    void ended();

private:
    ChosenSettings mSettings;
    QString mDocument;
    dialog::PrintRun mRun;
    QTimer mLeaveTimer; ///< when it ends, a job that waits is followed no longer
};

} // namespace tapeprint::portal
