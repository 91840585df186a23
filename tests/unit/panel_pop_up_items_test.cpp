// SPDX-License-Identifier: Apache-2.0
// The items of a pop-up while it is filled: replacing by place, inserting in front, and images found by title.
#include "panel/PopUpItems.h"

#include "ProcessorTime.h"
#include "TextPrinting.h"

#include <QPixmap>

#include <gtest/gtest.h>

#include <array>

namespace
{

QIcon image(const QColor &colour)
{
    QPixmap pixmap(8, 8);
    pixmap.fill(colour);
    return QIcon(pixmap);
}

/// The colour of an item's image; invalid when it has none.
QColor colourOf(const PopUpItems &items, std::size_t index)
{
    const QIcon &icon = items.items()[index].image;
    return icon.isNull() ? QColor() : icon.pixmap(8, 8).toImage().pixelColor(4, 4);
}

QString titles(const PopUpItems &items)
{
    QStringList all;
    for (const PopUpItems::Item &item : items.items()) {
        all.append(item.title);
    }
    return all.join(QLatin1Char(' '));
}

const std::array<QString, 3> kFallbacks = {QStringLiteral("F0"), QStringLiteral("F1"), QStringLiteral("F2")};

/// Fills as the panel does: place by place; "?" stands for a text that cannot be read.
PopUpItems filled(const QString &texts)
{
    PopUpItems items;
    std::size_t index = 0;
    for (const QChar text : texts) {
        if (text == QLatin1Char('?')) {
            items.insertAtFront(kFallbacks);
        } else {
            items.replaceItem(index, text);
        }
        ++index;
    }
    return items;
}

} // namespace

TEST(PopUpItems, AtFirst_IsEmpty)
{
    EXPECT_TRUE(PopUpItems().items().empty());
}

TEST(PopUpItems, ReplaceBeyondTheEnd_Appends)
{
    EXPECT_EQ(titles(filled(QStringLiteral("ABC"))), QStringLiteral("A B C"));

    PopUpItems items;
    items.replaceItem(7, QStringLiteral("A"));
    EXPECT_EQ(titles(items), QStringLiteral("A"));
}

TEST(PopUpItems, ReplaceOfAnItem_TakesItsPlaceAndItsImageGoes)
{
    PopUpItems items = filled(QStringLiteral("ABC"));
    items.setImageOfItemWithTitle(QStringLiteral("B"), image(Qt::red));
    items.replaceItem(1, QStringLiteral("X"));
    EXPECT_EQ(titles(items), QStringLiteral("A X C"));
    EXPECT_FALSE(colourOf(items, 1).isValid());
}

TEST(PopUpItems, InsertAtFront_KeepsTheOrderOfTheTitlesAndMovesTheRest)
{
    PopUpItems items = filled(QStringLiteral("AB"));
    items.insertAtFront(kFallbacks);
    EXPECT_EQ(titles(items), QStringLiteral("F0 F1 F2 A B"));
}

TEST(PopUpItems, InsertOfNothing_ChangesNothing)
{
    PopUpItems items = filled(QStringLiteral("AB"));
    items.insertAtFront({});
    EXPECT_EQ(titles(items), QStringLiteral("A B"));
}

TEST(PopUpItems, UnreadableFirst_IsFollowedByReplacedFallbacks)
{
    EXPECT_EQ(titles(filled(QStringLiteral("?BC"))), QStringLiteral("F0 B C"));
}

TEST(PopUpItems, UnreadableInTheMiddle_PushesEarlierTitlesBehindTheFallbacks)
{
    // A; then F0 F1 F2 A; then place 2 becomes C.
    EXPECT_EQ(titles(filled(QStringLiteral("A?C"))), QStringLiteral("F0 F1 C A"));
}

TEST(PopUpItems, UnreadableLast_PushesEveryTitleBehindTheFallbacks)
{
    EXPECT_EQ(titles(filled(QStringLiteral("AB?"))), QStringLiteral("F0 F1 F2 A B"));
}

TEST(PopUpItems, UnreadableFirstAndLast_InsertsTheFallbacksTwice)
{
    // F0 F1 F2; F0 B F2; F0 F1 F2 F0 B F2.
    EXPECT_EQ(titles(filled(QStringLiteral("?B?"))), QStringLiteral("F0 F1 F2 F0 B F2"));
}

TEST(PopUpItems, EveryTextUnreadable_InsertsTheFallbacksEachTime)
{
    EXPECT_EQ(titles(filled(QStringLiteral("???"))), QStringLiteral("F0 F1 F2 F0 F1 F2 F0 F1 F2"));
}

TEST(PopUpItems, ImageByTitle_GoesToThatItem)
{
    PopUpItems items = filled(QStringLiteral("ABC"));
    items.setImageOfItemWithTitle(QStringLiteral("C"), image(Qt::red));
    EXPECT_FALSE(colourOf(items, 0).isValid());
    EXPECT_FALSE(colourOf(items, 1).isValid());
    EXPECT_EQ(colourOf(items, 2), QColor(Qt::red));
}

TEST(PopUpItems, ImageByATitleThatNoItemHas_IsDropped)
{
    PopUpItems items = filled(QStringLiteral("AB"));
    items.setImageOfItemWithTitle(QStringLiteral("Z"), image(Qt::red));
    EXPECT_FALSE(colourOf(items, 0).isValid());
    EXPECT_FALSE(colourOf(items, 1).isValid());
}

