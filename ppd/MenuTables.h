// SPDX-License-Identifier: Apache-2.0
// Two tables of menu keys and their look-up, exported for other users of the bundle; nothing inside the panel uses
// them.
#pragma once

#include <QtCore/qglobal.h>

#include <cstddef>
#include <cstdint>

/// One row of a menu table. Others read the tables by this order of fields.
// NOLINTNEXTLINE(clang-analyzer-optin.performance.Padding): the order is part of what is exported
struct MenuRow {
    std::int32_t identifier;
    const char *key;   ///< the key of the row's text
    std::int32_t flag; ///< 0 on a row that can be found
};

extern "C" {

extern Q_DECL_EXPORT const MenuRow OP_MENU[3];
extern Q_DECL_EXPORT const MenuRow QUAL_MENU[3];

/// The number of whole rows in a table. \param table is not looked at; \param size the table's size in bytes.
Q_DECL_EXPORT std::uint32_t Get_MenuCount(const MenuRow *table, std::size_t size);

/// The key of the first row with that identifier and the flag 0. \param size the table's size in bytes.
/// \return null when the table is null, has no whole row, or has no such row.
Q_DECL_EXPORT const char *Get_MenuKeyStr(std::int32_t identifier, const MenuRow *table, std::size_t size);

} // extern "C"
