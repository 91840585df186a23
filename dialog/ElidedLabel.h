// SPDX-License-Identifier: Apache-2.0
// A line of text that gives way: it takes the room that is left, and shortens what does not fit.
#pragma once

#include <QLabel>

namespace tapeprint::dialog
{

/// A label of one line that is never a reason for the window to be wide. What is cut is whole in the tooltip, in text()
/// and for a screen reader. The text is plain.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Whether the text is shortened.
    bool isCut() const;
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tapeprint::dialog
