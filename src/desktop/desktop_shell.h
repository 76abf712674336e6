#pragma once

#include <QString>
#include <memory>
#include <string>

#include "platform/shell.h"

namespace sonarelle {

class Disk;
class GuideReader;
class JournalReader;

/// The clipboard and the readers are the desktop's own; all else is the machine's.
class DesktopShell : public Shell {
public:
    /// `guide` is the guide's file on this machine. Machine and disk outlive the shell.
    DesktopShell(Shell& machine, Disk& disk, QString guide);
    ~DesktopShell() override;
    DesktopShell(const DesktopShell&) = delete;
    DesktopShell& operator=(const DesktopShell&) = delete;

    [[nodiscard]] bool InternetGetConnectedState() override { return machine_.InternetGetConnectedState(); }
    void open_document(std::string_view path_or_address) override { machine_.open_document(path_or_address); }
    void start_program(std::string_view program, std::string_view file) override {
        machine_.start_program(program, file);
    }
    void show_guide(std::string_view window) override;
    void show_journal(std::string_view path) override;
    void set_cd_door(bool open) override { machine_.set_cd_door(open); }
    [[nodiscard]] std::string clipboard_text() override;
    void set_clipboard_text(std::string_view text) override;

private:
    Shell& machine_;
    Disk& disk_;
    const QString guide_;
    std::unique_ptr<GuideReader> guide_reader_; ///< Each is made when it is first asked for.
    std::unique_ptr<JournalReader> journal_reader_;
};

} // namespace sonarelle
