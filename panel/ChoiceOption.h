// SPDX-License-Identifier: Apache-2.0
// The table of the seven choice options: all that differs between them. The algorithms over it are written once, in
// choice_options.cpp and saving.cpp.
#pragma once

#include "panel/PageSettingPDE13_v100_.h"

#include <span>

/// One choice option: its PPD keyword, its members of the panel, and where it deliberately differs from the others.
struct ChoiceOption {
    using Panel = PageSettingPDE13_v100_;

    /// When the control is offered.
    enum class Enabled {
        WithItsOption,         ///< the PPD has the option
        OverUsbWithResolution, ///< the printer is on USB and the PPD has "Resolution": not the option itself
    };
    /// Which choice is selected when the control is filled.
    enum class FirstSelection {
        Default,             ///< the option's default choice
        DefaultOfResolution, ///< at the place where the plain resolution option has its default
        TicketOrDefault,     ///< the place the ticket gives, else the option's default choice
    };

    const char *keyword;
    std::int32_t itemType;
    ppd_option_t *Panel::*option;
    std::unique_ptr<PDEChoiceArray> Panel::*choices;
    const PDEChoice *Panel::*selection;
    QPointer<QLabel> Panel::*label;
    QPointer<pdekit::RadioMatrix> Panel::*matrix; ///< null for a pop-up
    QPointer<QComboBox> Panel::*popUp;            ///< null for a radio matrix

    const char *titleKey;                        ///< when the option's text is unusable
    std::span<const char *const> fallbackTitles; ///< when a choice's text is unusable, by position
    Enabled enabled = Enabled::WithItsOption;
    FirstSelection firstSelection = FirstSelection::Default;
    bool hasImages = false;             ///< choices may have an image named by their keyword
    bool setsClothBit = false;          ///< the choice at kClothIndex is cloth
    bool decidesEnabledQuality = false; ///< a pick applies the rule that quality goes with the first resolution

    std::uint32_t TapeInfo::*ticketCode = nullptr; ///< the ticket's position + 1; null: the ticket does not say
    std::span<const char *const> ticketKeywords =
        {}; ///< choice keywords by ticket code, from 1; the last is open-ended

    /// The place of cloth among the tape materials.
    static constexpr int kClothIndex = 2;

    enum Item { Quality, Resolution, Compress, KsResolution, TapeType, TapeColor, InkColor, Count };
    static const ChoiceOption &of(Item item);
    static std::span<const ChoiceOption, Count> all();
    /// The place of this option in the table.
    std::size_t place() const { return static_cast<std::size_t>(this - all().data()); }
};
