// SPDX-License-Identifier: Apache-2.0
// Two choices that exclude each other; the button says which one holds.
#include "dialog/UnitButton.h"

#include "dialog/MeasureUnit.h"

#include <QAction>
#include <QActionGroup>
#include <QMenu>

namespace tapeprint::dialog
{

UnitButton::UnitButton(MeasureUnit &unit, QWidget *parent) : MenuButton(parent), mUnit(unit)
{
    setObjectName(QStringLiteral("measureUnit"));
    setAutoRaise(true);
    setToolTip(tr("The unit of the lengths shown here"));
    auto *menu = new QMenu(this);
    auto *choices = new QActionGroup(this);
    const auto add = [this, menu, choices](const QString &text, LengthUnit choice) {
        QAction *action = menu->addAction(text);
        action->setCheckable(true);
        choices->addAction(action);
        connect(action, &QAction::triggered, this, [this, choice] { mUnit.choose(choice); });
        return action;
    };
    mMillimetres = add(tr("&Millimetres"), LengthUnit::Millimetre);
    mInches = add(tr("&Inches"), LengthUnit::Inch);
    setMenu(menu);
    connect(&mUnit, &MeasureUnit::changed, this, &UnitButton::follow);
    follow();
}

void UnitButton::follow()
{
    const bool isInch = mUnit.unit() == LengthUnit::Inch;
    (isInch ? mInches : mMillimetres)->setChecked(true);
    setText(unitSign(mUnit.unit()));
    setAccessibleName(tr("Unit of length"));
    setAccessibleDescription(isInch ? tr("Inches") : tr("Millimetres"));
}

} // namespace tapeprint::dialog
