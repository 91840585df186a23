// SPDX-License-Identifier: Apache-2.0
// The options go by CUPS's own names. Places are named as the tape is seen, lying: the top of the standing page is the
// right end of the lying tape, its left edge the upper one.
#include "dialog/LayoutPage.h"

#include "dialog/ChoicePopUp.h"
#include "job/PageLayout.h"

#include <QComboBox>
#include <QFormLayout>
#include <QSignalBlocker>

namespace tapeprint::dialog
{

namespace
{

const QString sizeOption = QStringLiteral("print-scaling");
const QString turnOption = QStringLiteral("orientation-requested");
const QString placeOption = QStringLiteral("position");
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

LayoutPage::LayoutPage(const job::Job &job, QWidget *parent) : QWidget(parent), mJob(job)
{
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    mSize = addPopUp(form, tr("Size:", "of a page on the tape"), "layoutSize");
    mSize->addItem(tr("Shrink when too large"), sizeWord(job::Scaling::Auto));
    mSize->addItem(tr("Fit to the tape"), sizeWord(job::Scaling::Fit));
    mSize->addItem(tr("Fill the tape, cut off the rest"), sizeWord(job::Scaling::Fill));
    mSize->addItem(tr("Original size"), sizeWord(job::Scaling::None));
    mTurn = addPopUp(form, tr("Direction:", "in which a page lies on the tape"), "layoutTurn");
    mTurn->addItem(tr("Longer side along the tape"), turnWord(job::Turn::Automatic));
    mTurn->addItem(tr("Along the tape"), turnWord(job::Turn::Left));
    mTurn->addItem(tr("Across the tape"), turnWord(job::Turn::None));
    mTurn->addItem(tr("Along the tape, upside down"), turnWord(job::Turn::Right));
    mTurn->addItem(tr("Across the tape, upside down"), turnWord(job::Turn::Half));
    mAlong = addPopUp(form, tr("Along the tape:", "where a page stands"), "layoutAlong");
    mAlong->addItem(tr("Left"), static_cast<int>(job::Place::End));
    mAlong->addItem(tr("Middle"), static_cast<int>(job::Place::Middle));
    mAlong->addItem(tr("Right"), static_cast<int>(job::Place::Start));
    mAcross = addPopUp(form, tr("Across the tape:", "where a page stands"), "layoutAcross");
    mAcross->addItem(tr("Top"), static_cast<int>(job::Place::Start));
    mAcross->addItem(tr("Middle"), static_cast<int>(job::Place::Middle));
    mAcross->addItem(tr("Bottom"), static_cast<int>(job::Place::End));
    follow();

    connect(mSize, &QComboBox::activated, this, [this] { Q_EMIT picked(sizeOption, mSize->currentData().toString()); });
    connect(mTurn, &QComboBox::activated, this, [this] { Q_EMIT picked(turnOption, mTurn->currentData().toString()); });
    connect(mAlong, &QComboBox::activated, this, &LayoutPage::pickPlace);
    connect(mAcross, &QComboBox::activated, this, &LayoutPage::pickPlace);
}

QComboBox *LayoutPage::addPopUp(QFormLayout *form, const QString &label, const char *name)
{
    auto *popUp = new QComboBox(this);
    popUp->setObjectName(QString::fromLatin1(name));
    form->addRow(label, popUp);
    return popUp;
}

void LayoutPage::pickPlace()
{
    Q_EMIT picked(placeOption, placeWord(static_cast<job::Place>(mAlong->currentData().toInt()),
                                         static_cast<job::Place>(mAcross->currentData().toInt())));
}

void LayoutPage::follow()
{
    const job::LayoutChoices choices = job::layoutChoicesOf(mJob.options());
    selectChoice(mSize, sizeWord(choices.scaling));
    selectChoice(mTurn, turnWord(choices.turn));
    mAlong->setCurrentIndex(mAlong->findData(static_cast<int>(choices.along)));
    mAcross->setCurrentIndex(mAcross->findData(static_cast<int>(choices.across)));
}

} // namespace tapeprint::dialog
