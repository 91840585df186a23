// SPDX-License-Identifier: Apache-2.0
// A column of radio buttons that acts as one control with rows and a selected row.
#pragma once

#include "pdekit/Export.h"

#include <QStringList>
#include <QWidget>

#include <vector>

class QAbstractButton;
class QButtonGroup;
class QRadioButton;

namespace pdekit
{

/// A radio matrix of one column. One row is selected unless the matrix has no rows; at first it is row 0.
/// In an interface file: class "pdekit::RadioMatrix", property "titles", one row a title.
class PDEKIT_EXPORT RadioMatrix : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList titles READ titles WRITE setTitles)

public:
    /// A matrix without rows. \param parent becomes its owner; may be null.
    explicit RadioMatrix(QWidget *parent = nullptr);
    ~RadioMatrix() override;

    /// The titles of the rows.
    QStringList titles() const;
    /// Makes as many rows and selects row 0. Sends no action.
    void setTitles(const QStringList &titles);

    /// How many rows there are.
    int numberOfRows() const;
    /// The selected row, or -1 when there is none.
    int selectedRow() const;
    /// Selects a cell; a cell that does not exist leaves the selection as it is. Sends no action.
    void selectCellAtRow(int row, int column);
    /// The title of a cell; a cell that does not exist is left out in silence.
    void setTitleOfCell(const QString &title, int row, int column);
    /// The button of a row, owned by the matrix; null when there is none.
    QAbstractButton *cellAtRow(int row, int column) const;

Q_SIGNALS:
    /// The person picked a row. Not sent for selections made by code.
    void action();

private:
    QButtonGroup *mGroup = nullptr;
    std::vector<QRadioButton *> mRows;
};

} // namespace pdekit
