#include "playout/deck_volume.h"

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"
#include "playout/row_on_air.h"

namespace sonarelle {

namespace {

constexpr double lowest_attenuation = -4000.0;

int attenuation_of_slider(int value) {
    return (20 - value) * 5 * 40 - 4000;
}

/// The slider's place for an attenuation that isn't 0.
int slider_of_attenuation(int greatest, int attenuation) {
    return to_integer(greatest / (lowest_attenuation / attenuation)).value();
}

} // namespace

void DeckVolume::adjust(Deck& deck) {
    ErrorIndicator{}.skip(
        [&] { deck.graph().put_Volume(Millibel{attenuation_of_slider(deck.controls.slider.value())}); });
    desk_.display.volume(deck);
}

void DeckVolume::apply_record(Deck& deck, Integer volume) {
    if (desk_.mixes_titles() || !deck.has_graph())
        return;
    ErrorIndicator errors;
    errors.skip([&] {
        if (volume != 0)
            deck.controls.slider.set_value(slider_of_attenuation(20, volume.value()));
        deck.graph().put_Volume(Millibel{volume.value()});
    });
    desk_.display.volume(deck);
}

void DeckVolume::apply_start(Deck& deck) {
    if (!deck.volume_piste || desk_.mixes_titles())
        return adjust(deck);
    apply_record(deck, *deck.volume_piste);
}

void DeckVolume::vol_pour_stop() {
    if (desk_.ring.has_main_deck())
        desk_.ring.main_deck().controls.slider.set_value(desk_.ring.main_deck().volume_sauve.value());
}

void DeckVolume::vol_pour_mix_spc() {
    if (!desk_.ring.has_main_deck())
        return;
    Deck& main = desk_.ring.main_deck();
    main.volume_sauve = main.controls.slider.value();
    step(main, desk_.settings.mix_audio_attenuation.value());
}

void DeckVolume::step(Deck& deck, int steps) {
    deck.controls.slider.set_value(deck.controls.slider.value() + steps);
}

void DeckVolume::keep_in_record(Deck& deck) {
    if (desk_.mixes_titles())
        return;
    if (!deck.controls.play.enabled)
        desk_.notices.inform("le lecteur n'est pas encore validé ");
    else if (desk_.ring.is_main(deck))
        A_sauve(deck);
}

void DeckVolume::A_sauve(Deck& deck) {
    try {
        if (desk_.list.fichier_liste.empty()) {
            const ChosenFile chosen = desk_.platform.dialogs.open_file(
                {"Ouvrir un fichier liste", desk_.settings.chemin_programme, "*.dfm", "fichier (*.dfm)|*.dfm"});
            if (chosen.cancelled || extension_of(chosen.file_name) != "dfm")
                return;
            desk_.list.fichier_liste = chosen.file_name;
        }
        if (ListReader{desk_.platform.disk, list_path(desk_.platform, desk_.list.fichier_liste)}.count() == 0)
            return;
        std::optional<RowOnAir> row = row_on_air(desk_.platform, desk_.list, deck);
        if (!row)
            return desk_.notices.inform("Ce titre n'est pas dans la liste");
        const std::string percent = deck.controls.percent.caption;
        row->record.set_volume(static_cast<std::int16_t>(
            to_integer(trim_right(percent.substr(0, percent.find('%'))), DecimalMark::point).value()));
        document_.change_record(row->number, row->record);
        document_.show_changed_record(row->number);
        desk_.notices.inform("Sauvegarde des paramètres en cours éffectués .");
    } catch (const Failure& failure) {
        show_box(desk_.platform.dialogs, failure.what(), Icon::stop);
    }
}

} // namespace sonarelle
