// SPDX-License-Identifier: Apache-2.0
// Texts of mirrored windows, by what is painted: another sign of Unicode's, in front of the text, shows what is right.
#include "dialog/OwnDirectionStyle.h"

#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionMenuItem>
#include <QStyleOptionViewItem>

#include <functional>
#include <memory>
#include <ostream>

#include <gtest/gtest.h>

namespace
{

using tapeprint::dialog::OwnDirectionStyle;

const QRect part(0, 0, 240, 30);

void setUp(QStyleOption &option)
{
    option.rect = part;
    option.direction = Qt::RightToLeft;
    option.state = QStyle::State_Enabled;
    option.palette = QPalette(Qt::white);
}

void drawText(const QStyle &style, QPainter *painter, const QString &text)
{
    style.drawItemText(painter, part, Qt::AlignCenter, QPalette(Qt::white), true, text, QPalette::WindowText);
}

void drawItem(const QStyle &style, QPainter *painter, const QString &text)
{
    QStyleOptionViewItem item;
    setUp(item);
    item.features = QStyleOptionViewItem::HasDisplay;
    item.text = text;
    style.drawControl(QStyle::CE_ItemViewItem, &item, painter);
}

void drawEntry(const QStyle &style, QPainter *painter, const QString &text)
{
    const QMenu menu;
    QStyleOptionMenuItem entry;
    setUp(entry);
    entry.menuRect = part;
    entry.text = text + QStringLiteral("\tCtrl+P");
    style.drawControl(QStyle::CE_MenuItem, &entry, painter, &menu);
}

struct Kind {
    const char *name;
    std::function<void(const QStyle &, QPainter *, const QString &)> draw;
    friend std::ostream &operator<<(std::ostream &out, const Kind &kind) { return out << kind.name; }
};

class MirroredText : public testing::TestWithParam<Kind>
{
protected:
    static QImage painted(const QStyle &style, const QString &text)
    {
        QImage image(part.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        painter.setLayoutDirection(Qt::RightToLeft);
        GetParam().draw(style, &painter, text);
        return image;
    }

    const std::unique_ptr<QStyle> plain{QStyleFactory::create(QStringLiteral("fusion"))};
    const OwnDirectionStyle own{QStyleFactory::create(QStringLiteral("fusion"))};
};

TEST_P(MirroredText, BeginsWithItsNumberAndEndsWithItsDots)
{
    const QChar leftToRight(0x200E);
    for (const QString &text : {QStringLiteral("100.0 mm"), QStringLiteral("Show Command...")}) {
        const QImage right = painted(*plain, leftToRight + text + leftToRight);
        EXPECT_NE(painted(*plain, text), right) << text.toStdString();
        EXPECT_EQ(painted(own, text), right) << text.toStdString();
    }
}

TEST_P(MirroredText, ReadsFromTheRightWhenItsWordsDo)
{
    const QString text = QStringLiteral("שלום 100!");
    EXPECT_EQ(painted(own, text), painted(*plain, text));
}

INSTANTIATE_TEST_SUITE_P(Kinds, MirroredText,
                         testing::Values(Kind{"text", drawText}, Kind{"item", drawItem}, Kind{"entry", drawEntry}));

} // namespace
