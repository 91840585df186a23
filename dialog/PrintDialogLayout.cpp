// SPDX-License-Identifier: Apache-2.0
// Where everything stands in the window. Every area can be made small: the rows by shortening their texts, the middle
// by scrolling, so that the buttons are never pushed off a small screen.
//
//   Printer [              ]          mPresetPlace
//   Tape    [              ]          Copies [  ]
//   notices
//   Settings [     ]                | Summary
//   page of the chooser             | Preview, Fit Length          mMiddle, which may lay the right below the left
//   mMoreButtonsPlace         mAmountPlace, Save     Cancel, Print
//   or, while it prints: what is told of the job
#include "dialog/AmountLabel.h"
#include "dialog/JobRow.h"
#include "dialog/MiddleArea.h"
#include "dialog/NoticesArea.h"
#include "dialog/PageStack.h"
#include "dialog/PanelArea.h"
#include "dialog/PaperMenu.h"
#include "dialog/PopUp.h"
#include "dialog/PreviewArea.h"
#include "dialog/PrintDialog.h"
#include "dialog/PrinterPopUp.h"
#include "dialog/SameWidth.h"
#include "dialog/ScrollingColumn.h"
#include "dialog/SummaryView.h"
#include "dialog/UnitButton.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

/// On half of a screen of 1366 by 768, which is what is left of it at 200 %, the window is still whole.
constexpr QSize smallestPagesArea(280, 64);
constexpr int smallGap = 4;

QLabel *makeLabel(const QString &text, QWidget *buddy)
{
    auto *label = new QLabel(text, buddy->parentWidget());
    label->setBuddy(buddy);
    return label;
}

} // namespace

void PrintDialog::buildControls()
{
    auto *layout = new QVBoxLayout(this);
    // A panel is as wide as its vendor made it: on a screen of 800 pixels the window's own gaps leave it the room.
    const QMargins usual = layout->contentsMargins();
    layout->setContentsMargins(smallGap, usual.top(), smallGap, usual.bottom());
    layout->addWidget(makeDestinationRows());
    mNotices = new NoticesArea(this);
    // The page below would scroll otherwise. When the words have their place, as this may come from within a panel.
    connect(mNotices, &NoticesArea::grew, this, &PrintDialog::growUnlessSized, Qt::QueuedConnection);
    makeConflictNotice();
    layout->addWidget(mNotices);
    mMiddle = new MiddleArea(this);
    QWidget *pages = makePagesArea();
    mMiddle->setPages(pages, mPanelArea, mPages);
    mMiddle->setResult(makeResultArea(), mRightColumn);
    layout->addWidget(mMiddle, 1);
    layout->addWidget(makeButtons());
}

QWidget *PrintDialog::makeDestinationRows()
{
    auto *rows = new QWidget(this);
    auto *grid = new QGridLayout(rows);
    grid->setContentsMargins({});
    mPrinterPopUp = new PrinterPopUp(rows);
    mPrinterPopUp->setObjectName(QStringLiteral("printer"));
    mPrinterPlace = new QHBoxLayout;
    mPrinterPlace->addWidget(mPrinterPopUp, 1);
    mPresetPlace = new QHBoxLayout;
    mPresetRow = makePresetRow();
    mPresetPlace->addWidget(mPresetRow);
    mPrinterLabel = makeLabel(tr("P&rinter:"), mPrinterPopUp);
    grid->addWidget(mPrinterLabel, 0, 0);
    grid->addLayout(mPrinterPlace, 0, 1);
    grid->addLayout(mPresetPlace, 0, 2, 1, 2);

    mTapePopUp = new PopUp(rows);
    mTapePopUp->setObjectName(QStringLiteral("tape"));
    mPapers = new PaperMenu(*mTapePopUp, mJob, mUnit, this);
    mPapers->setCurrentSize([this] { return currentJob().page.sizePt; }); // with the length that a panel shows
    mTapeLabel = makeLabel({}, mTapePopUp);
    mCopiesField = new QSpinBox(rows);
    mCopiesField->setObjectName(QStringLiteral("copies"));
    mCopiesField->setLocale(numbersLocale());
    mCopiesField->setRange(1, mostCopies);
    grid->addWidget(mTapeLabel, 1, 0);
    grid->addWidget(mTapePopUp, 1, 1);
    grid->addWidget(makeLabel(tr("&Copies:"), mCopiesField), 1, 2);
    auto *copiesPlace = new QHBoxLayout;
    copiesPlace->addWidget(mCopiesField, 1);
    copiesPlace->addWidget(new UnitButton(mUnit, rows));
    grid->addLayout(copiesPlace, 1, 3);
    mRightColumn = new SameWidth(rows);
    grid->addWidget(mRightColumn, 0, 2, 1, 2);
    grid->setColumnStretch(1, 1);
    grid->setHorizontalSpacing(smallGap);
    return rows;
}

/// The controls of the left column begin at one edge.
void PrintDialog::alignLabels()
{
    int width = 0;
    for (const QLabel *label : {mPrinterLabel, mTapeLabel, mChooserLabel}) {
        width = std::max(width, label->sizeHint().width());
    }
    for (QLabel *label : {mPrinterLabel, mTapeLabel, mChooserLabel}) {
        label->setMinimumWidth(width);
    }
}