TEST(PopUpItems, ImageByATitleThatStandsTwice_GoesToTheFirst)
{
    PopUpItems items = filled(QStringLiteral("AXX"));
    items.setImageOfItemWithTitle(QStringLiteral("X"), image(Qt::red));
    items.setImageOfItemWithTitle(QStringLiteral("X"), image(Qt::blue));
    EXPECT_EQ(colourOf(items, 1), QColor(Qt::blue));
    EXPECT_FALSE(colourOf(items, 2).isValid());
}

TEST(PopUpItems, ImageByATitleWhoseFirstItemWasReplaced_GoesToTheNext)
{
    PopUpItems items = filled(QStringLiteral("XAX"));
    items.replaceItem(0, QStringLiteral("B"));
    items.setImageOfItemWithTitle(QStringLiteral("X"), image(Qt::red));
    EXPECT_FALSE(colourOf(items, 0).isValid());
    EXPECT_EQ(colourOf(items, 2), QColor(Qt::red));
}

TEST(PopUpItems, ImageThatCannotBeRead_TakesNoneAway)
{
    PopUpItems items = filled(QStringLiteral("AB"));
    items.setImageOfItemWithTitle(QStringLiteral("B"), image(Qt::red));
    items.setImageOfItemWithTitle(QStringLiteral("B"), QIcon());
    EXPECT_EQ(colourOf(items, 1), QColor(Qt::red));
}

TEST(PopUpItems, TitlesThatComeAndGoAfterTheFirstImage_AreFoundToo)
{
    PopUpItems items = filled(QStringLiteral("ABC"));
    items.setImageOfItemWithTitle(QStringLiteral("A"), image(Qt::red));
    items.replaceItem(1, QStringLiteral("X")); // A X C
    items.replaceItem(3, QStringLiteral("B")); // A X C B
    items.insertAtFront(kFallbacks);           // F0 F1 F2 A X C B
    items.setImageOfItemWithTitle(QStringLiteral("X"), image(Qt::green));
    items.setImageOfItemWithTitle(QStringLiteral("B"), image(Qt::blue));
    items.setImageOfItemWithTitle(QStringLiteral("F1"), image(Qt::yellow));
    EXPECT_EQ(colourOf(items, 1), QColor(Qt::yellow));
    EXPECT_EQ(colourOf(items, 3), QColor(Qt::red));
    EXPECT_EQ(colourOf(items, 4), QColor(Qt::green));
    EXPECT_EQ(colourOf(items, 6), QColor(Qt::blue));
}

TEST(PopUpItems, ImageByATitleThatWasReplacedAway_IsDropped)
{
    PopUpItems items = filled(QStringLiteral("XA"));
    items.replaceItem(0, QStringLiteral("B"));
    items.setImageOfItemWithTitle(QStringLiteral("X"), image(Qt::red));
    EXPECT_FALSE(colourOf(items, 0).isValid());
    EXPECT_FALSE(colourOf(items, 1).isValid());
}

TEST(PopUpItems, ImageByATitleThatAFallbackHasToo_GoesToTheFallbackInFront)
{
    const std::array<QString, 2> fallbacks = {QStringLiteral("White"), QStringLiteral("Blue")};
    PopUpItems items;
    items.replaceItem(0, QStringLiteral("Blue"));
    items.insertAtFront(fallbacks); // White Blue Blue
    items.setImageOfItemWithTitle(QStringLiteral("Blue"), image(Qt::blue));
    EXPECT_EQ(colourOf(items, 1), QColor(Qt::blue));
    EXPECT_FALSE(colourOf(items, 2).isValid());
}

TEST(PopUpItems, ImageSetBeforeAnInsertion_MovesWithItsItem)
{
    PopUpItems items = filled(QStringLiteral("AB"));
    items.setImageOfItemWithTitle(QStringLiteral("A"), image(Qt::red));
    items.insertAtFront(kFallbacks);
    EXPECT_FALSE(colourOf(items, 0).isValid());
    EXPECT_EQ(colourOf(items, 3), QColor(Qt::red));
    items.setImageOfItemWithTitle(QStringLiteral("B"), image(Qt::blue));
    EXPECT_EQ(colourOf(items, 4), QColor(Qt::blue));
}

TEST(PopUpItems, TenThousandItemsOfOneTitle_AreFilledWithoutWaiting)
{
    constexpr std::size_t kCount = 10'000;
    const QIcon red = image(Qt::red);
    PopUpItems items;
    const double tookMs = tapeprint::test::processorMsOf([&] {
        for (std::size_t i = 0; i < kCount; ++i) {
            items.replaceItem(i, QStringLiteral("Same"));
            items.setImageOfItemWithTitle(QStringLiteral("Same"), red);
        }
    });
    EXPECT_EQ(items.items().size(), kCount);
    // A way that grows with the square takes minutes for these.
    EXPECT_LT(tookMs, 2000);
}

TEST(PopUpItems, TenThousandUnreadableTexts_AreFilledWithoutWaiting)
{
    constexpr std::size_t kCount = 10'000;
    PopUpItems items;
    const double tookMs = tapeprint::test::processorMsOf([&] {
        for (std::size_t i = 0; i < kCount; ++i) {
            items.insertAtFront(kFallbacks);
        }
        items.setImageOfItemWithTitle(QStringLiteral("F2"), image(Qt::red));
    });
    EXPECT_EQ(items.items().size(), 3 * kCount);
    EXPECT_EQ(colourOf(items, 2), QColor(Qt::red));
    EXPECT_LT(tookMs, 2000);
}
