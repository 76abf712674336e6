#include <array>
#include <nlohmann/json.hpp>
#include <ostream>

#include "app/common/machine.h"
#include "app/outil/commands.h"
#include "app/outil/printable.h"
#include "app/outil/programme.h"
#include "configuration/settings_store.h"
#include "platform/failure.h"
#include "platform/simulated/simulated_platform.h"

namespace sonarelle {

namespace {

constexpr Option decks_option{"--deck", false};

struct Mix {
    int overlap;
    int lead;
};

/// What a station with these settings makes of an end point, on its first track.
Mix mix_of(const std::string& end, const std::vector<Setting>& settings, bool over_decks) {
    SimulatedPlatform machine;
    SettingsStore{machine.settings, machine.platform.program_folder, DecimalMark::point}.write_column(
        &SettingRow::repair);
    machine.settings.save_all(settings_application, settings);
    Station station{machine.platform};
    station.create_main_window();
    if (station.settings.premier_lancement.is_true())
        throw Failure{FailureNumber::type_mismatch, "réglages", "une valeur n'est pas un nombre"};
    station.chain.lecteur_en_cours = 1;
    station.chain.mode_enchainement = !over_decks;
    station.main_window.deck(1).counter.caption = end;
    station.mix_engine.Choix_mix();
    return {station.settings.mix_courant.value(), station.settings.prechargement.value()};
}

void compute_mixes(const Call& call) {
    static_cast<void>(call.arguments.word(0, "FIN"));
    Machine machine{call.options};
    std::vector<Setting> settings = machine.settings().all(settings_application);
    const auto changed = changed_settings(call.arguments);
    settings.insert(settings.end(), changed.begin(), changed.end());
    std::string lines;
    for (const std::string& end : call.arguments.words()) {
        try {
            const Mix mix = mix_of(end, settings, call.arguments.has(decks_option.name));
            const double seconds = end_point_to_double(end);
            nlohmann::ordered_json line;
            if (seconds == Fix(seconds))
                line["fin"] = static_cast<std::int64_t>(seconds);
            else
                line["fin"] = seconds;
            line["mix_courant"] = mix.overlap;
            line["prechargement"] = mix.lead;
            lines += json_line(line) + "\n";
        } catch (const Failure& failure) {
            throw Failure{failure.number, printable_word(end), failure.description};
        }
    }
    call.out << lines;
}

constexpr std::array options{setting_option, decks_option};

constexpr std::array commands{
    Command{"calcul mix", "FIN... [--reglage CLE=VALEUR]... [--deck]", options, compute_mixes},
};

} // namespace

std::span<const Command> mix_commands() {
    return commands;
}

} // namespace sonarelle
