// SPDX-License-Identifier: Apache-2.0
// What the panel's tests do to an open PPD that no PPD file can say: texts that are not UTF-8 (libcups refuses or
// recodes them when it reads a file), and options of which no choice is marked.
#pragma once

#include "PpdText.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

/// A byte that no UTF-8 text holds.
inline constexpr const char *kNotUtf8 = "\xff";

/// Makes an option's text unreadable.
inline void spoilOption(ppd_file_t *ppd, const char *keyword)
{
    ppd_option_t *option = ppdFindOption(ppd, keyword);
    ASSERT_NE(option, nullptr) << keyword;
    qstrncpy(option->text, kNotUtf8, sizeof option->text);
}

/// Makes a choice's text unreadable.
inline void spoilChoice(ppd_file_t *ppd, const char *keyword, int index)
{
    ppd_option_t *option = ppdFindOption(ppd, keyword);
    ASSERT_NE(option, nullptr) << keyword;
    ASSERT_LT(index, option->num_choices) << keyword;
    qstrncpy(option->choices[index].text, kNotUtf8, sizeof option->choices[index].text);
}

/// Opens a PPD without marking its defaults.
inline OpenPpd openUnmarked(const PpdText &text)
{
    QTemporaryFile file;
    if (!file.open() || file.write(text.text()) != text.text().size() || !file.flush()) {
        ADD_FAILURE() << "The printer description could not be written.";
        return nullptr;
    }
    OpenPpd ppd(ppdOpenFile(file.fileName().toUtf8().constData()));
    EXPECT_NE(ppd, nullptr);
    return ppd;
}

/// The nine tape colours and the six ink colours, in the order of the ticket's codes.
inline PpdText withEveryColour()
{
    PpdText ppd = PpdText::withEveryOption();
    ppd.option("KsTapeColor", "Tape",
               {{"KsTapeColorWhite", "White"},
                {"KsTapeColorBlue", "Blue"},
                {"KsTapeColorRed", "Red"},
                {"KsTapeColorYellow", "Yellow"},
                {"KsTapeColorPink", "Pink"},
                {"KsTapeColorClear", "Clear"},
                {"KsTapeColorPastelBlue", "Pastel Blue"},
                {"KsTapeColorPastelRed", "Pastel Red"},
                {"KsTapeColorDeepBlue", "Deep Blue"}},
               "KsTapeColorWhite");
    ppd.option("KsInkColor", "Ink",
               {{"KsInkColorBlack", "Black"},
                {"KsInkColorBlue", "Blue"},
                {"KsInkColorRed", "Red"},
                {"KsInkColorWhite", "White"},
                {"KsInkColorGold", "Gold"},
                {"KsInkColorSilver", "Silver"}},
               "KsInkColorBlack");
    return ppd;
}
