#include "playout/soak_world.h"

#include <array>
#include <cstdio>

#include "platform/text.h"
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::size_t gestures_kept = 14;
constexpr int jingles_made = 12;

std::string clock_text(double seconds) {
    const auto hundredths = static_cast<long>(seconds * 100 + 0.5);
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "%02ld:%02ld:%02ld.%02ld", hundredths / 360000, hundredths / 6000 % 60,
                  hundredths / 100 % 60, hundredths % 100);
    return text.data();
}

std::string whole_text(double seconds) {
    return std::to_string(static_cast<int>(seconds)) + ".00";
}

} // namespace

SoakWorld::SoakWorld(unsigned day)
    : machine{"C:\\Sonarelle", day},
      places{{"C:\\Musique\\Jour", 40, {}},
             {"C:\\Musique\\Nuit", 25, {}},
             {"D:\\Musique", 20, "D:"},
             {"\\\\serveur\\partage\\Musique", 15, "\\\\serveur\\partage"}},
      seed{day},
      random_{day} {
    machine.dialogs.default_answers();
    station.settings.chemin_programme = "C:\\Sonarelle\\";
    write_settings();
    make_jingles();
    make_tracks();
    station.create_main_window();
    open_list();
}

// Most stations keep the first settings; the others have overlaps and leads of every size.
void SoakWorld::write_settings() {
    const SettingsStore store{machine.settings, "C:\\Sonarelle", DecimalMark::point};
    store.write_column(&SettingRow::first);
    store.write(setting_section::config, "Load_combo1", soak_short_list);
    store.write(setting_section::config, "Load_combo2", soak_short_list);
    store.write(setting_section::config, "Chemin_fichier_aleatoire", soak_short_list);
    store.write(setting_section::config, "Nb_fichier_aleatoire", std::to_string(below(6)));
    store.write(setting_section::config, "Chemin_fichier_aleatoire1", soak_list);
    store.write(setting_section::config, "Nb_fichier_aleatoire1", std::to_string(below(3)));
    store.write(setting_section::config, "Ecart_artiste", std::to_string(below(4)));
    if (happens(60))
        return;
    store.write(setting_section::config, "Mix", std::to_string(1 + below(12)));
    store.write(setting_section::config, "Préchargement", std::to_string(1 + below(15)));
    store.write(setting_section::config, "Mix_audio", std::to_string(2 + below(18)));
    store.write(setting_section::config, "valeur_max_jingles", std::to_string(10 + below(40)));
}

void SoakWorld::make_tracks() {
    std::vector<enreg_liste> records;
    for (int number = 1; number <= tracks_in_list; ++number)
        records.push_back(make_track(number));
    machine.disk.put_file(soak_list, bytes_of(records));
}

enreg_liste SoakWorld::make_track(int number) {
    const MusicPlace& place = number == 1 ? places.front() : any_place();
    const std::string path = place.folder + "\\titre " + std::to_string(number) + ".mp3";
    const int fate = number == 1 ? 99 : below(100);
    const double whole = fate == 0 ? 0.3 + below(60) / 100.0 : any_length();
    tracks.push_back(path);
    add_track(path, whole);
    if (fate == 1 || fate == 2)
        machine.disk.Kill(path);
    if (fate == 3) {
        machine.media.set_unplayable(path);
        lengths_.erase(path);
    }
    const int end = below(20);
    const std::string end_text = end == 0  ? whole_text(whole + 20)
                                 : end < 3 ? whole_text(whole / 2)
                                           : whole_text(whole);
    const double start = happens(80) ? 0.1 : below(30) / 10.0;
    return record_of(path, end_text, static_cast<std::int16_t>(60 + below(41)), start,
                     place.folder.front() == '\\' ? "réseau" : "Rock");
}

void SoakWorld::add_track(const std::string& path, double length) {
    machine.add_track(path, length);
    lengths_[path] = length;
}

void SoakWorld::make_jingles() {
    std::vector<enreg_liste> records;
    for (int number = 1; number <= jingles_made; ++number) {
        jingles.push_back("C:\\Jingles\\jingle " + std::to_string(number) + ".mp3");
        const double whole = number <= 8 ? 1.0 + below(30) : any_length();
        add_track(jingles.back(), whole);
        records.push_back(record_of(jingles.back(), whole_text(whole), 100, 0.0));
    }
    machine.disk.put_file(soak_short_list, bytes_of(records));
}

