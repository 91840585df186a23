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

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tapeprint::dialog
