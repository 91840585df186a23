// SPDX-License-Identifier: Apache-2.0
// The documents of the window's job as PDFs, made away from its thread and made anew when the page asks for it.
#pragma once

#include "dialog/BackgroundWork.h"
#include "job/LaidOutJob.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <optional>

namespace tapeprint::dialog
{

class DocumentDesk : public QObject
{
    Q_OBJECT

public:
    /// \param files the documents, only read.
    explicit DocumentDesk(QStringList files, QObject *parent = nullptr);

    /// Sees to it that there are PDFs for a job as it stands: for tape of every document, with what is drawn on them
    /// when the tape is to fit; for paper of those that are none already.
    /// \return whether they are being made: changed() follows.
    bool follow(const job::SettledJob &job);

    /// The documents; nothing as long as they are being made, or when one of them cannot be used.
    const std::optional<job::PdfDocuments> &documents() const { return mDocuments; }
    /// Why there are none, in a sentence; null when there is no such reason.
    const QString &problem() const { return mProblem; }

Q_SIGNALS:
    /// There are other documents, or another problem.
    void changed();

private:
    /// What the PDFs depend on.
    struct Needs {
        bool isTape = false;
        bool drawn = false;
        QSizeF textPagePt;                    ///< empty when no document is text
        std::optional<job::PaperSheet> sheet; ///< for paper, when a document is no PDF

        bool operator==(const Needs &) const = default;
    };

    QStringList mFiles;
    bool mHasText = false;
    bool mArePdfs = true; ///< whether each is one already
    std::optional<Needs> mNeeds;
    std::optional<job::PdfDocuments> mDocuments;
    QString mProblem;
    BackgroundWork mWork;
};

} // namespace tapeprint::dialog
