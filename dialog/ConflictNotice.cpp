// SPDX-License-Identifier: Apache-2.0
// A way out is looked for only when the conflicts are others than before: it may take some trying.
#include "dialog/ConflictNotice.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace tapeprint::dialog
{

ConflictNotice::ConflictNotice(QWidget *parent) : QWidget(parent)
{
    auto *line = new QHBoxLayout(this);
    line->setContentsMargins({});
    mText = new QLabel(this);
    mText->setObjectName(QStringLiteral("conflicts"));
    mText->setTextFormat(Qt::PlainText);
    mText->setWordWrap(true);
    mText->setTextInteractionFlags(Qt::TextSelectableByMouse);
    mButton = new QPushButton(tr("Re&solve"), this);
    mButton->setObjectName(QStringLiteral("resolve"));
    mButton->setAutoDefault(false);
    connect(mButton, &QPushButton::clicked, this, &ConflictNotice::resolveWanted);
    line->addWidget(mText, 1);
    line->addWidget(mButton, 0, Qt::AlignTop);
    hide();
}

void ConflictNotice::follow(const job::Job &job)
{
    mConflicts = job::conflictsOf(job.ppd());
    const QString followed = sentences() + u'\n' + job.lastChanged();
    if (followed == mFollowed) {
        return;
    }
    mFollowed = followed;
    const QStringList wanted = QStringList{job.lastChanged()} + job::latestFirst(job.laidDown());
    mResolution = isAny() ? job::resolutionOf(job.ppd(), wanted) : std::nullopt;
    setVisible(isAny());
    mButton->setVisible(mResolution.has_value());
    if (isAny()) {
        mText->setText(sentences() + u'\n' +
                       (mResolution ? tr("Resolve: %1", "the button, and what it changes").arg(mResolution->sentence())
                                    : tr("Choose something else for one of them.")));
        mButton->setAccessibleDescription(mResolution ? mResolution->sentence() : QString());
    }
}

QHash<QString, QString> ConflictNotice::sentencesByOption() const
{
    QHash<QString, QString> byOption;
    for (const job::Conflict &conflict : mConflicts) {
        for (const job::ConflictingChoice &choice : conflict.choices) {
            QString &sentences = byOption[choice.key];
            sentences += (sentences.isEmpty() ? QString() : QStringLiteral("\n")) + conflict.sentence();
        }
    }
    return byOption;
}

} // namespace tapeprint::dialog
