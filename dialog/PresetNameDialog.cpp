// SPDX-License-Identifier: Apache-2.0
// The remark below the field and the offer follow each letter; only a name that can be kept is accepted.
#include "dialog/PresetNameDialog.h"

#include "dialog/ButtonIcons.h"
#include "dialog/Mnemonics.h"
#include "dialog/PlainText.h"
#include "job/PlainText.h"
#include "job/Presets.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QFormLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tapeprint::dialog
{

namespace
{

constexpr int fieldLetters = 30;
constexpr int remarkLetters = 45;

} // namespace

PresetNameDialog::PresetNameDialog(const QString &title, const QString &name, QStringList taken, TakenNames rule,
                                   QWidget *parent)
    : QDialog(parent), mTaken(std::move(taken)), mRule(rule)
{
    setWindowTitle(title);
    mField = new QLineEdit(name, this);
    mField->setObjectName(QStringLiteral("presetName"));
    mField->setMinimumWidth(QFontMetrics(mField->font()).averageCharWidth() * fieldLetters);
    mField->selectAll();
    mRemark = new QLabel(this);
    mRemark->setObjectName(QStringLiteral("presetNameRemark"));
    mRemark->setTextFormat(Qt::PlainText);
    mRemark->setWordWrap(true);
    // Nothing jumps while typing, and the longest remark has its room.
    const QFontMetrics metrics(mRemark->font());
    const int width = metrics.averageCharWidth() * remarkLetters;
    const QString longest = job::problemWithPresetName(QStringLiteral("two words"));
    mRemark->setMinimumSize(width, metrics.boundingRect(QRect(0, 0, width, 0), Qt::TextWordWrap, longest).height());
    mOffer = new QPushButton(this);
    mOffer->setObjectName(QStringLiteral("presetNameOffer"));
    mOffer->setAutoDefault(false);
    mButtons = new QDialogButtonBox(QDialogButtonBox::Save | QDialogButtonBox::Cancel, this);

    auto *layout = new QVBoxLayout(this);
    auto *form = new QFormLayout;
    form->addRow(tr("&Name:"), mField);
    layout->addLayout(form);
    layout->addWidget(mRemark);
    layout->addWidget(mOffer, 0, Qt::AlignLeft);
    layout->addWidget(mButtons);
    removeButtonIcons(*this);

    connect(mField, &QLineEdit::textChanged, this, &PresetNameDialog::follow);
    connect(mOffer, &QPushButton::clicked, this, &PresetNameDialog::takeOffer);
    connect(mButtons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(mButtons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    follow();
    assignMnemonics(*this, {});
}

QString PresetNameDialog::name() const
{
    return mField->text();
}

/// Return on a name that cannot be kept takes the one that is offered; a second one saves it, now that it was seen.
void PresetNameDialog::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool isOnAButton = focusWidget() != nullptr && mButtons->isAncestorOf(focusWidget()); // Cancel is pressed
    if (isReturn && !isOnAButton && !mButtons->button(QDialogButtonBox::Save)->isEnabled() && mOffer->isVisible()) {
        takeOffer();
        return;
    }
    QDialog::keyPressEvent(event);
}

void PresetNameDialog::takeOffer()
{
    mField->setText(job::suitablePresetName(mField->text()));
    mField->setFocus();
}

void PresetNameDialog::follow()
{
    const QString typed = mField->text();
    QString problem = job::problemWithPresetName(typed);
    QString remark = problem;
    if (problem.isNull() && mTaken.contains(typed, Qt::CaseInsensitive)) {
        remark = mRule == TakenNames::Replace ? tr("The preset %1 will be replaced.").arg(typed)
                                              : tr("There is a preset %1 already.").arg(typed);
        problem = mRule == TakenNames::Replace ? QString() : remark;
    }
    mRemark->setText(typed.isEmpty() ? QString() : remark);
    mField->setAccessibleDescription(mRemark->text());
    mButtons->button(QDialogButtonBox::Save)->setEnabled(problem.isNull());
    const QString offer = job::suitablePresetName(typed);
    mOffer->setText(tr("Take \"%1\"").arg(QString(offer).replace(u'&', QLatin1String("&&"))));
    mOffer->setVisible(offer != typed && !offer.isEmpty());
}

} // namespace tapeprint::dialog
