// SPDX-License-Identifier: Apache-2.0
// The options go by CUPS's own names. Places are named as the tape is seen, lying: the top of the standing page is the
// right end of the lying tape, its left edge the upper one.
#include "dialog/LayoutPage.h"

#include "dialog/ChoicePopUp.h"
#include "job/PageLayout.h"
#include "job/UsualOptions.h"

#include <QComboBox>
#include <QFormLayout>

namespace tapeprint::dialog
{

namespace
{

namespace OptionName = job::OptionName;

/// No IPP value stands for "as it fits best"; the number means no turn that CUPS knows.
const QString automaticTurn = QStringLiteral("0");

/// The word of CUPS for a place: such as top-left, top, left or center.
QString placeWord(job::Place along, job::Place across)
{
    const QString vertical = along == job::Place::Start ? QStringLiteral("top")
                             : along == job::Place::End ? QStringLiteral("bottom")
                                                        : QString();
    const QString horizontal = across == job::Place::Start ? QStringLiteral("left")
                               : across == job::Place::End ? QStringLiteral("right")
                                                           : QString();
    if (vertical.isEmpty() && horizontal.isEmpty()) {
        return QStringLiteral("center");
    }
    return vertical.isEmpty() || horizontal.isEmpty() ? vertical + horizontal : vertical + u'-' + horizontal;
}

QString sizeWord(job::Scaling scaling)
{
    switch (scaling) {
    case job::Scaling::Auto:
        return QStringLiteral("auto");
    case job::Scaling::Fit:
        return QStringLiteral("fit");
    case job::Scaling::Fill:
        return QStringLiteral("fill");
    case job::Scaling::None:
        return QStringLiteral("none");
    }
    return {};
}

QString turnWord(job::Turn turn)
{
    switch (turn) {
    case job::Turn::Automatic:
        return automaticTurn;
    case job::Turn::None:
        return QStringLiteral("3");
    case job::Turn::Left:
        return QStringLiteral("4");
    case job::Turn::Right:
        return QStringLiteral("5");
    case job::Turn::Half:
        return QStringLiteral("6");
    }
    return {};
}

} // namespace

LayoutPage::LayoutPage(const job::Job &job, QWidget *parent)
    : QWidget(parent), mJob(job), mIsTape(!job.tape().isEmpty())
{
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    addSizes(form);
    addTurns(form);
    if (mIsTape) {
        addPlaces(form);
    }
    addNumbers(form);
    follow();
}

void LayoutPage::addSizes(QFormLayout *form)
{
    mSize = addPopUp(form, tr("Size:", "of a page on the tape or paper"), "layoutSize", OptionName::printScaling);
    mSize->addItem(tr("Shrink when too large"), sizeWord(job::Scaling::Auto));
    mSize->addItem(mIsTape ? tr("Fit to the tape") : tr("Fit to the paper"), sizeWord(job::Scaling::Fit));
    mSize->addItem(mIsTape ? tr("Fill the tape, cut off the rest") : tr("Fill the paper, cut off the rest"),
                   sizeWord(job::Scaling::Fill));
    mSize->addItem(tr("Original size"), sizeWord(job::Scaling::None));
}

void LayoutPage::addTurns(QFormLayout *form)
{
    mTurn = addPopUp(form, tr("Direction:", "in which a page lies on the tape or paper"), "layoutTurn",
                     OptionName::orientation);
    if (mIsTape) {
        mTurn->addItem(tr("Longer side along the tape"), turnWord(job::Turn::Automatic));
        mTurn->addItem(tr("Along the tape"), turnWord(job::Turn::Left));
        mTurn->addItem(tr("Across the tape"), turnWord(job::Turn::None));
        mTurn->addItem(tr("Along the tape, upside down"), turnWord(job::Turn::Right));
        mTurn->addItem(tr("Across the tape, upside down"), turnWord(job::Turn::Half));
    } else {
        mTurn->addItem(tr("As it fits best"), turnWord(job::Turn::Automatic));
        mTurn->addItem(tr("Upright"), turnWord(job::Turn::None));
        mTurn->addItem(tr("Turned to the left"), turnWord(job::Turn::Left));
        mTurn->addItem(tr("Turned to the right"), turnWord(job::Turn::Right));
        mTurn->addItem(tr("Upside down"), turnWord(job::Turn::Half));
    }
}

void LayoutPage::addPlaces(QFormLayout *form)
{
    mAlong = addPopUp(form, tr("Along the tape:", "where a page stands"), "layoutAlong");
    mAlong->addItem(tr("Left"), static_cast<int>(job::Place::End));
    mAlong->addItem(tr("Middle"), static_cast<int>(job::Place::Middle));
    mAlong->addItem(tr("Right"), static_cast<int>(job::Place::Start));
    mAcross = addPopUp(form, tr("Across the tape:", "where a page stands"), "layoutAcross");
    mAcross->addItem(tr("Top"), static_cast<int>(job::Place::Start));
    mAcross->addItem(tr("Middle"), static_cast<int>(job::Place::Middle));
    mAcross->addItem(tr("Bottom"), static_cast<int>(job::Place::End));
    connect(mAlong, &QComboBox::activated, this, &LayoutPage::pickPlace);
    connect(mAcross, &QComboBox::activated, this, &LayoutPage::pickPlace);
}

void LayoutPage::addNumbers(QFormLayout *form)
{
    mNumber = addPopUp(form, mIsTape ? tr("Pages on a label:") : tr("Pages on a sheet:"), "layoutNumber",
                       OptionName::numberUp);
    // Labels are laid out here. Sheets of paper are not, and the server need not know every number.
    const job::Destination &to = mJob.destination();
    for (const int number : {1, 2, 3, 4, 6, 9, 16}) {
        if (mIsTape || to.isFile() || to.queue->limits.takesPagesASheet(number)) {
            mNumber->addItem(QString::number(number), QString::number(number));
        }
    }
    mOrder = addPopUp(form, tr("Their order:", "of the pages on a label or sheet"), "layoutOrder",
                      OptionName::numberUpLayout);
    mOrder->addItem(tr("Left to right, then down"), QStringLiteral("lrtb"));
    mOrder->addItem(tr("Right to left, then down"), QStringLiteral("rltb"));
    mOrder->addItem(tr("Down, then left to right"), QStringLiteral("tblr"));
    mOrder->addItem(tr("Down, then right to left"), QStringLiteral("tbrl"));
    if (!mIsTape) {
        mBorder = addPopUp(form, tr("Frame:", "around each of several pages on a sheet"), "layoutBorder",
                           OptionName::pageBorder);
        mBorder->addItem(tr("None", "no frame"), QStringLiteral("none"));
        mBorder->addItem(tr("Single line"), QStringLiteral("single"));
        mBorder->addItem(tr("Double line"), QStringLiteral("double"));
    }
}

QComboBox *LayoutPage::addPopUp(QFormLayout *form, const QString &label, const char *name, const QString &option)
{
    auto *popUp = new QComboBox(this);
    popUp->setObjectName(QString::fromLatin1(name));
    form->addRow(label, popUp);
    if (!option.isNull()) {
        connect(popUp, &QComboBox::activated, this,
                [this, popUp, option] { Q_EMIT picked(option, popUp->currentData().toString()); });
    }
    return popUp;
}

void LayoutPage::pickPlace()
{
    Q_EMIT picked(OptionName::position, placeWord(static_cast<job::Place>(mAlong->currentData().toInt()),
                                                  static_cast<job::Place>(mAcross->currentData().toInt())));
}

void LayoutPage::follow()
{
    const job::LayoutChoices choices = job::layoutChoicesOf(mJob.options());
    selectChoice(mSize, sizeWord(choices.scaling));
    selectChoice(mTurn, turnWord(choices.turn));
    if (mIsTape) {
        mAlong->setCurrentIndex(mAlong->findData(static_cast<int>(choices.along)));
        mAcross->setCurrentIndex(mAcross->findData(static_cast<int>(choices.across)));
    }
    selectChoice(mNumber, QString::number(mIsTape ? choices.pagesPerSheet : job::pagesPerPaper(choices.pagesPerSheet)));
    selectChoice(mOrder, chosenOr(OptionName::numberUpLayout, QStringLiteral("lrtb")));
    const bool hasSeveral = choices.pagesPerSheet > 1;
    for (QComboBox *popUp : {mOrder, mBorder}) {
        if (popUp != nullptr) {
            popUp->setEnabled(hasSeveral);
            popUp->setToolTip(hasSeveral ? QString() : tr("This is about several pages on one"));
        }
    }
    if (mBorder != nullptr) {
        selectChoice(mBorder, chosenOr(OptionName::pageBorder, QStringLiteral("none")));
    }
}

QString LayoutPage::chosenOr(const QString &option, const QString &usual) const
{
    return mJob.options().contains(option) ? mJob.options().value(option) : usual;
}

} // namespace tapeprint::dialog
