#pragma once

#include <string>

#include "platform/lengths_ahead.h"
#include "platform/platform.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// Measures one file apart from the decks.
class FileMeasure {
public:
    FileMeasure(const Platform& platform, ListState& list, ChainState& chain)
        : platform_{platform}, list_{list}, chain_{chain} {}

    /// Length and genre of `nom_fichier_maj` into `duree_mesuree`, `duree_piste_texte` and `genre_lu`. A file that
    /// can't be measured sets `mesure_echouee` and leaves them as far as they were taken.
    void met_ajour();
    /// The same of a file whose length was measured ahead.
    void met_ajour(const MeasuredLength& length);
    /// Why the last file couldn't be measured.
    [[nodiscard]] const std::string& reason() const { return reason_; }

private:
    void take(double seconds);
    void report(const Failure& failure);

    const Platform& platform_;
    ListState& list_;
    ChainState& chain_;
    std::string reason_;
};

} // namespace sonarelle
