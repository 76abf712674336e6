#include "playlist/list_verification.h"

#include <utility>

#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view not_found = " Non trouvé ";

} // namespace

ListVerification::ListVerification(const Platform& platform, const ChainState& chain, ListAtWork& list,
                                   std::function<void(const std::string&)> note)
    : platform_{platform},
      chain_{chain},
      list_{list},
      note_{std::move(note)} {}

void ListVerification::prechar() {
    if (!list_.allows(ListAction::prechar))
        return;
    const ListWork work = list_.begin();
    test_all_rows(false);
}

ListVerification::Outcome ListVerification::test_all_rows(bool for_update) {
    Tally tally;
    bool goes_on = false;
    if (list_.rows().count() == 0)
        return {};
    list_.progress().begin(list_.rows().count(), list_.progress().step.caption);
    try {
        go_over_rows(tally, for_update);
        goes_on = close(tally, for_update);
    } catch (const Failure& failure) {
        list_.progress().end();
        tell_failure(failure);
    }
    return {tally.removed, goes_on};
}

// A row that goes lets the next one take its number. A row that the disk gives no answer about stays.
void ListVerification::go_over_rows(Tally& tally, bool for_update) {
    const auto save_what_went = [&] {
        if (tally.removed > 0)
            list_.save();
    };
    try {
        for (int row = 1; !tally.stopped && row <= list_.rows().count() && !list_.progress().is_cancelled();) {
            const TestedRow tested = test(row);
            const std::string& path = tested.chemin_test;
            list_.progress().advance(tally.found + tally.removed + 1,
                                     tested.is_there() ? "fichier Ok : " + path : path + std::string{not_found});
            if (tested.is_there()) {
                ++tally.found;
                row = list_.follow(row + 1);
                continue;
            }
            drop_row(row, tested);
            ++tally.removed;
            row = list_.follow(row, [&] {
                save_for_the_air();
                tally.stopped = !for_update && !wants_to_go_on(path);
            });
        }
    } catch (const Failure&) {
        save_what_went();
        throw;
    }
    save_what_went();
}

ListVerification::TestedRow ListVerification::test(int row) {
    const std::string path = list_.read(row).dest_chemin;
    return {path, look_for_file(platform_.disk, path)};
}

void ListVerification::drop_row(int row, const TestedRow& tested) {
    const std::string when = " - " + date_text(platform_) + " " + time_text(platform_);
    note_(tested.file.state == FileState::folder_missing ? "Dossier manquant : " + tested.file.folder + when
                                                         : "fichier manquant : " + tested.chemin_test + when);
    list_.remove(row);
}

// The chain reads records by the numbers of their rows, and it goes on behind the question.
void ListVerification::save_for_the_air() {
    if (is_on_the_air())
        list_.save();
}

bool ListVerification::wants_to_go_on(const std::string& what) {
    const MessageBox question{what + std::string{not_found} + "\nElément supprimé de la liste\nContinuez...",
                              std::string{application_title}, Buttons::yes_no, Icon::warning};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

// The update goes on by itself, so it gets no box but the one that ends it. Who has stopped the test knows it.
bool ListVerification::close(const Tally& tally, bool for_update) {
    if (list_.progress().is_cancelled())
        return false;
    if (for_update && tally.found > 0) {
        list_.progress().step.caption = "Validation des fichiers terminé avec succés ";
        return true;
    }
    list_.progress().end();
    if (tally.stopped && tally.found > 0)
        return false;
    if (for_update)
        list_.tell("Aucun fichier de trouvé !", Icon::warning);
    else if (tally.found > 0)
        list_.tell("Validation des fichiers terminé avec succés ", Icon::information);
    else
        list_.tell("Mise a jour annulé/ aucun fichier de trouvé", Icon::information);
    return false;
}

void ListVerification::prechar_fich() {
    if (!list_.allows(ListAction::prechar_fich))
        return;
    const ListWork work = list_.begin();
    const int row = list_.rows().selected();
    if (row == 0)
        return;
    try {
        const TestedRow tested = test(row);
        const std::string& path = tested.chemin_test;
        if (tested.is_there()) {
            list_.tell("Fichier : " + path + " Ok ", Icon::information);
        } else {
            drop_row(row, tested);
            save_for_the_air();
            const bool folder = tested.file.state == FileState::folder_missing;
            static_cast<void>(wants_to_go_on(folder ? "Dossier : " + tested.file.folder : path));
            list_.save();
        }
        list_.warn_of_null_volume();
    } catch (const Failure& failure) {
        tell_failure(failure);
    }
}

void ListVerification::tell_failure(const Failure& failure) {
    list_.tell(" err N° " + digits_of(failure.number) + " " + failure.what(), Icon::stop);
}

} // namespace sonarelle
