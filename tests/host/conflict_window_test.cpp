// SPDX-License-Identifier: Apache-2.0
// Options that do not go together: the window says it and resolves it, and neither it nor the command line prints with
// a conflict that nobody saw. And the sheet for a page size of one's own.
#include "Hands.h"
#include "ProgramTest.h"
#include "ShownWindow.h"

#include "dialog/ConflictNotice.h"
#include "dialog/CustomSizeSheet.h"
#include "dialog/PrintDialog.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <QApplication>
#include <QComboBox>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>

#include <atomic>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

/// Cutting each label does not go with mirrored printing, and the wide margin of the panel not with the 24 mm tape.
const QByteArray constraints = "*UIConstraints: *CutMedia Label *KsMirror True\n"
                               "*UIConstraints: *KsMirror True *CutMedia Label\n"
                               "*UIConstraints: *KsMargin 5.0 *PageSize W24\n";
const QByteArray ownSizes = "*VariablePaperSize: True\n*MaxMediaWidth: \"144\"\n*MaxMediaHeight: \"720\"\n"
                            "*HWMargins: 0 0 0 0\n*NonUIOrderDependency: 100 AnySetup *CustomPageSize\n"
                            "*CustomPageSize True: \"pop pop pop pop pop\"\n"
                            "*ParamCustomPageSize Width: 1 points 36 144\n"
                            "*ParamCustomPageSize Height: 2 points 36 720\n"
                            "*ParamCustomPageSize WidthOffset: 3 points 0 0\n"
                            "*ParamCustomPageSize HeightOffset: 4 points 0 0\n"
                            "*ParamCustomPageSize Orientation: 5 int 0 0\n";

class ConflictWindow : public testing::Test
{
protected:
    void open(const QByteArray &lines = constraints)
    {
        dialog.reset();
        panels.open(hosttest::testDestination(folder, lines), {});
        dialog = std::make_unique<PrintDialog>(
            job, panels, PrintDialog::Setup{{}, u"label"_qs, {}, {}},
            [this](const job::SettledJob &settled, const job::PrintWatch &, job::Problem *error) {
                printed = settled.options;
                ++prints;
                *error = job::Problem(u"nothing is printed here"_qs);
                return std::optional<job::PrintedJob>();
            });
        ASSERT_TRUE(hosttest::show(*dialog));
    }
    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*dialog, name);
    }
    void change(const QString &key, const QString &choice)
    {
        job.changeOption(key, choice);
        QApplication::processEvents();
    }
    QString said()
    {
        const auto *label = child<QLabel>(u"conflicts"_qs);
        return label->isVisibleTo(dialog.get()) ? label->text() : QString();
    }
    void press(const QString &button)
    {
        child<QPushButton>(button)->click();
        QApplication::processEvents();
    }
    /// The question that stands open; null when none does.
    QMessageBox *question() { return dialog->findChild<QMessageBox *>(); }
    /// Answers the question and the sentence that follows it.
    void answer(const QString &button)
    {
        QMessageBox *box = question();
        ASSERT_NE(box, nullptr);
        for (QAbstractButton *each : box->buttons()) {
            if (each->text().remove(u'&') == button) {
                QTimer::singleShot(0, this->dialog.get(), [each] { each->click(); });
                // What the print action answers is told in a box of its own.
                QTimer::singleShot(300, this->dialog.get(), [] {
                    if (QWidget *modal = QApplication::activeModalWidget(); modal != nullptr) {
                        modal->close();
                    }
                });
                QTest::qWait(600);
                return;
            }
        }
        FAIL() << button.toStdString();
    }

    QTemporaryDir folder;
    job::Job job;
    Panels panels{job, hosttest::goodBundles()};
    std::unique_ptr<PrintDialog> dialog;
    job::JobOptions printed;
    std::atomic<int> prints{0};
};

TEST_F(ConflictWindow, Conflict_IsSaidWithWhatTheButtonChangesAndMarkedAtTheOptions)
{
    ASSERT_NO_FATAL_FAILURE(open());
    EXPECT_EQ(said(), QString());
    change(u"CutMedia"_qs, u"Label"_qs);
    EXPECT_EQ(said(), QString());
    change(u"KsMirror"_qs, u"True"_qs);
    const QString sentence = u"\"Cut: After each label\" does not go with \"Mirror: Yes\"."_qs;
    EXPECT_EQ(said(), sentence + u"\nResolve: \"Cut\" changes from \"After each label\" to \"Do not cut\"."_qs);
    EXPECT_EQ(child<QLabel>(u"CutMedia/conflict"_qs)->accessibleName(), sentence);
    EXPECT_EQ(child<QLabel>(u"KsMirror/conflict"_qs)->accessibleName(), sentence);
    press(u"resolve"_qs);
    EXPECT_EQ(said(), QString());
    EXPECT_EQ(job.options().value(u"CutMedia"_qs), u"None"_qs);
    EXPECT_EQ(job.options().value(u"KsMirror"_qs), u"True"_qs); // what was changed last stays
    EXPECT_TRUE(child<QLabel>(u"CutMedia/conflict"_qs)->isHidden());
}

