// SPDX-License-Identifier: Apache-2.0
// Which options conflict, in words that blame the right ones, and what a resolution changes and what it leaves.
#include "tests/job/TapePpd.h"

#include "job/Conflicts.h"
#include "job/PpdMarks.h"
#include "tests/support/TextPrinting.h"

#include <gtest/gtest.h>

namespace
{

using namespace tapeprint::job;
using jobtest::ppdOf;
using jobtest::tapePpdText;

QByteArray option(const QByteArray &keyword, const QByteArray &text, const QByteArray &choices)
{
    QByteArray lines =
        "*OpenUI *" + keyword + "/" + text + ": PickOne\n*OrderDependency: 20 AnySetup *" + keyword + "\n";
    const QList<QByteArray> each = choices.split(' ');
    lines += "*Default" + keyword + ": " + each.first().left(each.first().indexOf('/')) + "\n";
    for (const QByteArray &choice : each) {
        lines += "*" + keyword + " " + choice + ": \"\"\n";
    }
    return lines + "*CloseUI: *" + keyword + "\n";
}

const QByteArray finishing = option("Duplex", "Both sides", "None/Off Long/On") +
                             option("Media", "Material", "Paper/Paper Film/Film Cloth/Cloth") +
                             option("Cut", "Cutter", "None/No Half/Half Full/Full") +
                             "*OpenGroup: InstallableOptions/Installed\n" +
                             option("Knife", "Knife", "False/Missing True/There") + "*CloseGroup: InstallableOptions\n";

class Conflicts : public testing::Test
{
protected:
    void open(const QByteArray &constraints, std::initializer_list<std::pair<QString, QString>> marks)
    {
        ppd = ppdOf(tapePpdText(jobtest::customPages + finishing + constraints));
        for (const auto &[key, choice] : marks) {
            ASSERT_TRUE(markChoice(ppd.get(), key, choice)) << key.toStdString();
        }
    }
    QStringList sentences() const
    {
        const std::vector<Conflict> found = conflictsOf(ppd.get());
        // Whether there is one at all libcups knows too, of what is there.
        EXPECT_EQ(ppdConflicts(ppd.get()) != 0, !found.empty());
        return sentencesOf(found);
    }
    /// "Key=Choice" of each change; "none" when there is no way out.
    QStringList changes(const QStringList &wanted = {}) const
    {
        const PpdMarks before = takeMarks(ppd.get());
        const std::optional<Resolution> resolution = resolutionOf(ppd.get(), wanted);
        EXPECT_EQ(takeMarks(ppd.get()), before);
        if (!resolution) {
            return {u"none"_qs};
        }
        QStringList result;
        for (const Resolution::Change &change : resolution->changes) {
            result.append(change.key + u'=' + change.choice);
        }
        return result;
    }

    PpdFile ppd;
};

TEST_F(Conflicts, OldConstraints_InBothDirectionsAreOne)
{
    open("*UIConstraints: *Duplex Long *Media Film\n*UIConstraints: *Media Film *Duplex Long\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentences(), QStringList{u"\"Both sides: On\" does not go with \"Material: Film\"."_qs});
    markChoice(ppd.get(), u"Media"_qs, u"Paper"_qs);
    EXPECT_EQ(sentences(), QStringList());
}

