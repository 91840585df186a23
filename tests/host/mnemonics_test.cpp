// SPDX-License-Identifier: Apache-2.0
// The letters of controls: who keeps the one that it wishes, and where the others' come from.
#include "dialog/Mnemonics.h"
#include "tests/support/TextPrinting.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace
{

using tapeprint::dialog::assignMnemonics;
using tapeprint::dialog::withoutMnemonic;

class MnemonicsTest : public testing::Test
{
protected:
    QPushButton *button(const QString &text, QWidget *parent = nullptr)
    {
        return new QPushButton(text, parent == nullptr ? &window : parent);
    }

    QWidget window;
};

TEST_F(MnemonicsTest, FirstControlKeepsItsWish_TheSecondTakesALetterOfItsText)
{
    const auto *first = button(u"&Print"_qs);
    const auto *second = button(u"&Paper"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(first->text(), u"&Print"_qs);
    EXPECT_EQ(second->text(), u"P&aper"_qs);
}

TEST_F(MnemonicsTest, WishOfALaterControl_GoesBeforeTheChoiceOfAnEarlierOne)
{
    button(u"&Band"_qs);
    const auto *chooser = button(u"&Bogen"_qs); // would choose the o
    const auto *other = button(u"F&olgen"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(other->text(), u"F&olgen"_qs);
    EXPECT_EQ(chooser->text(), u"Bo&gen"_qs);
}

TEST_F(MnemonicsTest, FirstLettersOfWords_AreTakenBeforeOthers)
{
    button(u"&Keep"_qs);
    const auto *second = button(u"&Keep it fitted"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(second->text(), u"Keep &it fitted"_qs);
}

TEST_F(MnemonicsTest, TextWithoutAFreeLetter_GetsOneInBracketsBeforeItsColon)
{
    button(u"&A"_qs);
    auto *label = new QLabel(u"印刷(&A):"_qs, &window);
    label->setBuddy(button(u"-"_qs));
    assignMnemonics(window, {});
    EXPECT_EQ(label->text(), u"印刷(&B):"_qs);
}

TEST_F(MnemonicsTest, TextWithoutAMark_AndADoubledOne_GetNone)
{
    const auto *plain = button(u"Cancel"_qs);
    const auto *doubled = button(u"Salt && Pepper"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(plain->text(), u"Cancel"_qs);
    EXPECT_EQ(doubled->text(), u"Salt && Pepper"_qs);
}

TEST_F(MnemonicsTest, TextThatChanges_IsAskedForItsWishAgain)
{
    button(u"&Tape"_qs);
    auto *second = button(u"&Take"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(second->text(), u"T&ake"_qs);
    second->setText(u"&Drop"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(second->text(), u"&Drop"_qs);
    second->setText(u"&Take"_qs);
    assignMnemonics(window, {});
    EXPECT_EQ(second->text(), u"T&ake"_qs);
}

TEST_F(MnemonicsTest, ForeignTexts_StayAndTheirLettersAreTaken)
{
    auto *view = new QWidget(&window);
    const auto *foreign = button(u"&Print"_qs, view);
    const auto *ours = button(u"&Print"_qs);
    assignMnemonics(window, {view});
    EXPECT_EQ(foreign->text(), u"&Print"_qs);
    EXPECT_EQ(ours->text(), u"P&rint"_qs);
}

TEST_F(MnemonicsTest, TextAsItIsRead_HasNoMarks)
{
    EXPECT_EQ(withoutMnemonic(u"Fit && &Print"_qs), u"Fit & Print"_qs);
    EXPECT_EQ(withoutMnemonic(u"印刷(&P):"_qs), u"印刷:"_qs);
}

} // namespace
