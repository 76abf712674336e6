#include "configuration/colour_themes.h"

#include <utility>

#include "configuration/settings_rewrite.h"
#include "platform/dialogs.h"
#include "platform/failure.h"

namespace sonarelle {

namespace colour_theme {

const ColourTheme spring{
    "T_printemps",
    {"16711680", "16711680", "16711680", "16711680", "8454016", "49152", "49152", "49152", "49152", "65280"}};
const ColourTheme summer{"T_Eté", {"65535", "65535", "16777215", "65535", "33023", "192", "192", "192", "192", "255"}};
const ColourTheme autumn{"T_Automne",
                         {"16777152", "16777152", "16777152", "16777152", "16744703", "12583104", "12583104",
                          "12583104", "12583104", "12632256"}};
const ColourTheme winter{"T_Hiver",
                         {"16777215", "16777215", "16777215", "16777215", "16033024", "12615680", "12615680",
                          "12615680", "12615680", "16033024"}};
// The station's own dark: text on the ground of fields, cards and buttons.
const ColourTheme night{
    "T_Nuit",
    {"16250869", "16250869", "16250869", "16250869", "1315343", "2433309", "1709844", "6709078", "3485482", "3485482"}};

} // namespace colour_theme

ColourThemes::ColourThemes(const Platform& platform, StationSettings& settings, Painted painted)
    : platform_{platform},
      settings_{settings},
      painted_{std::move(painted)} {}

// The key of the list's picture then holds a truth value, at which the next start keeps the window's own picture.
void ColourThemes::choose(const ColourTheme& theme, bool has_list_picture) {
    for (std::size_t place = 0; place < theme_keys.size(); ++place)
        store(theme_keys[place], theme.colours[place], setting_section::colours);
    store("type_affichage", theme.name, setting_section::config);
    store("logo_fond", settings_.logo_fond, setting_section::config);
    store("logo", settings_.logo, setting_section::config);
    store("Logo_liste", has_list_picture ? "Vrai" : "Faux", setting_section::config);
    show_box(platform_.dialogs, restart_needed() + " ", Icon::information);
}

void ColourThemes::a_coul_label() {
    if (!ask_colour(settings_.coul_label))
        return;
    for (Window* window : painted_.windows)
        for (Control* control : window->controls())
            switch (control->kind()) {
            case ControlKind::label:
            case ControlKind::option_button:
            case ControlKind::check_box:
            case ControlKind::frame:
            case ControlKind::combo_box:
            case ControlKind::button:
                control->fore_colour = settings_.coul_label;
                break;
            case ControlKind::graphic_button:
                control->fore_colour = settings_.coul_label;
                static_cast<GraphicButton*>(control)->back_colour_down = settings_.coul_label;
                break;
            default:
                break;
            }
    store("coul_label", std::to_string(settings_.coul_label), setting_section::colours);
}

void ColourThemes::A_coul_texte_liste() {
    if (!ask_colour(settings_.coul_texte_liste))
        return;
    painted_.rows.fore_colour = settings_.coul_texte_liste;
    store("coul_texte_liste", std::to_string(settings_.coul_texte_liste), setting_section::colours);
}

void ColourThemes::A_coul_fenètre() {
    painted_.list.back_colour = chosen_;
}

bool ColourThemes::ask_colour(Colour& colour) {
    const auto answer = platform_.dialogs.choose_colour(colour);
    if (answer)
        colour = chosen_ = *answer;
    return answer.has_value();
}

void ColourThemes::store(std::string_view key, std::string_view value, std::string_view section) {
    ErrorIndicator{}.skip([&] { store_.write(section, key, value); });
}

} // namespace sonarelle
