// SPDX-License-Identifier: Apache-2.0
// The switch between millimetres and inches: a small button that shows the unit and offers both.
#pragma once

#include <QToolButton>

class QAction;

namespace tapeprint::dialog
{

class MeasureUnit;

class UnitButton : public QToolButton
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
