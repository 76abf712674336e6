// Whatever the operator can press has an answer, if only that its window isn't there yet.
#include <gmock/gmock.h>

#include <algorithm>
#include <array>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::IsEmpty;

class EveryControl : public DeskFixture {};

/// A menu's entry, a button or a picture to press that leads nowhere.
bool is_dead(const Control& control) {
    constexpr std::array pictures{"Image1", "Image2", "Image10", "Shape1", "Shape2", "Shape3"}; // for the eye alone
    if (const auto* entry = dynamic_cast<const MenuItem*>(&control))
        return !entry->on_click && !entry->on_open && entry->entries().empty() && !entry->caption.get().empty();
    if (const auto* button = dynamic_cast<const Button*>(&control))
        return !button->on_click;
    const auto* image = dynamic_cast<const Image*>(&control);
    return image != nullptr && !image->on_click && std::ranges::find(pictures, control.name()) == pictures.end();
}

} // namespace

TEST_F(EveryControl, HasAnAnswer) {
    std::vector<std::string> dead;
    for (const Window* shown : station.windows())
        for (const Control* control : shown->controls())
            if (is_dead(*control))
                dead.push_back(shown->name() + "." + control->name());
    EXPECT_THAT(dead, IsEmpty());
}

TEST_F(EveryControl, WithoutAWindowYetSaysSo) {
    for (MenuItem* entry : {&window.pre_char, &window.A_gere, &station.list_window.A_ecoute_option}) {
        machine.dialogs.expect_box("Cette fenètre n'est pas encore disponible", Answer::ok);
        entry->click();
    }
}

} // namespace sonarelle
