// SPDX-License-Identifier: Apache-2.0
// The largest widgets that hold nothing kept are switched off as a whole: what lies in them follows.
#include "dialog/GreyedOut.h"

#include <QLabel>

#include <algorithm>

namespace tapeprint::dialog
{

void GreyedOut::greyAllBut(const QList<const QWidget *> &kept, QWidget *root)
{
    mIsOn = true;
    for (QWidget *widget : root->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly)) {
        const auto *label = qobject_cast<const QLabel *>(widget);
        const bool leadsToKept = label != nullptr && kept.contains(label->buddy());
        if (kept.contains(widget) || leadsToKept || widget->isWindow()) {
            continue;
        }
        const bool holdsKept =
            std::any_of(kept.begin(), kept.end(), [widget](const QWidget *each) { return widget->isAncestorOf(each); });
        if (holdsKept) {
            greyAllBut(kept, widget);
        } else if (!widget->testAttribute(Qt::WA_ForceDisabled)) {
            widget->setEnabled(false);
            mGreyed.append(widget);
        }
    }
}

void GreyedOut::undo()
{
    for (const QPointer<QWidget> &widget : std::as_const(mGreyed)) {
        if (widget != nullptr) {
            widget->setEnabled(true);
        }
    }
    mGreyed.clear();
    mIsOn = false;
}

} // namespace tapeprint::dialog
