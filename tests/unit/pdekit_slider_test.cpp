// SPDX-License-Identifier: Apache-2.0
// The slider under real mouse, key and wheel events: exact values from code, values within the limits from people.
#include "TextPrinting.h"
#include "pdekit/CurrentEvent.h"
#include "pdekit/Slider.h"

#include <QAccessible>
#include <QSignalSpy>
#include <QStyle>
#include <QStyleOptionSlider>
#include <QTest>
#include <QWindow>

#include <gtest/gtest.h>

#include <limits>

using namespace pdekit;

namespace
{

class ShownSlider : public Slider
{
public:
    QRect knob() const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        return style()->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this);
    }
};

class SliderTest : public testing::Test
{
protected:
    void SetUp() override
    {
        slider.setMinValue(10.0);
        slider.setMaxValue(110.0);
        slider.setAltIncrementValue(1.0);
        slider.setFloatValue(50.0F);
        slider.resize(400, 40);
        slider.show();
        slider.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&slider));
        slider.setFocus();
    }

    QWindow *window() const { return slider.windowHandle(); }
    QPoint atTheMiddle(int x) const { return {x, slider.height() / 2}; }
    void wheel(int notches, bool inverted = false)
    {
        QWheelEvent event(QPointF(200, 20), slider.mapToGlobal(QPointF(200, 20)), QPoint(), QPoint(0, 120 * notches),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, inverted);
        QCoreApplication::sendEvent(&slider, &event);
    }

    ShownSlider slider;
    QSignalSpy actions{&slider, &Slider::action};
};

TEST_F(SliderTest, ValueSetByCode_IsReadExactlyAndSendsNoAction)
{
    for (const float value : {0.1F, 3.93701F, 109.99999F, 500.0F, -7.25F}) {
        slider.setFloatValue(value);
        EXPECT_EQ(slider.floatValue(), value);
    }
    slider.setMinValue(-1000.0);
    slider.setMaxValue(-999.0);
    EXPECT_EQ(slider.floatValue(), -7.25F);
    EXPECT_EQ(slider.stringValue(), u"-7.25");
    EXPECT_EQ(actions.count(), 0);
}

TEST_F(SliderTest, Knob_StandsWhereTheValueIs)
{
    slider.setFloatValue(60.0F);
    EXPECT_NEAR(slider.knob().center().x(), 200, 3);
    slider.setFloatValue(1000.0F);
    EXPECT_GT(slider.knob().right(), 390);
    slider.setFloatValue(-1000.0F);
    EXPECT_LT(slider.knob().left(), 10);
}

TEST_F(SliderTest, ArrowKeys_MoveByTheAlternateIncrement)
{
    slider.setAltIncrementValue(2.5);
    QTest::keyClick(window(), Qt::Key_Right);
    EXPECT_EQ(slider.floatValue(), 52.5F);
    QTest::keyClick(window(), Qt::Key_Up);
    EXPECT_EQ(slider.floatValue(), 55.0F);
    QTest::keyClick(window(), Qt::Key_Left);
    QTest::keyClick(window(), Qt::Key_Down);
    EXPECT_EQ(slider.floatValue(), 50.0F);
    EXPECT_EQ(actions.count(), 4);
}

TEST_F(SliderTest, ArrowKeysInARightToLeftLanguage_FollowTheKnob)
{
    slider.setLayoutDirection(Qt::RightToLeft);
    const int before = slider.knob().center().x();
    QTest::keyClick(window(), Qt::Key_Left);
    EXPECT_EQ(slider.floatValue(), 51.0F);
    EXPECT_LT(slider.knob().center().x(), before);
}

TEST_F(SliderTest, PageAndEndKeys)
{
    QTest::keyClick(window(), Qt::Key_PageUp);
    EXPECT_EQ(slider.floatValue(), 60.0F);
    QTest::keyClick(window(), Qt::Key_PageDown);
    EXPECT_EQ(slider.floatValue(), 50.0F);
    QTest::keyClick(window(), Qt::Key_End);
    EXPECT_EQ(slider.floatValue(), 110.0F);
    QTest::keyClick(window(), Qt::Key_Home);
    EXPECT_EQ(slider.floatValue(), 10.0F);
    EXPECT_EQ(actions.count(), 4);
}

