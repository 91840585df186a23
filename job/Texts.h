// SPDX-License-Identifier: Apache-2.0
// The sentences that free functions say in the window, as texts of the translation catalogues.
#pragma once

#include <QCoreApplication>

namespace tapeprint::job
{

/// Sentences are translated as long as a Translations object lives, which is while the window does. Standard output and
/// standard error stay English: scripts read them.
struct Texts {
    Q_DECLARE_TR_FUNCTIONS(tapeprint::job::Texts)
};

} // namespace tapeprint::job
