// SPDX-License-Identifier: Apache-2.0
// The C locale, made once and laid over the thread's own.
#include "pdekit/CLocale.h"

namespace pdekit
{

namespace
{

locale_t cLocale()
{
    static const locale_t locale = newlocale(LC_ALL_MASK, "C", nullptr);
    return locale;
}

} // namespace

CLocale::CLocale() : mBefore(uselocale(cLocale())) {}

CLocale::~CLocale()
{
    uselocale(mBefore);
}

} // namespace pdekit
