// SPDX-License-Identifier: Apache-2.0
// Strangers' texts are drawn as they stand: no markup, no underlined letters. Pictures are compared, because what
// counts is what the toolkit draws.
#include "TestPrinter.h"

#include "dialog/OptionsPage.h"
#include "dialog/PlainText.h"
#include "dialog/PrintDialog.h"
#include "dialog/SummaryView.h"
#include "tests/support/TextPrinting.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QTest>
#include <QTextDocument>
#include <QTimer>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

// A PPD writes "<" as its code.
const QByteArray hostileOption = "*OpenUI *Hostile/<3C>b>Cut</b>&Print: PickOne\n*DefaultHostile: A\n"
                                 "*Hostile A/R&D <i>1</i>: \"\"\n*Hostile B/Other: \"\"\n*CloseUI: *Hostile\n";

/// A label without a buddy in plain text draws every letter as it is.
QImage drawnPlainly(const QString &text, const QSize &size, QWidget *window)
{
    QLabel label(text, window);
    label.setTextFormat(Qt::PlainText);
    label.resize(size);
    return label.grab().toImage();
}

TEST(PlainLabel, DrawsItsTextAsItStands)
{
    QWidget window;
    auto *field = new QLineEdit(&window);
    for (const QString &text : {u"Cut&Print"_qs, u"Cut && Print"_qs, u"<b>Bold</b>"_qs, u"&lt;b&gt;"_qs, u"&P"_qs}) {
        QLabel *label = plainLabel(text, field);
        EXPECT_EQ(label->buddy(), field);
        label->resize(label->sizeHint());
        EXPECT_EQ(label->grab().toImage(), drawnPlainly(text, label->size(), &window)) << text.toStdString();
        // A letter of it leads nowhere, and a screen reader reads all of it.
        EXPECT_TRUE(QKeySequence::mnemonic(label->text()).isEmpty()) << text.toStdString();
        EXPECT_EQ(QAccessible::queryAccessibleInterface(field)->text(QAccessible::Name), text);
        delete label;
    }
}

TEST(PlainToolTip, ReadsAsItsText)
{
    for (const QString &text : {u"<b>Bold</b> &amp; more"_qs, u"a < b"_qs, u"plain"_qs}) {
        QTextDocument shown;
        shown.setHtml(plainToolTip(text));
        EXPECT_EQ(shown.toPlainText(), text);
        EXPECT_TRUE(Qt::mightBeRichText(plainToolTip(text)));
    }
    EXPECT_EQ(plainToolTip({}), QString());
}

TEST(PlainTitle, KeepsTheMarkOfAModifiedDocument)
{
    QWidget window;
    window.setWindowTitle(plainTitle(u"label[*].pdf"_qs));
    // The toolkit takes a single mark out of the name that it gives to the window, and one of two.
    EXPECT_EQ(window.windowTitle(), u"label[*][*].pdf"_qs);
}

class StrangersTexts : public testing::Test
{
protected:
    void SetUp() override
    {
        panels.open(hosttest::testDestination(folder, hostileOption), {});
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"<b>x</b>[*]"_qs, {}, {}},
                                               [](const job::SettledJob & /*job*/, const std::atomic<bool> & /*stop*/,
                                                  job::Problem *error) -> std::optional<job::PrintedJob> {
                                                   *error = u"<b>no</b> &amp; never"_qs;
                                                   return std::nullopt;
                                               });
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        QApplication::processEvents();
    }

    QTemporaryDir folder;
    job::Job job;
    Panels panels{job, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> dialog;
};

TEST_F(StrangersTexts, NameOfAnOption_IsDrawnAsItStands)
{
    auto *popUp = dialog->findChild<QComboBox *>(u"Hostile"_qs);
    ASSERT_NE(popUp, nullptr);
    QLabel *found = nullptr;
    for (QLabel *label : dialog->findChildren<QLabel *>()) {
        found = label->buddy() == popUp ? label : found;
    }
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->textFormat(), Qt::PlainText);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(found)->text(QAccessible::Name), u"<b>Cut</b>&Print:"_qs);
    EXPECT_EQ(popUp->itemText(0), u"R&D <i>1</i>"_qs);
}

TEST_F(StrangersTexts, SentenceOfAFailure_IsShownAsItStands)
{
    Qt::TextFormat format = Qt::AutoText;
    QString text;
    QTimer::singleShot(0, dialog.get(), [&] {
        auto *timer = new QTimer(dialog.get());
        QObject::connect(timer, &QTimer::timeout, dialog.get(), [&format, &text, timer] {
            if (auto *box = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
                timer->stop();
                format = box->textFormat();
                text = box->text();
                box->accept();
            }
        });
        timer->start(10);
    });
    QTest::mouseClick(dialog->findChild<QWidget *>(u"print"_qs), Qt::LeftButton);
    ASSERT_TRUE(QTest::qWaitFor([&text] { return !text.isNull(); }));
    EXPECT_EQ(text, u"<b>no</b> &amp; never"_qs);
    EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(StrangersTexts, WindowTitle_HoldsTheDocumentsNameWithTheMarkDoubled)
{
    EXPECT_EQ(dialog->windowTitle(), u"Print <b>x</b>[*][*]"_qs);
}

} // namespace
