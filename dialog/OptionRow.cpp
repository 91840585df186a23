// SPDX-License-Identifier: Apache-2.0
// Controls are small: a description may have hundreds of options.
#include "dialog/OptionRow.h"

#include "dialog/ChoiceModel.h"
#include "dialog/CustomFields.h"
#include "dialog/PlainText.h"
#include "dialog/PopUp.h"
#include "dialog/StateMark.h"
#include "job/PpdMarks.h"

#include <QCheckBox>
#include <QGridLayout>
#include <QLabel>
#include <QStyle>

#include <algorithm>

namespace tapeprint::dialog
{

namespace
{

/// As many letters as the longest choice has; a choice that is a sentence does not make the window wide.
int lettersOf(const job::OfferedOption &option)
{
    constexpr qsizetype mostLetters = 30;
    qsizetype letters = 0;
    for (const job::OfferedChoice &choice : option.choices) {
        letters = std::max(letters, choice.text.size());
    }
    return static_cast<int>(std::min(letters, mostLetters));
}

} // namespace

OptionRow::OptionRow(const job::OfferedOption &option, const MeasureUnit &unit, QWidget *parent)
    : QWidget(parent), mKey(option.keyword)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins({});
    if (option.takesSeveral) {
        makeBoxes(option);
    } else {
        makePopUp(option, unit);
    }
}

void OptionRow::makePopUp(const job::OfferedOption &option, const MeasureUnit &unit)
{
    auto *grid = qobject_cast<QGridLayout *>(layout());
    mPopUp = new PopUp(this);
    mPopUp->setObjectName(mKey);
    mPopUp->setWishedLetters(lettersOf(option));
    mChoices = new ChoiceModel(option, mPopUp);
    mPopUp->setModel(mChoices);
    mPopUp->setHasItemsAlike(true);
    connect(mPopUp, &QComboBox::activated, this, &OptionRow::pickRow);
    grid->addWidget(mPopUp, 0, 0);
    if (!option.customValues.empty()) {
        mFields = new CustomFields(mKey, option.customValues, unit, this);
        mFields->hide();
        connect(mFields, &CustomFields::entered, this, [this](const QString &value) { Q_EMIT picked(mKey, value); });
        grid->addWidget(mFields, 1, 0);
    }
}

void OptionRow::makeBoxes(const job::OfferedOption &option)
{
    for (const job::OfferedChoice &choice : option.choices) {
        auto *box = new QCheckBox(QString(choice.text).replace(u'&', QLatin1String("&&")), this);
        box->setAccessibleName(choice.text);
        box->setObjectName(mKey + u'/' + choice.keyword);
        box->setProperty("choice", choice.keyword);
        connect(box, &QCheckBox::clicked, this, [this, box] { pickBoxes(box); });
        qobject_cast<QGridLayout *>(layout())->addWidget(box, static_cast<int>(mBoxes.size()), 0);
        mBoxes.push_back(box);
    }
}

QWidget *OptionRow::firstControl() const
{
    return mPopUp != nullptr ? static_cast<QWidget *>(mPopUp) : mBoxes.front();
}

void OptionRow::pickRow(int row)
{
    mWantsOwn = row == mChoices->customRow();
    if (mFields != nullptr) {
        mFields->setVisible(mWantsOwn);
    }
    if (mWantsOwn && mFields != nullptr) {
        mFields->begin();
    } else {
        Q_EMIT picked(mKey, mPopUp->itemData(row).toString());
    }
}

void OptionRow::pickBoxes(QCheckBox *clicked)
{
    QStringList checked;
    for (const QCheckBox *box : mBoxes) {
        if (box->isChecked()) {
            checked.append(box->property("choice").toString());
        }
    }
    if (checked.isEmpty()) {
        clicked->setChecked(true); // no job can say "none of them"
    } else {
        Q_EMIT picked(mKey, checked.join(u','));
    }
}

void OptionRow::follow(const job::Job &job)
{
    const QString value = job::markedValue(job.ppd(), mKey);
    const bool isNew = value != mFollowed;
    mFollowed = value;
    if (mPopUp == nullptr) {
        const QStringList checked = value.split(u',');
        for (QCheckBox *box : mBoxes) {
            box->setChecked(checked.contains(box->property("choice").toString()));
        }
        return;
    }
    const bool isOwn = mFields != nullptr && job::isCustomValue(value);
    if (isOwn) {
        mFields->showValue(value);
    }
    if (isNew) {
        mWantsOwn = false; // somebody else had the last word
    }
    if (mFields != nullptr) {
        mFields->setVisible(isOwn || mWantsOwn);
    }
    const int row = isOwn || mWantsOwn ? mChoices->customRow() : mChoices->rowOf(value);
    if (row != mPopUp->currentIndex()) {
        mPopUp->setCurrentIndex(row);
    }
}

void OptionRow::markConflict(const QString &sentence)
{
    if (sentence.isNull() && mMark == nullptr) {
        return;
    }
    if (mMark == nullptr) {
        mMark = new QLabel(this);
        mMark->setObjectName(mKey + QStringLiteral("/conflict"));
        const int size = style()->pixelMetric(QStyle::PM_SmallIconSize, nullptr, this);
        mMark->setPixmap(iconOf(StateMark::Warning).pixmap(QSize(size, size), devicePixelRatio()));
        qobject_cast<QGridLayout *>(layout())->addWidget(mMark, 0, 1);
    }
    mMark->setVisible(!sentence.isNull());
    mMark->setToolTip(plainToolTip(sentence));
    mMark->setAccessibleName(sentence);
    firstControl()->setAccessibleDescription(sentence);
}

void OptionRow::commit()
{
    if (mFields != nullptr && !mFields->isHidden()) {
        mFields->commit();
    }
}

} // namespace tapeprint::dialog
