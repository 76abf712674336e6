#pragma once

#include <functional>
#include <optional>
#include <string>

#include "platform/platform.h"
#include "playlist/list_at_work.h"

namespace sonarelle {

/// Changes one value of all rows, or of the selected one, to what the operator enters.
class RowChanges {
public:
    RowChanges(const Platform& platform, ListAtWork& list);

    /// The drive of every path becomes the answer, whatever its length; the volumes go back to 100.
    void Modifier_lettre_lecteur();
    /// The answer is taken as it stands, also where no deck has a volume for it.
    void Modifier_volume();
    void a_debutpiste();
    void a_debutpiste_fichier();

private:
    using Change = std::function<void(RowTable::Row& row, const DestinationRecord& record)>;
    struct ChosenRow {
        int number;
        RowTable::Row cells;
    };

    [[nodiscard]] bool confirms(const ListActionRow& action);
    [[nodiscard]] std::string ask(const ListActionRow& action, const std::string& first_value = {});
    [[nodiscard]] RowTable::Row first_row();
    [[nodiscard]] ChosenRow chosen_row() const;
    /// @throws Failure 9 when the row is gone.
    [[nodiscard]] int place_now(const ChosenRow& chosen) const;
    void change_all_rows(const Change& change);
    void change_row(int row, const Change& change);
    void change_start(ListAction action, MenuItem& entry);
    void under_trap(const std::function<void()>& statements, const char* last_words);

    const Platform& platform_;
    ListAtWork& list_;
};

} // namespace sonarelle
