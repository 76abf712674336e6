#include "app/outil/gestures.h"

#include <array>
#include <istream>
#include <sstream>

#include "platform/drive_table.h"
#include "platform/failure.h"
#include "platform/host/machine_paths.h"
#include "platform/numbers.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

using Act = std::function<void(Station&, ScriptedDialogs&)>;

/// A gesture on a deck's own button.
struct DeckGesture {
    std::string_view word;
    GraphicButton DeckControls::*button;
};

constexpr std::array deck_gestures{
    DeckGesture{"stop", &DeckControls::stop},  DeckGesture{"pause", &DeckControls::pause},
    DeckGesture{"play", &DeckControls::play},  DeckGesture{"avance", &DeckControls::forward},
    DeckGesture{"recul", &DeckControls::back}, DeckGesture{"mix", &DeckControls::special_mix},
    DeckGesture{"zap", &DeckControls::zap},
};

/// The words of a line, read one after the other.
class Line {
public:
    explicit Line(const std::string& text)
        : in_{text} {}

    [[nodiscard]] std::string word() {
        std::string word;
        if (!(in_ >> word))
            throw Failure{FailureNumber::wrong_call, "", "il manque un mot"};
        return word;
    }
    [[nodiscard]] std::string rest() {
        std::string text;
        std::getline(in_ >> std::ws, text);
        if (text.empty())
            throw Failure{FailureNumber::wrong_call, "", "il manque un mot"};
        return text;
    }
    [[nodiscard]] bool is_over() { return (in_ >> std::ws).eof(); }
    void expect_end() {
        if (!is_over())
            throw Failure{FailureNumber::wrong_call, "", "il y a un mot en trop"};
    }
    [[nodiscard]] int deck() {
        const std::string number = word();
        if (number != "1" && number != "2" && number != "3")
            throw Failure{FailureNumber::wrong_call, number, "un lecteur est 1, 2 ou 3"};
        return number.front() - '0';
    }
    [[nodiscard]] int number() { return to_integer(word(), DecimalMark::point).value(); }

private:
    std::istringstream in_;
};

Act act_on_deck(std::string_view gesture, Line& line) {
    for (const DeckGesture& known : deck_gestures)
        if (known.word == gesture) {
            const int deck = line.deck();
            return [deck, button = known.button](Station& station, ScriptedDialogs&) {
                (station.main_window.deck(deck).*button).click();
            };
        }
    throw Failure{FailureNumber::wrong_call, std::string{gesture}, "geste inconnu"};
}

/// A script names files as the command line does, or as lists do.
std::string station_file(const std::string& file, const DriveTable& drives) {
    return file.starts_with('/') ? station_path_of(drives, file) : file;
}

Act act_of(Line& line, const DriveTable& drives) {
    const std::string gesture = line.word();
    if (gesture == "zap" && line.is_over())
        return [](Station& station, ScriptedDialogs&) { station.main_window.key_press(U'z'); };
    if (gesture == "volume") {
        const int deck = line.deck();
        const int value = line.number();
        return [deck, value](Station& station, ScriptedDialogs&) {
            station.main_window.deck(deck).slider.set_value(value);
        };
    }
    if (gesture == "charge") {
        const int deck = line.deck();
        const std::string file = station_file(line.rest(), drives);
        return [deck, file](Station& station, ScriptedDialogs& dialogs) {
            GraphicButton& open = station.main_window.deck(deck).open;
            if (!open.is_reachable())
                return; // no dialog comes, and the file must not wait for the next one
            dialogs.expect_open(file);
            open.click();
        };
    }
    if (gesture == "touche") {
        const std::string key = line.rest();
        return [key](Station& station, ScriptedDialogs&) {
            std::string_view text = key;
            station.main_window.key_press(take_character(text));
        };
    }
    if (gesture == "repond") {
        const std::string words = line.rest();
        return [words](Station&, ScriptedDialogs& dialogs) { dialogs.expect_words(words); };
    }
    return act_on_deck(gesture, line);
}

double time_of(const std::string& word) {
    try {
        return to_double(word, DecimalMark::point);
    } catch (const Failure&) {
        throw Failure{FailureNumber::type_mismatch, word, "un temps en secondes est attendu"};
    }
}

Gesture gesture_of(const std::string& text, const DriveTable& drives) {
    Line line{text};
    const double at = time_of(line.word());
    if (at < 0)
        throw Failure{FailureNumber::wrong_call, text, "le temps d'un geste n'est pas négatif"};
    Act act = act_of(line, drives);
    line.expect_end();
    return {nearest_frame(at), std::move(act)};
}

} // namespace

std::vector<Gesture> read_gestures(std::istream& in, const std::string& source, const DriveTable& drives) {
    std::vector<Gesture> gestures;
    std::string text;
    for (int number = 1; std::getline(in, text); ++number) {
        if (trim(text).empty() || trim(text).starts_with('#'))
            continue;
        try {
            gestures.push_back(gesture_of(text, drives));
        } catch (const Failure& failure) {
            throw Failure{failure.number, source + ", ligne " + std::to_string(number), failure.what()};
        }
    }
    if (in.bad())
        throw Failure{FailureNumber::device_fault, source, "lecture impossible"};
    return gestures;
}

} // namespace sonarelle
