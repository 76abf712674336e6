#pragma once

#include <functional>
#include <string>

#include "platform/dialogs.h"
#include "platform/platform.h"
#include "playlist/file_existence.h"
#include "playlist/list_at_work.h"
#include "state/chain_state.h"
#include "state/list_state.h"

namespace sonarelle {

/// Looks whether the files of the list are there, and takes those that aren't out of it.
class ListVerification {
public:
    ListVerification(const Platform& platform, const ChainState& chain, ListAtWork& list,
                     std::function<void(const std::string&)> note);

    /// Tests every row, as its own action.
    void prechar();
    /// Tests the selected row.
    void prechar_fich();
    /// What a test of every row comes to.
    struct Outcome {
        int removed = 0;      ///< Rows that went.
        bool goes_on = false; ///< An update of the list may begin: files were found, and the operator didn't cancel.
    };
    /// Tests every row. For the update of the list it asks nothing.
    Outcome test_all_rows(bool for_update);

private:
    struct Tally {
        int found = 0;
        int removed = 0;
        bool stopped = false; ///< By the operator's No.
    };

    void go_over_rows(Tally& tally, bool for_update);
    struct TestedRow {
        std::string chemin_test;
        FileFinding file;
        [[nodiscard]] bool is_there() const {
            return file.state == FileState::present || file.state == FileState::on_network;
        }
    };

    [[nodiscard]] TestedRow test(int row);
    void drop_row(int row, const TestedRow& tested);
    void save_for_the_air();
    [[nodiscard]] bool is_on_the_air() const { return chain_.lecteur_en_cours != 0; }
    [[nodiscard]] bool wants_to_go_on(const std::string& what);
    /// Whether an update goes on.
    [[nodiscard]] bool close(const Tally& tally, bool for_update);
    void tell_failure(const Failure& failure);

    const Platform& platform_;
    const ChainState& chain_;
    ListAtWork& list_;
    std::function<void(const std::string&)> note_; // a line of the journal
};

} // namespace sonarelle
