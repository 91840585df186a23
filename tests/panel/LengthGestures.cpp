// SPDX-License-Identifier: Apache-2.0
// What a person does to a length group, as real events.
#include "LengthGestures.h"

#include <QCoreApplication>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

namespace gestures
{

QPoint knob(const PanelUnderTest &panel, const char *sliderName)
{
    const pdekit::Slider *slider = panel.slider(sliderName);
    QStyleOptionSlider option;
    option.initFrom(slider);
    option.orientation = Qt::Horizontal;
    option.minimum = slider->minimum();
    option.maximum = slider->maximum();
    option.sliderPosition = slider->sliderPosition();
    option.sliderValue = slider->value();
    option.subControls = QStyle::SC_All;
    const QRect handle = slider->style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, slider);
    return slider->mapTo(&panel.window, handle.center());
}

QPoint endOfSlider(const PanelUnderTest &panel, const char *sliderName, bool right)
{
    const pdekit::Slider *slider = panel.slider(sliderName);
    return slider->mapTo(&panel.window, QPoint(right ? slider->width() - 1 : 0, slider->height() / 2));
}

void press(PanelUnderTest &panel, QPoint place)
{
    QTest::mousePress(panel.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void drag(PanelUnderTest &panel, QPoint place)
{
    QTest::mouseMove(panel.window.windowHandle(), place);
}

void release(PanelUnderTest &panel, QPoint place)
{
    QTest::mouseRelease(panel.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void click(PanelUnderTest &panel, const char *widgetName)
{
    const auto *widget = panel.outlet<QWidget>(widgetName);
    const QPoint place = widget->mapTo(&panel.window, widget->rect().center());
    QTest::mouseClick(panel.window.windowHandle(), Qt::LeftButton, Qt::NoModifier, place);
}

void key(PanelUnderTest &panel, const char *widgetName, Qt::Key key)
{
    QCoreApplication::processEvents(); // what was pressed before is over
    panel.outlet<QWidget>(widgetName)->setFocus();
    QTest::keyClick(panel.window.windowHandle(), key);
}

void key(PanelUnderTest &panel, Qt::Key key)
{
    QTest::keyClick(panel.window.windowHandle(), key);
}

void wheel(PanelUnderTest &panel, const char *sliderName, int notches)
{
    pdekit::Slider *slider = panel.slider(sliderName);
    const QPointF place = slider->rect().center();
    QWheelEvent event(place, slider->mapToGlobal(place), QPoint(), QPoint(0, 120 * notches), Qt::NoButton,
                      Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(slider, &event);
}

void layMarginProbe(PanelUnderTest &panel)
{
    QCoreApplication::processEvents();
    panel.type("mMarginTxFld", "2.00");
    QCoreApplication::processEvents();
    ASSERT_EQ(panel.field("mMarginTxFld")->text(), QStringLiteral("2.00"));
}

bool fullCheckRan(const PanelUnderTest &panel)
{
    return panel.field("mMarginTxFld")->text() != QStringLiteral("2.00");
}

QString text(const PanelUnderTest &panel, const char *key)
{
    QString localised = panel.loaded.bundle()->localizedStringForKey(QString::fromLatin1(key));
    EXPECT_NE(localised, QString::fromLatin1(key)) << "has no text";
    return localised;
}

testing::AssertionResult alertedOnce(const PanelUnderTest &panel, const char *key)
{
    if (panel.alerts.size() != 1) {
        return testing::AssertionFailure() << panel.alerts.size() << " alerts";
    }
    const pdekit::AlertRequest &alert = panel.alerts.front();
    if (alert.title != QStringLiteral(" ") || alert.defaultButton != QStringLiteral("OK") ||
        alert.text != text(panel, key)) {
        return testing::AssertionFailure() << '[' << alert.title.toStdString() << "] " << alert.text.toStdString()
                                           << " [" << alert.defaultButton.toStdString() << ']';
    }
    return testing::AssertionSuccess();
}

void save(PanelUnderTest &panel)
{
    QCoreApplication::processEvents();
    EXPECT_TRUE(panel->saveValuesAndReturnError(nullptr));
}

std::shared_ptr<RecordingCallback> tape(const PpdText &ppd, double lengthMm)
{
    auto callback = std::make_shared<RecordingCallback>(ppd.open());
    callback->usePaper(QStringLiteral("24mm"), lengthMm);
    return callback;
}

PpdText oneDecimal()
{
    return PpdText::withEveryOption();
}

PpdText wholeMillimetres()
{
    return oneDecimal()
        .attribute("KsIsIntegerTapeLength", "True")
        .attribute("KsIsIntegerMargin", "True")
        .attribute("KsIsIntegerPrintTapeLength", "True");
}

PpdText inches()
{
    return oneDecimal().attribute("KsUnitType", "inch");
}

PpdText withTapeLimits(const char *min, const char *max)
{
    return oneDecimal().attribute("KsMinTapeLength", min).attribute("KsMaxTapeLength", max);
}

PpdText withResolution(const char *keyword)
{
    return oneDecimal().option("Resolution", "Resolution", {{keyword, "Only"}}, keyword);
}

void enterLength(PanelUnderTest &panel, const char *text)
{
    panel.type("mLengthTxFld", text);
    key(panel, Qt::Key_Return);
}

void enterPrintTapeLength(PanelUnderTest &panel, const char *text)
{
    panel.type("mTapeLengthTxFld", text);
    key(panel, Qt::Key_Return);
}

QString length(const PanelUnderTest &panel)
{
    return panel.field("mLengthTxFld")->text();
}

QString margin(const PanelUnderTest &panel)
{
    return panel.field("mMarginTxFld")->text();
}

QString printTapeLength(const PanelUnderTest &panel)
{
    return panel.field("mTapeLengthTxFld")->text();
}

testing::AssertionResult onlyNumbersWereSent(const PanelUnderTest &panel)
{
    static const QRegularExpression number(QStringLiteral("^-?[0-9]+(\\.[0-9])?$"));
    for (const char *keyword : {"KsTapeLength", "KsMargin", "KsPrintTapeLength"}) {
        for (const QString &sent : panel.callback->sentFor(QString::fromLatin1(keyword))) {
            if (!number.match(sent).hasMatch()) {
                return testing::AssertionFailure() << keyword << ' ' << sent.toStdString();
            }
        }
    }
    return testing::AssertionSuccess();
}

} // namespace gestures
