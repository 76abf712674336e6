// Whatever the operator can press does something that he notices, if only to say that its window isn't there yet.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <tuple>

#include "playout/desk_bench.h"

namespace sonarelle {

namespace {

using testing::IsEmpty;

/// What a station has done so far, as far as anyone can notice.
class Traces : public ControlObserver {
public:
    explicit Traces(Station& station) {
        for (Window* window : station.windows()) {
            window->observe(this);
            window->on_popup = [this](MenuItem&) { ++count; };
            for (Control* control : window->controls())
                control->observe(this);
        }
    }
    void control_changed(Control&) override { ++count; }

    std::size_t count = 0;
};

/// A desk with a list whose first row plays, or with the list alone.
class BusyDesk : public DeskBench {
public:
    explicit BusyDesk(bool plays) {
        start();
        machine.dialogs.default_answers();
        std::vector<enreg_liste> records;
        for (const char* path : {"C:\\un.mp3", "C:\\deux.mp3", "C:\\trois.mp3"}) {
            machine.add_track(path, 200);
            records.push_back(record_of(path));
        }
        open_list("C:\\Listes\\matin.dfm", records);
        rows().select(2);
        if (plays)
            station.list_window.Image1.click();
        machine.run_for(seconds(3));
    }
    void TestBody() override {}

    using DeskBench::machine;
    using DeskBench::station;

    [[nodiscard]] Control& control(std::size_t window_number, std::size_t number) {
        return *station.windows()[window_number]->controls()[number];
    }

    /// Whether a press of this control is noticed.
    [[nodiscard]] bool answers(std::size_t window_number, std::size_t number) {
        Control& pressed = control(window_number, number);
        pressed.enabled = pressed.visible = true;
        Traces traces{station};
        const auto state = [&] {
            return std::tuple{traces.count,
                              machine.dialogs.asked().size(),
                              station.ended(),
                              machine.shell.started.size(),
                              machine.settings.all(settings_application).size(),
                              machine.shell.cd_door_open};
        };
        const auto before = state();
        press(pressed);
        const bool noticed = state() != before;
        machine.dialogs.forget();
        for (Window* window : station.windows())
            for (Control* part : window->controls())
                part->observe(nullptr);
        for (Window* window : station.windows())
            window->observe(nullptr);
        return noticed;
    }

private:
    static void press(Control& control) {
        if (auto* entry = dynamic_cast<MenuItem*>(&control))
            return entry->click();
        if (auto* button = dynamic_cast<Button*>(&control))
            return button->click();
        if (auto* image = dynamic_cast<Image*>(&control))
            return image->click();
        if (auto* label = dynamic_cast<Label*>(&control))
            label->click();
    }
};

/// A picture, a text, or a menu: nothing to press.
bool is_for_the_eye(const Control& control) {
    constexpr std::array pictures{"Image1", "Image2", "Image10"}; // of splash, main window and list
    if (const auto* entry = dynamic_cast<const MenuItem*>(&control))
        return !entry->entries().empty() || entry->on_open || entry->caption.get().empty();
    if (const auto* label = dynamic_cast<const Label*>(&control))
        return !label->on_click;
    if (const auto* image = dynamic_cast<const Image*>(&control))
        return !image->on_click && std::ranges::find(pictures, control.name()) != pictures.end();
    return dynamic_cast<const Button*>(&control) == nullptr;
}

} // namespace

TEST(EveryControl, AnswersWhenItIsPressed) {
    BusyDesk model{false};
    std::vector<std::string> dead;
    const auto windows = model.station.windows();
    for (std::size_t window = 0; window < windows.size(); ++window)
        for (std::size_t number = 0; number < windows[window]->controls().size(); ++number) {
            const Control& control = model.control(window, number);
            if (!is_for_the_eye(control) && !BusyDesk{false}.answers(window, number) &&
                !BusyDesk{true}.answers(window, number))
                dead.push_back(windows[window]->name() + "." + control.name());
        }
    EXPECT_THAT(dead, IsEmpty());
}

TEST(EveryControl, ThatHasNoWindowYetSaysSo) {
    for (MenuItem Antenne_FM::*entry : {&Antenne_FM::pre_char, &Antenne_FM::A_ordre_continue,
                                        &Antenne_FM::A_ordre_aléatoire, &Antenne_FM::A_gere, &Antenne_FM::ecoute}) {
        BusyDesk desk{false};
        (desk.station.main_window.*entry).click();
        EXPECT_EQ(desk.machine.dialogs.last().text, "Cette fenètre n'est pas encore disponible");
        desk.machine.dialogs.forget();
    }
}

} // namespace sonarelle