TEST_F(ConflictWindow, ResolutionOfAPanelsOption_ReachesThePanel)
{
    ASSERT_NO_FATAL_FAILURE(open());
    change(u"KsMargin"_qs, u"5.0"_qs);
    panels.changePaper(u"W24"_qs);
    QApplication::processEvents();
    EXPECT_TRUE(said().startsWith(u"\"Margin: 5 mm\" does not go with \"Tape: 24 mm\"."_qs)) << said().toStdString();
    hosttest::takeCalls();
    press(u"resolve"_qs);
    EXPECT_EQ(said(), QString());
    EXPECT_EQ(job.options().value(u"KsMargin"_qs), u"2.0"_qs);
    EXPECT_EQ(job.options().value(u"PageSize"_qs), u"W24"_qs);
    const QStringList calls = hosttest::takeCalls();
    EXPECT_TRUE(calls.contains(u"changed KsMargin=2.0, tape W24"_qs)) << calls.join(u'\n').toStdString();
}

TEST_F(ConflictWindow, Print_AsksOnceAndPrintsNothingOnCancel)
{
    ASSERT_NO_FATAL_FAILURE(open());
    change(u"CutMedia"_qs, u"Label"_qs);
    change(u"KsMirror"_qs, u"True"_qs);
    press(u"print"_qs);
    ASSERT_NE(question(), nullptr);
    EXPECT_EQ(question()->text(), u"\"Cut: After each label\" does not go with \"Mirror: Yes\"."_qs);
    EXPECT_EQ(question()->informativeText(), u"\"Cut\" changes from \"After each label\" to \"Do not cut\"."_qs);
    answer(u"Cancel"_qs);
    EXPECT_EQ(prints, 0);
    EXPECT_EQ(job.options().value(u"CutMedia"_qs), u"Label"_qs);
}

TEST_F(ConflictWindow, ChangeAndPrint_PrintsWithTheChange)
{
    ASSERT_NO_FATAL_FAILURE(open());
    change(u"CutMedia"_qs, u"Label"_qs);
    change(u"KsMirror"_qs, u"True"_qs);
    press(u"print"_qs);
    answer(u"Change and Print"_qs);
    EXPECT_EQ(prints, 1);
    EXPECT_EQ(printed.value(u"CutMedia"_qs), u"None"_qs);
    EXPECT_EQ(printed.value(u"KsMirror"_qs), u"True"_qs);
}

TEST_F(ConflictWindow, PrintAllTheSame_PrintsAsItIsAndIsAskedAgainTheNextTime)
{
    ASSERT_NO_FATAL_FAILURE(open());
    change(u"CutMedia"_qs, u"Label"_qs);
    change(u"KsMirror"_qs, u"True"_qs);
    press(u"print"_qs);
    answer(u"Print All the Same"_qs);
    EXPECT_EQ(prints, 1);
    EXPECT_EQ(printed.value(u"CutMedia"_qs), u"Label"_qs);
    press(u"print"_qs);
    EXPECT_NE(question(), nullptr);
}

class CustomSizeWindow : public ConflictWindow
{
protected:
    void pick(const QString &text)
    {
        auto *papers = child<QComboBox>(u"tape"_qs);
        hosttest::pick(papers, papers->findText(text));
    }
    QStringList items()
    {
        auto *papers = child<QComboBox>(u"tape"_qs);
        QStringList texts;
        for (int i = 0; i < papers->count(); ++i) {
            texts.append(papers->itemText(i));
        }
        return texts;
    }
    CustomSizeSheet *sheet() { return dialog->findChild<CustomSizeSheet *>(); }
    void enter(const QString &field, const QString &text) { sheet()->findChild<QLineEdit *>(field)->setText(text); }
};

