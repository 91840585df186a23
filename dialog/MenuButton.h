// SPDX-License-Identifier: Apache-2.0
// A button that opens a menu. The toolkit puts the arrow that says so into the lower corner, over the text's end, where
// it reads like a comma.
#pragma once

#include <QToolButton>

namespace tapeprint::dialog
{

/// Its arrow stands behind the text, in a place of its own.
class MenuButton : public QToolButton
{
    Q_OBJECT

public:
    /// Opens its menu at a press, and takes the keys.
    explicit MenuButton(QWidget *parent);

    /// None beside a text that says by itself that there is more, such as three dots.
    void setShowsArrow(bool shows);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool mShowsArrow = true;
};

} // namespace tapeprint::dialog
