// SPDX-License-Identifier: Apache-2.0
// The line of the window that tells how a job is coming on.
#pragma once

#include <QWidget>

class QLabel;
class QProgressBar;
class QPushButton;

namespace tapeprint::dialog
{

/// Stands in the place of buttons that nobody presses while something is printed.
class JobRow : public QWidget
{
    Q_OBJECT

public:
    explicit JobRow(QWidget *parent = nullptr);

    /// \param words may hold texts of strangers. \param percent of what is to be done; below 0 while nobody knows how
    /// long it takes, 0 while nothing is done.
    void tell(const QString &words, int percent);
    /// Whether the window may be closed without ending anything: shows a button for it.
    void setCanClose(bool canClose);
    QPushButton *closeButton() const { return mClose; }

private:
    QLabel *mWords;
    QProgressBar *mBar;
    QPushButton *mClose;
};

} // namespace tapeprint::dialog
