// SPDX-License-Identifier: Apache-2.0
// An option of a PPD built in memory, for texts and keywords that no PPD file would bring through libcups unchanged.
#pragma once

#include <algorithm>
#include <initializer_list>
#include <string_view>
#include <utility>
#include <vector>

#include <cups/ppd.h>

/// Puts a text into a field of a PPD record. A text as long as the field leaves it without an ending NUL.
template <std::size_t size>
void putText(char (&field)[size], std::string_view text)
{
    std::fill(std::begin(field), std::end(field), '\0');
    std::copy_n(text.begin(), std::min(size, text.size()), std::begin(field));
}

/// An option with its choices: keyword and text each.
struct MemoryOption {
    MemoryOption(std::string_view defaultKeyword,
                 std::initializer_list<std::pair<std::string_view, std::string_view>> entries)
        : choices(entries.size())
    {
        putText(option.keyword, "KsOption");
        putText(option.text, "Option");
        putText(option.defchoice, defaultKeyword);
        auto choice = choices.begin();
        for (const auto &[keyword, text] : entries) {
            putText(choice->choice, keyword);
            putText(choice->text, text);
            choice->option = &option;
            ++choice;
        }
        option.num_choices = static_cast<int>(choices.size());
        option.choices = choices.data();
    }
    MemoryOption(const MemoryOption &) = delete;
    MemoryOption &operator=(const MemoryOption &) = delete;

    ppd_option_t option = {};
    std::vector<ppd_choice_t> choices;
};