TEST_F(SliderTest, KeysAtALimit_StayWithinIt)
{
    slider.setFloatValue(109.5F);
    QTest::keyClick(window(), Qt::Key_Right);
    EXPECT_EQ(slider.floatValue(), 110.0F);
    QTest::keyClick(window(), Qt::Key_Right);
    EXPECT_EQ(slider.floatValue(), 110.0F);
    EXPECT_EQ(actions.count(), 1);
    slider.setFloatValue(500.0F);
    QTest::keyClick(window(), Qt::Key_Left);
    EXPECT_EQ(slider.floatValue(), 110.0F);
}

TEST_F(SliderTest, OtherKeys_DoNothing)
{
    QTest::keyClick(window(), Qt::Key_A);
    EXPECT_EQ(slider.floatValue(), 50.0F);
    EXPECT_EQ(actions.count(), 0);
}

TEST_F(SliderTest, Wheel_MovesByTheAlternateIncrement)
{
    wheel(1);
    EXPECT_EQ(slider.floatValue(), 51.0F);
    wheel(-3);
    EXPECT_EQ(slider.floatValue(), 48.0F);
    wheel(1, true);
    EXPECT_EQ(slider.floatValue(), 47.0F);
    EXPECT_EQ(actions.count(), 3);
}

TEST_F(SliderTest, ClickOnTheGroove_JumpsThere)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(300));
    EXPECT_NEAR(slider.knob().center().x(), 300, 2);
    // A quarter of the way from the end: 85, give or take the width of the knob.
    EXPECT_NEAR(slider.floatValue(), 85.0F, 3.0F);
    EXPECT_EQ(actions.count(), 1);
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(300));
    EXPECT_EQ(actions.count(), 2);
}

TEST_F(SliderTest, Drag_TellsEachMoveAsADragAndTheReleaseOnce)
{
    std::vector<EventType> types;
    QObject::connect(&slider, &Slider::action, [&] { types.push_back(currentEventType()); });
    const QPoint start = slider.knob().center();
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, start);
    EXPECT_TRUE(types.empty());
    QTest::mouseMove(window(), start + QPoint(50, 0));
    QTest::mouseMove(window(), start + QPoint(100, 0));
    ASSERT_EQ(types.size(), 2U);
    EXPECT_EQ(types[0], EventType::LeftMouseDragged);
    EXPECT_EQ(types[1], EventType::LeftMouseDragged);
    EXPECT_GT(slider.floatValue(), 70.0F);
    const float dragged = slider.floatValue();
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, start + QPoint(100, 0));
    ASSERT_EQ(types.size(), 3U);
    EXPECT_EQ(types[2], EventType::LeftMouseUp);
    EXPECT_EQ(slider.floatValue(), dragged);
}

TEST_F(SliderTest, ClickOnTheKnobWithoutAMove_KeepsTheExactValue)
{
    slider.setFloatValue(50.000004F);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, slider.knob().center());
    EXPECT_EQ(slider.floatValue(), 50.000004F);
    EXPECT_EQ(actions.count(), 1);
}

TEST_F(SliderTest, DragBeyondTheEnds_GivesTheLimits)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, slider.knob().center());
    QTest::mouseMove(window(), atTheMiddle(399));
    QTest::mouseMove(window(), atTheMiddle(2000));
    EXPECT_EQ(slider.floatValue(), 110.0F);
    QTest::mouseMove(window(), atTheMiddle(-2000));
    EXPECT_EQ(slider.floatValue(), 10.0F);
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(-2000));
}

