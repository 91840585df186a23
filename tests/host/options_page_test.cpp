// SPDX-License-Identifier: Apache-2.0
// The page of a description's other options: sections, rows that are made quickly, own values, what is told apart.
#include "Hands.h"
#include "TestPrinter.h"

#include "dialog/OptionsPage.h"
#include "dialog/PopUp.h"
#include "job/PpdMarks.h"
#include "tests/support/Noticeable.h"
#include "tests/support/ProcessorTime.h"
#include "tests/support/TextPrinting.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint;
using namespace tapeprint::dialog;

QByteArray pickOne(const QByteArray &keyword, const QByteArray &choices, const QByteArray &kind = "PickOne")
{
    return "*OpenUI *" + keyword + "/" + keyword + ": " + kind + "\n*OrderDependency: 20 AnySetup *" + keyword +
           "\n*Default" + keyword + ": A\n" + choices + "*CloseUI: *" + keyword + "\n";
}

QByteArray ab(const QByteArray &keyword)
{
    return "*" + keyword + " A/First: \"\"\n*" + keyword + " B/Second: \"\"\n";
}

const QByteArray ownValues =
    pickOne("Count", ab("Count")) + "*CustomCount True: \"\"\n*ParamCustomCount Number/Number: 1 int 2 20\n" +
    pickOne("Shift", ab("Shift")) + "*CustomShift True: \"\"\n*ParamCustomShift By/By: 1 points 36 144\n" +
    pickOne("Lock", ab("Lock")) + "*CustomLock True: \"\"\n*ParamCustomLock Code/Code: 1 passcode 4 4\n" +
    pickOne("Stamp", ab("Stamp")) +
    "*CustomStamp True: \"\"\n*ParamCustomStamp Words/Words: 1 string 0 20\n"
    "*ParamCustomStamp Gray/Gray: 2 real 0 1\n";

