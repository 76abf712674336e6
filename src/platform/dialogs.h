#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace sonarelle {

class Window;

enum class Buttons { ok, ok_cancel, yes_no, yes_no_cancel };
enum class Icon { none, stop, question, warning, information };
enum class Answer { ok, cancel, yes, no };

/// A message box. Lines of `text` are parted by line feeds. `default_button` counts from 1.
struct MessageBox {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::ok;
    Icon icon = Icon::none;
    int default_button = 1;
};

struct InputBox {
    std::string prompt;
    std::string title;
    std::string preset;
};

/// Folder and file are in the station's own form (drive letter, backslashes). `filter` is a run of pairs parted by
/// bars: caption, patterns parted by semicolons.
struct FileDialog {
    std::string title;
    std::string folder;
    std::string file_name;
    std::string filter;
};

/// What a file dialog holds when it closes: after a cancel, the name that it was opened with.
struct ChosenFile {
    bool cancelled = false;
    std::string file_name;
};

struct Font {
    std::string family;
    double points = 0;
    bool bold = false;
    bool italic = false;
};

/// The boxes of the station. Each call shows its box and returns with the operator's answer; the other timers run on
/// meanwhile. From the window thread.
class Dialogs {
public:
    virtual ~Dialogs() = default;

    virtual Answer MsgBox(const MessageBox& box) = 0;
    /// The text that was entered; nothing after a cancel.
    [[nodiscard]] virtual std::optional<std::string> InputBox(const InputBox& box) = 0;
    /// A name that Windows-1252 can't hold, or that no drive reaches, is refused to the operator inside the dialog.
    [[nodiscard]] virtual ChosenFile open_file(const FileDialog& dialog) = 0;
    [[nodiscard]] virtual ChosenFile save_file(const FileDialog& dialog) = 0;
    /// Colours are red + 256 green + 65536 blue. Nothing after a cancel.
    [[nodiscard]] virtual std::optional<std::int32_t> choose_colour(std::int32_t preset) = 0;
    [[nodiscard]] virtual std::optional<Font> choose_font(const Font& preset) = 0;

    /// Shows a window above all others and returns when it is hidden again.
    virtual void show_modal(Window& window) = 0;
};

/// A box under the station's title that only tells something.
void show_box(Dialogs& dialogs, const std::string& text, Icon icon);

} // namespace sonarelle
