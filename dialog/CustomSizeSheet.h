// SPDX-License-Identifier: Apache-2.0
// The sheet for a page size of one's own: width, height, and a name by which it is remembered.
#pragma once

#include "dialog/MeasureUnit.h"
#include "job/CustomSizes.h"

#include <QDialog>

#include <vector>

class QComboBox;
class QLineEdit;
class QPushButton;

namespace tapeprint::dialog
{

class CustomFields;

class CustomSizeSheet : public QDialog
{
    Q_OBJECT

public:
    /// \param parameters width and height with their limits. \param remembered the sizes that have names.
    /// \param first what the fields show at first; in points. \param unit not owned.
    CustomSizeSheet(const std::vector<job::CustomParameter> &parameters, std::vector<job::NamedSize> remembered,
                    const QSizeF &first, const MeasureUnit &unit, QWidget *parent);

    void accept() override;

Q_SIGNALS:
    /// The person entered a size within the limits; its name is empty when it is not to be remembered.
    void sizeEntered(const job::NamedSize &size);
    /// The person removed a remembered size.
    void removed(const QString &name);

private:
    void showRemembered(int row);
    void removeRemembered();

    std::vector<job::CustomParameter> mParameters;
    std::vector<job::NamedSize> mRemembered;
    QComboBox *mRememberedPopUp = nullptr;
    QPushButton *mRemoveButton = nullptr;
    CustomFields *mFields = nullptr;
    QLineEdit *mName = nullptr;
};

} // namespace tapeprint::dialog
