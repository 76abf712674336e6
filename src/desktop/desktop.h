#pragma once

#include <QElapsedTimer>
#include <QString>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/desktop_services.h"
#include "desktop/key_table.h"
#include "desktop/sound_reading.h"
#include "playout/air_view.h"
#include "playout/desk.h"

class QActionGroup;
class QMenu;
class QWidget;

namespace sonarelle {

class ListView;
struct AirLook;
struct DeckLook;
class MainView;
class SmallPlayerView;
class WindowView;

/// The sound outputs that the operator may choose from, as the option menu offers them. The empty name is the default
/// one.
struct OutputChoice {
    std::function<std::vector<std::string>()> names;
    std::function<std::string()> chosen;
    std::function<void(const std::string&)> choose;
};

/// The rows' files that are not there.
struct MissingFiles {
    std::function<bool(const std::string& path)> is_missing;
    /// Whether an answer has changed since this was last asked.
    std::function<bool()> has_news;
};

/// Gives the application the studio's look: style, palette, type. Once, before the first window.
void dress_application();

/// The windows of a station on the screen. Each is shown and hidden by its own `visible`. Window thread.
class Desktop {
public:
    /// Windows without a view of their own are shown as a form of their parts. All outlive the desktop.
    Desktop(const std::vector<Window*>& windows, Desk& desk, const DesktopServices& services,
            const SoundReading& sound);
    ~Desktop();
    Desktop(const Desktop&) = delete;
    Desktop& operator=(const Desktop&) = delete;

    /// Null for a window that isn't the station's.
    [[nodiscard]] QWidget* widget_of(const Window& window) const;

    /// Empty for nothing.
    [[nodiscard]] QString name_on_air() const;

    /// What plays, on the main window's status line; in red where it is a trouble.
    void show_output(const std::string& text, bool is_trouble);
    /// Hangs "Sortie audio" into the option menu.
    void offer_outputs(OutputChoice choice);
    /// Marks the rows of missing files in the list, while they can be seen.
    void mark_missing(MissingFiles files);

private:
    [[nodiscard]] SoundReading while_heard(const SoundReading& sound) const;
    void connect_readings();
    void name_keys(const std::vector<NamedKey>& keys);
    void name_keys_of_decks();
    void watch(Control& control, std::function<void()> show);
    void show_second();
    void show_decks();
    [[nodiscard]] DeckLook look_of(Deck& deck);
    [[nodiscard]] AirLook look_of_air();
    void show_air();
    [[nodiscard]] QString station_line() const;
    [[nodiscard]] QString length_beside(const std::string& next);
    [[nodiscard]] std::pair<QString, QString> what_follows();
    [[nodiscard]] IsMissing known_missing() const;
    [[nodiscard]] QString notice() const;
    void show_list();
    void show_missing();
    void fill_outputs();

    Desk& desk_;
    const DesktopServices& services_;
    std::vector<std::unique_ptr<WindowView>> views_;
    MainView* main_ = nullptr;
    ListView* list_ = nullptr;
    SmallPlayerView* player_ = nullptr;
    QTimer second_;
    QString clock_;      ///< Of the second that is shown, in both windows.
    QString last_title_; ///< Of what is on the air, or was the last to be.
    QElapsedTimer lost_; ///< Runs while no sound card plays.
    OutputChoice outputs_;
    MissingFiles missing_;
    std::unique_ptr<QMenu> output_menu_;
    std::unique_ptr<QActionGroup> output_entries_; ///< Of which one is chosen.
};

} // namespace sonarelle
