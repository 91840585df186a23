// SPDX-License-Identifier: Apache-2.0
// Alerts: the handler in force, and the message box when there is none.
#include "TextPrinting.h"
#include "pdekit/Alert.h"

#include <QApplication>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

using namespace pdekit;

namespace
{

class AlertTest : public testing::Test
{
protected:
    void SetUp() override
    {
        dialog.show();
        dialog.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    }
    void TearDown() override { setAlertHandler({}); }

    QWidget dialog;
};

TEST_F(AlertTest, Handler_GetsTitleTextAndButton)
{
    AlertRequest seen;
    setAlertHandler([&](const AlertRequest &alert) { seen = alert; });
    NSRunAlertPanel(u" "_qs, u"Too long"_qs, u"OK"_qs);
    EXPECT_EQ(seen.title, u" ");
    EXPECT_EQ(seen.text, u"Too long");
    EXPECT_EQ(seen.defaultButton, u"OK");
}

TEST_F(AlertTest, HandlerThatReplacesItself_RunsToItsEnd)
{
    const QString own = u"captured text that is too long for any small buffer"_qs;
    QString seen;
    setAlertHandler([&seen, own](const AlertRequest &) {
        setAlertHandler([](const AlertRequest &) {});
        seen = own;
    });
    NSRunAlertPanel(u" "_qs, u"x"_qs, u"OK"_qs);
    EXPECT_EQ(seen, own);
}

TEST_F(AlertTest, WithoutAHandler_IsAModalBoxOfTheDialogWithOneButton)
{
    bool looked = false;
    QTimer::singleShot(0, &dialog, [&] {
        auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
        ASSERT_NE(box, nullptr);
        EXPECT_TRUE(box->isModal());
        EXPECT_EQ(box->parentWidget(), &dialog);
        EXPECT_EQ(box->windowTitle(), u" ");
        EXPECT_EQ(box->text(), u"<b>5 < 6</b>");
        EXPECT_EQ(box->textFormat(), Qt::PlainText);
        ASSERT_EQ(box->buttons().size(), 1);
        EXPECT_EQ(box->buttons().constFirst()->text(), u"OK");
        EXPECT_EQ(box->defaultButton(), box->buttons().constFirst());
        looked = true;
        QTest::keyClick(box, Qt::Key_Return);
    });
    NSRunAlertPanel(u" "_qs, u"<b>5 < 6</b>"_qs, u"OK"_qs);
    EXPECT_TRUE(looked);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
    EXPECT_TRUE(dialog.findChildren<QMessageBox *>().isEmpty());
}

TEST_F(AlertTest, EscapeKey_ClosesTheBox)
{
    QTimer::singleShot(0, &dialog, [] { QTest::keyClick(QApplication::activeModalWidget(), Qt::Key_Escape); });
    NSRunAlertPanel(u" "_qs, u"x"_qs, u"OK"_qs);
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST(Alert, DialogClosedUnderIt_TakesTheBoxWithIt)
{
    QPointer<QWidget> dialog = new QWidget;
    dialog->show();
    dialog->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
    QTimer::singleShot(0, dialog, [dialog] { delete dialog.data(); });
    NSRunAlertPanel(u" "_qs, u"x"_qs, u"OK"_qs);
    EXPECT_TRUE(dialog.isNull());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

} // namespace
