// SPDX-License-Identifier: Apache-2.0
// The window in its languages: which catalogue is taken, and that no two controls share a letter.
#include "TestPrinter.h"

#include "dialog/PrintDialog.h"
#include "dialog/Translations.h"
#include "job/Printing.h"
#include "tests/support/TextPrinting.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QKeySequence>
#include <QLabel>
#include <QPushButton>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::job;
using namespace tapeprint::dialog;

/// The default locale, set back at the end.
class DefaultLocale
{
public:
    explicit DefaultLocale(const QString &name) { QLocale::setDefault(QLocale(name)); }
    ~DefaultLocale() { QLocale::setDefault(mBefore); }
    DefaultLocale(const DefaultLocale &) = delete;
    DefaultLocale &operator=(const DefaultLocale &) = delete;

private:
    QLocale mBefore;
};

struct Language {
    const char *locale;
    const char *cancel;
};

void PrintTo(const Language &language, std::ostream *stream)
{
    *stream << language.locale;
}

class TranslatedWindow : public testing::TestWithParam<Language>
{
protected:
    void SetUp() override
    {
        const QString file = hosttest::writeFile(folder, u"label.txt"_qs, "Hello\n");
        panels.open(hosttest::testDestination(folder), {});
        dialog = std::make_unique<PrintDialog>(job, panels, PrintDialog::Setup{{}, u"label.txt"_qs, {file}, {}},
                                               PrintDialog::PrintAction());
    }

    QTemporaryDir folder;
    DefaultLocale locale{QString::fromLatin1(GetParam().locale)};
    Translations translations;
    Job job;
    Panels panels{job, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> dialog;
};

TEST_P(TranslatedWindow, Buttons_SpeakTheLocalesLanguage)
{
    const auto *cancel = dialog->findChild<QPushButton *>(u"cancel"_qs);
    ASSERT_NE(cancel, nullptr);
    EXPECT_EQ(cancel->text(), QString::fromUtf8(GetParam().cancel));
}

TEST_P(TranslatedWindow, MnemonicOfThePaper_IsTakenByNothingElseEither)
{
    // A printer without a panel has no chooser, whose letter is free then.
    const QKeySequence paper =
        QKeySequence::mnemonic(QCoreApplication::translate("tapeprint::dialog::PrintDialog", "P&aper:"));
    ASSERT_FALSE(paper.isEmpty());
    for (const char *other : {"P&rinter:", "&Copies:", "Re&vert", "&Print"}) {
        EXPECT_NE(QKeySequence::mnemonic(QCoreApplication::translate("tapeprint::dialog::PrintDialog", other)), paper)
            << other;
    }
}

TEST_P(TranslatedWindow, Mnemonics_AreThereAndNoneIsThereTwice)
{
    QStringList letters;
    for (const QLabel *label : dialog->findChildren<QLabel *>()) {
        if (label->buddy() != nullptr && !QKeySequence::mnemonic(label->text()).isEmpty()) {
            letters.append(QKeySequence::mnemonic(label->text()).toString());
        }
    }
    for (const QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
        if (!QKeySequence::mnemonic(button->text()).isEmpty()) {
            letters.append(QKeySequence::mnemonic(button->text()).toString());
        }
    }
    // Printer, preset, tape, copies, Load Anew, Ask Again, Resolve, panel, Fit Length, Keep, Revert, Show Command,
    // Help, Print.
    EXPECT_EQ(letters.size(), 14) << letters.join(u' ').toStdString();
    EXPECT_EQ(letters.removeDuplicates(), 0) << letters.join(u' ').toStdString();
}

INSTANTIATE_TEST_SUITE_P(
    Languages, TranslatedWindow,
    testing::Values(Language{"en_GB", "Cancel"}, Language{"de_AT", "Abbrechen"}, Language{"fr_CA", "Annuler"},
                    Language{"es_MX", "Cancelar"}, Language{"it_IT", "Annulla"}, Language{"nl_BE", "Annuleren"},
                    Language{"pt_PT", "Cancelar"}, Language{"ja_JP", "キャンセル"}, Language{"ko_KR", "취소"},
                    Language{"zh_CN", "取消"}, Language{"sv_SE", "Cancel"}, Language{"C", "Cancel"}),
    [](const testing::TestParamInfo<Language> &tested) { return std::string(tested.param.locale); });

TEST(TranslationsTest, Sentences_AreTranslatedAsLongAsTheTranslationsLive)
{
    const DefaultLocale locale(u"de_DE"_qs);
    const PrintedJob job{u"tape"_qs, {7, u"pending"_qs}, {}};
    auto translations = std::make_unique<Translations>();
    EXPECT_EQ(job.sentence(), u"Auftrag tape-7: wartet."_qs);
    translations.reset();
    EXPECT_EQ(job.sentence(), u"Job tape-7 is pending."_qs);
}

TEST(TranslationsTest, NumbersOfThings_HaveEnglishsPluralFormsInLanguagesWithoutACatalogue)
{
    const DefaultLocale locale(u"sv_SE"_qs);
    const Translations translations;
    const char *const context = "tapeprint::dialog::PreviewArea";
    EXPECT_EQ(QCoreApplication::translate(context, "%n label(s)", nullptr, 1), u"1 label"_qs);
    EXPECT_EQ(QCoreApplication::translate(context, "%n label(s)", nullptr, 2), u"2 labels"_qs);
}

TEST(TranslationsTest, OptionNames_AreFollowedByTheLanguagesColon)
{
    const DefaultLocale locale(u"ja_JP"_qs);
    const Translations translations;
    EXPECT_EQ(QCoreApplication::translate("tapeprint::dialog::OptionsPage", "%1:", "name of an option").arg(u"切断"_qs),
              u"切断："_qs);
}

} // namespace
