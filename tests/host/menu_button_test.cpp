// SPDX-License-Identifier: Apache-2.0
// The arrow of a button that opens a menu, by what is painted.
#include "dialog/MenuButton.h"

#include <QImage>
#include <QMenu>

#include <gtest/gtest.h>

namespace
{

using tapeprint::dialog::MenuButton;

/// How many dots within are as dark as a text.
int darkDots(const QImage &image, const QRect &within)
{
    int dots = 0;
    for (int y = within.top(); y <= within.bottom(); ++y) {
        for (int x = within.left(); x <= within.right(); ++x) {
            dots += qGray(image.pixel(x, y)) < 120 ? 1 : 0;
        }
    }
    return dots;
}

class MenuButtonTest : public testing::TestWithParam<Qt::LayoutDirection>
{
protected:
    MenuButtonTest()
    {
        button.setLayoutDirection(GetParam());
        button.setText(text);
        button.setMenu(&menu);
        button.resize(button.sizeHint());
    }

    /// A strip of the button, so wide and behind its text, as high as asked for, in the middle or at the lower edge.
    QRect behind(int top, int height) const
    {
        constexpr int insideFrame = 2;
        constexpr int place = 12;
        const int left = GetParam() == Qt::LeftToRight ? button.width() - insideFrame - place : insideFrame;
        return {left, top, place, height};
    }

    QString text = QStringLiteral("wwww"); // as wide as the button lets it be, and nothing below the line
    QMenu menu;
    MenuButton button{nullptr};
};

TEST_P(MenuButtonTest, Arrow_StandsBehindTheTextAtHalfHeight)
{
    constexpr int lowerCorner = 5;
    const QImage image = button.grab().toImage();
    const int middle = button.height() / 2;
    EXPECT_GT(darkDots(image, behind(middle - 4, 8)), 5);
    EXPECT_EQ(darkDots(image, behind(button.height() - 2 - lowerCorner, lowerCorner)), 0);
}

TEST_P(MenuButtonTest, Text_HasAllItsRoom)
{
    button.setMenu(nullptr);
    QToolButton usual;
    usual.setText(text);
    EXPECT_GE(button.sizeHint().width(), usual.sizeHint().width() + 10); // the arrow and the gaps beside it
}

TEST_P(MenuButtonTest, TextThatSaysItAll_HasNoArrow)
{
    const int wide = button.sizeHint().width();
    button.setShowsArrow(false);
    EXPECT_LE(button.sizeHint().width(), wide - 10);
    button.setText({});
    const QImage image = button.grab().toImage();
    EXPECT_EQ(darkDots(image, button.rect().adjusted(3, 3, -3, -3)), 0);
}

INSTANTIATE_TEST_SUITE_P(Directions, MenuButtonTest, testing::Values(Qt::LeftToRight, Qt::RightToLeft));

} // namespace
