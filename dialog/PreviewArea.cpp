// SPDX-License-Identifier: Apache-2.0
// From the job's page and the documents' pages to what is seen and said.
#include "dialog/PreviewArea.h"

#include "dialog/TapePreview.h"
#include "job/LaidOutJob.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace tapeprint::dialog
{

namespace
{

/// Pages are rendered at scales that grow by this, so that a drag that makes the drawing larger does not render anew at
/// each of its steps.
constexpr double scaleStep = 1.5;

double nextScale(double dotsPerPoint)
{
    return std::pow(scaleStep, std::ceil(std::log(dotsPerPoint) / std::log(scaleStep)));
}

QLabel *makeWords(const QString &name, QWidget *parent)
{
    auto *label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->hide();
    return label;
}

} // namespace

PreviewArea::PreviewArea(QWidget *parent) : QWidget(parent)
{
    setObjectName(QStringLiteral("previewArea"));
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    mPreview = new TapePreview(this);
    mMessages = makeWords(QStringLiteral("previewMessages"), this);
    mTapeUsed = makeWords(QStringLiteral("tapeUsed"), this);
    layout->addWidget(mPreview, 1);
    layout->addWidget(mMessages);
    auto *words = new QHBoxLayout;
    words->addWidget(mTapeUsed, 1);
    words->addStretch();
    words->addWidget(makePaging());
    layout->addLayout(words);

    mPreview->setPictures([this](const job::PlacedPage &page) {
        const PagePicture *picture = mRenderer.picture(page.document, page.page);
        return picture == nullptr ? job::RenderedPage() : picture->page;
    });
    connect(mPreview, &TapePreview::scaleChanged, this, &PreviewArea::askForPages);
    connect(&mRenderer, &PageRenderer::documentsRead, this, [this] {
        planAnew();
        Q_EMIT planned();
    });
    connect(&mRenderer, &PageRenderer::rendered, this, [this] {
        mPreview->update();
        showWords();
        if (!isWorking()) {
            Q_EMIT settled();
        }
    });
}

QWidget *PreviewArea::makePaging()
{
    mPaging = new QWidget(this);
    mPaging->setObjectName(QStringLiteral("paging"));
    auto *layout = new QHBoxLayout(mPaging);
    layout->setContentsMargins({});
    const auto makeButton = [this](const QString &name, int step) {
        auto *button = new QToolButton(mPaging);
        button->setObjectName(name);
        button->setAutoRepeat(true);
        button->setFocusPolicy(Qt::StrongFocus);
        connect(button, &QToolButton::clicked, this,
                [this, step] { turnTo(step < 0 ? mLabel - std::min<std::size_t>(mLabel, 1) : mLabel + 1); });
        return button;
    };
    mPrevious = makeButton(QStringLiteral("previousLabel"), -1);
    mNext = makeButton(QStringLiteral("nextLabel"), 1);
    pointArrows();
    mPosition = new QLabel(mPaging);
    mPosition->setObjectName(QStringLiteral("labelPosition"));
    mPosition->setTextFormat(Qt::PlainText);
    layout->addWidget(mPrevious);
    layout->addWidget(mPosition);
    layout->addWidget(mNext);
    mPaging->hide();
    return mPaging;
}

/// Away from each other, also where the window is mirrored.
void PreviewArea::pointArrows()
{
    mPrevious->setArrowType(isRightToLeft() ? Qt::RightArrow : Qt::LeftArrow);
    mNext->setArrowType(isRightToLeft() ? Qt::LeftArrow : Qt::RightArrow);
}

void PreviewArea::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::LayoutDirectionChange) {
        pointArrows();
    }
    QWidget::changeEvent(event);
}

void PreviewArea::setDocuments(const QStringList &pdfPaths, const QStringList &shownAs, job::LaidOnSheets laidOn)
{
    mExpectsDocuments = false;
    mLaidOn = std::move(laidOn);
    mRenderer.setDocuments(pdfPaths, shownAs);
    planAnew();
}

void PreviewArea::setProblem(const QString &problem)
{
    mExpectsDocuments = false;
    mProblem = problem;
    showWords();
}

void PreviewArea::setNoPreview(const QString &why)
{
    if (why != mWhyNone) {
        mWhyNone = why;
        mPreview->setVisible(why.isNull());
        showWords();
    }
}

void PreviewArea::awaitProgram(const QString &about)
{
    mAwaited = {tr("The program's pages come later, laid out for this size.")};
    if (!about.isNull()) {
        mAwaited.append(about);
    }
    showWords();
}

void PreviewArea::setIsTapePrinter(bool isTapePrinter)
{
    mPreview->setIsTapePrinter(isTapePrinter);
    mIsTapePrinter = isTapePrinter;
}

void PreviewArea::follow(const job::TapePage &page, const job::JobOptions &options, const TapeLook &look)
{
    if (page == mPage && options == mOptions && look == mLook) {
        return;
    }
    mPage = page;
    mOptions = options;
    mLook = look;
    planAnew();
}

void PreviewArea::planAnew()
{
    const bool fitsLength = job::layoutChoicesOf(mOptions).fitLength;
    // While documents are made and read anew, what is known of the earlier ones stands for them.
    if (!mRenderer.isReading()) {
        if (fitsLength) {
            mRenderer.measure();
        }
        mSizes.clear();
        for (const ReadDocument &document : mRenderer.documents()) {
            mSizes.push_back(document.sizes);
        }
        mDrawn = mRenderer.drawn();
    }
    mPlan = job::planLabels(mSizes, mPage, mOptions, fitsLength ? mDrawn : std::vector<job::DrawnRects>(), mLaidOn);
    mRoomProblem = mPlan.labels.empty() ? QString() : job::roomProblem(mPlan);
    turnTo(mLabel);
}

