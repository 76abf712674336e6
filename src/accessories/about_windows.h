#pragma once

#include <string>

#include "platform/application.h"
#include "platform/controls.h"

namespace sonarelle {

/// Escape leaves a window that only tells something.
inline void hide_by(Window& window, char32_t key) {
    constexpr char32_t escape = 27;
    if (key == escape)
        window.hide();
}

/// What the program is, and a door to the system's own information.
struct frmAbout : Window {
    frmAbout()
        : Window{"frmAbout"} {
        caption = "À propos de " + std::string{application_title};
        on_unload_request = [this] { hide(); };
        on_key_press = [this](char32_t key) { hide_by(*this, key); };
    }

    Label lblTitle{*this, "lblTitle", std::string{application_title}};
    Label lblVersion{*this, "lblVersion", "FREEWARE   Version " + version_text()};
    Label site{*this, "site", std::string{maker::site}}; ///< Opens the site.
    Button cmdSysInfo{*this, "cmdSysInfo", "&Infos système..."};
    Button cmdOK{*this, "cmdOK", "OK"};
};

/// How to take a new version.
struct vbplus : Window {
    vbplus()
        : Window{"vbplus"} {
        caption = "Info mise a jour";
        on_unload_request = [this] { hide(); };
        on_key_press = [this](char32_t key) { hide_by(*this, key); };
    }

    Label step1{*this, "step1", "1° télecharger la derniere version de " + std::string{application_title} + ".exe"};
    Label site{*this, "site", "Sur : " + std::string{maker::site}}; ///< Opens the site.
    Label download{*this, "download", std::string{maker::download_page}};
    Label folder{*this, "folder", "Rechercher le dossier d'installation : "}; ///< With the program's folder behind it.
    Label step2{*this, "step2", "2°Ecraser ou remplacer l'ancienne version exécutable"};
    Label mail{*this, "mail", std::string{maker::mail}};
    Button close{*this, "close", "Fermer"};
};

} // namespace sonarelle
