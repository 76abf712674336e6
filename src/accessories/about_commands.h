#pragma once

#include <string>
#include <string_view>

#include "accessories/about_windows.h"
#include "platform/platform.h"
#include "state/chain_state.h"
#include "state/station_settings.h"
#include "windows/err_form.h"

namespace sonarelle {

/// The buttons of the about windows and the information button of the warning window.
class AboutCommands {
public:
    AboutCommands(const Platform& platform, const StationSettings& settings, const ChainState& chain, err_form& warning,
                  frmAbout& about, vbplus& update)
        : platform_{platform},
          settings_{settings},
          chain_{chain},
          warning_{warning},
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
    const Platform& platform_;
    const StationSettings& settings_;
    const ChainState& chain_;
    err_form& warning_;
    frmAbout& about_;
    vbplus& update_;
};

} // namespace sonarelle
