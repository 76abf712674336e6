#pragma once

#include <optional>

#include "windows/main_menus.h"

namespace sonarelle {

/// What a choice of the operator makes of the run. What is empty stays as it is.
struct RunningMode {
    MenuItem MainMenus::*entry = nullptr;        ///< The one of the three chain modes that is checked.
    std::optional<bool> from_list = {};          ///< The chain takes its tracks from the list, not from the decks.
    std::optional<bool> by_draw = {};            ///< In random order.
    std::optional<bool> looks_ahead = {};        ///< The timers: countdown and load step,
    std::optional<bool> chains_decks = {};       ///< chain over decks,
    std::optional<bool> chains_list = {};        ///< chain of the list.
    bool resets_interval = false;                ///< The chain over decks ticks as often as the settings say again.
    std::optional<bool> list_entry = {};         ///< The list window's entry of the list chain is checked.
    std::optional<bool> offers_prelisten = {};   ///< Its entry of the pre-listen can be reached.
    std::optional<bool> offers_special_mix = {}; ///< The decks' buttons of the special mix can be reached.
};

/// One row for each way into a running mode.
namespace running_mode {

inline constexpr RunningMode by_hand{.entry = &MainMenus::a_mode_manuel,
                                     .from_list = false,
                                     .by_draw = false,
                                     .chains_decks = false,
                                     .chains_list = false,
                                     .offers_special_mix = false};

inline constexpr RunningMode over_decks{.entry = &MainMenus::a_mode_auto,
                                        .from_list = false,
                                        .by_draw = false,
                                        .looks_ahead = true,
                                        .chains_decks = true,
                                        .chains_list = false,
                                        .resets_interval = true,
                                        .list_entry = false,
                                        .offers_prelisten = false,
                                        .offers_special_mix = true};

inline constexpr RunningMode of_list{.entry = &MainMenus::a_mode_predefini,
                                     .from_list = true,
                                     .by_draw = false,
                                     .looks_ahead = true,
                                     .chains_decks = false,
                                     .chains_list = true,
                                     .list_entry = true,
                                     .offers_prelisten = true};

/// The list window's entry of the list chain, on and off.
inline constexpr RunningMode list_entry_on{.entry = &MainMenus::a_mode_predefini,
                                           .from_list = true,
                                           .looks_ahead = true,
                                           .chains_decks = false,
                                           .chains_list = true,
                                           .list_entry = true};
inline constexpr RunningMode list_entry_off{.entry = &MainMenus::a_mode_auto,
                                            .from_list = false,
                                            .looks_ahead = true,
                                            .chains_decks = true,
                                            .chains_list = false,
                                            .resets_interval = true,
                                            .list_entry = false};

/// "Mixer une liste": which of the list's modes runs is chosen beside it.
inline constexpr RunningMode mix_list{
    .entry = &MainMenus::a_mode_predefini, .looks_ahead = true, .chains_decks = false, .resets_interval = true};

/// The list window's reading modes.
inline constexpr RunningMode read_decks{
    .from_list = false, .by_draw = false, .chains_decks = true, .chains_list = false, .resets_interval = true};
inline constexpr RunningMode read_in_order{
    .from_list = true, .by_draw = false, .chains_decks = false, .chains_list = true};
inline constexpr RunningMode read_by_draw{
    .from_list = true, .by_draw = true, .chains_decks = false, .chains_list = true};

/// The lamp of the list chain.
inline constexpr RunningMode list_lamp{.entry = &MainMenus::a_mode_predefini,
                                       .from_list = true,
                                       .looks_ahead = true,
                                       .chains_decks = false,
                                       .chains_list = true,
                                       .list_entry = true,
                                       .offers_prelisten = true};

} // namespace running_mode

} // namespace sonarelle
