#pragma once

#include <string>
#include <string_view>

namespace sonarelle {

/// What the station asks of the desktop around it. From the window thread.
class Shell {
public:
    virtual ~Shell() = default;

    /// Whether the machine is online.
    [[nodiscard]] virtual bool InternetGetConnectedState() = 0;

    /// Opens a document or an address with the program that the desktop has for it.
    /// @throws Failure 53 when there is none.
    virtual void open_document(std::string_view path_or_address) = 0;

    /// Starts a program with a file as its argument and doesn't wait for it.
    /// @throws Failure 53 when the program isn't there.
    virtual void start_program(std::string_view program, std::string_view file) = 0;

    /// Shows the operator's guide, at what it says of a window, by the window's name.
    /// @throws Failure 53 when there is no guide, or no screen to show it on.
    virtual void show_guide(std::string_view window) = 0;

    /// Shows the journal, by its absolute path, and what is added to it from then on; it may be missing at first.
    /// @throws Failure 53 when there is no screen to show it on.
    virtual void show_journal(std::string_view path) = 0;

    /// Opens or closes the door of the CD drive.
    /// @throws Failure 68 without a drive.
    virtual void set_cd_door(bool open) = 0;

    [[nodiscard]] virtual std::string clipboard_text() = 0;
    virtual void set_clipboard_text(std::string_view text) = 0;
};

} // namespace sonarelle
