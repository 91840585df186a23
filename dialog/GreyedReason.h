// SPDX-License-Identifier: Apache-2.0
// Why a control is grey: said in the tooltip of each that has none of its own.
#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <vector>

namespace tapeprint::dialog
{

/// Gives a window's greyed controls a tooltip. Panels are left as they are: nothing is set in their views.
///
/// To be installed as an event filter of the application.
class GreyedReason : public QObject
{
    Q_OBJECT

public:
    /// A sentence; empty for none. \param off what was switched off: the control, or what it lies in. \param changed
    /// the control that had the keys when that happened, whose change may have been the cause; null when nobody knows.
    using Reason = std::function<QString(const QWidget &off, const QWidget *changed)>;

    /// \param window whose controls. \param reason asked at each tooltip.
    GreyedReason(QWidget *window, Reason reason);

    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct SwitchedOff {
        QPointer<const QWidget> control;
        QPointer<const QWidget> changed;
    };

    void note(const QWidget &control);
    const QWidget *changedWith(const QWidget &off) const;

    const QWidget &mWindow;
    Reason mReason;
    std::vector<SwitchedOff> mSwitchedOff;
};

} // namespace tapeprint::dialog
