#include "playout/row_listening.h"

#include <cstdint>

#include "platform/disk.h"
#include "platform/failure.h"
#include "playout/air_view.h"

namespace sonarelle {

namespace {

/// While it lives, a load takes the path of the one-off listening, and nothing of it is shown as the list's.
class OneOff {
public:
    OneOff(ChainState& chain, const std::string& path)
        : chain_{chain} {
        chain_.ecoute_en_cours = chain_.ecoute_demandee = true;
        chain_.chemin_ecoute = path;
    }
    ~OneOff() { chain_.ecoute_en_cours = chain_.ecoute_demandee = false; }
    OneOff(const OneOff&) = delete;
    OneOff& operator=(const OneOff&) = delete;

private:
    ChainState& chain_;
};

bool is_there(Disk& disk, const std::string& path) {
    std::string found;
    ErrorIndicator{}.skip([&] { found = disk.Dir(path); });
    return !found.empty();
}

} // namespace

void RowListening::A_ecoute() {
    const int selected = desk_.list_window.rows.selected();
    if (selected == 0 || desk_.list_window.search.text() == "Non trouvé")
        return;
    if (const std::string refusal = why_not(selected); !refusal.empty())
        return desk_.notices.inform(refusal);
    if (!desk_.ring.has_main_deck()) {
        run_.stop_decks();
        return run_.play_list();
    }
    const Integer drawn = desk_.list.index_en_cours; // where random order has made a row ready
    ErrorIndicator{}.skip([&] { listen_to(cursor_.record_of(selected), free_deck()); });
    run_.show_playing_row();
    desk_.list.index_en_cours = desk_.chain.choix_prepare.is_true() ? drawn : desk_.list.ligne_en_lecture;
}

Deck& RowListening::free_deck() const {
    return desk_.ring.before(desk_.ring.main_deck());
}

std::string RowListening::why_not(int row) const {
    if (row > INT16_MAX)
        return "La ligne " + std::to_string(row) + " ne peut pas être lue\nLa lecture va jusqu'à la ligne " +
               std::to_string(INT16_MAX);
    if (desk_.is_manual())
        return "En mode manuel le morceau se lit sur un lecteur\nAucun enchainement ne finirait son mixage";
    if (!desk_.ring.has_main_deck())
        return {};
    const Deck& deck = free_deck();
    if (deck.sounds())
        return "Le lecteur " + deck.name() + " est encore à l'antenne\nLe morceau pourra être lu quand il se sera tu";
    if (desk_.chain.lecteur_mix_special != 0)
        return "Un mixage spécial est en cours\nLe morceau pourra être lu quand il sera fini";
    if (desk_.mixes_titles() && role_of(desk_, deck) == DeckRole::loaded)
        return "Le lecteur " + deck.name() + " attend son tour avec un fichier\nDéchargez-le pour lire ce morceau";
    return {};
}

void RowListening::listen_to(const DestinationRecord& row, Deck& deck) {
    if (!is_there(desk_.platform.disk, row.dest_chemin))
        return desk_.display.has_no_file(deck);
    const OneOff one_off{desk_.chain, row.dest_chemin};
    if (loading_.load_from_list(deck, row) == LoadResult::loaded)
        mix_.special_mix(deck);
    else
        desk_.display.has_no_file(deck);
}

} // namespace sonarelle
