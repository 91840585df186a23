// SPDX-License-Identifier: Apache-2.0
// Each part is drawn as ever, and its outline over it.
#include "dialog/ContrastStyle.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOptionSlider>

#include <algorithm>
#include <cmath>

namespace tapeprint::dialog
{

namespace
{

constexpr QLatin1String toolkitsOwn("fusion");

/// The relative luminance of WCAG 2.1, from 0 for black to 1 for white.
double luminance(const QColor &colour)
{
    const auto linear = [](double part) {
        return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

/// WCAG 2.1's contrast ratio, from 1 for the same colour to 21.
double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return std::max(first, second) / std::min(first, second);
}

/// A colour as it is seen over another.
QColor over(const QColor &colour, const QColor &ground)
{
    const double share = colour.alphaF();
    const auto mixed = [share](double one, double other) {
        return static_cast<float>(one * share + other * (1.0 - share));
    };
    return QColor::fromRgbF(mixed(colour.redF(), ground.redF()), mixed(colour.greenF(), ground.greenF()),
                            mixed(colour.blueF(), ground.blueF()));
}

/// What has the keys is outlined in the colour of what is chosen, and twice as strongly.
void outline(QPainter *painter, const QStyleOption *option, const QRect &rect)
{
    constexpr double strong = 2.0;
    const bool hasKeys = option->state.testFlag(QStyle::State_HasFocus);
    const double width = hasKeys ? strong : 1.0;
    painter->setPen(QPen(option->palette.color(hasKeys ? QPalette::Highlight : QPalette::WindowText), width,
                         Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter->setBrush(Qt::NoBrush);
    painter->drawRect(QRectF(rect).adjusted(width / 2, width / 2, -width / 2, -width / 2));
}

} // namespace

ContrastStyle::ContrastStyle() : QProxyStyle(toolkitsOwn) {}

bool ContrastStyle::isWanted(const QPalette &palette)
{
    constexpr double justToBeSeen = 1.1;
    constexpr int toolkitsDarker = 140;
    const QColor window = palette.color(QPalette::Window);
    return contrast(window.darker(toolkitsDarker), window) < justToBeSeen &&
           contrast(palette.color(QPalette::Base), window) < justToBeSeen;
}

QPalette ContrastStyle::withGreyTexts(QPalette palette)
{
    const QColor window = palette.color(QPalette::Window);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        const QColor text = palette.color(QPalette::Active, role);
        const auto half = [](int one, int other) { return (one + other) / 2; };
        palette.setColor(QPalette::Disabled, role,
                         QColor(half(text.red(), window.red()), half(text.green(), window.green()),
                                half(text.blue(), window.blue())));
    }
    return palette;
}

QPalette ContrastStyle::withReadableHints(QPalette palette)
{
    constexpr double readable = 3.0;
    constexpr int half = 128;
    const QColor ground = palette.color(QPalette::Active, QPalette::Base);
    if (contrast(over(palette.color(QPalette::Active, QPalette::PlaceholderText), ground), ground) < readable) {
        QColor hint = palette.color(QPalette::Active, QPalette::Text);
        hint.setAlpha(half);
        palette.setColor(QPalette::PlaceholderText, hint);
    }
    return palette;
}

void ContrastStyle::takeWhereWanted()
{
    QApplication::setPalette(withReadableHints(QApplication::palette()));
    if (QApplication::style()->name() == toolkitsOwn && isWanted(QApplication::palette())) {
        QApplication::setStyle(new ContrastStyle); // the application's from here on
        QApplication::setPalette(withGreyTexts(QApplication::palette()));
    }
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                                  const QWidget *widget) const
{
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    painter->save();
    switch (element) {
    case PE_IndicatorRadioButton:
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(option->palette.color(QPalette::WindowText));
        painter->setBrush(Qt::NoBrush);
        painter->drawEllipse(QRectF(option->rect).adjusted(1.5, 1.5, -1.5, -1.5));
        break;
    case PE_IndicatorCheckBox:
    case PE_PanelButtonCommand:
    case PE_FrameLineEdit:
    case PE_Frame:
        outline(painter, option, option->rect);
        break;
    default:
        break;
    }
    painter->restore();
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                                       const QWidget *widget) const
{
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    painter->save();
    if (control == CC_ComboBox || control == CC_SpinBox) {
        outline(painter, option, option->rect);
    } else if (const auto *slider = qstyleoption_cast<const QStyleOptionSlider *>(option);
               slider != nullptr && control == CC_Slider) {
        constexpr int grooveHeight = 4;
        QRect groove = subControlRect(CC_Slider, slider, SC_SliderGroove, widget);
        if (slider->orientation == Qt::Horizontal) {
            groove = QRect(groove.left(), groove.center().y() - grooveHeight / 2, groove.width(), grooveHeight);
        }
        const QRect handle = subControlRect(CC_Slider, slider, SC_SliderHandle, widget);
        painter->setClipRegion(QRegion(option->rect) - handle);
        outline(painter, option, groove);
        painter->setClipping(false);
        outline(painter, option, handle);
    }
    painter->restore();
}

} // namespace tapeprint::dialog
