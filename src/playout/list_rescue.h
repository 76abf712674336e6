#pragma once

#include <optional>
#include <string>

#include "playout/auto_chain.h"
#include "playout/desk.h"
#include "playout/journal.h"
#include "playout/list_run.h"

namespace sonarelle {

/// Takes the list up again when a fault has ended the air: the chain was stopped by one, or stands still, or searches
/// in vain, behind a track that has come to its end. What the operator stops, pauses or runs by hand is his.
class ListRescue {
public:
    ListRescue(Desk& desk, AutoChain& chain, ListRun& run, Journal& journal)
        : desk_{desk},
          chain_{chain},
          run_{run},
          journal_{journal} {}

    /// The air has been silent for so long while it should not. Tries once in each span of `patience`.
    void look(Frames silent_for);

    /// How long a fault may silence the air; nothing: for ever.
    [[nodiscard]] Frames patience() const;

private:
    [[nodiscard]] bool is_needed() const;
    [[nodiscard]] bool stands_still() const;
    [[nodiscard]] bool has_another_file() const;
    void try_next_row(Frames silent_for);
    [[nodiscard]] int next_row_that_opens();
    void start(int row);
    void tell_failure();
    void tell_success(int row, Frames silent_for);

    Desk& desk_;
    AutoChain& chain_;
    ListRun& run_;
    Journal& journal_;
    std::optional<Frames> last_try_; // of this silence
    int row_ = 0;                    // that was looked at last
};

} // namespace sonarelle
