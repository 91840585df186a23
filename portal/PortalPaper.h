// SPDX-License-Identifier: Apache-2.0
// Papers as programs and the portal write them: names, sizes and margins in millimetres, and how the page is turned.
#pragma once

#include "job/SettledJob.h"

#include <QSizeF>
#include <QString>
#include <QVariantMap>

#include <cups/ppd.h>

namespace tapeprint::portal
{

/// The standing paper that a program asks with, by its settings or else by its page setup; empty when neither says.
QSizeF paperSizeMm(const QVariantMap &settings, const QVariantMap &pageSetup);

/// The paper of a size, by its name in a printer's description; null when there is none.
QString paperOfSize(const QSizeF &sizeMm, ppd_file_t *ppd);

/// The value of orientation-requested that a program asks with; empty for pages that stand, which is what programs say
/// that were not asked, and for words that mean nothing.
QString askedTurn(const QVariantMap &settings, const QVariantMap &pageSetup);

/// The page setup of a job: names, size, margins, and how it is turned.
QVariantMap pageSetupOf(const job::SettledJob &job);
/// The same, as far as it stands among the settings.
QVariantMap paperSettings(const job::SettledJob &job);

} // namespace tapeprint::portal
