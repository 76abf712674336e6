#include "playlist/row_to_deck.h"

#include <cstdint>
#include <utility>

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/shell.h"

namespace sonarelle {

RowToDeck::RowToDeck(const Platform& platform, ListState& list, ChainState& chain, Liste_son& window,
                     RecordReading& reading, DeckDoors decks)
    : platform_{platform},
      list_{list},
      chain_{chain},
      window_{window},
      reading_{reading},
      decks_{std::move(decks)} {}

// The record comes from the file, not from the row: the file is what the decks play from.
void RowToDeck::send(int deck) {
    if (window_.rows.selected() > INT16_MAX)
        return show_box(platform_.dialogs,
                        "La ligne " + std::to_string(window_.rows.selected()) +
                            " ne peut pas être envoyée sur un lecteur\nLa lecture va jusqu'à la ligne " +
                            std::to_string(INT16_MAX),
                        Icon::information);
    ErrorIndicator{}.skip([&] {
        const Integer row = window_.rows.selected();
        if (list_.fichier_liste.empty())
            return;
        // Before the question, behind which rows may go.
        DestinationRecord record = reading_.lire_enreg_destinataire(row, sent_);
        if (record.dest_chemin.empty() || !decks_.may_be_loaded(deck))
            return;
        sent_ = std::move(record);
        list_.chemin_fichier = chain_.path_of_deck(deck) = sent_.dest_chemin;
        decks_.load(deck, sent_);
    });
}

void RowToDeck::Load_Pl() {
    int deck = 0;
    for (MenuItem* entry : window_.deck_loads())
        entry->enabled = chain_.lecteur_en_cours != ++deck;
}

} // namespace sonarelle
