// SPDX-License-Identifier: Apache-2.0
// The C locale for a stretch of code, so that functions of the C library write and read "." in every language.
#pragma once

#include "pdekit/Export.h"

#include <clocale>

namespace pdekit
{

/// While one of these lives, the calling thread is in the C locale; other threads are not touched. The locale before it
/// comes back with its end. Only for functions of the C library: Qt's own look at QLocale.
class PDEKIT_EXPORT CLocale
{
public:
    CLocale();
    ~CLocale();
    CLocale(const CLocale &) = delete;
    CLocale &operator=(const CLocale &) = delete;

private:
    locale_t mBefore;
};

} // namespace pdekit
