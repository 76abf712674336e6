// The keys that tips name do what a press of their part does.
#include "desktop/key_table.h"

#include <QKeySequence>
#include <set>

#include "desktop/qt_text.h"
#include "desktop/whole_desk_fixture.h"
#include "platform/failure.h"
#include "playout/air_view.h"

namespace sonarelle {

namespace {

/// A desk with one deck on the air for 30 s, or 0 for none, and the others loaded; its menus behind their labels.
class DeskUnderHands : public WholeDesk {
public:
    explicit DeskUnderHands(int main)
        : main_{main} {
        for (const int deck : {1, 2, 3}) {
            const std::string path = "C:\\Musique\\titre " + std::to_string(deck) + ".mp3";
            machine.add_track(path, 100);
            machine.dialogs.expect_open(path);
            window.deck(deck).open.click();
        }
        if (main > 0) {
            window.deck(main).play.click();
            window.deck(main).slider.set_value(5);
            machine.run_for(Frames{30 * 48000});
        }
        machine.dialogs.default_answers();
        window.click();
        take_keyboard();
    }
    ~DeskUnderHands() override {
        while (QWidget* open = QApplication::activePopupWidget())
            open->close();
    }
    void TestBody() override {}

    [[nodiscard]] std::vector<NamedKey> keys() {
        std::vector<NamedKey> all = keys_of(window);
        if (main_ > 0)
            std::ranges::copy(keys_of_deck(window.deck(main_), true), std::back_inserter(all));
        return all;
    }
    void press_key(const std::string& name) {
        const QKeySequence sequence{to_qt(name)};
        const bool is_character = name.size() == 1;
        key(sequence[0].key(), is_character ? to_qt(name).toLower() : QString{});
    }
    void press_part(const Control& control) { press(part(control)); }
    /// What the operator has brought about.
    [[nodiscard]] std::string state() {
        std::string all;
        for (Deck& deck : station.deck_ring.decks) {
            double position = 0;
            ErrorIndicator{}.skip([&] { position = deck.whole_position().value(); });
            all += std::to_string(static_cast<int>(role_of(station.desk, deck))) + " " + std::to_string(position) +
                   " " + std::to_string(deck.controls.slider.value()) + "\n";
        }
        const QWidget* menu = QApplication::activePopupWidget();
        return all + (menu == nullptr ? "" : menu->objectName().toStdString()) + " " +
               std::to_string(machine.dialogs.asked().size());
    }

private:
    int main_;
};

} // namespace

TEST(KeyTable, KeyDoesWhatThePartDoes) {
    std::set<std::string> effective;
    std::set<std::string> all;
    for (const int main : {0, 1, 2, 3})
        for (std::size_t place = 0; place < DeskUnderHands{main}.keys().size(); ++place) {
            std::string by_key;
            std::string name;
            {
                DeskUnderHands desk{main};
                const NamedKey named = desk.keys()[place];
                if (!named.control->is_reachable())
                    continue;
                name = named.control->name() + " by " + named.key;
                all.insert(name);
                const std::string before = desk.state();
                desk.press_key(named.key);
                by_key = desk.state();
                if (by_key != before)
                    effective.insert(name);
            }
            DeskUnderHands desk{main};
            desk.press_part(*desk.keys()[place].control);
            EXPECT_EQ(by_key, desk.state()) << name;
        }
    EXPECT_EQ(effective, all);
}

} // namespace sonarelle
