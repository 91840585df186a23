// SPDX-License-Identifier: Apache-2.0
// Pop-ups of a PPD's options in the PPD's order, under the texts that the PPD gives them.
#include "host/OptionsPage.h"

#include <QComboBox>
#include <QFormLayout>

#include <algorithm>
#include <span>

namespace tapeprint
{

namespace
{

const QLatin1String customChoice("Custom");

bool isShown(const DialogModel &model, const ppd_option_t &option)
{
    const QString key = QString::fromUtf8(option.keyword);
    const bool isOneOf = option.ui == PPD_UI_PICKONE || option.ui == PPD_UI_BOOLEAN;
    return isOneOf && option.num_choices > 0 && key != OptionName::pageSize && key != OptionName::pageRegion &&
           !model.isPanelOption(key);
}

} // namespace

void fillWithChoices(QComboBox *popUp, const ppd_option_t &option)
{
    popUp->clear();
    for (const ppd_choice_t &choice :
         std::span(option.choices, static_cast<std::size_t>(std::max(option.num_choices, 0)))) {
        const QString keyword = QString::fromUtf8(choice.choice);
        if (keyword != customChoice || choice.marked != 0) {
            popUp->addItem(QString::fromUtf8(choice.text), keyword);
        }
    }
}

void selectChoice(QComboBox *popUp, const QString &choice)
{
    const int index = popUp->findData(choice);
    if (index != popUp->currentIndex()) {
        popUp->setCurrentIndex(index);
    }
}

OptionsPage::OptionsPage(const DialogModel &model, QWidget *parent) : QWidget(parent), mModel(model)
{
    auto *form = new QFormLayout(this);
    form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    forEachOption(model.ppd(), [this](const ppd_option_t &option) {
        if (isShown(mModel, option)) {
            addOption(option);
        }
    });
    follow();
}

void OptionsPage::addOption(const ppd_option_t &option)
{
    auto *popUp = new QComboBox(this);
    const QString key = QString::fromUtf8(option.keyword);
    popUp->setObjectName(key);
    popUp->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    fillWithChoices(popUp, option);
    connect(popUp, &QComboBox::activated, this,
            [this, popUp, key] { Q_EMIT picked(key, popUp->currentData().toString()); });
    QString text = QString::fromUtf8(option.text);
    text.replace(u'&', QLatin1String("&&")); // a PPD's "&" is no mnemonic
    qobject_cast<QFormLayout *>(layout())->addRow(tr("%1:", "name of an option").arg(text), popUp);
    mPopUps.push_back(popUp);
}

void OptionsPage::follow()
{
    for (QComboBox *popUp : mPopUps) {
        selectChoice(popUp, markedChoice(mModel.ppd(), popUp->objectName()));
    }
}

} // namespace tapeprint
