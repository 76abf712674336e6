#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "playlist/draw_table.h"
#include "playlist/enreg_liste.h"
#include "playout/desk.h"
#include "playout/draw_control.h"
#include "playout/journal.h"

namespace sonarelle {

/// Whether this text of the settings names a list that records can be drawn from: a station without one has an empty
/// text there, or the words of a first start.
[[nodiscard]] bool names_a_source(std::string_view path);

/// Who draws from a list file, with what it drew last.
struct DrawSource {
    DrawTable& table;
    DrawControl::Lists lists;
    int previous = 0; ///< The number that it drew last, which the next draw bars.
};

/// A record that was drawn.
struct DrawnRecord {
    int number = 0;
    int records = 0; ///< Of its file.
    enreg_liste record;
    std::vector<PassedOver> passed_over;

    /// What is told of it when it has become this row.
    [[nodiscard]] OnAirEvent inserted_as(int row) const;
};

/// Draws records from list files other than the one on the air.
class SourceDraw {
public:
    SourceDraw(Desk& desk, Journal& journal, DrawControl& control)
        : desk_{desk},
          journal_{journal},
          control_{control} {}

    /// A record of another file than `before`, behind which the chain would pass it over. Nothing where there is no
    /// list, or no record that could be drawn. The number 0, which no record has, is barred like any other and drawn
    /// again; the last record is never drawn.
    /// @throws Failure when the list can't be read.
    [[nodiscard]] std::optional<DrawnRecord> draw(const std::string& path, DrawSource& source,
                                                  const std::string& before);

private:
    [[nodiscard]] std::optional<int> draw_number(DrawSource& source, DrawnRecord& drawn);
    void bar(DrawSource& source, int number, int records);
    void note_zero();

    Desk& desk_;
    Journal& journal_;
    DrawControl& control_;
    bool zero_noted_ = false;
};

/// What random order and the insertions tell of the numbers that were passed over.
namespace pass_reason {
inline constexpr std::string_view drawn_before = "déjà tiré";
inline constexpr std::string_view no_record = "aucun enregistrement";
inline constexpr std::string_view same_file = "même fichier que le titre précédent";
inline constexpr std::string_view same_artist = "même artiste";
} // namespace pass_reason

/// The hits of a draw, each number once.
void add_hits(std::vector<PassedOver>& passed_over, const Draw& draw);

} // namespace sonarelle
