// SPDX-License-Identifier: Apache-2.0
// The switch between millimetres and inches: a small button that shows the unit and offers both.
#pragma once

#include "dialog/MenuButton.h"

class QAction;

namespace tapeprint::dialog
{

class MeasureUnit;

class UnitButton : public MenuButton
{
    Q_OBJECT

public:
    /// \param unit outlives the button.
    UnitButton(MeasureUnit &unit, QWidget *parent);

private:
    void follow();

    MeasureUnit &mUnit;
    QAction *mMillimetres = nullptr;
    QAction *mInches = nullptr;
};

} // namespace tapeprint::dialog
