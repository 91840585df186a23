// SPDX-License-Identifier: Apache-2.0
// What the job knows of the tape in use. Declared where others can include it, too.
#pragma once

#include "pagesettings/Exports.h"