class OptionsPageTest : public testing::Test
{
protected:
    void open(const QByteArray &lines)
    {
        page.reset();
        panels.open(hosttest::testDestination(folder, lines), {});
        page = std::make_unique<OptionsPage>(job, panels, unit, nullptr);
        page->finish();
        QObject::connect(page.get(), &OptionsPage::picked, &job, &job::Job::changeOption);
        QObject::connect(&job, &job::Job::changed, page.get(), &OptionsPage::follow);
    }
    template <typename Widget>
    Widget *child(const QString &name)
    {
        return hosttest::child<Widget>(*page, name);
    }
    void pick(const QString &option, const QString &text)
    {
        auto *popUp = child<QComboBox>(option);
        hosttest::pick(popUp, popUp->findText(text));
    }
    void type(const QString &field, const QString &text)
    {
        auto *edit = child<QLineEdit>(field);
        edit->selectAll();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    QString problem(const QString &option)
    {
        const auto *label = child<QLabel>(option + u"/problem"_qs);
        return label->isHidden() ? QString() : label->text();
    }
    QString carried(const QString &option) const { return job.options().value(option); }

    QTemporaryDir folder;
    MeasureUnit unit{folder.filePath(u"settings.ini"_qs)};
    job::Job job;
    Panels panels{job, hosttest::goodBundles()};
    std::unique_ptr<OptionsPage> page;
};

TEST_F(OptionsPageTest, GroupsAreSectionsAndWhatIsInstalledStandsBelow)
{
    open("*OpenGroup: InstallableOptions/Options\n" + pickOne("Box", ab("Box")) +
         "*CloseGroup: InstallableOptions\n*OpenGroup: Ends/Cut & fold\n" + pickOne("Fold", ab("Fold")) +
         "*CloseGroup: Ends\n");
    QStringList titles;
    for (const QGroupBox *section : page->findChildren<QGroupBox *>()) {
        titles.append(section->title());
    }
    // KsMargin is the panel's; CutMedia and KsMirror stand in no group.
    EXPECT_EQ(titles, (QStringList{u"General"_qs, u"Cut && fold"_qs, u"Installed in the printer"_qs}));
    EXPECT_EQ(page->findChild<QWidget *>(u"KsMargin"_qs), nullptr);
    EXPECT_NE(page->findChild<QWidget *>(u"CutMedia"_qs), nullptr);
}

TEST_F(OptionsPageTest, WholeNumber_IsTakenWithinItsLimitsAndRefusedInASentenceBeyond)
{
    open(ownValues);
    EXPECT_TRUE(child<QLineEdit>(u"Count/Number"_qs)->parentWidget()->parentWidget()->isHidden());
    pick(u"Count"_qs, u"Custom…"_qs);
    EXPECT_EQ(carried(u"Count"_qs), u"Custom.2"_qs); // the least that it takes
    EXPECT_FALSE(child<QLineEdit>(u"Count/Number"_qs)->parentWidget()->parentWidget()->isHidden());
    type(u"Count/Number"_qs, u"12"_qs);
    EXPECT_EQ(carried(u"Count"_qs), u"Custom.12"_qs);
    type(u"Count/Number"_qs, u"21"_qs);
    EXPECT_EQ(problem(u"Count"_qs), u"Give a whole number from 2 to 20."_qs);
    EXPECT_EQ(carried(u"Count"_qs), u"Custom.12"_qs);
    type(u"Count/Number"_qs, u"20"_qs);
    EXPECT_EQ(problem(u"Count"_qs), QString());
    EXPECT_EQ(carried(u"Count"_qs), u"Custom.20"_qs);
    pick(u"Count"_qs, u"Second"_qs);
    EXPECT_EQ(carried(u"Count"_qs), u"B"_qs);
    EXPECT_TRUE(child<QLineEdit>(u"Count/Number"_qs)->parentWidget()->parentWidget()->isHidden());
    pick(u"Count"_qs, u"Custom…"_qs);
    EXPECT_EQ(carried(u"Count"_qs), u"Custom.20"_qs);
}

TEST_F(OptionsPageTest, Length_IsShownAndTakenInTheDialogsUnit)
{
    unit.choose(LengthUnit::Millimetre);
    open(ownValues);
    pick(u"Shift"_qs, u"Custom…"_qs);
    EXPECT_EQ(child<QLineEdit>(u"Shift/By"_qs)->text(), u"12.7"_qs); // 36 points
    type(u"Shift/By"_qs, u"25,4"_qs);
    EXPECT_EQ(carried(u"Shift"_qs), u"Custom.25.4mm"_qs);
    unit.choose(LengthUnit::Inch);
    EXPECT_EQ(child<QLineEdit>(u"Shift/By"_qs)->text(), u"1"_qs);
    type(u"Shift/By"_qs, u"2.5"_qs);
    EXPECT_EQ(problem(u"Shift"_qs), u"Give a length from 0.5 to 2 in."_qs);
    type(u"Shift/By"_qs, u"1.5"_qs);
    EXPECT_EQ(carried(u"Shift"_qs), u"Custom.1.5in"_qs);
}

TEST_F(OptionsPageTest, Passcode_IsHiddenAndAskedForBeforeAnythingChanges)
{
    open(ownValues);
    pick(u"Lock"_qs, u"Custom…"_qs);
    EXPECT_EQ(problem(u"Lock"_qs), u"Give 4 to 4 digits."_qs);
    EXPECT_EQ(carried(u"Lock"_qs), QString());
    EXPECT_EQ(child<QLineEdit>(u"Lock/Code"_qs)->echoMode(), QLineEdit::Password);
    type(u"Lock/Code"_qs, u"0815"_qs);
    EXPECT_EQ(carried(u"Lock"_qs), u"Custom.0815"_qs);
}

TEST_F(OptionsPageTest, SeveralParameters_GoTogether)
{
    open(ownValues);
    pick(u"Stamp"_qs, u"Custom…"_qs);
    EXPECT_EQ(carried(u"Stamp"_qs), u"{Words='' Gray=0}"_qs);
    type(u"Stamp/Words"_qs, u"Top secret"_qs);
    type(u"Stamp/Gray"_qs, u"0.5"_qs);
    EXPECT_EQ(carried(u"Stamp"_qs), u"{Words='Top secret' Gray=0.5}"_qs);
    type(u"Stamp/Gray"_qs, u"2"_qs);
    EXPECT_EQ(problem(u"Stamp"_qs), u"Gray: Give a number from 0 to 1."_qs);
    EXPECT_EQ(carried(u"Stamp"_qs), u"{Words='Top secret' Gray=0.5}"_qs);
}

TEST_F(OptionsPageTest, NextParameterThatIsSelected_StaysSelectedWhenTheFirstIsTaken)
{
    open(pickOne("Place", ab("Place")) + "*CustomPlace True: \"\"\n*ParamCustomPlace Across/Across: 1 points 0 144\n"
                                         "*ParamCustomPlace Along/Along: 2 points 0 144\n");
    pick(u"Place"_qs, u"Custom…"_qs);
    auto *along = child<QLineEdit>(u"Place/Along"_qs);
    along->selectAll(); // as the Tab key does before the first field's value is taken
    type(u"Place/Across"_qs, u"12,5"_qs);
    EXPECT_EQ(carried(u"Place"_qs), u"{Across=12.5mm Along=0mm}"_qs);
    EXPECT_EQ(along->selectedText(), u"0"_qs);
}

TEST_F(OptionsPageTest, OwnValueOfTheJob_IsShown)
{
    open(ownValues);
    job.changeOption(u"Count"_qs, u"Custom.7"_qs);
    EXPECT_EQ(child<QComboBox>(u"Count"_qs)->currentText(), u"Custom…"_qs);
    EXPECT_EQ(child<QLineEdit>(u"Count/Number"_qs)->text(), u"7"_qs);
    job.changeOption(u"Count"_qs, u"B"_qs);
    EXPECT_EQ(child<QComboBox>(u"Count"_qs)->currentText(), u"Second"_qs);
}

TEST_F(OptionsPageTest, OptionThatTakesSeveral_HasBoxesOfWhichOneStaysChecked)
{
    open(pickOne("Add", ab("Add") + "*Add C/Third: \"\"\n", "PickMany"));
    EXPECT_TRUE(child<QCheckBox>(u"Add/A"_qs)->isChecked());
    child<QCheckBox>(u"Add/C"_qs)->click();
    EXPECT_EQ(carried(u"Add"_qs), u"A,C"_qs);
    child<QCheckBox>(u"Add/A"_qs)->click();
    EXPECT_EQ(carried(u"Add"_qs), u"C"_qs);
    child<QCheckBox>(u"Add/C"_qs)->click();
    EXPECT_TRUE(child<QCheckBox>(u"Add/C"_qs)->isChecked());
    EXPECT_EQ(carried(u"Add"_qs), u"C"_qs);
}

TEST_F(OptionsPageTest, RowsWithAndWithoutOwnValues_EndAtOneEdge)
{
    open(ownValues + pickOne("Tone", ab("Tone")));
    page->resize(500, 600);
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page.get()));
    const auto end = [this](const QString &key) {
        auto *popUp = child<PopUp>(key);
        return popUp->mapTo(page.get(), popUp->rect().topRight()).x();
    };
    EXPECT_EQ(end(u"Count"_qs), end(u"Tone"_qs));
    pick(u"Count"_qs, u"Custom…"_qs);
    QApplication::processEvents();
    EXPECT_EQ(end(u"Count"_qs), end(u"Tone"_qs));
}

