#pragma once

#include <QAbstractButton>
#include <optional>
#include <string>
#include <vector>

#include "configuration/painting.h"
#include "desktop/desktop.h"
#include "desktop/desktop_fixture.h"
#include "desktop/list_view.h"
#include "desktop/main_view.h"
#include "desktop/pixels.h"
#include "platform/simulated/simulated_platform.h"
#include "platform/text.h"
#include "station/station.h"

namespace sonarelle {

/// The ten colours that a theme writes, but for those that nothing reads.
struct Theme {
    const char* name;
    Colour text_of_list, text_of_buttons, label, ground_of_list, window, button;
};

/// A first start, and the four themes that the list's menu offers.
inline constexpr Theme themes[]{{"first start", 0x0F0F0F, desktop_text, 0xFFFFFF, 0x8F8F8F, 0x8F8F8F, 0xC08000},
                                {"printemps", 16711680, 16711680, 16711680, 8454016, 49152, 49152},
                                {"été", 65535, 16777215, 65535, 33023, 192, 192},
                                {"automne", 16777152, 16777152, 16777152, 16744703, 12583104, 12583104},
                                {"hiver", 16777215, 16777215, 16777215, 16033024, 12615680, 12615680}};

/// The station's windows without a screen, over a simulated machine.
class StationViews : public DesktopFixture {
protected:
    StationViews() {
        SettingsStore{machine.settings, "C:\\Sonarelle", DecimalMark::point}.write_column(&SettingRow::first);
        station.settings.chemin_programme = "C:\\Sonarelle\\";
        station.create_main_window();
        desktop.emplace(station.windows(), station.desk, services, SoundReading{});
    }
    ~StationViews() override {
        desktop.reset();
        for (const std::string& complaint : machine.dialogs.complaints())
            ADD_FAILURE() << complaint;
    }

    void show_windows() {
        station.main_window.show();
        station.list_window.show();
        settle();
    }
    /// The station's colours, as its settings would give them at a start.
    void wear(const Theme& theme) {
        station.settings.coul_texte_liste = theme.text_of_list;
        station.settings.coul_text_bouton = theme.text_of_buttons;
        station.settings.coul_label = theme.label;
        station.settings.coul_fond_liste = theme.ground_of_list;
        station.settings.coul_fenetre = theme.window;
        station.settings.coul_bouton = theme.button;
        for (Window* painted : station.windows())
            paint_station_window(*painted, station.settings);
        settle();
    }

    /// Three rows in the list: on the air, next, and missing.
    void rows_of_three() {
        for (const char* name : {"un", "deux", "trois"})
            station.list_window.rows.append(
                {"C:\\" + std::string{name} + ".mp3", "0.10", "200.00", "Rock", "100", "00:03:20"});
        settle();
        list_view().rows().is_missing = [](const std::string& path) { return path == "C:\\trois.mp3"; };
        list_view().rows().set_marks({.playing = 1, .next = 2});
        list_view().rows().repaint_all();
        settle();
    }

    [[nodiscard]] MainView& main_view() { return dynamic_cast<MainView&>(*desktop->widget_of(station.main_window)); }
    [[nodiscard]] ListView& list_view() { return dynamic_cast<ListView&>(*desktop->widget_of(station.list_window)); }
    /// The widget of a control, or of a part of the view that has a name.
    template <typename Kind = QWidget>
    [[nodiscard]] static Kind& part(QWidget& view, const std::string& name) {
        return dynamic_cast<Kind&>(*view.findChild<QWidget*>(QString::fromStdString(name)));
    }
    /// All parts of a kind, which needn't be known to Qt.
    template <typename Kind>
    [[nodiscard]] static std::vector<Kind*> parts_of(QWidget& view) {
        std::vector<Kind*> parts;
        for (QWidget* child : view.findChildren<QWidget*>())
            if (auto* found = dynamic_cast<Kind*>(child))
                parts.push_back(found);
        return parts;
    }

    SimulatedPlatform machine;
    Station station{machine.platform};
    std::optional<Desktop> desktop;
};

} // namespace sonarelle
