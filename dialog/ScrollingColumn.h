// SPDX-License-Identifier: Apache-2.0
// A column of the window that gives way before it scrolls, and scrolls before it is cut off.
#pragma once

#include <QScrollArea>

class QVBoxLayout;

namespace tapeprint::dialog
{

/// Widgets one below the other. In a window that is too low each is first made as low as it can be; then the column
/// scrolls. It never scrolls sideways.
class ScrollingColumn : public QScrollArea
{
    Q_OBJECT

public:
    explicit ScrollingColumn(QWidget *parent = nullptr);

    /// Where the widgets go.
    QVBoxLayout *column() const { return mColumn; }

    QSize sizeHint() const override;
    /// Never narrower than what stands in it, which does not scroll sideways, and never smaller than the size given.
    QSize minimumSizeHint() const override;
    void setLeastSize(const QSize &size) { mLeast = size; }
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVBoxLayout *mColumn = nullptr;
    QSize mLeast;
};

} // namespace tapeprint::dialog
