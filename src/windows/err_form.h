#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The warning window: a text and two buttons. The chain shows it without waiting.
struct err_form : Window {
    err_form()
        : Window{"err_form"} {
        caption = "ATTENTION ERREUR";
        default_button = &ok;
        ok.on_click = [this] { hide(); };
        on_unload_request = [this] { hide(); };
        on_key_press = [this](char32_t key) {
            if (key == escape)
                hide();
        };
    }

    static constexpr char32_t escape = 27;

    Label lines{*this, "Label1"}; ///< The warning's lines.
    GraphicButton ok{*this, "AnyButton1", "Ok"};
    GraphicButton info{*this, "AnyButton2", "Info"};
};

} // namespace sonarelle