TEST_F(OptionsPageTest, ChosenText_IsWholeWhereThereIsRoomAndNeedsNone)
{
    open(pickOne("Tone", "*Tone A/As the printer is set up: \"\"\n*Tone B/Off: \"\"\n"));
    auto *popUp = child<PopUp>(u"Tone"_qs);
    page->resize(page->sizeHint());
    page->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(page.get()));
    EXPECT_FALSE(popUp->isCut());
    page->resize(page->minimumSizeHint());
    EXPECT_TRUE(QTest::qWaitFor([popUp] { return popUp->isCut(); }));
}

TEST_F(OptionsPageTest, HostileTexts_AreDrawnAsTheyStand)
{
    open("*OpenUI *Evil/<i>A&B</i>\x9B"
         "2J: PickOne\n*OrderDependency: 20 AnySetup *Evil\n*DefaultEvil: A\n"
         "*Evil A/<img src=x>&One: \"\"\n*Evil B/Two: \"\"\n*CloseUI: *Evil\n");
    auto *popUp = child<QComboBox>(u"Evil"_qs);
    EXPECT_EQ(popUp->itemText(0), u"<img src=x>&One"_qs);
    const QList<QLabel *> labels = page->findChildren<QLabel *>();
    const auto found =
        std::find_if(labels.begin(), labels.end(), [popUp](const QLabel *label) { return label->buddy() == popUp; });
    ASSERT_NE(found, labels.end());
    EXPECT_EQ((*found)->textFormat(), Qt::PlainText);
    EXPECT_EQ((*found)->text(), u"<i>A&&B</i>\\x9B2J:"_qs);
}

