// SPDX-License-Identifier: Apache-2.0
// One choice as the panel holds it: titles, default, description.
#include "MemoryOption.h"
#include "TextPrinting.h"

#include "pdekit/StringEncoding.h"
#include "ppd/PDEChoice.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <string>

namespace
{

/// The address of a record as "%p" writes it.
QString addressOf(const PDEChoice &choice)
{
    std::array<char, 32> text = {};
    std::snprintf(text.data(), text.size(), "%p", static_cast<const void *>(&choice));
    return QString::fromLatin1(text.data());
}

TEST(PDEChoice, Choice_IsTheRecordOfThePpd)
{
    const MemoryOption memory("A", {{"A", "First"}});
    EXPECT_EQ(PDEChoice::choiceWithChoice(&memory.choices[0]).choice(), &memory.choices[0]);
}

TEST(PDEChoice, UserTitle_IsTheTextAsUtf8_WhateverTheSystemsEncodingIs)
{
    const MemoryOption memory("A", {{"A", "Gr\xC3\xB6\xC3\x9F"
                                          "e"}});
    pdekit::setSystemEncoding("ISO-8859-1");
    EXPECT_EQ(PDEChoice(&memory.choices[0]).userTitle(), u"Gr\u00F6\u00DFe");
    pdekit::setSystemEncoding({});
}

TEST(PDEChoice, UserTitle_OfBytesThatAreNoUtf8_IsNil)
{
    const MemoryOption memory("A", {{"A", "Gr\xF6"}});
    EXPECT_TRUE(PDEChoice(&memory.choices[0]).userTitle().isNull());
}

TEST(PDEChoice, PpdTitle_IsTheKeywordAsAscii_NilWithAnythingElse)
{
    const MemoryOption memory("A", {{"KsTapeColorRed", "Red"}, {"K\xC3\xA4", "Kae"}});
    EXPECT_EQ(PDEChoice(&memory.choices[0]).ppdTitle(), u"KsTapeColorRed");
    EXPECT_TRUE(PDEChoice(&memory.choices[1]).ppdTitle().isNull());
}

TEST(PDEChoice, Titles_AreMadeOnFirstRequestAndKept)
{
    MemoryOption memory("A", {{"A", "First"}});
    const PDEChoice choice(&memory.choices[0]);
    putText(memory.choices[0].text, "Second");
    putText(memory.choices[0].choice, "B");
    EXPECT_EQ(choice.userTitle(), u"Second");
    EXPECT_EQ(choice.ppdTitle(), u"B");
    putText(memory.choices[0].text, "Third");
    putText(memory.choices[0].choice, "C");
    EXPECT_EQ(choice.userTitle(), u"Second");
    EXPECT_EQ(choice.ppdTitle(), u"B");
}

TEST(PDEChoice, IsDefaultChoice_ComparesTheKeywordWithTheOptionsDefault)
{
    const MemoryOption memory("B", {{"A", "First"}, {"B", "Second"}, {"b", "Third"}, {"BB", "Fourth"}});
    EXPECT_FALSE(PDEChoice(&memory.choices[0]).isDefaultChoice());
    EXPECT_TRUE(PDEChoice(&memory.choices[1]).isDefaultChoice());
    EXPECT_FALSE(PDEChoice(&memory.choices[2]).isDefaultChoice());
    EXPECT_FALSE(PDEChoice(&memory.choices[3]).isDefaultChoice());
}

TEST(PDEChoice, IsDefaultChoice_ReadsThe41CharactersOfTheFieldsAndNoMore)
{
    // Both fields are full, without a NUL: what stands behind them in the records differs.
    const std::string full(41, 'x');
    const MemoryOption same(full, {{full, "First"}});
    EXPECT_TRUE(PDEChoice(&same.choices[0]).isDefaultChoice());
    const MemoryOption other(full, {{std::string(40, 'x') + 'y', "First"}});
    EXPECT_FALSE(PDEChoice(&other.choices[0]).isDefaultChoice());
}

TEST(PDEChoice, Description_OfAMarkedThirdOfFive_EndsWithItsPlace)
{
    MemoryOption memory("A", {{"A", "1"}, {"B", "2"}, {"C", "Three"}, {"D", "4"}, {"E", "5"}});
    memory.choices[2].marked = 1;
    const PDEChoice choice(&memory.choices[2]);
    EXPECT_EQ(choice.description(), u"<PDEChoice "_qs + addressOf(choice) +
                                        u" userTitle:\"Three\" ppdTitle:\"C\" marked:YES choice:3 of 5>"_qs);
}

TEST(PDEChoice, Description_OfAnUnmarkedFirst_SaysNo)
{
    const MemoryOption memory("A", {{"A", "%1 of %2"}});
    const QString description = PDEChoice(&memory.choices[0]).description();
    EXPECT_TRUE(description.endsWith(u" userTitle:\"%1 of %2\" ppdTitle:\"A\" marked:NO choice:1 of 1>"));
}

TEST(PDEChoice, Description_OfUnreadableTitles_ShowsThemAsNull)
{
    const MemoryOption memory("A", {{"\xE4", "\xE4"}});
    const QString description = PDEChoice(&memory.choices[0]).description();
    EXPECT_TRUE(description.contains(u"userTitle:\"(null)\" ppdTitle:\"(null)\"")) << description.toStdString();
}

TEST(PDEChoice, NullChoice_AnswersNil)
{
    const PDEChoice choice(nullptr);
    EXPECT_EQ(choice.choice(), nullptr);
    EXPECT_TRUE(choice.userTitle().isNull());
    EXPECT_TRUE(choice.ppdTitle().isNull());
    EXPECT_FALSE(choice.isDefaultChoice());
    EXPECT_TRUE(choice.description().endsWith(u"marked:NO choice:0 of 0>"));
}

} // namespace
