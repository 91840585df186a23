// SPDX-License-Identifier: Apache-2.0
// Look-ups in the PPD and the text colour of controls.
#include "ppd/PDEUtilsMethod13.h"

#include "pdekit/Numbers.h"
#include "pdekit/StringEncoding.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPalette>

#include <algorithm>

bool PDEUtilsMethod13::runningOn105OrLater()
{
    return true;
}

QString PDEUtilsMethod13::ppdAttrValStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_attr_t *attribute = ppd == nullptr || cStrKey == nullptr ? nullptr : ppdFindAttr(ppd, cStrKey, nullptr);
    return attribute == nullptr ? QString() : pdekit::stringFromSystemEncoding(attribute->value);
}

QString PDEUtilsMethod13::ppdOptionTextStr(ppd_file_t *ppd, const char *cStrKey)
{
    const ppd_option_t *option = ppd == nullptr || cStrKey == nullptr ? nullptr : ppdFindOption(ppd, cStrKey);
    return option == nullptr ? QString() : pdekit::stringFromSystemEncoding(option->text);
}

bool PDEUtilsMethod13::isSupportedItem(ppd_file_t *ppd, const char *cStrKey)
{
    return ppdAttrValStr(ppd, cStrKey) == QLatin1StringView("False");
}

QPointF PDEUtilsMethod13::originItem(ppd_file_t *ppd, const char *cStrKey)
{
    QString value = ppdAttrValStr(ppd, cStrKey);
    value.remove(QLatin1Char('{')).remove(QLatin1Char('}'));
    const qsizetype comma = value.indexOf(u',');
    const QStringView x = QStringView(value).first(comma < 0 ? value.size() : comma);
    const QStringView y = comma < 0 ? QStringView() : QStringView(value).sliced(comma + 1);
    return {pdekit::doubleValue(x), pdekit::doubleValue(y)};
}

std::unique_ptr<PDEChoiceArray> PDEUtilsMethod13::arrayFromPPDOption(const ppd_option_t *option)
{
    if (option == nullptr) {
        return nullptr;
    }
    auto choices = std::make_unique<PDEChoiceArray>();
    choices->reserve(static_cast<std::size_t>(std::max(option->num_choices, 0)));
    for (int i = 0; i < option->num_choices; ++i) {
        choices->push_back(PDEChoice::choiceWithChoice(&option->choices[i]));
    }
    return choices;
}

const PDEChoice *PDEUtilsMethod13::findChoiceForString(const QString &keyword, const PDEChoiceArray *choices)
{
    if (choices == nullptr) {
        return nullptr;
    }
    const auto found = std::find_if(choices->begin(), choices->end(), [&keyword](const PDEChoice &choice) {
        return keyword.isNull() ? choice.isDefaultChoice() : choice.hasPPDTitle(keyword);
    });
    return found == choices->end() ? nullptr : &*found;
}

QString PDEUtilsMethod13::newOptionTitle(const ppd_option_t *option)
{
    return option == nullptr ? QString() : pdekit::stringFromUtf8(option->text);
}

QString PDEUtilsMethod13::newChoiceTitle(const ppd_choice_t *choice)
{
    return choice == nullptr ? QString() : pdekit::stringFromUtf8(choice->text);
}

void PDEUtilsMethod13::setEnabledForText(bool enabled, QWidget *item)
{
    const bool isLabel = qobject_cast<QLabel *>(item) != nullptr;
    if (!isLabel && qobject_cast<QLineEdit *>(item) == nullptr) {
        return;
    }
    // Only the disabled colour is laid over the control: an enabled one follows the theme by itself.
    const QPalette::ColorRole role = isLabel ? QPalette::WindowText : QPalette::Text;
    QPalette colours;
    if (!enabled) {
        colours.setColor(QPalette::All, role, QApplication::palette(item).color(QPalette::Disabled, role));
    }
    item->setPalette(colours);
}
