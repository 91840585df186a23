// SPDX-License-Identifier: Apache-2.0
// A press on one control of the built panel that ends the editing of a field with a real modal alert: the button is let
// go while the alert is up, and the press is completed all the same.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

using namespace gestures;

namespace
{

/// Shows the library's own message boxes. While one is up, a person lets the left button go where it was pressed and
/// closes the box by a click on its button, or by a key with the button still down.
class Person
{
public:
    Person(PanelUnderTest &panel, QPoint place, bool letsGo = true)
    {
        pdekit::setAlertHandler({});
        QObject::connect(&mTimer, &QTimer::timeout, &mTimer, [this, &panel, place, letsGo] {
            auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            if (box == nullptr || !box->isVisible()) {
                return;
            }
            texts << box->text();
            if (letsGo) {
                release(panel, place);
                const QAbstractButton *button = box->buttons().constFirst();
                QTest::mouseClick(box->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                                  button->mapTo(box, button->rect().center()));
            } else {
                QTest::keyClick(box->windowHandle(), Qt::Key_Return);
            }
        });
        mTimer.start(20);
    }

    QStringList texts;

private:
    QTimer mTimer;
};

QPoint placeOfRow(const PanelUnderTest &panel, const char *matrix, int row)
{
    const QAbstractButton *cell = panel.matrix(matrix)->cellAtRow(row, 0);
    return cell->mapTo(&panel.window, QPoint(8, cell->height() / 2));
}

/// Types a length that is too short, and leaves the edit open.
void openWrongEdit(PanelUnderTest &panel)
{
    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
}

TEST(InterruptedPress, OnARadioButton_PicksIt)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    openWrongEdit(panel);
    const QPoint place = placeOfRow(panel, "mResolutionRdBtn", 1);
    const Person person(panel, place);
    panel.callback->sent.clear();
    press(panel, place);
    EXPECT_EQ(person.texts, QStringList{text(panel, "RS_Alrt_LengthMin")});
    EXPECT_EQ(length(panel), u"4.0");
    EXPECT_FALSE(panel.matrix("mResolutionRdBtn")->cellAtRow(1, 0)->isDown());
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.callback->sentFor(u"Resolution"_qs), std::vector<QString>{u"300x600dpi"_qs});
}

TEST(InterruptedPress, OnASlidersKnob_LetsItGoAndChecks)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    panel.type("mMarginTxFld", "1.55");
    openWrongEdit(panel);
    const QPoint place = knob(panel, "mTapeLengthSlider");
    const Person person(panel, place);
    press(panel, place);
    EXPECT_EQ(person.texts.size(), 1);
    EXPECT_FALSE(panel.slider("mTapeLengthSlider")->isSliderDown());
    EXPECT_EQ(margin(panel), u"1.6"); // the full check
    // And the pointer that moves on drags nothing.
    const float value = panel.slider("mTapeLengthSlider")->floatValue();
    drag(panel, endOfSlider(panel, "mTapeLengthSlider", true));
    EXPECT_EQ(panel.slider("mTapeLengthSlider")->floatValue(), value);
}

TEST(InterruptedPress, BesideASlidersKnob_MovesItThereAndChecks)
{
    PanelUnderTest panel(tape(oneDecimal(), 300.0));
    panel.show();
    openWrongEdit(panel);
    const QPoint place = endOfSlider(panel, "mMarginSlider", true);
    const Person person(panel, place);
    press(panel, place);
    // The length was corrected to 4.0, and the margin of 100 does not fit it.
    EXPECT_EQ(person.texts, (QStringList{text(panel, "RS_Alrt_LengthMin"), text(panel, "RS_Alrt_LengthByMargin")}));
    EXPECT_FALSE(panel.slider("mMarginSlider")->isSliderDown());
    EXPECT_EQ(margin(panel), u"100.0");
    EXPECT_EQ(length(panel), u"200.1");
}

// The toolkit forgets the pressed control when a window is blocked: the release goes nowhere then, either.
TEST(InterruptedPress, WithTheButtonStillDown_IsCompletedOnce)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    openWrongEdit(panel);
    const QPoint place = placeOfRow(panel, "mResolutionRdBtn", 1);
    const Person person(panel, place, false);
    panel.callback->sent.clear();
    press(panel, place);
    EXPECT_EQ(person.texts.size(), 1);
    release(panel, place);
    EXPECT_FALSE(panel.matrix("mResolutionRdBtn")->cellAtRow(1, 0)->isDown());
    EXPECT_EQ(panel.matrix("mResolutionRdBtn")->selectedRow(), 1);
    EXPECT_EQ(panel.callback->sentFor(u"Resolution"_qs), std::vector<QString>{u"300x600dpi"_qs});
}

/// Presses without a turn of the event loop afterwards.
void pressAtOnce(PanelUnderTest &panel, QPoint place)
{
    static int time = 100000; // milliseconds, beyond a double click of what was pressed before
    time += 1000;
    qt_handleMouseEvent(panel.window.windowHandle(), place, panel.window.mapToGlobal(place), Qt::LeftButton,
                        Qt::LeftButton, QEvent::MouseButtonPress, Qt::NoModifier, time);
}

TEST(InterruptedPress, OnAField_CompletesNoLaterPress)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    openWrongEdit(panel);
    const auto *field = panel.field("mMarginTxFld");
    const QPoint place = field->mapTo(&panel.window, field->rect().center());
    const Person person(panel, place);
    pressAtOnce(panel, place);
    EXPECT_EQ(person.texts.size(), 1);
    pressAtOnce(panel, knob(panel, "mTapeLengthSlider")); // the very next event
    EXPECT_TRUE(panel.slider("mTapeLengthSlider")->isSliderDown());
    release(panel, knob(panel, "mTapeLengthSlider"));
    EXPECT_FALSE(panel.slider("mTapeLengthSlider")->isSliderDown());
}

TEST(InterruptedPress, ByAnAlertThatIsNoWindow_IsNotCompletedTwice)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    openWrongEdit(panel);
    panel.callback->sent.clear();
    panel.pickRow("mResolutionRdBtn", 1);
    EXPECT_EQ(panel.alerts.size(), 1U);
    EXPECT_EQ(panel.callback->sentFor(u"Resolution"_qs).size(), 1U);
}

} // namespace
