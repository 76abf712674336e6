#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/shell.h"

namespace sonarelle {

/// A desktop that opens nothing and remembers what it was asked for.
class SimulatedShell : public Shell {
public:
    struct Start {
        std::string program; ///< Empty when a document was opened.
        std::string file;
        friend bool operator==(const Start&, const Start&) = default;
    };

    [[nodiscard]] bool InternetGetConnectedState() override { return online; }
    void open_document(std::string_view path_or_address) override { start({}, path_or_address); }
    void start_program(std::string_view program, std::string_view file) override { start(program, file); }
    void show_guide(std::string_view window) override;
    void show_journal(std::string_view path) override { journals_shown.emplace_back(path); }
    void set_cd_door(bool open) override;
    [[nodiscard]] std::string clipboard_text() override { return clipboard; }
    void set_clipboard_text(std::string_view text) override { clipboard = text; }

    bool online = true;
    bool has_programs = true; ///< False: none is there for a document, and none can be started.
    bool has_guide = true;
    bool has_cd_drive = true;
    bool cd_door_open = false;
    std::string clipboard;
    std::vector<Start> started;
    std::vector<std::string> guide_shown_for; ///< The names of windows.
    std::vector<std::string> journals_shown;

private:
    void start(std::string_view program, std::string_view file);
};

} // namespace sonarelle
