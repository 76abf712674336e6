#include "playout/prelisten.h"

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int offered_seconds = 60;

} // namespace

void Prelisten::A_precoute() {
    if (desk_.chain.preecoute_active.is_true())
        return end();
    const Integer longest = desk_.settings.valeur_max_jingles;
    const auto entered =
        desk_.platform.dialogs.InputBox({"Pour une lecture réduite des fichier\n"
                                         "Entrez la nouvelle valeur pour cette session\n"
                                         "voir parametre régionaux si erreur Type incompatible\n"
                                         "Remplacer la virgule par un point dans séparation des décimales\n"
                                         "Ne peut pas etre inferieur ou égal a la valeur valeur_max_jingles\n"
                                         "valeur_max_jingles en cours : " +
                                             text_of(longest),
                                         "Lecture pré-écoute", std::to_string(offered_seconds)});
    ErrorIndicator{}.skip([&] {
        if (!entered)
            return;
        const Integer seconds = to_integer(*entered, desk_.platform.decimal_mark);
        begin(seconds > longest ? seconds : longest + 1);
    });
    desk_.display.prelisten_is(desk_.chain.preecoute_active.is_true());
}

void Prelisten::begin(Integer seconds) {
    desk_.chain.duree_preecoute = seconds;
    desk_.chain.preecoute_active = true;
    desk_.settings.mix_courant = desk_.settings.mix_defaut;
    desk_.display.overlap();
}

// The overlap of the store comes back: the reduced tracks may have gone with another one.
void Prelisten::end() {
    desk_.chain.preecoute_active = false;
    Integer stored = desk_.settings.mix_defaut;
    const SettingsStore store{desk_.platform};
    ErrorIndicator{}.skip(
        [&] { stored = to_integer(store.read(setting_section::config, "Mix"), desk_.platform.decimal_mark); });
    desk_.settings.mix_defaut = desk_.settings.mix_courant = stored;
    desk_.display.overlap();
    desk_.display.prelisten_is(false);
}

} // namespace sonarelle
