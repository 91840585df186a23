// SPDX-License-Identifier: Apache-2.0
// What the window does about options that do not go together: says it where it arises, resolves it when asked to, and
// prints nothing with a conflict that the person has not seen.
#include "dialog/ButtonIcons.h"
#include "dialog/ConflictNotice.h"
#include "dialog/NoticesArea.h"
#include "dialog/OptionsPage.h"
#include "dialog/PrintDialog.h"

#include <QMessageBox>
#include <QPushButton>

#include <utility>

namespace tapeprint::dialog
{

void PrintDialog::makeConflictNotice()
{
    mConflicts = new ConflictNotice(mNotices);
    mNotices->addNotice(mConflicts);
    connect(mConflicts, &ConflictNotice::resolveWanted, this, [this] {
        resolveConflicts();
        follow();
    });
}

void PrintDialog::followConflicts()
{
    mConflicts->follow(mJob);
    mNotices->notice();
    if (mOptionsPage) {
        mOptionsPage->markConflicts(mConflicts->sentencesByOption());
    }
}

void PrintDialog::resolveConflicts()
{
    if (const std::optional<job::Resolution> resolution = mConflicts->resolution()) {
        mPanels.apply(*resolution);
        showCurrentPanel();
    }
}

bool PrintDialog::asksAboutConflicts(const std::function<void()> &again)
{
    if (std::exchange(mConflictsAreSeen, false)) {
        return false;
    }
    mConflicts->follow(mJob); // what the panels have handed over last counts
    if (!mConflicts->isAny()) {
        return false;
    }
    auto *box = new QMessageBox(QMessageBox::Warning, windowTitle(), {}, QMessageBox::Cancel, this);
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->setTextFormat(Qt::PlainText); // sentences hold names of strangers
    const std::optional<job::Resolution> &resolution = mConflicts->resolution();
    box->setText(mConflicts->sentences());
    box->setInformativeText(resolution ? resolution->sentence() : tr("Choose something else for one of them."));
    QPushButton *change = resolution ? box->addButton(tr("Change and &Print"), QMessageBox::AcceptRole) : nullptr;
    QPushButton *asItIs = box->addButton(tr("Print All the &Same"), QMessageBox::DestructiveRole);
    removeButtonIcons(*box);
    box->setDefaultButton(change != nullptr ? change : qobject_cast<QPushButton *>(box->button(QMessageBox::Cancel)));
    connect(box, &QMessageBox::buttonClicked, this, [this, change, asItIs, again](const QAbstractButton *clicked) {
        if (clicked == change) {
            resolveConflicts();
            again();
        } else if (clicked == asItIs) {
            mConflictsAreSeen = true;
            again();
        }
    });
    box->open();
    return true;
}

} // namespace tapeprint::dialog
