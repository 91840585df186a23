// SPDX-License-Identifier: Apache-2.0
// A pop-up that strangers' texts cannot make wide: a printer's name may be as long as a sentence.
#pragma once

#include <QComboBox>

namespace tapeprint::dialog
{

/// As wide as its place, whatever its items hold. A text that does not fit is shortened, and the whole of it is the
/// tooltip. The list that opens is as wide as its texts, up to two thirds of the screen.
class PopUp : public QComboBox
{
    Q_OBJECT

public:
    explicit PopUp(QWidget *parent = nullptr);

    /// Asks for room for so many letters where there is room; less than the least is no matter.
    void setWishedLetters(int letters);
    /// All items are as high as the first, which is worth knowing where there are thousands.
    void setHasItemsAlike(bool hasItemsAlike);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /// Whether the text of the current item is shortened.
    bool isCut() const;
    void showPopup() override;

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void initStyleOption(QStyleOptionComboBox *option) const override;

private:
    int textWidth() const;
    int listWidth() const;
    void removeArrows() const;

    int mWishedLetters = 0;
    bool mHasItemsAlike = false;
    bool mIsOpeningLongList = false;
};

} // namespace tapeprint::dialog
