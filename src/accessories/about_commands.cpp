#include "accessories/about_commands.h"

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/shell.h"

namespace sonarelle {

namespace {

constexpr std::string_view information_program = "MSINFO32.EXE";

} // namespace

void AboutCommands::connect() {
    about_.cmdOK.on_click = [this] { about_.hide(); };
    about_.cmdSysInfo.on_click = [this] { StartSysInfo(); };
    about_.site.on_click = [this] { WebJump(maker::site); };
    update_.close.on_click = [this] { update_.hide(); };
    update_.site.on_click = [this] { WebJump(maker::site); };
    update_.download.on_click = [this] { WebJump(maker::download_page); };
    update_.mail.on_click = [this] { WebJump("mailto:" + std::string{maker::mail}); };
    warning_.info.on_click = [this] { show_listening_count(); };
}

void AboutCommands::show_update_info() {
    update_.folder.caption = "Rechercher le dossier d'installation : " + settings_.chemin_programme;
    update_.show();
}

void AboutCommands::StartSysInfo() {
    const bool started = ErrorIndicator{}.skip([this] { platform_.shell.start_program(information_program, {}); });
    if (!started)
        show_box(platform_.dialogs, "Les informations système ne sont pas disponibles actuellement", Icon::information);
}

void AboutCommands::WebJump(std::string_view address) {
    ErrorIndicator{}.skip([&] { platform_.shell.open_document(address); });
}

void AboutCommands::show_listening_count() {
    warning_.caption = std::string{application_title};
    warning_.lines.caption = "Info \rNombre de fichiers ayant été lus\r\n\r\n Pour cette séssion\r\n\r\nNb : " +
                             text_of(chain_.nb_fichiers_ecoutes);
    warning_.show();
}

} // namespace sonarelle