TEST_F(CustomSizeWindow, Size_IsEnteredWithinTheLimitsRememberedAndRemoved)
{
    ASSERT_NO_FATAL_FAILURE(open(ownSizes));
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, u"Custom…"_qs}));
    pick(u"Custom…"_qs);
    ASSERT_NE(sheet(), nullptr);
    EXPECT_EQ(child<QComboBox>(u"tape"_qs)->currentText(), u"12 mm"_qs); // until there is a size
    auto *width = sheet()->findChild<QLineEdit *>(u"customSize/Width"_qs);
    EXPECT_EQ(sheet()->focusWidget(), width);
    EXPECT_EQ(width->selectedText(), width->text()); // the first key replaces it
    enter(u"customSize/Width"_qs, u"60"_qs);
    enter(u"customSize/Height"_qs, u"30,5"_qs);
    enter(u"sizeName"_qs, u"Shelf"_qs);
    sheet()->findChild<QLineEdit *>(u"sizeName"_qs)->setFocus();
    sheet()->accept();
    EXPECT_TRUE(sheet()->isVisible());
    EXPECT_EQ(sheet()->findChild<QLabel *>(u"customSize/problem"_qs)->text(),
              u"Width: Give a length from 12.7 to 50.8 mm."_qs);
    EXPECT_EQ(sheet()->focusWidget(), width);
    const auto *wrong = sheet()->findChild<QLabel *>(u"customSize/problem"_qs);
    QTest::qWait(50);
    EXPECT_GE(wrong->height(), wrong->heightForWidth(wrong->width())); // it is seen whole
    EXPECT_EQ(job.options().value(u"PageSize"_qs), u"W12"_qs);
    enter(u"customSize/Width"_qs, u"40"_qs);
    sheet()->accept();
    QTest::qWait(50);
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(job.options().value(u"PageSize"_qs), u"Custom.40x30.5mm"_qs);
    EXPECT_NEAR(job::mmFromPoints(job.page().sizePt.width()), 40.0, 0.001);
    EXPECT_NEAR(job::mmFromPoints(job.page().sizePt.height()), 30.5, 0.001);
    const QString item = u"Shelf (40.0 mm × 30.5 mm)"_qs;
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, item, u"Custom…"_qs}));
    EXPECT_EQ(child<QComboBox>(u"tape"_qs)->currentText(), item);

    // Another window offers it too, to a printer that takes it and to no other.
    ASSERT_NO_FATAL_FAILURE(open(QByteArray(ownSizes).replace("Width: 1 points 36 144", "Width: 1 points 36 72")));
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, u"Custom…"_qs}));
    ASSERT_NO_FATAL_FAILURE(open(ownSizes));
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, item, u"Custom…"_qs}));
    pick(u"Custom…"_qs);
    ASSERT_NE(sheet(), nullptr);
    auto *remembered = sheet()->findChild<QComboBox *>(u"rememberedSizes"_qs);
    remembered->setCurrentIndex(1);
    Q_EMIT remembered->activated(1);
    EXPECT_EQ(sheet()->findChild<QLineEdit *>(u"customSize/Width"_qs)->text(), u"40"_qs);
    sheet()->findChild<QPushButton *>(u"removeSize"_qs)->click();
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, u"Custom…"_qs}));
    sheet()->reject();
}

TEST_F(CustomSizeWindow, SizeWithoutAName_IsShownAsLongAsItIsTheJobs)
{
    ASSERT_NO_FATAL_FAILURE(open(ownSizes));
    change(u"PageSize"_qs, u"Custom.1x2in"_qs);
    EXPECT_EQ(child<QComboBox>(u"tape"_qs)->currentText(), u"Custom (25.4 mm × 50.8 mm)"_qs);
    change(u"PageSize"_qs, u"Custom.1x3in"_qs);
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs, u"Custom (25.4 mm × 76.2 mm)"_qs, u"Custom…"_qs}));
}

TEST_F(CustomSizeWindow, PrinterWithoutOwnSizes_OffersNone)
{
    ASSERT_NO_FATAL_FAILURE(open());
    EXPECT_EQ(items(), (QStringList{u"12 mm"_qs, u"24 mm"_qs}));
}

class ConflictProgram : public hosttest::Program
{
protected:
    QStringList shown(const QStringList &more) const
    {
        return QStringList{u"--no-dialog"_qs, u"--ppd"_qs, ppd, u"--show-options"_qs} + more;
    }
    QString ppd = hosttest::writeFile(
        folder, u"conflicts.ppd"_qs,
        hosttest::testPpd(constraints + "*OpenUI *Lock/Lock: PickOne\n*OrderDependency: 20 AnySetup *Lock\n"
                                        "*DefaultLock: None\n*Lock None/None: \"\"\n*CloseUI: *Lock\n"
                                        "*CustomLock True: \"\"\n*ParamCustomLock Code/Code: 1 passcode 4 4\n"
                                        "*cupsFilter: \"text/plain 0 -\"\n"));
    QStringList both{u"-o"_qs, u"CutMedia=Label KsMirror=True"_qs};
    QByteArray sentence = "\"Cut: After each label\" does not go with \"Mirror: Yes\".";
};

