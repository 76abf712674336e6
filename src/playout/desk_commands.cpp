#include "playout/desk_commands.h"

#include "configuration/settings_store.h"
#include "platform/dialogs.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/shell.h"
#include "playlist/list_rows.h"
#include "playlist/search_words.h"

namespace sonarelle {

namespace {

constexpr std::string_view cd_player = "C:\\WINDOWS\\CDPLAYER.EXE";
constexpr std::string_view media_player = "C:\\Program Files\\Windows Media Player\\wmplayer.exe";
constexpr std::string_view volume_control = "C:\\WINDOWS\\system32\\sndvol32.exe";

std::string yes_or_no(bool yes) {
    return yes ? "Oui" : "Non";
}

} // namespace

bool DeskCommands::start(std::string_view program) {
    return ErrorIndicator{}.skip([&] { platform_.shell.start_program(program, {}); });
}

void DeskCommands::start_cd_player() {
    if (start(cd_player))
        return;
    show_box(platform_.dialogs,
             "CDPLAYER.EXE (sous windows 95/98) est introuvable\n"
             "Windows Media Player sous windows XP va etre testé",
             Icon::information);
    static_cast<void>(start(media_player));
}

void DeskCommands::open_volume_control() {
    if (!start(volume_control))
        show_box(platform_.dialogs, "sndvol32.exe est introuvable", Icon::information);
}

void DeskCommands::open_help(const Window& asker) {
    const bool opened = settings_.programme_aide.empty()
                            ? ErrorIndicator{}.skip([&] { platform_.shell.show_guide(asker.name()); })
                            : start(settings_.programme_aide);
    if (!opened)
        show_box(platform_.dialogs, "L'aide est introuvable", Icon::information);
}

void DeskCommands::move_cd_door(bool open) {
    ErrorIndicator{}.skip([&] { platform_.shell.set_cd_door(open); });
}

void DeskCommands::toggle_dragging() {
    const bool allowed = !list_.glisser_autorise.is_true();
    list_.glisser_autorise = allowed;
    window_.A_glisser_déplacer.caption = allowed ? "Autoriser sur la liste, le glisser / déplacer"
                                                 : "Ne pas autoriser sur la liste, le glisser / déplacer";
}

void DeskCommands::forget_search_words() {
    const bool deleted = ErrorIndicator{}.skip([this] {
        enter_program_folder(platform_);
        platform_.disk.Kill(search_words_file);
    });
    if (deleted)
        show_box(platform_.dialogs, "Ok liste recherche vide", Icon::information);
}

void DeskCommands::show_effect(bool on) {
    window_.sound_display.visible = on;
    if (on)
        window_.sound_display.InStart();
    else
        window_.sound_display.InStop();
}

void DeskCommands::set_effect(bool on) {
    show_effect(on);
    window_.A_visuel_active.checked = on;
    window_.A_visuel_desactive.checked = !on;
    settings_.effet_visuel = yes_or_no(on);
    remember(platform_, "Effet visuel", yes_or_no(on));
}

void DeskCommands::choose_sound_picture(SoundPicture picture) {
    window_.sound_display.Affichage = picture;
    window_.A_affichage1.checked = picture == SoundPicture::oscilloscope;
    window_.A_affichage2.checked = picture == SoundPicture::spectrum;
}

void DeskCommands::set_sliders(bool shown) {
    window_.show_sliders(shown);
    remember(platform_, "Montrer curseur", yes_or_no(shown));
}

} // namespace sonarelle