TEST_F(SliderTest, OtherMouseButtons_DoNothing)
{
    QTest::mouseClick(window(), Qt::RightButton, Qt::NoModifier, atTheMiddle(300));
    EXPECT_EQ(slider.floatValue(), 50.0F);
    EXPECT_EQ(actions.count(), 0);
}

TEST_F(SliderTest, ValueSetByTheActionOfADrag_SendsNoFurtherAction)
{
    QObject::connect(&slider, &Slider::action, [&] { slider.setFloatValue(20.0F); });
    const QPoint start = slider.knob().center();
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, start);
    QTest::mouseMove(window(), start + QPoint(100, 0));
    EXPECT_EQ(actions.count(), 1);
    EXPECT_EQ(slider.floatValue(), 20.0F);
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, start + QPoint(100, 0));
    EXPECT_EQ(actions.count(), 2);
}

TEST_F(SliderTest, EqualLimits_HoldEveryActOfAPersonThere)
{
    slider.setMinValue(30.0);
    slider.setMaxValue(30.0);
    EXPECT_EQ(slider.floatValue(), 50.0F);
    QTest::keyClick(window(), Qt::Key_Right);
    EXPECT_EQ(slider.floatValue(), 30.0F);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(300));
    wheel(5);
    EXPECT_EQ(slider.floatValue(), 30.0F);
}

TEST_F(SliderTest, ReversedLimits_AreSafe)
{
    slider.setMinValue(110.0);
    slider.setMaxValue(10.0);
    EXPECT_EQ(slider.floatValue(), 50.0F);
    for (const Qt::Key key : {Qt::Key_Right, Qt::Key_Home, Qt::Key_End, Qt::Key_PageUp, Qt::Key_PageDown}) {
        QTest::keyClick(window(), key);
        EXPECT_GE(slider.floatValue(), 10.0F);
        EXPECT_LE(slider.floatValue(), 110.0F);
    }
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(300));
    EXPECT_NEAR(slider.floatValue(), 35.0F, 3.0F);
}

TEST_F(SliderTest, LimitsThatAreNoNumbers_LeaveTheValue)
{
    slider.setMinValue(std::numeric_limits<double>::quiet_NaN());
    slider.setMaxValue(std::numeric_limits<double>::infinity());
    QTest::keyClick(window(), Qt::Key_End);
    QTest::mouseClick(window(), Qt::LeftButton, Qt::NoModifier, atTheMiddle(300));
    EXPECT_EQ(slider.floatValue(), 50.0F);
}

// A screen reader would otherwise hear 964 of 0 to 10000.
TEST_F(SliderTest, ScreenReader_HearsTheRealValueItsLimitsAndItsUnit)
{
    slider.setFloatValue(12.3F);
    slider.setUnit(u"mm"_qs);
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(heard, nullptr);
    EXPECT_EQ(heard->role(), QAccessible::Slider);
    EXPECT_EQ(heard->text(QAccessible::Value), u"12.3 mm"_qs);
    ASSERT_NE(heard->valueInterface(), nullptr);
    EXPECT_EQ(heard->valueInterface()->currentValue().toDouble(), 12.3); // not 12.300000190734863
    EXPECT_EQ(heard->valueInterface()->minimumValue().toDouble(), 10.0);
    EXPECT_EQ(heard->valueInterface()->maximumValue().toDouble(), 110.0);
    EXPECT_EQ(heard->valueInterface()->minimumStepSize().toDouble(), 1.0);
}

TEST_F(SliderTest, ValueSetByAScreenReader_IsThePersonsAndWithinTheLimits)
{
    QAccessibleInterface *heard = QAccessible::queryAccessibleInterface(&slider);
    ASSERT_NE(heard, nullptr);
    heard->valueInterface()->setCurrentValue(70.5);
    EXPECT_EQ(slider.floatValue(), 70.5F);
    EXPECT_EQ(actions.count(), 1);
    heard->valueInterface()->setCurrentValue(2000.0);
    EXPECT_EQ(slider.floatValue(), 110.0F);
}

} // namespace
