#pragma once

#include <QFileDialog>
#include <QTimer>
#include <QWidget>
#include <functional>

#include "desktop/message_box.h"
#include "desktop/path_forms.h"
#include "platform/dialogs.h"

namespace sonarelle {

/// The boxes of the station on the screen. While one is open the windows' loop turns, and with it the station.
class DesktopDialogs : public Dialogs {
public:
    /// `widget_of` gives what a window of the station is on the screen, null for none.
    DesktopDialogs(PathForms paths, std::function<QWidget*(Window&)> widget_of, NameOnAir name_on_air = {});

    Answer MsgBox(const MessageBox& box) override;
    [[nodiscard]] std::optional<std::string> InputBox(const sonarelle::InputBox& box) override;
    [[nodiscard]] ChosenFile open_file(const FileDialog& dialog) override;
    [[nodiscard]] ChosenFile save_file(const FileDialog& dialog) override;
    [[nodiscard]] std::optional<std::int32_t> choose_colour(std::int32_t preset) override;
    [[nodiscard]] std::optional<Font> choose_font(const Font& preset) override;
    void show_modal(Window& window) override;

private:
    [[nodiscard]] ChosenFile choose_file(const FileDialog& dialog, QFileDialog::AcceptMode mode);

    PathForms paths_;
    std::function<QWidget*(Window&)> widget_of_;
    NameOnAir name_on_air_;
    /// What was typed last: the next box of its question has it still where the station refused it, which it does
    /// before the operator's event has ended.
    struct Typed {
        std::string title, prompt;
        QString words;
        bool is_refused = false;
    };
    Typed typed_;
    QTimer verdict_; ///< Goes while the station may refuse it.
};

/// The filter of a file dialog in Qt's form: "fichier (*.dfm)|*.dfm" makes "fichier (*.dfm)".
[[nodiscard]] QStringList name_filters(const std::string& filter);

} // namespace sonarelle
