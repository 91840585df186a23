// SPDX-License-Identifier: Apache-2.0
// The two menu tables and their look-up; nothing inside the panel uses them.
#include "pagesettings/Exports.h"

const MenuRow OP_MENU[3] = {
    {1, "OPT1_KEY", 0},
    {2, "OPT2_KEY", 0},
    {3, "OPT3_KEY", 0},
};

const MenuRow QUAL_MENU[3] = {
    {101, "QUAL1_KEY", 0},
    {102, "QUAL2_KEY", 0},
    {103, "QUAL3_KEY", 0},
};

std::uint32_t Get_MenuCount(const MenuRow * /*table*/, std::size_t size)
{
    return static_cast<std::uint32_t>(size / sizeof(MenuRow));
}

const char *Get_MenuKeyStr(std::int32_t identifier, const MenuRow *table, std::size_t size)
{
    if (table == nullptr) {
        return nullptr;
    }
    const std::uint32_t count = Get_MenuCount(table, size);
    for (std::uint32_t row = 0; row < count; ++row) {
        if (table[row].identifier == identifier && table[row].flag == 0) {
            return table[row].key;
        }
    }
    return nullptr;
}
