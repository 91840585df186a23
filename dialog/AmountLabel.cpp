// SPDX-License-Identifier: Apache-2.0
// The amount in words, also when it is none.
#include "dialog/AmountLabel.h"

#include "dialog/ButtonIcons.h"

#include <QMessageBox>
#include <QPushButton>

namespace tapeprint::dialog
{

AmountLabel::AmountLabel(QWidget *parent) : ElidedLabel(parent)
{
    setObjectName(QStringLiteral("amount"));
}

void AmountLabel::showAmount(const std::optional<Amount> &amount, bool isCounting, LengthUnit unit)
{
    mAmount = amount;
    const QString words = amount && amount->pieces > 0 ? amountText(*amount, unit)
                          : amount                     ? tr("No page is chosen")
                          : isCounting                 ? tr("Counting…")
                                                       : tr("Amount not known");
    if (words != text()) {
        setText(words);
    }
}

bool AmountLabel::isAgreed()
{
    if (!mAmount || !isUnusual(*mAmount) || mAmount == mAgreed) {
        return true;
    }
    const int pieces = countOf(*mAmount);
    QMessageBox box(QMessageBox::Question, window()->windowTitle(), {}, QMessageBox::Cancel, window());
    box.setTextFormat(Qt::PlainText);
    box.setText(tr("This is an unusual amount: %1.").arg(text()));
    QPushButton *print = box.addButton(mAmount->isTape ? tr("Print %n Label(s)", nullptr, pieces)
                                                       : tr("Print %n Sheet(s)", nullptr, pieces),
                                       QMessageBox::AcceptRole);
    print->setObjectName(QStringLiteral("printUnusual"));
    box.setDefaultButton(QMessageBox::Cancel);
    removeButtonIcons(box);
    box.exec();
    if (box.clickedButton() != print) {
        return false;
    }
    mAgreed = mAmount;
    return true;
}

} // namespace tapeprint::dialog
