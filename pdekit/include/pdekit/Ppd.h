// SPDX-License-Identifier: Apache-2.0
// <cups/ppd.h> without its warnings. CUPS marks all of it as deprecated, yet printer descriptions are what panels read:
// include this in its place, and a panel can be built with warnings as errors.
#pragma once

// The marks are macros of CUPS. They say nothing while its header is read here, and are as they were after it. What
// CUPS declares is the same; a file that includes <cups/ppd.h> before this header keeps the warnings.
#include <cups/versioning.h>

// NOLINTBEGIN(bugprone-reserved-identifier): the names are CUPS's
#pragma push_macro("_CUPS_DEPRECATED")
#pragma push_macro("_CUPS_DEPRECATED_MSG")
#pragma push_macro("_CUPS_DEPRECATED_1_2_MSG")
#pragma push_macro("_CUPS_DEPRECATED_1_6_MSG")
#pragma push_macro("_CUPS_DEPRECATED_1_7_MSG")
#pragma push_macro("_CUPS_DEPRECATED_2_2_MSG")
#undef _CUPS_DEPRECATED
#undef _CUPS_DEPRECATED_MSG
#undef _CUPS_DEPRECATED_1_2_MSG
#undef _CUPS_DEPRECATED_1_6_MSG
#undef _CUPS_DEPRECATED_1_7_MSG
#undef _CUPS_DEPRECATED_2_2_MSG
#define _CUPS_DEPRECATED _CUPS_PUBLIC
#define _CUPS_DEPRECATED_MSG(message) _CUPS_PUBLIC
#define _CUPS_DEPRECATED_1_2_MSG(message) _CUPS_PUBLIC
#define _CUPS_DEPRECATED_1_6_MSG(message) _CUPS_PUBLIC
#define _CUPS_DEPRECATED_1_7_MSG(message) _CUPS_PUBLIC
#define _CUPS_DEPRECATED_2_2_MSG(message) _CUPS_PUBLIC

#include <cups/ppd.h>

#pragma pop_macro("_CUPS_DEPRECATED")
#pragma pop_macro("_CUPS_DEPRECATED_MSG")
#pragma pop_macro("_CUPS_DEPRECATED_1_2_MSG")
#pragma pop_macro("_CUPS_DEPRECATED_1_6_MSG")
#pragma pop_macro("_CUPS_DEPRECATED_1_7_MSG")
#pragma pop_macro("_CUPS_DEPRECATED_2_2_MSG")
// NOLINTEND(bugprone-reserved-identifier)
