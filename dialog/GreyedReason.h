// SPDX-License-Identifier: Apache-2.0
// Why a control is grey: said in the tooltip of each that has none of its own.
#pragma once

#include <QObject>
#include <QString>

#include <functional>

namespace tapeprint::dialog
{

/// Gives a window's greyed controls a tooltip. Panels are left as they are: nothing is set in their views.
///
/// To be installed as an event filter of the application.
class GreyedReason : public QObject
{
    Q_OBJECT

public:
    /// \param window whose controls. \param reason a sentence for a control; empty for none. Asked at each tooltip.
    GreyedReason(QWidget *window, std::function<QString(const QWidget &)> reason);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    const QWidget &mWindow;
    std::function<QString(const QWidget &)> mReason;
};

} // namespace tapeprint::dialog
