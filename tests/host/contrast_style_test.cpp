// SPDX-License-Identifier: Apache-2.0
// The outlines of a desktop of high contrast, by what is painted.
#include "dialog/ContrastStyle.h"

#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSlider>
#include <QStyleOptionButton>

#include <functional>
#include <memory>
#include <ostream>
#include <utility>

#include <gtest/gtest.h>

namespace
{

using tapeprint::dialog::ContrastStyle;

QPalette paletteOf(const QColor &window, const QColor &base, const QColor &text)
{
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::ButtonText, text);
    return palette;
}

TEST(ContrastStyle, IsForColoursThatTheToolkitsOutlinesCannotBeToldFrom)
{
    EXPECT_TRUE(ContrastStyle::isWanted(paletteOf(Qt::black, Qt::black, Qt::white)));
    EXPECT_FALSE(ContrastStyle::isWanted(paletteOf(Qt::black, {60, 60, 60}, Qt::white))); // fields can be seen
    EXPECT_FALSE(ContrastStyle::isWanted(paletteOf(Qt::white, Qt::white, Qt::black)));
    EXPECT_FALSE(ContrastStyle::isWanted(paletteOf({239, 239, 239}, Qt::white, Qt::black)));
    EXPECT_FALSE(ContrastStyle::isWanted(paletteOf({49, 54, 59}, {35, 38, 41}, Qt::white)));
}

TEST(ContrastStyle, TextsOfControlsThatAreOff_CanBeRead)
{
    QPalette black = paletteOf(Qt::black, Qt::black, Qt::white);
    black.setColor(QPalette::Disabled, QPalette::WindowText, Qt::black);
    const QPalette readable = ContrastStyle::withGreyTexts(black);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        EXPECT_EQ(readable.color(QPalette::Disabled, role), QColor(127, 127, 127)) << role;
        EXPECT_EQ(readable.color(QPalette::Active, role), QColor(Qt::white)) << role;
    }
}

TEST(ContrastStyle, HintsInEmptyFields_CanBeReadInTheDarkToo)
{
    // What a desktop with dark colours leaves of the toolkit's light look.
    QPalette dark = paletteOf({49, 54, 59}, {35, 38, 41}, Qt::white);
    dark.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    EXPECT_EQ(ContrastStyle::withReadableHints(dark).color(QPalette::PlaceholderText), QColor(255, 255, 255, 128));
    // A desktop's own colour, and the toolkit's on white, stay.
    dark.setColor(QPalette::PlaceholderText, QColor(160, 160, 170));
    EXPECT_EQ(ContrastStyle::withReadableHints(dark).color(QPalette::PlaceholderText), QColor(160, 160, 170));
    QPalette light = paletteOf({239, 239, 239}, Qt::white, Qt::black);
    light.setColor(QPalette::PlaceholderText, QColor(0, 0, 0, 128));
    EXPECT_EQ(ContrastStyle::withReadableHints(light).color(QPalette::PlaceholderText), QColor(0, 0, 0, 128));
}

TEST(ContrastStyle, WhatHasTheKeys_IsOutlinedInTheColourOfWhatIsChosen)
{
    ContrastStyle style;
    const auto corner = [&style](QStyle::State state) {
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 40, 20);
        option.state = state;
        option.palette = paletteOf(Qt::black, Qt::black, Qt::white);
        option.palette.setColor(QPalette::Highlight, Qt::yellow);
        QImage image(option.rect.size(), QImage::Format_RGB32);
        image.fill(Qt::black);
        QPainter painter(&image);
        style.drawPrimitive(QStyle::PE_PanelButtonCommand, &option, &painter);
        return std::pair(image.pixelColor(20, 0), image.pixelColor(20, 1));
    };
    EXPECT_EQ(corner(QStyle::State_Enabled).first, QColor(Qt::white));
    const auto [outer, inner] = corner(QStyle::State_Enabled | QStyle::State_HasFocus);
    EXPECT_EQ(outer, QColor(Qt::yellow));
    EXPECT_EQ(inner, QColor(Qt::yellow));
}

struct Part {
    const char *name;
    std::function<std::unique_ptr<QWidget>()> make;
    friend std::ostream &operator<<(std::ostream &out, const Part &part) { return out << part.name; }
};

class ContrastStylePart : public testing::TestWithParam<Part>
{
protected:
    /// \return how many dots of the part are at least half as light as the text, all of them outlines: no text is in
    /// it.
    static int lightDots(QStyle *style)
    {
        const std::unique_ptr<QWidget> widget = GetParam().make();
        widget->setStyle(style);
        widget->setPalette(paletteOf(Qt::black, Qt::black, Qt::white));
        widget->resize(120, 30);
        const QImage image = widget->grab().toImage().convertToFormat(QImage::Format_RGB32);
        int dots = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                dots += qGray(image.pixel(x, y)) >= 128 ? 1 : 0;
            }
        }
        return dots;
    }
};

TEST_P(ContrastStylePart, OnBlack_HasAnOutlineToBeSeen)
{
    ContrastStyle style;
    constexpr int around = 20; // the smallest is a circle of a dozen dots across
    EXPECT_GT(lightDots(&style), around);
}

INSTANTIATE_TEST_SUITE_P(Parts, ContrastStylePart,
                         testing::Values(Part{"check box", [] { return std::make_unique<QCheckBox>(); }},
                                         Part{"radio button", [] { return std::make_unique<QRadioButton>(); }},
                                         Part{"field", [] { return std::make_unique<QLineEdit>(); }},
                                         Part{"pop-up", [] { return std::make_unique<QComboBox>(); }},
                                         Part{"button", [] { return std::make_unique<QPushButton>(); }},
                                         Part{"slider", [] { return std::make_unique<QSlider>(Qt::Horizontal); }}));

} // namespace
