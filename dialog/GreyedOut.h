// SPDX-License-Identifier: Apache-2.0
// Everything in a window switched off for a while, but for what is to stay of use.
#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

namespace tapeprint::dialog
{

/// Remembers what it switched off itself: what was off before stays off afterwards.
class GreyedOut
{
public:
    bool isOn() const { return mIsOn; }
    /// Switches off every widget below root that neither is, holds, nor lies in one of those kept. Their labels stay,
    /// too.
    void greyAllBut(const QList<const QWidget *> &kept, QWidget *root);
    void undo();

private:
    QList<QPointer<QWidget>> mGreyed;
    bool mIsOn = false;
};

} // namespace tapeprint::dialog
