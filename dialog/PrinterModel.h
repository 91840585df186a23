// SPDX-License-Identifier: Apache-2.0
// The printers to choose from as rows of a pop-up: name, description, a mark for the state, and all of it in words.
#pragma once

#include "job/PrinterList.h"

#include <QAbstractListModel>

#include <vector>

namespace tapeprint::dialog
{

/// A printer as it stands in the pop-up.
struct PrinterRow {
    job::Printer printer; ///< of an empty name for a destination that is no queue
    bool isGone = false;  ///< the server does not know it any more

    bool operator==(const PrinterRow &other) const = default;
};

class PrinterModel : public QAbstractListModel
{
    Q_OBJECT

public:
    enum Role {
        NameRole = Qt::UserRole, ///< QUEUE or QUEUE/INSTANCE; empty for a destination that is no queue
        SearchRole,              ///< everything that a person may look for a printer by
        AboutRole,               ///< where it is and how it is, for where its title is said beside it
        TitleRole                ///< the printer without its state, for where it is chosen already
    };

    using QAbstractListModel::QAbstractListModel;

    /// Rows that stay keep their place in the view: only what is new, gone or changed is told.
    void setRows(const std::vector<PrinterRow> &rows);
    /// Whether the printers are spoken of as tape printers: one takes them as what the open one is.
    void setIsTape(bool isTape) { mIsTape = isTape; }
    /// The row of a name; -1 when there is none.
    int rowOf(const QString &name) const;

    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role) const override;

private:
    void removeRowsFrom(int first, int end);
    void insertRowsFrom(const std::vector<PrinterRow> &rows, int first, int end);
    QString wordsOf(const PrinterRow &row) const;
    QStringList linesAbout(const PrinterRow &row) const;

    std::vector<PrinterRow> mRows;
    bool mIsTape = false;
};

} // namespace tapeprint::dialog