TEST_F(OptionsPageTest, EightHundredOptionsAndTenThousandChoices_NeverKeepTheWindowWaiting)
{
    QByteArray lines;
    for (int i = 0; i < 800; ++i) {
        lines += pickOne("Opt" + QByteArray::number(i), ab("Opt" + QByteArray::number(i)));
    }
    QByteArray choices("*Long A/First: \"\"\n");
    for (int i = 0; i < 9999; ++i) {
        choices += "*Long C" + QByteArray::number(i) + "/Choice " + QByteArray::number(i) + ": \"\"\n";
    }
    lines += pickOne("Long", choices);
    panels.open(hosttest::testDestination(folder, lines), {});
    // All rows at once would take seconds.
    QScrollArea area;
    area.setWidgetResizable(true);
    double longest = test::processorMsOf([&] { area.setWidget(new OptionsPage(job, panels, unit, nullptr)); });
    auto *made = qobject_cast<OptionsPage *>(area.widget());
    area.resize(400, 300);
    area.show();
    int portions = 0;
    for (; !made->isWhole(); ++portions) {
        longest = std::max(longest, test::processorMsOf([] { QApplication::processEvents(QEventLoop::AllEvents, 1); }));
    }
    EXPECT_GT(portions, 0); // beside the first, that the page was made with
    EXPECT_LT(longest, test::noticeableMs);
    auto *popUp = made->findChild<QComboBox *>(u"Long"_qs);
    ASSERT_NE(popUp, nullptr);
    EXPECT_EQ(popUp->count(), 10000);
    const double following = test::processorMsOf([&] {
        job.changeOption(u"Long"_qs, u"C9998"_qs);
        made->follow();
    });
    EXPECT_LT(following, test::noticeableMs);
    EXPECT_EQ(popUp->currentText(), u"Choice 9998"_qs);
    const double opening = test::processorMsOf([&] {
        popUp->showPopup();
        QApplication::processEvents();
    });
    EXPECT_LT(opening, test::noticeableMs);
    EXPECT_TRUE(popUp->view()->verticalScrollBar()->isVisible());
    popUp->hidePopup();
    // The Tab key goes through the rows in their order, those that came later too.
    QWidget *next = made->findChild<QWidget *>(u"Opt798"_qs)->nextInFocusChain();
    while ((next->focusPolicy() & Qt::TabFocus) == 0) {
        next = next->nextInFocusChain();
    }
    EXPECT_EQ(next->objectName(), u"Opt799"_qs);
}

} // namespace
