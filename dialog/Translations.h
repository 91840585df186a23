// SPDX-License-Identifier: Apache-2.0
// The window's language.
#pragma once

#include "job/Advice.h"

#include <QTranslator>

namespace tapeprint::dialog
{

/// As long as this object lives, texts are said in the first language of the person's locale that there is a catalogue
/// for; in English when there is none. Panels bring their own catalogues.
class Translations
{
public:
    Translations();

private:
    job::AdviceForTheWindow mAdvice;
    QTranslator mToolkit; ///< the texts of the toolkit's own dialogs and buttons, where they are installed
    QTranslator mDialog;
};

} // namespace tapeprint::dialog
