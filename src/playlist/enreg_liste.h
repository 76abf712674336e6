#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "playlist/fixed_record.h"

namespace sonarelle {

/// One track of a list: what players, list window and file manager exchange. 418 bytes, packed:
/// path 200, end of play as decimal text 100, genre 100, volume in percent as 16 bits, start of play in seconds as a
/// double that is not aligned, duration hh:mm:ss 8.
class enreg_liste : public FixedRecord<418> {
public:
    enreg_liste() {
        set_volume(0);
        set_debut_lecture(0);
    }

    [[nodiscard]] std::string chemin() const { return text(0, 200); }
    [[nodiscard]] std::string fin_lecture() const { return text(200, 100); }
    [[nodiscard]] std::string genre() const { return text(300, 100); }
    [[nodiscard]] std::int16_t volume() const { return number<std::int16_t>(400); }
    [[nodiscard]] double debut_lecture() const { return number<double>(402); }
    [[nodiscard]] std::string duree_piste() const { return text(410, 8); }

    [[nodiscard]] std::string trimmed_chemin() const { return trimmed_text(0, 200); }
    [[nodiscard]] std::string trimmed_fin_lecture() const { return trimmed_text(200, 100); }
    [[nodiscard]] std::string trimmed_genre() const { return trimmed_text(300, 100); }
    [[nodiscard]] std::string trimmed_duree_piste() const { return trimmed_text(410, 8); }

    void set_chemin(std::string_view value) { set_text(0, 200, value); }
    void set_fin_lecture(std::string_view value) { set_text(200, 100, value); }
    void set_genre(std::string_view value) { set_text(300, 100, value); }
    void set_volume(std::int16_t percent) { set_number(400, percent); }
    void set_debut_lecture(double seconds) { set_number(402, seconds); }
    void set_duree_piste(std::string_view value) { set_text(410, 8, value); }
};

/// One track of a list made before version 5.8.0 (`.rfm`): 410 bytes, the same without a start of play. Read only.
class enreg_rfm : public FixedRecord<410> {
public:
    [[nodiscard]] std::string chemin() const { return text(0, 200); }
    [[nodiscard]] std::string fin_lecture() const { return text(200, 100); }
    [[nodiscard]] std::string genre() const { return text(300, 100); }
    [[nodiscard]] std::int16_t volume() const { return number<std::int16_t>(400); }
    [[nodiscard]] std::string duree_piste() const { return text(402, 8); }

    [[nodiscard]] std::string trimmed_chemin() const { return trimmed_text(0, 200); }
    [[nodiscard]] std::string trimmed_fin_lecture() const { return trimmed_text(200, 100); }
    [[nodiscard]] std::string trimmed_genre() const { return trimmed_text(300, 100); }
    [[nodiscard]] std::string trimmed_duree_piste() const { return trimmed_text(402, 8); }
};

} // namespace sonarelle