TEST_F(Conflicts, NonUiConstraints_AreReadAsWell)
{
    open("*NonUIConstraints: *Duplex Long *Media Film\n", {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentences().size(), 1);
}

TEST_F(Conflicts, ConstraintWithoutChoice_MeansAnyThatDoesSomething)
{
    open("*UIConstraints: *Cut *Media Film\n", {{u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentences(), QStringList()); // the cutter is off
    markChoice(ppd.get(), u"Cut"_qs, u"Full"_qs);
    EXPECT_EQ(sentences(), QStringList{u"\"Cutter: Full\" does not go with \"Material: Film\"."_qs});
}

TEST_F(Conflicts, NewConstraintOfThree_NamesAllThree)
{
    open("*cupsUIConstraints: \"*Duplex Long *Media Film *Cut Full\"\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentences(), QStringList());
    markChoice(ppd.get(), u"Cut"_qs, u"Full"_qs);
    EXPECT_EQ(sentences(),
              QStringList{u"\"Both sides: On\", \"Material: Film\", \"Cutter: Full\" do not go together."_qs});
}

TEST_F(Conflicts, NewConstraints_CountBesideTheOld)
{
    open("*UIConstraints: *Duplex Long *Cut Full\n*cupsUIConstraints: \"*Duplex Long *Media Film\"\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Cut"_qs, u"Full"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentences(), (QStringList{u"\"Both sides: On\" does not go with \"Material: Film\"."_qs,
                                        u"\"Both sides: On\" does not go with \"Cutter: Full\"."_qs}));
}

TEST_F(Conflicts, WhatIsNotThere_IsInNoConflict)
{
    open("*UIConstraints: *Duplex Long *Nowhere\n*UIConstraints: *Nowhere X *Duplex Long\n"
         "*UIConstraints: *Duplex Long *Media Wood\n*UIConstraints: *Duplex Long *Duplex Long\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(sentencesOf(conflictsOf(ppd.get())), QStringList());
    EXPECT_EQ(changes(), QStringList());
    EXPECT_TRUE(conflictsOf(nullptr).empty());
}

TEST_F(Conflicts, BesideOneThatIsNotThere_IsResolvedAllTheSame)
{
    open("*cupsUIConstraints: \"*Duplex Long *Nowhere X\"\n*cupsUIConstraints: \"*Cut Half *Media Cloth\"\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Cut"_qs, u"Half"_qs}, {u"Media"_qs, u"Cloth"_qs}});
    EXPECT_EQ(sentencesOf(conflictsOf(ppd.get())),
              QStringList{u"\"Cutter: Half\" does not go with \"Material: Cloth\"."_qs});
    EXPECT_EQ(changes({u"Cut"_qs}), QStringList{u"Media=Paper"_qs});
}

TEST_F(Conflicts, CustomPageSize_IsAChoice)
{
    open("*UIConstraints: *CustomPageSize True *Cut Full\n*UIConstraints: *PageRegion S72 *Cut Half\n",
         {{u"Cut"_qs, u"Full"_qs}, {u"PageSize"_qs, u"Custom.50x100"_qs}});
    EXPECT_EQ(sentences(), QStringList{u"\"Tape: Custom\" does not go with \"Cutter: Full\"."_qs});
    // PageRegion is the page size as well.
    markChoice(ppd.get(), u"PageSize"_qs, u"S72"_qs);
    markChoice(ppd.get(), u"Cut"_qs, u"Half"_qs);
    EXPECT_EQ(sentences(), QStringList{u"\"Tape: Short tape\" does not go with \"Cutter: Half\"."_qs});
}

TEST_F(Conflicts, Resolution_KeepsWhatIsWantedMost)
{
    open("*UIConstraints: *Duplex Long *Media Film\n*UIConstraints: *Media Film *Duplex Long\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(changes({u"Duplex"_qs}), QStringList{u"Media=Paper"_qs});
    EXPECT_EQ(changes({u"Media"_qs}), QStringList{u"Duplex=None"_qs});
    EXPECT_EQ(changes({u"Cut"_qs}).size(), 1); // not in the conflict: either of the two gives way
    EXPECT_EQ(changes({u"Cut"_qs, u"media"_qs, u"Duplex"_qs}), QStringList{u"Duplex=None"_qs});
}

TEST_F(Conflicts, Resolution_SaysWhatItChanges)
{
    open("*UIConstraints: *Duplex Long *Media Film\n", {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    const std::optional<Resolution> resolution = resolutionOf(ppd.get(), {u"Duplex"_qs});
    ASSERT_TRUE(resolution);
    EXPECT_EQ(resolution->sentence(), u"\"Material\" changes from \"Film\" to \"Paper\"."_qs);
}

TEST_F(Conflicts, WhatIsBuiltIn_StaysAndIsNamedLast)
{
    open("*UIConstraints: *Knife False *Cut Full\n*UIConstraints: *Knife False *Cut Half\n", {{u"Cut"_qs, u"Full"_qs}});
    EXPECT_EQ(sentences(), QStringList{u"\"Cutter: Full\" does not go with \"Knife: Missing\"."_qs});
    // What is wanted gives way when nothing else can.
    EXPECT_EQ(changes({u"Cut"_qs}), QStringList{u"Cut=None"_qs});
}

TEST_F(Conflicts, DefaultThatConflictsItself_GivesWayToAnotherChoice)
{
    open("*UIConstraints: *Duplex Long *Media Film\n*UIConstraints: *Duplex Long *Media Paper\n",
         {{u"Duplex"_qs, u"Long"_qs}, {u"Media"_qs, u"Film"_qs}});
    EXPECT_EQ(changes({u"Duplex"_qs}), QStringList{u"Media=Cloth"_qs});
}

TEST_F(Conflicts, WithoutAWayOut_ThereIsNone)
{
    // Whatever is cut, film and paper and cloth are all refused, and so is not cutting.
    open("*cupsUIConstraints: \"*Cut None *Knife False\"\n*cupsUIConstraints: \"*Cut Half *Knife False\"\n"
         "*cupsUIConstraints: \"*Cut Full *Knife False\"\n",
         {{u"Cut"_qs, u"Full"_qs}});
    EXPECT_EQ(changes(), QStringList{u"none"_qs});
}

} // namespace
