// SPDX-License-Identifier: Apache-2.0
// The sheets and questions over the window, in every language: each fits a small screen with all its texts, and no two
// of its controls share a letter.
#include "ShownWindow.h"
#include "TestPrinter.h"
#include "WindowTexts.h"

#include "dialog/CustomSizeSheet.h"
#include "dialog/PasswordQuestion.h"
#include "dialog/PresetNameDialog.h"
#include "dialog/PrintDialog.h"
#include "dialog/ShowCommand.h"
#include "dialog/Translations.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLocale>
#include <QMessageBox>
#include <QProxyStyle>
#include <QPushButton>
#include <QTest>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

/// What is left of a screen of 1920 by 1080 at 300 %.
constexpr QSize smallestScreen(640, 360);

const std::vector<job::CustomParameter> widthAndHeight{
    {u"Width"_qs, u"Width"_qs, job::CustomKind::Length, 36.0, 144.0},
    {u"Height"_qs, u"Height"_qs, job::CustomKind::Length, 36.0, 28800.0}};

/// As desktops are that have pictures on the buttons which the toolkit words.
class PicturesOnButtons : public QProxyStyle
{
public:
    PicturesOnButtons() : QProxyStyle(u"fusion"_qs) {}
    int styleHint(StyleHint hint, const QStyleOption *option, const QWidget *widget,
                  QStyleHintReturn *returned) const override
    {
        return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 1 : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

class Sheets : public testing::TestWithParam<const char *>
{
protected:
    void SetUp() override
    {
        QLocale::setDefault(QLocale(QString::fromLatin1(GetParam())));
        translations = std::make_unique<Translations>();
        QApplication::setStyle(new PicturesOnButtons); // the application's from here on
        const QDialogButtonBox others(QDialogButtonBox::Ok);
        ASSERT_FALSE(others.button(QDialogButtonBox::Ok)->icon().isNull());
    }
    void TearDown() override
    {
        QApplication::setStyle(u"fusion"_qs);
        translations.reset();
        QLocale::setDefault(mBefore);
    }

    /// What holds for every sheet. \param letters how many of its controls are to have one at least.
    static void expectFitsAndHasLetters(QWidget &sheet, qsizetype letters)
    {
        ASSERT_TRUE(hosttest::show(sheet));
        EXPECT_LE(sheet.minimumSizeHint().width(), smallestScreen.width());
        EXPECT_LE(sheet.minimumSizeHint().height(), smallestScreen.height());
        EXPECT_EQ(hosttest::cutTexts(sheet), QStringList());
        for (const QPushButton *button : sheet.findChildren<QPushButton *>()) {
            EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
        }
        const QStringList found = hosttest::lettersOf(sheet);
        EXPECT_GE(found.size(), letters) << found.join(u' ').toStdString();
        EXPECT_EQ(hosttest::lettersTwice(found), QStringList());
    }

    QTemporaryDir folder;
    std::unique_ptr<Translations> translations;

private:
    QLocale mBefore;
};

TEST_P(Sheets, OfACustomSize)
{
    const MeasureUnit unit(folder.filePath(u"dialog.ini"_qs));
    CustomSizeSheet sheet(widthAndHeight, {{u"Shelf"_qs, {72.0, 144.0}}}, {}, unit, nullptr);
    auto *remembered = sheet.findChild<QComboBox *>(u"rememberedSizes"_qs);
    remembered->setCurrentIndex(1);
    Q_EMIT remembered->activated(1); // Remove appears
    sheet.findChild<QLineEdit *>(u"customSize/Width"_qs)->setText(u"999"_qs);
    sheet.findChild<QLineEdit *>(u"sizeName"_qs)->clear();
    sheet.accept(); // refused in a sentence
    EXPECT_EQ(sheet.result(), 0);
    expectFitsAndHasLetters(sheet, 3);
}

TEST_P(Sheets, OfAPresetsName)
{
    PresetNameDialog sheet(u"Preset"_qs, u"two words"_qs, {}, PresetNameDialog::TakenNames::Replace, nullptr);
    expectFitsAndHasLetters(sheet, 1);
}

TEST_P(Sheets, OfAPresetsNameThatIsTyped)
{
    PresetNameDialog sheet(u"Preset"_qs, {}, {}, PresetNameDialog::TakenNames::Replace, nullptr);
    expectFitsAndHasLetters(sheet, 1);
    sheet.findChild<QLineEdit *>(u"presetName"_qs)->setText(u"two words"_qs);
    QApplication::processEvents();
    EXPECT_EQ(hosttest::cutTexts(sheet), QStringList());
}

TEST_P(Sheets, OfAPassword)
{
    PasswordDialog sheet({u"printers.example.com:631"_qs, u"mary"_qs, 2});
    expectFitsAndHasLetters(sheet, 2);
}

TEST_P(Sheets, OfTheCommands)
{
    const QString long_ = u"tapeprint --no-dialog -d tape "_qs + u"-o Keyword=Value "_qs.repeated(30);
    ShowCommand sheet(long_, long_, nullptr);
    expectFitsAndHasLetters(sheet, 2);
    sheet.resize(sheet.minimumSizeHint());
    QApplication::processEvents();
    EXPECT_EQ(hosttest::cutTexts(sheet), QStringList());
    // On half of 1366 by 768 its last button is seen, below a window's title.
    constexpr int titleBar = 28;
    EXPECT_LE(ShowCommand::sizeOn({683, 384}).height(), 384 - titleBar);
    EXPECT_EQ(ShowCommand::sizeOn({1366, 768}), QSize(640, 420));
}

TEST_P(Sheets, OfAConflict)
{
    job::Job job;
    Panels panels{job, hosttest::goodBundles()};
    panels.open(hosttest::testDestination(folder, "*UIConstraints: *CutMedia Label *KsMirror True\n"), {});
    PrintDialog dialog(job, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}}, PrintDialog::PrintAction());
    ASSERT_TRUE(hosttest::show(dialog));
    job.changeOption(u"CutMedia"_qs, u"Label"_qs);
    job.changeOption(u"KsMirror"_qs, u"True"_qs);
    QApplication::processEvents();
    dialog.findChild<QPushButton *>(u"print"_qs)->click();
    auto *question = dialog.findChild<QMessageBox *>();
    ASSERT_NE(question, nullptr);
    expectFitsAndHasLetters(*question, 2);
    question->reject();
}

INSTANTIATE_TEST_SUITE_P(Languages, Sheets,
                         testing::Values("en_GB", "de_DE", "fr_FR", "es_ES", "it_IT", "nl_NL", "pt_PT", "ja_JP",
                                         "ko_KR", "zh_CN"),
                         [](const testing::TestParamInfo<const char *> &tested) { return std::string(tested.param); });

} // namespace
