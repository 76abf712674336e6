#pragma once

#include "platform/controls.h"

namespace sonarelle {

/// The warning window: a text and two buttons. The chain shows it without waiting.
struct err_form : Window {
    err_form() : Window{"err_form"} {
        caption = "ATTENTION ERREUR";
        default_button = &AnyButton1;
        AnyButton1.on_click = [this] { hide(); };
        on_unload_request = [this] { hide(); };
        on_key_press = [this](char32_t key) {
            if (key == escape)
                hide();
        };
    }

    static constexpr char32_t escape = 27;

    Label Label1{*this, "Label1"}; ///< The warning's lines.
    GraphicButton AnyButton1{*this, "AnyButton1", "Ok"};
    GraphicButton AnyButton2{*this, "AnyButton2", "Info"};
};

} // namespace sonarelle
