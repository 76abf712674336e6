#include "playout/desk_commands.h"

#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/shell.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr std::string_view cd_player = "C:\\WINDOWS\\CDPLAYER.EXE";
constexpr std::string_view media_player = "C:\\Program Files\\Windows Media Player\\wmplayer.exe";
constexpr std::string_view volume_control = "C:\\WINDOWS\\system32\\sndvol32.exe";
constexpr std::string_view help_program = "Aide_Sonarine.exe";
constexpr std::string_view search_words = "recherche.dit";

std::string yes_or_no(bool yes) {
    return yes ? "Oui" : "Non";
}

} // namespace

bool DeskCommands::start(std::string_view program) {
    return ErrorIndicator{}.skip([&] { desk_.platform.shell.start_program(program, {}); });
}

void DeskCommands::A_lecteur_CD_Win_Click() {
    if (start(cd_player))
        return;
    desk_.inform("CDPLAYER.EXE (sous windows 95/98) est introuvable\n"
                 "Windows Media Player sous windows XP va etre testé");
    static_cast<void>(start(media_player));
}

void DeskCommands::a_vol_Click() {
    if (!start(volume_control))
        desk_.inform("sndvol32.exe est introuvable");
}

void DeskCommands::aideprog_Click() {
    if (!start(desk_.settings.chemin_programme + std::string{help_program}))
        desk_.inform("L'aide est introuvable");
}

void DeskCommands::move_cd_door(bool open) {
    ErrorIndicator{}.skip([&] { desk_.platform.shell.set_cd_door(open); });
}

void DeskCommands::A_glisser_déplacer_Click() {
    const bool allowed = !desk_.list.glisser_autorise.is_true();
    desk_.list.glisser_autorise = allowed;
    desk_.window.A_glisser_déplacer.caption = allowed ? "Autoriser sur la liste, le glisser / déplacer"
                                                      : "Ne pas autoriser sur la liste, le glisser / déplacer";
}

void DeskCommands::Supprimer_recherche_Click() {
    const bool deleted = ErrorIndicator{}.skip([this] {
        enter_program_folder(desk_.platform);
        desk_.platform.disk.Kill(search_words);
    });
    if (deleted)
        desk_.inform("Ok liste recherche vide");
}

void DeskCommands::show_effect(bool on) {
    desk_.window.sound_display.visible = on;
    if (on)
        desk_.window.sound_display.InStart();
    else
        desk_.window.sound_display.InStop();
}

void DeskCommands::set_effect(bool on) {
    show_effect(on);
    desk_.window.A_visuel_active.checked = on;
    desk_.window.A_visuel_desactive.checked = !on;
    desk_.settings.effet_visuel = yes_or_no(on);
    desk_.remember("Effet visuel", yes_or_no(on));
}

void DeskCommands::choose_sound_picture(SoundPicture picture) {
    desk_.window.sound_display.Affichage = picture;
    desk_.window.A_affichage1.checked = picture == SoundPicture::oscilloscope;
    desk_.window.A_affichage2.checked = picture == SoundPicture::spectrum;
}

void DeskCommands::set_sliders(bool shown) {
    desk_.window.show_sliders(shown);
    desk_.remember("Montrer curseur", yes_or_no(shown));
}

} // namespace sonarelle
