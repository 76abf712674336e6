#pragma once

#include <string>
#include <string_view>

#include "accessories/about_windows.h"
#include "playout/desk.h"
#include "windows/err_form.h"

namespace sonarelle {

/// The buttons of the about windows and the information button of the warning window.
class AboutCommands {
public:
    AboutCommands(Desk& desk, frmAbout& about, vbplus& update)
        : desk_{desk},
          about_{about},
          update_{update} {}

    void connect();

    void show_about() { about_.show(); }
    void show_update_info();

    /// Starts the system's own information program.
    void StartSysInfo();
    /// Opens an address with the desktop's program for it.
    void WebJump(std::string_view address);
    /// Shows how many files were played.
    void show_listening_count();

private:
    Desk& desk_;
    frmAbout& about_;
    vbplus& update_;
};

} // namespace sonarelle
