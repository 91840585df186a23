// SPDX-License-Identifier: Apache-2.0
// Releasing the built panel at bad moments: while a field of a view of its own is edited, and while an alert of its own
// is up.
#include "LengthGestures.h"
#include "TextPrinting.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QPointer>
#include <QTest>

#include <functional>

using namespace gestures;

namespace
{

/// A panel whose view is a window of its own, with a wrong length in its open edit.
class OwnWindow
{
public:
    OwnWindow() : panel(tape(oneDecimal(), 100.0))
    {
        panel->supportedPPDOptionKeys();
        view = panel->panelView();
        panel->willShow();
        view->show();
        view->activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(view));
        auto *field = view->findChild<QLineEdit *>(u"mLengthTxFld"_qs);
        field->setFocus();
        QTest::keyClick(view->windowHandle(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClick(view->windowHandle(), Qt::Key_3);
        EXPECT_EQ(field->text(), u"3");
    }

    PanelUnderTest panel;
    QPointer<QWidget> view;
};

/// Does something while a key press is the application's current event.
class DuringAKeyPress : public QObject
{
public:
    explicit DuringAKeyPress(std::function<void()> act) : mAct(std::move(act))
    {
        QKeyEvent press(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
        QCoreApplication::sendEvent(this, &press);
    }
    bool event(QEvent *event) override
    {
        if (event->type() == QEvent::KeyPress) {
            mAct();
        }
        return true;
    }

private:
    std::function<void()> mAct;
};

TEST(Release, WithAnOpenEditInAViewOfItsOwn_ChecksNothing)
{
    OwnWindow own;
    own.panel.callback->sent.clear();
    // As by a key that closes the dialog: an edit that ends by a key is one that is checked.
    const DuringAKeyPress press([&] {
        own.panel.panel.reset();
        own.panel.plugIn.reset();
    });
    EXPECT_EQ(own.view, nullptr);
    EXPECT_TRUE(own.panel.alerts.empty());
    EXPECT_TRUE(own.panel.callback->sent.empty());
}

TEST(Release, DuringAnAlertOfAViewOfItsOwn_LetsTheViewGoAfterwards)
{
    OwnWindow own;
    int alerts = 0;
    pdekit::setAlertHandler([&](const pdekit::AlertRequest &) {
        ++alerts;
        own.panel.panel.reset();
        own.panel.plugIn.reset();
        own.panel.callback->ppd.reset();
        ASSERT_NE(own.view, nullptr); // its key press is still being handled
        EXPECT_FALSE(own.view->isVisible());
    });
    QTest::keyClick(own.view->windowHandle(), Qt::Key_Return);
    EXPECT_EQ(alerts, 1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(own.view, nullptr);
}

// ---- Each way to an alert, with the panel released while it is up
// ---------------------------------------------------

struct Cause {
    const char *name;
    std::function<void(PanelUnderTest &)> raise;
};

void PrintTo(const Cause &cause, std::ostream *stream)
{
    *stream << cause.name;
}

class EachAlert : public testing::TestWithParam<Cause>
{
};

/// A margin that is too large for the tape.
void layMargin(PanelUnderTest &panel)
{
    panel.popUp("mInkColorPopBtn")->setFocus();
    QCoreApplication::processEvents();
    panel.field("mMarginTxFld")->setText(u"90"_qs);
}

INSTANTIATE_TEST_SUITE_P(
    Release, EachAlert,
    testing::Values(Cause{"TapeLengthByReturn", [](PanelUnderTest &panel) { enterLength(panel, "3"); }},
                    Cause{"TapeLengthByTab",
                          [](PanelUnderTest &panel) {
                              panel.type("mLengthTxFld", "3");
                              key(panel, Qt::Key_Tab);
                          }},
                    Cause{"TapeLengthByAClick",
                          [](PanelUnderTest &panel) {
                              panel.type("mLengthTxFld", "3");
                              QCoreApplication::processEvents();
                              click(panel, "mMarginTxFld");
                          }},
                    Cause{"PrintTapeLength", [](PanelUnderTest &panel) { enterPrintTapeLength(panel, "99"); }},
                    Cause{"SliderReleased",
                          [](PanelUnderTest &panel) {
                              press(panel, knob(panel, "mMarginSlider"));
                              drag(panel, endOfSlider(panel, "mMarginSlider", true));
                              release(panel, endOfSlider(panel, "mMarginSlider", true));
                          }},
                    Cause{"SliderByKey",
                          [](PanelUnderTest &panel) {
                              layMargin(panel);
                              key(panel, "mLengthSlider", Qt::Key_Right);
                          }},
                    Cause{"RadioButton",
                          [](PanelUnderTest &panel) {
                              layMargin(panel);
                              panel.pickRow("mResolutionRdBtn", 1);
                          }},
                    Cause{"Material",
                          [](PanelUnderTest &panel) {
                              layMargin(panel);
                              panel.pickItem("mTapeTypePopBtn", 1);
                          }},
                    Cause{"Saving",
                          [](PanelUnderTest &panel) {
                              layMargin(panel);
                              panel.panel.get()->saveValuesAndReturnError(nullptr);
                          }},
                    Cause{"Printing",
                          [](PanelUnderTest &panel) {
                              layMargin(panel);
                              EXPECT_FALSE(panel.panel.get()->shouldPrint());
                          }}),
    [](const auto &test) { return std::string(test.param.name); });

TEST_P(EachAlert, ReleasedWhileItIsUp_NothingOfThePanelRunsAfterwards)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    int alerts = 0;
    pdekit::setAlertHandler([&](const pdekit::AlertRequest &) {
        ++alerts;
        panel.panel.reset();
        panel.plugIn.reset();
        panel.callback->sent.clear();
        panel.callback->ppd.reset(); // the dialog's objects may go once the panel has been released
    });
    GetParam().raise(panel);
    EXPECT_EQ(alerts, 1);
    EXPECT_TRUE(panel.callback->sent.empty());
    EXPECT_EQ(panel.callback.use_count(), 1);
}

} // namespace