TEST_F(ConflictProgram, NamesTheConflictAndPrintsNothing)
{
    const hosttest::Outcome outcome =
        run(QStringList{u"--no-dialog"_qs, u"--ppd"_qs, ppd, u"--output"_qs, u"out.prn"_qs, document} + both);
    EXPECT_EQ(outcome.status, testsupport::conflict);
    EXPECT_TRUE(outcome.messages.contains(sentence)) << outcome.messages.toStdString();
    EXPECT_FALSE(QFileInfo::exists(folder.filePath(u"out.prn"_qs)));
}

TEST_F(ConflictProgram, Check_NamesTheConflictByItsStatus)
{
    const QStringList check{u"--check"_qs, u"--ppd"_qs, ppd, u"--output"_qs, u"out.prn"_qs, document};
    const hosttest::Outcome outcome = run(check + both);
    EXPECT_EQ(outcome.status, testsupport::conflict);
    EXPECT_TRUE(outcome.messages.contains(sentence)) << outcome.messages.toStdString();
    EXPECT_EQ(run(check + both + QStringList{u"--resolve"_qs}).status, testsupport::done);
}

TEST_F(ConflictProgram, Json_ListsTheConflictsWhetherShownOrRefused)
{
    const QString text = QString::fromUtf8(sentence);
    const hosttest::Outcome refused =
        run(QStringList{u"--json"_qs, u"--check"_qs, u"--ppd"_qs, ppd, u"--output"_qs, u"out.prn"_qs, document} + both);
    EXPECT_EQ(refused.status, testsupport::conflict);
    EXPECT_EQ(refused.messages, "");
    const QJsonObject object = QJsonDocument::fromJson(refused.output).object();
    EXPECT_EQ(object[u"kind"].toString(), u"conflict"_qs);
    EXPECT_EQ(object[u"conflicts"].toArray(), QJsonArray{text});
    const QJsonObject options = QJsonDocument::fromJson(run(shown(both + QStringList{u"--json"_qs})).output).object();
    EXPECT_EQ(options[u"status"].toInt(-1), 0);
    EXPECT_EQ(options[u"conflicts"].toArray(), QJsonArray{text});
    EXPECT_EQ(options[u"options"][u"CutMedia"].toString(), u"Label"_qs);
}

TEST_F(ConflictProgram, ShowsOptionsAndNamesTheConflict)
{
    const hosttest::Outcome outcome = run(shown(both));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.messages.contains(sentence)) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("CutMedia=Label")) << outcome.output.toStdString();
}

TEST_F(ConflictProgram, Resolve_SaysWhatItChanges)
{
    const hosttest::Outcome outcome = run(shown(both + QStringList{u"--resolve"_qs}));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_TRUE(outcome.messages.contains(sentence)) << outcome.messages.toStdString();
    const bool cutChanged = outcome.messages.contains("\"Cut\" changes from \"After each label\" to \"Do not cut\".");
    const bool mirrorChanged = outcome.messages.contains("\"Mirror\" changes from \"Yes\" to \"No\".");
    EXPECT_NE(cutChanged, mirrorChanged) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains(cutChanged ? "CutMedia=None" : "KsMirror=False"));
}

TEST_F(ConflictProgram, Resolve_KeepsWhatWasAskedForLast)
{
    // The description's own choice gives way to what was asked for.
    const hosttest::Outcome mirrored =
        run(shown({u"-o"_qs, u"CutMedia=Label"_qs, u"-o"_qs, u"ksmirror=True"_qs, u"--resolve"_qs}));
    EXPECT_TRUE(mirrored.output.contains("KsMirror=True")) << mirrored.output.toStdString();
    EXPECT_TRUE(mirrored.output.contains("CutMedia=None")) << mirrored.output.toStdString();
    const hosttest::Outcome cut =
        run(shown({u"-o"_qs, u"KsMirror=True"_qs, u"-o"_qs, u"CutMedia=Label"_qs, u"--resolve"_qs}));
    EXPECT_TRUE(cut.output.contains("KsMirror=False")) << cut.output.toStdString();
    EXPECT_TRUE(cut.output.contains("CutMedia=Label")) << cut.output.toStdString();
}

TEST_F(ConflictProgram, Passcode_IsShownInAsterisks)
{
    const hosttest::Outcome outcome = run(shown({u"-o"_qs, u"Lock=Custom.0815"_qs}));
    EXPECT_EQ(outcome.status, 0) << outcome.messages.toStdString();
    EXPECT_TRUE(outcome.output.contains("Lock=Custom.***")) << outcome.output.toStdString();
    EXPECT_FALSE((outcome.output + outcome.messages).contains("0815"));
}

} // namespace
