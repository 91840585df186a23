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

    /// Whether the widgets stand side by side instead, and the column asks for no more height than it needs.
    void setIsLying(bool isLying);

    /// What it would like by itself, as it stands or lies.
    int usualWidth() const { return widget()->sizeHint().width(); }
    /// Whether it asks for no more width than it needs.
    void setIsModest(bool isModest);

    QSize sizeHint() const override;
    /// Never narrower than what stands in it, which does not scroll sideways, and never smaller than the size given.
    QSize minimumSizeHint() const override;
    void setLeastSize(const QSize &size);
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    QVBoxLayout *mColumn = nullptr;
    QSize mLeast;
    bool mIsLying = false;
    bool mIsModest = false;
};

} // namespace tapeprint::dialog
