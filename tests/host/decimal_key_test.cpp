// SPDX-License-Identifier: Apache-2.0
// The decimal key of the person's language in the panel's fields, by real keys.
#include "TestPrinter.h"

#include "dialog/PrintDialog.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QLocale>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

class DecimalKeyTest : public testing::Test
{
protected:
    ~DecimalKeyTest() override { QLocale::setDefault(mBefore); }

    void open(const QString &locale)
    {
        QLocale::setDefault(QLocale(locale));
        job::Destination destination;
        job::Problem problem;
        destination.ppdPath = QStringLiteral(TAPEPRINT_PRINTER_DIR "/tapeprint-mm.ppd");
        destination.ppd = job::openPpdFile(destination.ppdPath, &problem);
        ASSERT_NE(destination.ppd, nullptr);
        panels.open(std::move(destination), {});
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}},
                                               PrintDialog::PrintAction());
        dialog->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(dialog.get()));
        field = dialog->findChild<QLineEdit *>(u"mLengthTxFld"_qs);
        ASSERT_NE(field, nullptr);
        field->setFocus();
        field->selectAll();
    }

    /// Presses keys, of which a comma or a point stands for the decimal key of the main block.
    QString typed(const QString &keys)
    {
        for (const QChar key : keys) {
            QTest::keyClick(field, key.toLatin1());
        }
        return field->text();
    }

    job::Job job;
    Panels panels{job, {QStringLiteral(TAPEPRINT_BUNDLE_DIR)}};
    std::unique_ptr<PrintDialog> dialog;
    QLineEdit *field = nullptr;

private:
    QLocale mBefore;
};

TEST_F(DecimalKeyTest, CommaOfAGermanSession_IsThePoint)
{
    ASSERT_NO_FATAL_FAILURE(open(u"de_DE"_qs));
    EXPECT_EQ(typed(u"12,5"_qs), u"12.5"_qs);
    // It reaches the job as the number that was meant.
    QTest::keyClick(field, Qt::Key_Tab);
    QApplication::processEvents();
    EXPECT_EQ(panels.currentOptions().value(u"KsTapeLength"_qs), u"12.5"_qs);
}

TEST_F(DecimalKeyTest, CommaOfTheKeypad_IsThePoint)
{
    ASSERT_NO_FATAL_FAILURE(open(u"de_DE"_qs));
    typed(u"12"_qs);
    QTest::keyClick(field, Qt::Key_Comma, Qt::KeypadModifier);
    EXPECT_EQ(typed(u"5"_qs), u"12.5"_qs);
}

TEST_F(DecimalKeyTest, PointOfAGermanSession_StaysAPoint)
{
    ASSERT_NO_FATAL_FAILURE(open(u"de_DE"_qs));
    EXPECT_EQ(typed(u"12.5"_qs), u"12.5"_qs);
}

TEST_F(DecimalKeyTest, SecondDecimalKey_IsRefusedAsASecondPointIs)
{
    ASSERT_NO_FATAL_FAILURE(open(u"de_DE"_qs));
    EXPECT_EQ(typed(u"1,2,5"_qs), u"1.25"_qs);
}

TEST_F(DecimalKeyTest, CommaOfAnEnglishSession_IsRefusedAsEver)
{
    ASSERT_NO_FATAL_FAILURE(open(u"en_US"_qs));
    EXPECT_EQ(typed(u"12,5"_qs), u"125"_qs);
}

TEST_F(DecimalKeyTest, PastedComma_StaysWithThePanel)
{
    ASSERT_NO_FATAL_FAILURE(open(u"de_DE"_qs));
    const QString before = field->text();
    QApplication::clipboard()->setText(u"12,5"_qs);
    field->paste();
    EXPECT_EQ(field->text(), before);
}

TEST_F(DecimalKeyTest, DecimalKeyOfAnArabicSession_IsThePoint)
{
    ASSERT_NO_FATAL_FAILURE(open(u"ar_EG"_qs));
    typed(u"12"_qs);
    const QString decimal = QLocale().decimalPoint();
    ASSERT_NE(decimal, u"."_qs);
    QTest::sendKeyEvent(QTest::Click, field, Qt::Key_unknown, decimal, Qt::NoModifier);
    EXPECT_EQ(typed(u"5"_qs), u"12.5"_qs);
}

} // namespace
