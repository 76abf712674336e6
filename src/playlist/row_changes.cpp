#include "playlist/row_changes.h"

#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

/// As the record will hold it. @throws Failure 5 for a character that it can't.
std::string path_of_record(const std::string& path) {
    enreg_liste record;
    record.set_chemin(path);
    return record.trimmed_chemin();
}

} // namespace

RowChanges::RowChanges(const Platform& platform, ListAtWork& list)
    : platform_{platform},
      list_{list} {}

void RowChanges::Modifier_lettre_lecteur() {
    const ListActionRow& action = list_action(ListAction::Modifier_lettre_lecteur);
    if (!confirms(action))
        return;
    under_trap(
        [&] {
            const std::string letter{left(first_row()[list_column::path], 1)};
            const std::string answer = ask(action, letter);
            if (answer.empty())
                return;
            change_all_rows([&answer](RowTable::Row& row, const DestinationRecord&) {
                row[list_column::path] = path_of_record(answer + std::string{mid(row[list_column::path], 2)});
                row[list_column::volume] = "100";
            });
        },
        "");
}

void RowChanges::Modifier_volume() {
    const ListActionRow& action = list_action(ListAction::Modifier_volume);
    if (!confirms(action))
        return;
    under_trap(
        [&] {
            const std::string answer = ask(action, first_row()[list_column::volume]);
            if (!answer.empty())
                change_all_rows(
                    [&answer](RowTable::Row& row, const DestinationRecord&) { row[list_column::volume] = answer; });
        },
        "");
}

void RowChanges::a_debutpiste() {
    change_start(ListAction::a_debutpiste, list_.window().a_debutpiste);
}

void RowChanges::a_debutpiste_fichier() {
    change_start(ListAction::a_debutpiste_fichier, list_.window().a_debutpiste_fichier);
}

void RowChanges::change_start(ListAction which, MenuItem& entry) {
    const ListActionRow& action = list_action(which);
    if (!confirms(action))
        return;
    under_trap(
        [&] {
            const bool all_rows = which == ListAction::a_debutpiste;
            const std::optional<ChosenRow> chosen = all_rows ? std::nullopt : std::optional{chosen_row()};
            const std::string answer = ask(action);
            if (answer.empty())
                return;
            const std::string start =
                Format(to_double(answer, platform_.decimal_mark), start_pattern, platform_.decimal_mark);
            const auto change = [&start](RowTable::Row& row, DestinationRecord record) {
                record.convertir_valeur_son_ecriture();
                row[list_column::start] = start;
                row[list_column::end] = record.dest_fin;
                row[list_column::volume] = text_of(record.dest_volume);
            };
            if (chosen) {
                change_row(place_now(*chosen), change);
                list_.save();
            } else {
                change_all_rows(change);
            }
            entry.caption = std::string{action.caption_of_value} + start;
        },
        " erreur ");
}

RowChanges::ChosenRow RowChanges::chosen_row() const {
    const int number = list_.rows().selected();
    return {number, list_.rows().row(number)};
}

// While the operator types, the chain selects the rows that it starts, and takes out those that it can't play.
int RowChanges::place_now(const ChosenRow& chosen) const {
    const int number = list_.place_of(chosen.cells, chosen.number);
    if (number > list_.rows().count() || list_.rows().row(number) != chosen.cells)
        throw Failure{FailureNumber::not_in_selection, chosen.cells[list_column::path]};
    return number;
}

// The box of an empty list would have nothing to change.
bool RowChanges::confirms(const ListActionRow& action) {
    if (!list_.allows(action.action) || list_.rows().count() == 0)
        return false;
    if (action.question.empty())
        return true;
    const MessageBox question{std::string{action.question}, std::string{application_title}, Buttons::yes_no,
                              Icon::question};
    return platform_.dialogs.MsgBox(question) == Answer::yes;
}

std::string RowChanges::ask(const ListActionRow& action, const std::string& first_value) {
    std::string prompt{action.input_prompt};
    if (action.tells_first_row)
        prompt += "\nEn cours :" + first_value + " Enreg. (" + std::to_string(list_.rows().count()) + ")";
    return platform_.dialogs.InputBox({prompt, std::string{action.input_title}, std::string{action.input_preset}})
        .value_or("");
}

RowTable::Row RowChanges::first_row() {
    return row_of(list_.read(1), platform_.decimal_mark);
}

void RowChanges::change_all_rows(const Change& change) {
    const ListWork work = list_.begin();
    for (int row = 1; row <= list_.rows().count(); row = list_.follow(row + 1))
        change_row(row, change);
    list_.save_what_is_left();
}

void RowChanges::change_row(int row, const Change& change) {
    const DestinationRecord record = list_.read(row);
    RowTable::Row changed = row_of(record, platform_.decimal_mark);
    change(changed, record);
    list_.rows().replace(row, std::move(changed));
}

void RowChanges::under_trap(const std::function<void()>& statements, const char* last_words) {
    try {
        statements();
    } catch (const Failure& failure) {
        list_.tell(failure.what() + std::string{last_words}, Icon::stop);
    }
}

} // namespace sonarelle
