// SPDX-License-Identifier: Apache-2.0
// A PPD option's choices in the PPD's order, under the texts that the PPD gives them.
#include "dialog/ChoicePopUp.h"

#include <QComboBox>

#include <algorithm>
#include <span>

namespace tapeprint::dialog
{

namespace
{

const QLatin1String customChoice("Custom");

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

} // namespace tapeprint::dialog
