#include "playlist/list_verification.h"

#include <utility>

#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view not_found = " Non trouvé ";

} // namespace

ListVerification::ListVerification(const Platform& platform, ListState& list, const ChainState& chain,
                                   Liste_son& window, fsauve& progress, ListDocument& document, ListGuard& guard,
                                   RowReading& reading, std::function<void(const std::string&)> note)
    : platform_{platform},
      list_{list},
      chain_{chain},
      window_{window},
      progress_{progress},
      document_{document},
      guard_{guard},
      reading_{reading},
      note_{std::move(note)} {}

void ListVerification::prechar() {
    if (!guard_.allows(ListAction::prechar))
        return;
    const ListWork work{guard_, window_};
    static_cast<void>(test_all_rows());
}

int ListVerification::test_all_rows() {
    Tally tally;
    if (window_.rows.count() == 0)
        return tally.removed;
    progress_.begin(window_.rows.count(), progress_.step.caption);
    try {
        go_over_rows(tally);
        close(tally);
    } catch (const Failure& failure) {
        progress_.end();
        list_.maj_liste_en_cours = false;
        tell_failure(failure);
    }
    return tally.removed;
}

// A row that goes lets the next one take its number. A row that the disk gives no answer about stays.
void ListVerification::go_over_rows(Tally& tally) {
    const auto save_what_went = [&] {
        if (tally.removed > 0)
            document_.sauve_tout();
    };
    try {
        for (int row = 1; !tally.stopped && row <= window_.rows.count() && !progress_.is_cancelled();) {
            const FileFinding finding = test(row);
            const bool there = finding.state == FileState::present || finding.state == FileState::on_network;
            const std::string path = list_.chemin_test;
            progress_.advance(tally.found + tally.removed + 1,
                              there ? "fichier Ok : " + path : path + std::string{not_found});
            if (there) {
                ++tally.found;
                row = reading_.follow(row + 1);
                continue;
            }
            drop_row(row, finding);
            ++tally.removed;
            row = reading_.follow(row, [&] {
                save_for_the_air();
                tally.stopped = !list_.maj_liste_en_cours.is_true() && !wants_to_go_on(path);
            });
        }
    } catch (const Failure&) {
        save_what_went();
        throw;
    }
    save_what_went();
}

FileFinding ListVerification::test(int row) {
    list_.chemin_test = reading_.read(row).dest_chemin;
    FileFinding finding = look_for_file(platform_.disk, list_.chemin_test);
    list_.dossier_test = finding.folder;
    return finding;
}

void ListVerification::drop_row(int row, const FileFinding& finding) {
    const std::string when = " - " + date_text(platform_) + " " + time_text(platform_);
    note_(finding.state == FileState::folder_missing ? "Dossier manquant : " + finding.folder + when
                                                     : "fichier manquant : " + list_.chemin_test + when);
    window_.rows.remove(row);
    if (list_.ligne_en_lecture.value() > row)
        list_.ligne_en_lecture -= 1;
    if (is_on_the_air() && list_.index_en_cours.value() >= row) // the chain goes on with the row that takes its number
        list_.index_en_cours -= 1;
}

// The chain reads records by the numbers of their rows, and it goes on behind the question.
void ListVerification::save_for_the_air() {
    if (is_on_the_air())
        document_.sauve_tout();
}

bool ListVerification::wants_to_go_on(const std::string& what) {
    const MessageBox question{what + std::string{not_found} + "\nElément supprimé de la liste\nContinuez...",
                              std::string{application_title}, Buttons::yes_no, Icon::warning};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

// The update goes on by itself, so it gets no box but the one that ends it. Who has stopped the test knows it.
void ListVerification::close(const Tally& tally) {
    const bool cancelled = progress_.is_cancelled();
    const bool for_update = list_.maj_liste_en_cours.is_true();
    if (for_update && cancelled)
        list_.maj_liste_en_cours = false;
    if (cancelled)
        return;
    if (tally.stopped && tally.found > 0)
        return progress_.end();
    if (for_update && tally.found > 0) {
        progress_.step.caption = "Validation des fichiers terminé avec succés ";
        return;
    }
    progress_.end();
    if (for_update) {
        tell("Aucun fichier de trouvé !", Icon::warning);
        list_.maj_liste_en_cours = false;
    } else if (tally.found > 0) {
        tell("Validation des fichiers terminé avec succés ", Icon::information);
    } else {
        tell("Mise a jour annulé/ aucun fichier de trouvé", Icon::information);
    }
}

void ListVerification::prechar_fich() {
    if (!guard_.allows(ListAction::prechar_fich))
        return;
    const ListWork work{guard_, window_};
    const int row = window_.rows.selected();
    if (row == 0)
        return;
    try {
        const FileFinding finding = test(row);
        const std::string path = list_.chemin_test;
        if (finding.state == FileState::present || finding.state == FileState::on_network) {
            tell("Fichier : " + path + " Ok ", Icon::information);
        } else {
            drop_row(row, finding);
            save_for_the_air();
            const bool folder = finding.state == FileState::folder_missing;
            static_cast<void>(wants_to_go_on(folder ? "Dossier : " + finding.folder : path));
            document_.sauve_tout();
        }
        reading_.warn_of_null_volume();
    } catch (const Failure& failure) {
        tell_failure(failure);
    }
}

void ListVerification::tell_failure(const Failure& failure) {
    tell(" err N° " + std::to_string(failure.number) + " " + failure.what(), Icon::stop);
}

void ListVerification::tell(const std::string& text, Icon icon) {
    show_box(platform_.dialogs, text, icon);
}

} // namespace sonarelle