void PreviewArea::turnTo(std::size_t label)
{
    mLabel = mPlan.labels.empty() ? 0 : std::min(label, mPlan.labels.size() - 1);
    showLabel();
}

const job::Label &PreviewArea::shownLabel() const
{
    static const job::Label none;
    return mLabel < mPlan.labels.size() ? mPlan.labels[mLabel] : none;
}

void PreviewArea::showLabel()
{
    QRectF content;
    for (const job::PlacedPage &page : shownLabel()) {
        content |= page.place.mapRect(partThatCounts(page)).intersected(page.clip);
    }
    const auto count = static_cast<int>(mPlan.labels.size());
    const auto number = static_cast<int>(mLabel) + 1;
    const bool isLabel = mPage.isTape || mIsTapePrinter;
    const QString position = (isLabel ? tr("Label %1 of %2") : tr("Page %1 of %2")).arg(number).arg(count);
    mPreview->showLabel({mPage, shownLabel(), content, isCutOff(), mLook, count > 1 ? position : QString()});
    askForPages();
    showWords();
    mPaging->setVisible(count > 1);
    mPosition->setText(tr("%1 / %2", "which label of how many").arg(number).arg(count));
    mPosition->setAccessibleName(position);
    for (const auto &[button, words] : {std::pair(mPrevious, isLabel ? tr("Previous label") : tr("Previous page")),
                                        std::pair(mNext, isLabel ? tr("Next label") : tr("Next page"))}) {
        button->setAccessibleName(words);
        button->setToolTip(words);
    }
    mPrevious->setEnabled(number > 1);
    mNext->setEnabled(number < count);
}

void PreviewArea::askForPages()
{
    std::vector<WantedPage> wanted;
    for (const job::PlacedPage &page : shownLabel()) {
        const double dotsPerPoint = mPreview->dotsPerPoint() * scaleOf(page);
        if (dotsPerPoint > 0.0 && std::isfinite(dotsPerPoint)) {
            wanted.push_back({page.document, page.page, nextScale(dotsPerPoint)});
        }
    }
    mRenderer.want(std::move(wanted));
}

QRectF PreviewArea::partThatCounts(const job::PlacedPage &page) const
{
    const auto number = static_cast<std::size_t>(page.page);
    const bool isDrawnAlone = job::layoutChoicesOf(mOptions).fitLength && page.document < mDrawn.size();
    return isDrawnAlone ? mDrawn[page.document][number] : QRectF({}, mSizes[page.document][number]);
}

bool PreviewArea::isCutOff() const
{
    // Where nothing is printed at all, that is what is said.
    return !mPage.layoutRect().isEmpty() &&
           std::any_of(shownLabel().begin(), shownLabel().end(),
                       [this](const job::PlacedPage &page) { return dialog::isCutOff(page, partThatCounts(page)); });
}

bool PreviewArea::isBlank()
{
    const job::Label &label = shownLabel();
    return !label.empty() && std::all_of(label.begin(), label.end(), [this](const job::PlacedPage &page) {
        const PagePicture *picture = mRenderer.picture(page.document, page.page);
        return picture != nullptr && picture->isBlank;
    });
}

QStringList PreviewArea::messages()
{
    if (!mWhyNone.isNull()) {
        return {mWhyNone};
    }
    QStringList sentences = mAwaited;
    if (!mProblem.isNull()) {
        sentences.append(tr("There is no preview: %1").arg(mProblem));
    }
    for (const ReadDocument &document : mRenderer.documents()) {
        if (!document.problem.isNull()) {
            sentences.append(tr("There is no preview: %1").arg(document.problem));
        }
    }
    if (!mRoomProblem.isNull()) {
        sentences.append(mRoomProblem);
    } else if (isCutOff()) {
        sentences.append(tr("Part of the page is cut off."));
    }
    if (isBlank()) {
        sentences.append(tr("Nothing is drawn on this page."));
    }
    if (mPage.isTape && mLook.isFaint()) {
        sentences.append(tr("Ink of this colour is hard to see on this tape."));
    }
    return sentences;
}

bool PreviewArea::isCounting() const
{
    return mExpectsDocuments || mRenderer.isReading();
}

std::optional<Amount> PreviewArea::amount() const
{
    // As long as not every document is known, the number would be wrong.
    const std::vector<ReadDocument> &documents = mRenderer.documents();
    const bool areAllKnown =
        mProblem.isNull() && !mSizes.empty() &&
        std::all_of(documents.begin(), documents.end(), [](const auto &document) { return document.problem.isNull(); });
    if (!areAllKnown || mPage.isEmpty()) {
        return std::nullopt;
    }
    return Amount{mPage.isTape, mPlan.sheetCount(), job::pointsFromMm(mPlan.tapeLengthMm())};
}

void PreviewArea::showWords()
{
    const QString words = messages().join(u'\n');
    mMessages->setText(words);
    mMessages->setVisible(!words.isEmpty());
    const std::optional<Amount> printed = amount();
    const bool isKnown = printed && printed->pieces > 0;
    mTapeUsed->setText(isKnown ? amountText(*printed, mLook.unit) : QString());
    mTapeUsed->setVisible(isKnown && mShowsAmount);
    Q_EMIT amountChanged();
}

} // namespace tapeprint::dialog
