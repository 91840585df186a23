// SPDX-License-Identifier: Apache-2.0
#include "dialog/JobRow.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>

namespace tapeprint::dialog
{

JobRow::JobRow(QWidget *parent)
    : QWidget(parent), mWords(new QLabel(this)), mBar(new QProgressBar(this)),
      mClose(new QPushButton(tr("Close"), this))
{
    constexpr int barWidth = 100;
    constexpr int whole = 100;
    mWords->setObjectName(QStringLiteral("jobWords"));
    mWords->setTextFormat(Qt::PlainText);
    mWords->setWordWrap(true);
    mBar->setObjectName(QStringLiteral("jobProgress"));
    mBar->setMaximum(whole);
    mBar->setTextVisible(false);
    mBar->setFixedWidth(barWidth);
    mBar->setAccessibleName(tr("Printing"));
    QSizePolicy keepsPlace = mBar->sizePolicy();
    keepsPlace.setRetainSizeWhenHidden(true);
    mBar->setSizePolicy(keepsPlace);
    mClose->setObjectName(QStringLiteral("closeButton"));
    mClose->setAutoDefault(false);
    mClose->setToolTip(tr("The job goes on without this window"));
    mClose->hide();
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(mWords, 1);
    layout->addWidget(mBar);
    layout->addWidget(mClose);
}

void JobRow::tell(const QString &words, int percent)
{
    constexpr int whole = 100;
    mWords->setText(words);
    mWords->setAccessibleName(words);
    mBar->setMaximum(percent < 0 ? 0 : whole); // without an end it only moves
    mBar->setValue(percent < 0 ? 0 : percent);
    mBar->setVisible(percent != 0); // an empty one looks like a field to type in
}

void JobRow::setCanClose(bool canClose)
{
    mClose->setVisible(canClose);
}

} // namespace tapeprint::dialog
