#include "playout/row_draw.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <utility>

#include "platform/failure.h"
#include "playout/source_draw.h"

namespace sonarelle {

namespace {

constexpr int most_artist_attempts = 3; // behind them the row is taken, whoever plays
constexpr std::string_view row_found = "Oui ce nombre existe";

/// What the log says of a draw, and whether its hits are counted.
struct PlaceRow {
    DrawPlace place;
    int deck; ///< The main one; 0 for any.
    DrawWords words;
    bool counts_hits;
};

constexpr std::array places{
    PlaceRow{DrawPlace::load_step, 0, {" - Trouvé Nul", " - Pas Trouvé Ok", row_found}, false},
    PlaceRow{DrawPlace::list_chain, 3, {" - B1 trouvé", " - B1 Ok", row_found}, true},
    PlaceRow{DrawPlace::list_chain, 2, {" - B3 trouvé", " - B3 Ok", row_found}, true},
    PlaceRow{DrawPlace::list_chain, 1, {" - B2 trouvé", " - B2 Ok", row_found}, true},
    PlaceRow{DrawPlace::zap, 0, {" - Zapping Trouvé Nul", " - Zapping Pas Trouvé Ok", row_found}, true},
};

const PlaceRow& row_of(DrawPlace place, int main_deck) {
    return *std::ranges::find_if(
        places, [&](const PlaceRow& row) { return row.place == place && (row.deck == 0 || row.deck == main_deck); });
}

} // namespace

// Those that the chain can number.
int RowDraw::rows_to_draw() const {
    return std::min<int>(desk_.row_count(), INT16_MAX);
}

void RowDraw::bar_current_row() {
    using enum DrawControl::Lists;
    const int current = desk_.list.index_en_cours.value();
    if (tables_.deja_lu.bar(current, rows_to_draw())) {
        desk_.chain.nb_tirages_nuls = 0;
        desk_.display.null_draws(0);
        control_.begin_cycle(of_list);
    }
    control_.show_table(of_list, tables_.deja_lu, current);
}

std::optional<int> RowDraw::draw(DrawPlace place) {
    using enum DrawControl::Lists;
    const int rows = rows_to_draw();
    bar_current_row();
    const PlaceRow& row = row_of(place, desk_.ring.has_main_deck() ? desk_.ring.main_deck().number() : 1);
    std::vector<PassedOver> passed_over;
    for (int attempt = 0;; ++attempt) {
        const Draw draw = tables_.deja_lu.draw({1, rows});
        if (row.counts_hits)
            count_null_draws(draw.hit_count);
        control_.log(of_list, draw, row.words);
        add_hits(passed_over, draw);
        if (!draw.number)
            return std::nullopt;
        if (attempt == most_artist_attempts || !spacing_.comes_too_soon(desk_.list_window.rows.text(*draw.number))) {
            control_.row_drawn(*draw.number, rows, desk_.list.fichier_liste);
            report(*draw.number, std::move(passed_over), rows);
            return draw.number;
        }
        control_.log(of_list, {std::to_string(*draw.number) + " - Artiste trop proche"});
        passed_over.push_back({*draw.number, pass_reason::same_artist});
    }
}

// A station is on the air for longer than the counter lasts.
void RowDraw::count_null_draws(int hits) {
    Integer& counter = desk_.chain.nb_tirages_nuls;
    const int sum = counter.value() + std::min<int>(hits, INT16_MAX);
    counter = std::min<int>(sum, INT16_MAX);
    desk_.display.null_draws(counter.value());
    if (sum > INT16_MAX && !std::exchange(desk_.chain.null_draws_noted, true))
        journal_.note("Tirages nuls : " + std::string{failure_description(FailureNumber::overflow)});
}

void RowDraw::report(int row, std::vector<PassedOver> passed_over, int rows) const {
    desk_.report({.kind = OnAirEvent::Kind::drawn,
                  .row = row,
                  .path = desk_.list_window.rows.text(row),
                  .passed_over = std::move(passed_over),
                  .among = rows});
}

} // namespace sonarelle
