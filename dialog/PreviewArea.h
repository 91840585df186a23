// SPDX-License-Identifier: Apache-2.0
// What will come out of the printer: a label, the others to page to, how much tape they take, and what to know of them.
#pragma once

#include "dialog/Amount.h"
#include "dialog/PageRenderer.h"
#include "dialog/TapeLook.h"
#include "job/LabelPlan.h"

#include <QStringList>
#include <QWidget>

#include <cstddef>
#include <optional>
#include <vector>

class QLabel;
class QToolButton;

namespace tapeprint::dialog
{

class TapePreview;

class PreviewArea : public QWidget
{
    Q_OBJECT

public:
    explicit PreviewArea(QWidget *parent = nullptr);

    /// The documents of the job, as PDF files; they are shown as soon as they are read. \param shownAs how sentences
    /// name them, one by one; where it ends, by their paths. \param laidOn which are sheets of paper as they are.
    void setDocuments(const QStringList &pdfPaths, const QStringList &shownAs = {}, job::LaidOnSheets laidOn = {});
    /// Documents are being made, and will be given by setDocuments() or refused by setProblem().
    void expectDocuments() { mExpectsDocuments = true; }
    /// Why the documents cannot be shown, in a sentence; null when they can.
    void setProblem(const QString &problem);
    /// There is nothing to draw, whatever the documents. \param why in a sentence; null when there is something again.
    void setNoPreview(const QString &why);
    /// That sentence; null when there is none.
    const QString &whyNone() const { return mWhyNone; }
    /// The documents are another program's, which makes them when the settings are final. \param about a sentence about
    /// them; null when there is none.
    void awaitProgram(const QString &about);
    /// Whether the printer is one that is loaded with tape, whatever the page in it.
    void setIsTapePrinter(bool isTapePrinter);
    /// Whether the amount that comes out of the printer is told here; it is where nobody else tells it.
    void setShowsAmount(bool shows) { mShowsAmount = shows; }
    /// Follows the job. \param options its options as they stand this moment.
    void follow(const job::TapePage &page, const job::JobOptions &options, const TapeLook &look);

    /// What is shown: every label of the job. Without labels as long as the documents are being read.
    const job::LabelPlan &plan() const { return mPlan; }
    /// How much the job prints; nothing as long as that is not known, and for documents that cannot be read.
    std::optional<Amount> amount() const;
    /// Whether what is to be counted is still being made or read.
    bool isCounting() const;
    /// Index of the label that is shown.
    std::size_t label() const { return mLabel; }
    /// Whether something is still to come: documents being read, pages being rendered.
    bool isWorking() const
    {
        return mExpectsDocuments || mRenderer.isReading() || mRenderer.isMeasuring() || mRenderer.isRendering();
    }

Q_SIGNALS:
    /// The documents have been read: the plan has its labels.
    void planned();
    /// How much is printed may have changed, or is known now.
    void amountChanged();
    /// Everything that is to be seen is there.
    void settled();

protected:
    void changeEvent(QEvent *event) override;

private:
    QWidget *makePaging();
    void pointArrows();
    void planAnew();
    void turnTo(std::size_t label);
    void showLabel();
    void askForPages();
    void showWords();
    const job::Label &shownLabel() const;
    QRectF partThatCounts(const job::PlacedPage &page) const;
    bool isCutOff() const;
    bool isBlank();
    QStringList messages();

    job::TapePage mPage;
    job::JobOptions mOptions;
    TapeLook mLook;
    QString mProblem;
    QString mRoomProblem; ///< of the tape, as job::roomProblem()
    QString mWhyNone;
    bool mExpectsDocuments = false;
    QStringList mAwaited; ///< sentences about documents that another program makes later
    bool mShowsAmount = true;
    bool mIsTapePrinter = false;
    std::vector<job::PageSizes> mSizes; ///< of the documents that are shown, or were until others are read
    std::vector<job::DrawnRects> mDrawn;
    job::LaidOnSheets mLaidOn;
    job::LabelPlan mPlan;
    std::size_t mLabel = 0;

    PageRenderer mRenderer;
    TapePreview *mPreview = nullptr;
    QWidget *mPaging = nullptr;
    QToolButton *mPrevious = nullptr;
    QToolButton *mNext = nullptr;
    QLabel *mPosition = nullptr;
    QLabel *mTapeUsed = nullptr;
    QLabel *mMessages = nullptr;
};

} // namespace tapeprint::dialog
