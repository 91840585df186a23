// SPDX-License-Identifier: Apache-2.0
// Width and height are fields like those of any option's own values, with the same refusals.
#include "dialog/CustomSizeSheet.h"

#include "dialog/ButtonIcons.h"
#include "dialog/CustomFields.h"
#include "dialog/Mnemonics.h"
#include "dialog/PopUp.h"

#include <QDialogButtonBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace tapeprint::dialog
{

namespace
{

constexpr int longestName = 60;

/// The fields' value for a size, as an option of two parameters has it.
QString valueOf(const std::vector<job::CustomParameter> &parameters, const QSizeF &sizePt)
{
    return job::customValue(parameters, {QString::number(sizePt.width(), 'f'), QString::number(sizePt.height(), 'f')});
}

} // namespace

CustomSizeSheet::CustomSizeSheet(const std::vector<job::CustomParameter> &parameters,
                                 std::vector<job::NamedSize> remembered, const QSizeF &first, const MeasureUnit &unit,
                                 QWidget *parent)
    : QDialog(parent), mParameters(parameters), mRemembered(std::move(remembered))
{
    setWindowTitle(tr("Custom Size"));
    auto *rows = new QVBoxLayout(this);
    auto *chooser = new QWidget(this);
    auto *chooserLine = new QHBoxLayout(chooser);
    chooserLine->setContentsMargins({});
    mRememberedPopUp = new PopUp(chooser);
    mRememberedPopUp->setObjectName(QStringLiteral("rememberedSizes"));
    mRememberedPopUp->addItem(tr("New size"));
    for (const job::NamedSize &size : mRemembered) {
        mRememberedPopUp->addItem(size.name);
    }
    auto *chooserLabel = new QLabel(tr("Remem&bered:", "page sizes with names"), chooser);
    chooserLabel->setBuddy(mRememberedPopUp);
    mRemoveButton = new QPushButton(tr("Re&move"), chooser);
    mRemoveButton->setObjectName(QStringLiteral("removeSize"));
    mRemoveButton->setAutoDefault(false);
    mRemoveButton->hide();
    chooserLine->addWidget(chooserLabel);
    chooserLine->addWidget(mRememberedPopUp, 1);
    chooserLine->addWidget(mRemoveButton);
    chooser->setVisible(!mRemembered.empty());
    rows->addWidget(chooser);

    mFields = new CustomFields(QStringLiteral("customSize"), mParameters, unit, this);
    if (!first.isEmpty()) {
        mFields->setValue(valueOf(mParameters, first));
    }
    rows->addWidget(mFields);
    auto *nameRow = new QFormLayout;
    mName = new QLineEdit(this);
    mName->setObjectName(QStringLiteral("sizeName"));
    mName->setMaxLength(longestName);
    mName->setPlaceholderText(tr("To remember it"));
    nameRow->addRow(tr("N&ame:"), mName);
    rows->addLayout(nameRow);
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    rows->addWidget(buttons);
    removeButtonIcons(*this);
    rows->setSizeConstraint(QLayout::SetFixedSize); // a sentence about a wrong value is not cut off
    mFields->takeKeys();
    assignMnemonics(*this, {});

    connect(mRememberedPopUp, &QComboBox::activated, this, &CustomSizeSheet::showRemembered);
    connect(mRemoveButton, &QPushButton::clicked, this, &CustomSizeSheet::removeRemembered);
    connect(buttons, &QDialogButtonBox::accepted, this, &CustomSizeSheet::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &CustomSizeSheet::reject);
}

void CustomSizeSheet::showRemembered(int row)
{
    mRemoveButton->setVisible(row > 0);
    if (row > 0) {
        const job::NamedSize &size = mRemembered.at(static_cast<std::size_t>(row - 1));
        mFields->setValue(valueOf(mParameters, size.sizePt));
        mName->setText(size.name);
    } else {
        mName->clear();
    }
}

void CustomSizeSheet::removeRemembered()
{
    const int row = mRememberedPopUp->currentIndex();
    const QString name = mRemembered.at(static_cast<std::size_t>(row - 1)).name;
    mRemembered.erase(mRemembered.begin() + (row - 1));
    mRememberedPopUp->removeItem(row);
    mRememberedPopUp->setCurrentIndex(0);
    showRemembered(0);
    Q_EMIT removed(name);
}

void CustomSizeSheet::accept()
{
    // A value out of the limits is refused in a sentence below the fields, and the sheet stays.
    if (!mFields->commit()) {
        mFields->takeKeys();
        return;
    }
    const QStringList lengths = job::customValuesIn(mParameters, mFields->value());
    const std::optional<double> width = job::pointsOfLength(lengths.value(0));
    const std::optional<double> height = job::pointsOfLength(lengths.value(1));
    if (width && height) {
        Q_EMIT sizeEntered({mName->text().simplified(), QSizeF(*width, *height)});
        QDialog::accept();
    }
}

} // namespace tapeprint::dialog
