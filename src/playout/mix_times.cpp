#include "playout/mix_times.h"

#include <algorithm>
#include <array>

namespace sonarelle {

MixTimes mix_times(const StationSettings& settings, Integer end) {
    struct Row {
        Integer longest;  ///< End point up to which the row holds, seconds.
        bool overlaps;    ///< By the settings' overlap of a short item.
        int further_lead; ///< Load lead beyond that overlap, seconds; 0 for no lead at all.
    };
    const Integer of_short = settings.forcer_mix_jingles;
    const std::array rows{Row{1, false, 0}, Row{3, true, 0}, Row{6, true, 1},
                          Row{settings.valeur_max_jingles, true, 3}};
    const auto* row = std::ranges::find_if(rows, [end](const Row& r) { return end <= r.longest; });
    if (row == rows.end())
        return {settings.mix_defaut, settings.prechargement_defaut, true};
    return {row->overlaps ? of_short : Integer{0}, row->further_lead > 0 ? of_short + row->further_lead : Integer{0}};
}

} // namespace sonarelle