// A third are items between the music.
double SoakWorld::any_length() {
    const double rest = below(100) / 100.0;
    const int kind = below(100);
    return kind < 35 ? 1 + below(30) + rest : kind < 85 ? 100 + below(260) + rest : 1 + below(600) + rest;
}

const MusicPlace& SoakWorld::any_place() {
    int share = below(100);
    for (const MusicPlace& place : places)
        if ((share -= place.share_percent) < 0)
            return place;
    return places.front();
}

void SoakWorld::open_list() {
    machine.dialogs.expect_open(soak_list);
    station.list_window.A_liste.click();
    rows().select(1);
}

bool SoakWorld::can_be_played(const std::string& path) const {
    const auto length = lengths_.find(path);
    return length != lengths_.end() && length->second >= 1.0 && machine.disk.exists(path);
}

void SoakWorld::toggle(MusicPlace& place) {
    if (!place.drive.empty() && place.gone)
        machine.disk.plug_again(place.drive);
    else if (!place.drive.empty())
        machine.disk.unplug(place.drive);
    else if (place.gone)
        machine.disk.Name(place.folder + " ailleurs", place.folder);
    else
        machine.disk.Name(place.folder, place.folder + " ailleurs");
    place.gone = !place.gone;
}

void SoakWorld::note(const std::string& gesture) {
    gestures_.push_back(clock_text(now()) + "  " + gesture);
    if (gestures_.size() > gestures_kept)
        gestures_.pop_front();
}

std::string SoakWorld::recipe() const {
    std::string text = "seed " + std::to_string(seed) + ", " + clock_text(now()) + ", the last gestures:";
    for (const std::string& gesture : gestures_)
        text += "\n    " + gesture;
    return text;
}

std::string SoakWorld::state() {
    std::string text = chain_state();
    for (const MusicPlace& place : places)
        if (place.gone)
            text += "\n    gone: " + place.folder;
    for (int number = 1; number <= 3; ++number)
        text += "\n    deck " + std::to_string(number) + deck_state(number);
    return text;
}

std::string SoakWorld::chain_state() {
    const Antenne_FM& window = station.main_window;
    const Liste_son& list = station.list_window;
    const auto bit = [](bool on) { return on ? "1" : "0"; };
    std::string text = "main deck " + std::to_string(main_deck()) + ", row " + text_of(station.list.index_en_cours) +
                       " of " + std::to_string(rows().count()) + ", elapsed " + window.elapsed.caption.get() + ", " +
                       window.chain_status.caption.get() + ", " + window.running_chain.caption.get();
    text += std::string{"\n    coche2 "} + bit(window.mix_titles.value()) + " coche3 " + bit(window.mix_list.value()) +
            " coche4 " + std::to_string(window.load_ahead.value()) + " options ";
    for (const OptionButton* option :
         {&list.player_mode, &list.random_mode, &list.defined_end_mode, &list.full_length_mode})
        text += bit(option->value());
    text += std::string{" random "} + bit(station.chain.ordre_aleatoire.is_true()) + " jingles " +
            bit(station.chain.jingles_aleatoires.is_true()) + " items " +
            bit(station.settings.valide_fichier_aleatoire1.is_true());
    text += std::string{" list chain "} + bit(station.chain.mode_enchainement.is_true()) + " special mix on deck " +
            text_of(station.chain.lecteur_mix_special);
    for (const Timer* timer :
         {&window.load_ahead_timer, &window.deck_chain_timer, &window.overlap_timer, &window.list_chain_timer})
        text += " " + timer->name() + (timer->enabled() ? " on" : " off");
    return text;
}

std::string SoakWorld::deck_state(int number) {
    const Deck& shown = deck(number);
    const ProgressBar& bar = shown.controls.progress;
    std::string text = (shown.sounds()      ? " sounds "
                        : shown.has_graph() ? " rests "
                                            : " bare ") +
                       shown.path + ", bar " + std::to_string(bar.value) + "/" + std::to_string(bar.maximum) +
                       ", end " + shown.controls.counter.caption.get();
    if (shown.pause_lecteur.is_true())
        text += ", paused";
    if (shown.has_graph())
        text += ", at " + std::to_string(shown.graph().get_CurrentPosition());
    return text;
}

} // namespace sonarelle
