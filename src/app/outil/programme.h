#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/common/arguments.h"
#include "app/outil/changed_settings.h"
#include "platform/drive_table.h"
#include "platform/settings.h"
#include "platform/units.h"
#include "station/station.h"

namespace sonarelle {

class ScriptedDialogs;

enum class ReadingMode { list, full_length, random, decks };

/// A list of which records are inserted into the programme by draw.
struct DrawnList {
    std::string list; ///< A path of this machine; empty for none.
    int every = 0;    ///< Tracks between two.
};

/// What the words of a call say of a programme, for a rehearsal and for the air alike.
struct Programme {
    std::string list;             ///< A path of this machine.
    std::optional<Frames> length; ///< Nothing: as long as the list.
    ReadingMode mode = ReadingMode::list;
    DrawnList jingles;
    DrawnList items; ///< In random order, behind each start.
    std::uint64_t seed = 1;
    std::vector<Setting> settings; ///< That this call changes.
};

inline constexpr Option length_option{"--duree", true};
inline constexpr Option mode_option{"--mode", true};
inline constexpr Option seed_option{"--graine", true};
inline constexpr Option jingles_option{"--jingles", true};
inline constexpr Option jingle_spacing_option{"--tous", true};
inline constexpr Option items_option{"--fichiers", true};
inline constexpr Option item_spacing_option{"--tous1", true};

/// @throws WrongWords for a word that isn't one of these, Failure for a list of another kind.
[[nodiscard]] Programme programme_of(const Arguments& arguments);

/// HH:MM:SS, with two to four digits of hours. @throws WrongWords.
[[nodiscard]] Frames length_of(const std::string& text);

/// Opens the programme's list, which the station finds at this path of its own, as the operator does.
/// @throws Failure for a list without rows.
void open_programme(Station& station, ScriptedDialogs& dialogs, const Programme& programme, const std::string& list);

/// Chooses the reading mode, switches the insertions on, and presses play.
void start_programme(Station& station, const Programme& programme, const DriveTable& drives);

/// The sum of the end points of a loaded list.
[[nodiscard]] Frames length_of_list(Station& station);

} // namespace sonarelle
