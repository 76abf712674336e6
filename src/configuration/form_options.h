#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The options dialog.
struct Form_options : Window {
    Form_options() : Window{"Form_options"} { caption = "Paramètres / Options"; }

    CheckBox Check1{*this, "Check1"}; ///< Jingles are inserted by draw.
    CheckBox Check2{*this, "Check2"}; ///< List items are inserted by draw.
    TextBox Text1{*this, "Text1"};    ///< After how many tracks a jingle comes.
    TextBox Text2{*this, "Text2"};    ///< The list of the jingles.
    TextBox Text3{*this, "Text3"};    ///< Load lead, seconds.
    TextBox Text4{*this, "Text4"};    ///< Overlap, seconds.
    TextBox Text5{*this, "Text5"};    ///< Longest jingle, seconds.
    TextBox Text6{*this, "Text6"};    ///< Interval of the fade, milliseconds.
    TextBox Text7{*this, "Text7"};    ///< Slider steps of a special mix.
    TextBox Text8{*this, "Text8"};    ///< Interval of the chain's timers, milliseconds.
    TextBox Text11{*this, "Text11"};  ///< Overlap of a short item, seconds.
    TextBox Text12{*this, "Text12"};  ///< The list of the inserted items.
    TextBox Text13{*this, "Text13"};  ///< After how many tracks an item comes.
    TextBox Text14{*this, "Text14"};  ///< Life of the outgoing deck, seconds.
};

} // namespace sonarelle