QWidget *PrintDialog::makePagesArea()
{
    auto *area = new QWidget(this);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    mChooserRow = new QWidget(area);
    mPageChooser = new PopUp(mChooserRow);
    mPageChooser->setObjectName(QStringLiteral("pageChooser"));
    auto *chooserLayout = new QHBoxLayout(mChooserRow);
    chooserLayout->setContentsMargins({});
    chooserLayout->setSpacing(smallGap);
    mChooserLabel = makeLabel(tr("Setti&ngs:", "which page of them"), mPageChooser);
    chooserLayout->addWidget(mChooserLabel);
    chooserLayout->addWidget(mPageChooser, 1);
    layout->addWidget(mChooserRow);
    mPanelArea = new PanelArea(area);
    mPanelArea->setWidgetResizable(true);
    mPanelArea->setFocusPolicy(Qt::NoFocus); // what is in it takes the keys, and is scrolled to
    mPanelArea->setMinimumSize(smallestPagesArea);
    mPanelArea->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Expanding);
    mPages = new PageStack;
    mPanelArea->setWidget(mPages);
    layout->addWidget(mPanelArea, 1);
    return area;
}

ScrollingColumn *PrintDialog::makeResultArea()
{
    auto *area = new ScrollingColumn(this);
    // What the pages do not need makes the preview larger.
    area->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    area->column()->addWidget(makeSummary(area));
    mPreview = new PreviewArea(area);
    mPreview->setShowsAmount(false); // it stands beside Print
    auto *preview = new QVBoxLayout; // they stay together, also where the summary stands beside them
    preview->addWidget(mPreview, 1);
    preview->addWidget(makeFitControls(area));
    preview->addStretch(); // where nothing is previewed
    area->column()->addLayout(preview, 1);
    return area;
}

QWidget *PrintDialog::makeSummary(QWidget *parent)
{
    // A heading and no group box, whose frame some styles keep in a picture file: see StateMark.h for what that costs.
    auto *area = new QWidget(parent);
    mSummary = new SummaryView(area);
    auto *heading = new QLabel(tr("Summary"), area);
    heading->setObjectName(QStringLiteral("summaryHeading"));
    heading->setTextFormat(Qt::PlainText);
    auto *layout = new QVBoxLayout(area);
    layout->setContentsMargins({});
    layout->addWidget(heading, 0, Qt::AlignLeft); // mirrored with the layout, whatever the text's own direction
    layout->addWidget(mSummary);
    return area;
}

QWidget *PrintDialog::makeFitControls(QWidget *parent)
{
    mFitControls = new QWidget(parent);
    auto *layout = new QHBoxLayout(mFitControls);
    layout->setContentsMargins({});
    mFitButton = new QPushButton(tr("&Fit Length"), mFitControls);
    mFitButton->setObjectName(QStringLiteral("fitLength"));
    mFitButton->setAutoDefault(false);
    mFitButton->setToolTip(tr("Make the tape as long as what is drawn needs, with both margins"));
    mKeepFitting = new QCheckBox(tr("&Keep it fitted"), mFitControls);
    mKeepFitting->setObjectName(QStringLiteral("keepFitting"));
    layout->addWidget(mFitButton);
    layout->addWidget(mKeepFitting);
    layout->addStretch();
    return mFitControls;
}

QWidget *PrintDialog::makeButtons()
{
    auto *row = new QWidget(this);
    auto *rowLayout = new QHBoxLayout(row);
    rowLayout->setContentsMargins({});
    // While a job is sent, what is told of it stands where nothing can be pressed then: no room is taken from the
    // pages. A stack would keep the height of what was told last.
    mIdleRow = new QWidget(row);
    mJobRow = new JobRow(row);
    mJobRow->hide();
    rowLayout->addWidget(mIdleRow, 1);
    rowLayout->addWidget(mJobRow, 1);
    QWidget *buttons = mIdleRow;
    auto *layout = new QHBoxLayout(buttons);
    layout->setContentsMargins({});
    mRevertButton = new QPushButton(tr("Re&vert"), buttons);
    mRevertButton->setObjectName(QStringLiteral("revert"));
    mRevertButton->setToolTip(tr("Go back to the values that the dialog was opened with"));
    mRevertButton->setAutoDefault(false);
    mMoreButtonsPlace = new QHBoxLayout;
    mMoreButtonsPlace->addWidget(mRevertButton);
    mAmountPlace = new QHBoxLayout;
    mCancelButton = new QPushButton(tr("Cancel"), row);
    mCancelButton->setObjectName(QStringLiteral("cancel"));
    mCancelButton->setAutoDefault(false);
    mPrintButton = new QPushButton(tr("&Print"), row);
    mPrintButton->setObjectName(QStringLiteral("print"));
    mPrintButton->setDefault(true);
    layout->addLayout(mMoreButtonsPlace);
    layout->addStretch();
    layout->addLayout(mAmountPlace);
    mAmount = new AmountLabel(buttons);
    mAmountPlace->addWidget(mAmount);
    mSaveButton = new SaveButton(mSetup.title, buttons);
    layout->addWidget(mSaveButton);
    rowLayout->addWidget(mCancelButton);
    rowLayout->addWidget(mPrintButton);
    return row;
}

} // namespace tapeprint::dialog
