#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

#include "platform/host/host_disk.h"
#include "platform/shell.h"

namespace sonarelle {

struct KnownProgram;

/// The desktop around the station, without a toolkit: the clipboard is the program's own. Files and programs are paths
/// of the station; a program's bare name is one of this machine's, and the programs of another system that the menus
/// name are replaced by what does the same here.
class HostShell : public Shell {
public:
    /// The disk is the caller's and outlives the shell.
    explicit HostShell(const HostDisk& disk);
    ~HostShell() override;
    HostShell(const HostShell&) = delete;
    HostShell& operator=(const HostShell&) = delete;

    [[nodiscard]] bool InternetGetConnectedState() override;
    void open_document(std::string_view path_or_address) override;
    void start_program(std::string_view program, std::string_view file) override;
    void show_guide(std::string_view window) override;
    void show_journal(std::string_view path) override;
    void set_cd_door(bool open) override;
    [[nodiscard]] std::string clipboard_text() override { return clipboard_; }
    void set_clipboard_text(std::string_view text) override { clipboard_ = text; }

private:
    void start_instead(const KnownProgram& known, std::string_view program, std::string_view file);
    void start(const std::string& program, const std::string& argument, std::string_view named);
    void forget_ended_programs();

    const HostDisk& disk_;
    std::string clipboard_;
    std::vector<pid_t> programs_; // started here and not yet known to have ended
};

/// Whether a table in the form of /proc/net/route has a way to everywhere.
[[nodiscard]] bool has_default_route(const std::string& table);

} // namespace sonarelle
