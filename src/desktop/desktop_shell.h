#pragma once

#include "platform/shell.h"

namespace sonarelle {

/// The desktop's own clipboard; all else is the machine's, which outlives it.
class DesktopShell : public Shell {
public:
    explicit DesktopShell(Shell& machine)
        : machine_{machine} {}

    [[nodiscard]] bool InternetGetConnectedState() override { return machine_.InternetGetConnectedState(); }
    void open_document(std::string_view path_or_address) override { machine_.open_document(path_or_address); }
    void start_program(std::string_view program, std::string_view file) override {
        machine_.start_program(program, file);
    }
    void set_cd_door(bool open) override { machine_.set_cd_door(open); }
    [[nodiscard]] std::string clipboard_text() override;
    void set_clipboard_text(std::string_view text) override;

private:
    Shell& machine_;
};

} // namespace sonarelle
