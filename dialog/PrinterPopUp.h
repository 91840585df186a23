// SPDX-License-Identifier: Apache-2.0
// The pop-up of printers. Where there are many of them, the list that opens has a line to search in.
#pragma once

#include "dialog/PopUp.h"

class QFrame;
class QLineEdit;
class QListView;
class QSortFilterProxyModel;

namespace tapeprint::dialog
{

class PrinterPopUp : public PopUp
{
    Q_OBJECT

public:
    /// More printers than this are searched.
    static constexpr int mostWithoutSearch = 12;

    /// Shows the rows of a PrinterModel, which is set as any model is.
    explicit PrinterPopUp(QWidget *parent = nullptr);

    void showPopup() override;
    void hidePopup() override;

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;

private:
    void makeSearch();
    void search(const QString &text);
    QModelIndex meant(const QString &text) const;
    void choose(const QModelIndex &found);

    QFrame *mSearch = nullptr; ///< made when it is needed first
    QLineEdit *mLine = nullptr;
    QListView *mList = nullptr;
    QSortFilterProxyModel *mFound = nullptr;
};

} // namespace tapeprint::dialog
