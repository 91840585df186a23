// SPDX-License-Identifier: Apache-2.0
// The notice about options that do not go together, with a button that changes what it says it changes.
#pragma once

#include "job/Conflicts.h"
#include "job/Job.h"

#include <QHash>
#include <QWidget>

#include <optional>
#include <vector>

class QLabel;
class QPushButton;

namespace tapeprint::dialog
{

class ConflictNotice : public QWidget
{
    Q_OBJECT

public:
    explicit ConflictNotice(QWidget *parent = nullptr);

    /// Looks for conflicts in the job as it is now; hidden when there is none.
    void follow(const job::Job &job);

    bool isAny() const { return !mConflicts.empty(); }
    /// What does not go together, a sentence on a line.
    QString sentences() const { return job::sentencesOf(mConflicts).join(u'\n'); }
    /// What does not go with each option, by its keyword.
    QHash<QString, QString> sentencesByOption() const;
    /// What the button changes; nothing where no way out is known.
    const std::optional<job::Resolution> &resolution() const { return mResolution; }

Q_SIGNALS:
    /// The person wants the conflicts resolved as resolution() says.
    void resolveWanted();

private:
    std::vector<job::Conflict> mConflicts;
    std::optional<job::Resolution> mResolution;
    QString mFollowed; ///< what was resolved last: what conflicts, and what is to be kept
    QLabel *mText = nullptr;
    QPushButton *mButton = nullptr;
};

} // namespace tapeprint::dialog
