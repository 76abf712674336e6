#include "configuration/painting.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace sonarelle {

namespace {

using S = StationSettings;
using Source = Colour StationSettings::*;

struct Paint {
    ControlKind kind;
    Source fore; ///< None: the control keeps what it has.
    Source back;
};

constexpr std::array paints{
    Paint{ControlKind::window, nullptr, &S::coul_fenetre},
    Paint{ControlKind::label, &S::coul_label, nullptr},
    Paint{ControlKind::check_box, &S::coul_label, &S::coul_fenetre},
    Paint{ControlKind::option_button, &S::coul_label, &S::coul_fenetre},
    Paint{ControlKind::frame, nullptr, &S::coul_fenetre},
    Paint{ControlKind::button, nullptr, &S::coul_fenetre},
    Paint{ControlKind::graphic_button, &S::coul_text_bouton, &S::coul_fenetre},
    Paint{ControlKind::text_box, &S::coul_label, &S::coul_fond_liste},
    Paint{ControlKind::combo_box, &S::coul_label, &S::coul_fond_liste},
    Paint{ControlKind::list_box, &S::coul_texte_liste, &S::coul_fond_liste},
    Paint{ControlKind::row_table, &S::coul_texte_liste, &S::coul_fond_liste},
    Paint{ControlKind::progress_bar, &S::coul_texte_liste, nullptr},
};

struct PaintedWindow {
    std::string_view name;
    ButtonColour buttons = ButtonColour::of_windows;
    std::string_view text_of_boxes = {}; ///< What every text box gets with its colours.
};

constexpr std::array painted_windows{
    PaintedWindow{"Form_options", ButtonColour::of_buttons},
    PaintedWindow{"Form_options_jingles", ButtonColour::of_buttons, "*.mp3 - *.wav"},
    PaintedWindow{"mini_lecteur"},
    PaintedWindow{"Liste_son"},
    PaintedWindow{"Antenne_FM"},
    PaintedWindow{"ajout_fichier"},
    PaintedWindow{"Propriete", ButtonColour::of_buttons},
    PaintedWindow{"renom", ButtonColour::of_buttons},
    PaintedWindow{"frmAbout"},
    PaintedWindow{"copie", ButtonColour::of_buttons},
    PaintedWindow{"Association", ButtonColour::of_buttons},
};

void paint_control(Control& control, const StationSettings& settings) {
    for (const Paint& paint : paints) {
        if (paint.kind != control.kind())
            continue;
        if (paint.fore != nullptr)
            control.fore_colour = settings.*paint.fore;
        if (paint.back != nullptr)
            control.back_colour = settings.*paint.back;
    }
}

void paint_graphic_button(GraphicButton& button, const StationSettings& settings) {
    button.back_colour_down = settings.coul_fond_liste;
    button.back_colour_over = settings.coul_fond_liste;
    button.fore_colour_down = settings.coul_text_bouton;
    button.fore_colour_over = settings.coul_text_bouton;
}

/// What the labels' colour becomes under the pointer, no byte beyond its greatest value.
Colour sum_under_pointer(Colour colour) {
    constexpr Colour greatest = 0xff;
    Colour sum = 0;
    for (const int shift : {0, 8, 16})
        sum += std::min((colour >> shift & greatest) + (hover_step >> shift & greatest), greatest) << shift;
    return is_desktop_colour(colour) ? colour : sum;
}

} // namespace

void paint(Window& window, const StationSettings& settings, ButtonColour buttons) {
    paint_control(window, settings);
    for (Control* control : window.controls()) {
        paint_control(*control, settings);
        if (control->kind() == ControlKind::graphic_button)
            paint_graphic_button(static_cast<GraphicButton&>(*control), settings);
        else if (control->kind() == ControlKind::button && buttons == ButtonColour::of_buttons)
            control->back_colour = settings.coul_bouton;
    }
}

void paint_station_window(Window& window, const StationSettings& settings) {
    const auto* painted = std::ranges::find(painted_windows, window.name(), &PaintedWindow::name);
    if (painted == painted_windows.end())
        return;
    paint(window, settings, painted->buttons);
    for (Control* control : window.controls())
        if (!painted->text_of_boxes.empty() && control->kind() == ControlKind::text_box)
            static_cast<TextBox&>(*control).set_text(std::string{painted->text_of_boxes});
}

void connect_hover(Window& window, std::span<Label* const> labels, const StationSettings& settings,
                   std::optional<Colour> under_pointer) {
    const std::vector<Label*> buttons{labels.begin(), labels.end()};
    for (Label* label : buttons)
        label->on_mouse_move = [label, under_pointer, &settings] {
            label->fore_colour = under_pointer.value_or(sum_under_pointer(settings.coul_label));
        };
    window.on_mouse_move = [buttons, &settings] {
        for (Label* label : buttons)
            label->fore_colour = settings.coul_label;
    };
}

} // namespace sonarelle
