#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The options dialog.
struct Form_options : Window {
    Form_options()
        : Window{"Form_options"} {
        caption = "Paramètres / Options";
    }

    CheckBox draws_jingles{*this, "Check1"};   ///< Jingles are inserted by draw.
    CheckBox draws_items{*this, "Check2"};     ///< List items are inserted by draw.
    TextBox jingle_spacing{*this, "Text1"};    ///< After how many tracks a jingle comes.
    TextBox jingle_list{*this, "Text2"};       ///< The list of the jingles.
    TextBox load_lead{*this, "Text3"};         ///< Load lead, seconds.
    TextBox overlap{*this, "Text4"};           ///< Overlap, seconds.
    TextBox longest_jingle{*this, "Text5"};    ///< Longest jingle, seconds.
    TextBox fade_interval{*this, "Text6"};     ///< Interval of the fade, milliseconds.
    TextBox special_mix_steps{*this, "Text7"}; ///< Slider steps of a special mix.
    TextBox chain_interval{*this, "Text8"};    ///< Interval of the chain's timers, milliseconds.
    TextBox short_overlap{*this, "Text11"};    ///< Overlap of a short item, seconds.
    TextBox item_list{*this, "Text12"};        ///< The list of the inserted items.
    TextBox item_spacing{*this, "Text13"};     ///< After how many tracks an item comes.
    TextBox outgoing_life{*this, "Text14"};    ///< Life of the outgoing deck, seconds.
};

} // namespace sonarelle
