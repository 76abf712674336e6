#include "playout/row_listening.h"

#include "platform/disk.h"
#include "platform/failure.h"

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
    if (selected == 0)
        return;
    if (!desk_.ring.has_main_deck()) {
        run_.stop_decks();
        return run_.play_list();
    }
    Deck& deck = desk_.ring.before(desk_.ring.main_deck());
    if (deck.sounds())
        return desk_.notices.inform("Le lecteur " + deck.name() +
                                    " est encore à l'antenne\nLe morceau peut etre lu quand il s'est tu");
    if (desk_.chain.lecteur_mix_special != 0)
        return desk_.notices.inform("Un mixage spécial est en cours\nLe morceau peut etre lu quand il est fini");
    ErrorIndicator{}.skip([&] { listen_to(cursor_.record_of(selected), deck); });
    run_.show_playing_row();
    desk_.list.index_en_cours = desk_.list.ligne_en_lecture;
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
