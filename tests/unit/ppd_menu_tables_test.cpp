// SPDX-License-Identifier: Apache-2.0
// The exported menu tables and their look-up.
#include "pagesettings/Exports.h"

#include <gtest/gtest.h>

namespace
{

TEST(MenuTables, OpMenu_HoldsItsThreeRows)
{
    ASSERT_EQ(sizeof(OP_MENU) / sizeof(MenuRow), 3U);
    const char *const keys[] = {"OPT1_KEY", "OPT2_KEY", "OPT3_KEY"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(OP_MENU[i].identifier, 1 + i);
        EXPECT_STREQ(OP_MENU[i].key, keys[i]);
        EXPECT_EQ(OP_MENU[i].flag, 0);
    }
}

TEST(MenuTables, QualMenu_HoldsItsThreeRows)
{
    ASSERT_EQ(sizeof(QUAL_MENU) / sizeof(MenuRow), 3U);
    const char *const keys[] = {"QUAL1_KEY", "QUAL2_KEY", "QUAL3_KEY"};
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(QUAL_MENU[i].identifier, 101 + i);
        EXPECT_STREQ(QUAL_MENU[i].key, keys[i]);
        EXPECT_EQ(QUAL_MENU[i].flag, 0);
    }
}

TEST(MenuTables, GetMenuCount_CountsWholeRowsOfASizeInBytes)
{
    EXPECT_EQ(Get_MenuCount(OP_MENU, sizeof(OP_MENU)), 3U);
    EXPECT_EQ(Get_MenuCount(nullptr, 5 * sizeof(MenuRow)), 5U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, 2 * sizeof(MenuRow) + 1), 2U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, sizeof(MenuRow) - 1), 0U);
    EXPECT_EQ(Get_MenuCount(OP_MENU, 0), 0U);
}

TEST(MenuTables, GetMenuKeyStr_FindsTheKeyOfAnIdentifier)
{
    EXPECT_STREQ(Get_MenuKeyStr(102, QUAL_MENU, sizeof(QUAL_MENU)), "QUAL2_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(1, OP_MENU, sizeof(OP_MENU)), "OPT1_KEY");
    EXPECT_STREQ(Get_MenuKeyStr(3, OP_MENU, sizeof(OP_MENU)), "OPT3_KEY");
}

TEST(MenuTables, GetMenuKeyStr_UnknownIdentifier_AnswersNull)
{
    EXPECT_EQ(Get_MenuKeyStr(4, OP_MENU, sizeof(OP_MENU)), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(0, OP_MENU, sizeof(OP_MENU)), nullptr);
}

TEST(MenuTables, GetMenuKeyStr_NoTableOrNoWholeRow_AnswersNull)
{
    EXPECT_EQ(Get_MenuKeyStr(1, nullptr, sizeof(OP_MENU)), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(1, OP_MENU, sizeof(MenuRow) - 1), nullptr);
    EXPECT_EQ(Get_MenuKeyStr(1, OP_MENU, 0), nullptr);
}

TEST(MenuTables, GetMenuKeyStr_LooksOnlyAtTheRowsOfTheGivenSize)
{
    EXPECT_EQ(Get_MenuKeyStr(3, OP_MENU, 2 * sizeof(MenuRow)), nullptr);
    EXPECT_STREQ(Get_MenuKeyStr(2, OP_MENU, 2 * sizeof(MenuRow)), "OPT2_KEY");
}

TEST(MenuTables, GetMenuKeyStr_RowWithAFlag_IsPassedOver)
{
    const MenuRow table[] = {{7, "FLAGGED", 1}, {7, "FIRST", 0}, {7, "SECOND", 0}, {8, "ALONE", 1}};
    EXPECT_STREQ(Get_MenuKeyStr(7, table, sizeof(table)), "FIRST");
    EXPECT_EQ(Get_MenuKeyStr(8, table, sizeof(table)), nullptr);
}

} // namespace
