// SPDX-License-Identifier: Apache-2.0
// The current event as a widget sees it while it handles mouse and keys, and afterwards.
#include "pdekit/CurrentEvent.h"

#include <QFocusEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>
#include <QWheelEvent>
#include <QWindow>

#include <gtest/gtest.h>

#include <map>
#include <optional>

using namespace pdekit;

namespace
{

/// Notes the current event at each kind of event that it gets.
class Witness : public QWidget
{
public:
    std::optional<EventType> during(QEvent::Type type) const
    {
        const auto found = seen.find(type);
        return found == seen.end() ? std::nullopt : std::optional(found->second);
    }

protected:
    bool event(QEvent *event) override
    {
        seen[event->type()] = currentEventType();
        return QWidget::event(event);
    }
    void mousePressEvent(QMouseEvent *event) override { event->accept(); }

private:
    std::map<QEvent::Type, EventType> seen;
};

class CurrentEventTest : public testing::Test
{
protected:
    void SetUp() override
    {
        widget.setFocusPolicy(Qt::StrongFocus);
        widget.resize(100, 100);
        widget.show();
        widget.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&widget));
        widget.setFocus();
    }

    QWindow *window() const { return widget.windowHandle(); }
    const QPoint place{50, 50};
    Witness widget;
};

TEST_F(CurrentEventTest, LeftButton_IsDownDraggedUp)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, place);
    QTest::mouseMove(window(), place + QPoint(10, 0));
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(widget.during(QEvent::MouseButtonPress), EventType::LeftMouseDown);
    EXPECT_EQ(widget.during(QEvent::MouseMove), EventType::LeftMouseDragged);
    EXPECT_EQ(widget.during(QEvent::MouseButtonRelease), EventType::LeftMouseUp);
}

TEST_F(CurrentEventTest, SecondPressOfADoubleClick_IsDown)
{
    QTest::mouseDClick(window(), Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(widget.during(QEvent::MouseButtonDblClick), EventType::LeftMouseDown);
}

TEST_F(CurrentEventTest, Keys_AreKeyDownOnlyWhileTheyGoDown)
{
    QTest::keyClick(window(), Qt::Key_A);
    EXPECT_EQ(widget.during(QEvent::KeyPress), EventType::KeyDown);
    EXPECT_EQ(widget.during(QEvent::KeyRelease), EventType::None);
}

TEST_F(CurrentEventTest, OtherButtonsAndTheWheel_AreNone)
{
    QTest::mouseClick(window(), Qt::RightButton, Qt::NoModifier, place);
    EXPECT_EQ(widget.during(QEvent::MouseButtonPress), EventType::None);
    EXPECT_EQ(widget.during(QEvent::MouseButtonRelease), EventType::None);
    QWheelEvent wheel(place, widget.mapToGlobal(place), QPoint(), QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(window(), &wheel);
    EXPECT_EQ(widget.during(QEvent::Wheel), EventType::None);
}

TEST_F(CurrentEventTest, AfterTheEventLoopTurns_IsNone)
{
    QTest::mousePress(window(), Qt::LeftButton, Qt::NoModifier, place);
    ASSERT_EQ(widget.during(QEvent::MouseButtonPress), EventType::LeftMouseDown);
    std::optional<EventType> atTimer;
    QTimer::singleShot(0, &widget, [&] { atTimer = currentEventType(); });
    ASSERT_TRUE(QTest::qWaitFor([&] { return atTimer.has_value(); }));
    EXPECT_EQ(atTimer, EventType::None);
    QTest::mouseRelease(window(), Qt::LeftButton, Qt::NoModifier, place);
}

TEST_F(CurrentEventTest, ProcessEventsWithoutWaiting_EndsTheEventToo)
{
    QMouseEvent press(QEvent::MouseButtonPress, place, widget.mapToGlobal(place), Qt::LeftButton, Qt::LeftButton,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &press);
    EXPECT_EQ(currentEventType(), EventType::LeftMouseDown);
    QCoreApplication::processEvents();
    EXPECT_EQ(currentEventType(), EventType::None);
}

/// A field that notes the current event when it loses the focus.
class Field : public QLineEdit
{
public:
    std::optional<EventType> atFocusOut;

protected:
    void focusOutEvent(QFocusEvent *event) override
    {
        atFocusOut = currentEventType();
        QLineEdit::focusOutEvent(event);
    }
};

class FocusChangeTest : public testing::Test
{
protected:
    void SetUp() override
    {
        auto *column = new QVBoxLayout(&dialog);
        column->addWidget(&field);
        column->addWidget(&button);
        button.setFocusPolicy(Qt::StrongFocus);
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        field.setFocus();
        ASSERT_TRUE(field.hasFocus());
    }

    QWidget dialog;
    Field field;
    QPushButton button;
};

TEST_F(FocusChangeTest, CausedByAClick_SeesTheMouseButton)
{
    QTest::mouseClick(dialog.windowHandle(), Qt::LeftButton, Qt::NoModifier, button.geometry().center());
    EXPECT_EQ(field.atFocusOut, EventType::LeftMouseDown);
}

TEST_F(FocusChangeTest, CausedByTheTabKey_SeesTheKey)
{
    QTest::keyClick(dialog.windowHandle(), Qt::Key_Tab);
    EXPECT_EQ(field.atFocusOut, EventType::KeyDown);
}

TEST_F(FocusChangeTest, CausedByCode_SeesNone)
{
    QCoreApplication::processEvents();
    button.setFocus();
    EXPECT_EQ(field.atFocusOut, EventType::None);
}

TEST_F(FocusChangeTest, Shortcut_SeesTheKey)
{
    QShortcut shortcut(QKeySequence(Qt::CTRL | Qt::Key_N), &dialog);
    std::optional<EventType> atShortcut;
    QObject::connect(&shortcut, &QShortcut::activated, [&] { atShortcut = currentEventType(); });
    QTest::keyClick(dialog.windowHandle(), Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(atShortcut, EventType::KeyDown);
}

} // namespace
