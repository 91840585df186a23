// SPDX-License-Identifier: Apache-2.0
// Alerts of the lengths that are real windows and take the focus: one cause, one alert.
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

/// Shows every alert as a message box that takes the focus, and closes it after a moment.
class RealAlerts
{
public:
    RealAlerts()
    {
        pdekit::setAlertHandler([this](const pdekit::AlertRequest &alert) {
            texts << alert.text;
            QWidget *dialog = QApplication::activeWindow();
            QMessageBox box(QMessageBox::Warning, alert.title, alert.text, QMessageBox::Ok, dialog);
            QTimer::singleShot(20, &box, &QDialog::accept);
            box.exec();
            // A window manager gives the dialog behind it the focus back; here there is none.
            ASSERT_NE(dialog, nullptr);
            dialog->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(dialog));
        });
    }
    ~RealAlerts() { pdekit::setAlertHandler({}); }
    RealAlerts(const RealAlerts &) = delete;
    RealAlerts &operator=(const RealAlerts &) = delete;

    QStringList texts;
};

TEST(RealAlert, OnReturnTabAndClick_IsShownOnceEach)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    RealAlerts alerts;
    const QString tooShort = text(panel, "RS_Alrt_LengthMin");

    enterLength(panel, "3");
    EXPECT_EQ(alerts.texts, QStringList{tooShort});
    EXPECT_EQ(length(panel), u"4");

    panel.type("mLengthTxFld", "3");
    key(panel, Qt::Key_Tab);
    EXPECT_EQ(alerts.texts.size(), 2);
    EXPECT_EQ(length(panel), u"4");

    panel.type("mLengthTxFld", "3");
    QCoreApplication::processEvents();
    click(panel, "mTapeLengthTxFld");
    EXPECT_EQ(alerts.texts.size(), 3);
    EXPECT_EQ(length(panel), u"4");
}

TEST(RealAlert, OfTheMarginRule_IsShownOnce_EvenWhileAWrongFieldIsEdited)
{
    PanelUnderTest panel(tape(oneDecimal(), 20.0));
    panel.show();
    RealAlerts alerts;
    panel.type("mMarginTxFld", "15");
    panel.type("mLengthTxFld", "3");
    save(panel);
    EXPECT_EQ(alerts.texts, QStringList{text(panel, "RS_Alrt_LengthByMargin")});
    EXPECT_EQ(length(panel), u"30.1");
}

TEST(RealAlert, OnSliderRelease_IsShownOnce_AndTheSliderIsLetGo)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    RealAlerts alerts;
    press(panel, knob(panel, "mMarginSlider"));
    drag(panel, endOfSlider(panel, "mMarginSlider", true));
    release(panel, endOfSlider(panel, "mMarginSlider", true));
    EXPECT_EQ(alerts.texts, QStringList{text(panel, "RS_Alrt_LengthByMargin")});
    EXPECT_FALSE(panel.slider("mMarginSlider")->isSliderDown());
    EXPECT_EQ(length(panel), u"200.1");
}

TEST(RealAlert, WithoutAHandler_IsTheMessageBoxItself)
{
    PanelUnderTest panel(tape(wholeMillimetres(), 100.0));
    panel.show();
    pdekit::setAlertHandler({});
    int boxes = 0;
    QTimer looker;
    QObject::connect(&looker, &QTimer::timeout, &looker, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        if (box != nullptr) {
            ++boxes;
            EXPECT_EQ(box->windowTitle(), u" ");
            EXPECT_EQ(box->text(), text(panel, "RS_Alrt_LengthMin"));
            ASSERT_EQ(box->buttons().size(), 1);
            EXPECT_EQ(box->buttons().constFirst()->text(), u"OK");
            EXPECT_EQ(length(panel), u"3");
            QTest::keyClick(box->windowHandle(), Qt::Key_Return);
        }
    });
    looker.start(10);
    enterLength(panel, "3");
    EXPECT_EQ(boxes, 1);
    EXPECT_EQ(length(panel), u"4");
}

TEST(Alert, Texts_TellWhatHappened)
{
    PanelUnderTest panel(tape(oneDecimal(), 100.0));
    panel.show();
    enterLength(panel, "3");
    ASSERT_EQ(panel.alerts.size(), 1U);
    EXPECT_TRUE(panel.alerts.front().text.contains(u"shorter"));
    enterLength(panel, "2000");
    ASSERT_EQ(panel.alerts.size(), 2U);
    EXPECT_TRUE(panel.alerts.back().text.contains(u"longer"));
}

} // namespace
