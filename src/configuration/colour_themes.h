#pragma once

#include <array>
#include <string_view>
#include <vector>

#include "configuration/settings_store.h"
#include "platform/controls.h"
#include "platform/platform.h"

namespace sonarelle {

/// Colours that are chosen together. As the store keeps them, in the order of `theme_keys`.
struct ColourTheme {
    std::string_view name; ///< What `type_affichage` says.
    std::array<std::string_view, 10> colours;
};

inline constexpr std::array<std::string_view, 10> theme_keys{
    "coul_texte_liste", "coul_text_cadre", "coul_text_bouton", "coul_label",  "coul_fond_liste",
    "coul_fond_label",  "coul_fenètre",    "coul_cadre",       "coul_bouton", "coul_bouton_groupe_lecture"};

namespace colour_theme {
extern const ColourTheme spring, summer, autumn, winter, night;
} // namespace colour_theme

/// The colours of the look menu: themes, which the next start shows, and single colours, which act at once.
/// Window thread.
class ColourThemes {
public:
    /// `windows`: those whose texts take the colour of the labels; `rows` belongs to `list`.
    struct Painted {
        std::vector<Window*> windows;
        Window& list;
        Control& rows;
    };
    ColourThemes(const Platform& platform, StationSettings& settings, Painted painted);

    void choose(const ColourTheme& theme, bool has_list_picture);
    /// Asks for the colour of every text.
    void a_coul_label();
    /// Asks for the colour of the rows' text.
    void A_coul_texte_liste();
    /// The colour that was chosen last becomes the list's ground, for this run; black where none was.
    void A_coul_fenètre();

private:
    void store(std::string_view key, std::string_view value, std::string_view section);
    [[nodiscard]] bool ask_colour(Colour& colour);

    const Platform& platform_;
    StationSettings& settings_;
    Painted painted_;
    SettingsStore store_{platform_};
    Colour chosen_ = 0;
};

} // namespace sonarelle
