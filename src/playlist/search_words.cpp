#include "playlist/search_words.h"

#include <utility>
#include <vector>

#include "platform/application.h"
#include "platform/dialogs.h"
#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"
#include "playlist/fixed_record.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

class SearchEntry : public FixedRecord<200> {
public:
    [[nodiscard]] std::string trimmed() const { return trimmed_text(0, size); }
    void set(std::string_view value) { set_text(0, size, value); }
};

} // namespace

bool is_untouched_search(std::string_view text) {
    return text == "Rechercher" || text == "Recherche ";
}

void SearchWords::under_trap(const std::string& trouble, const std::function<void()>& statements) {
    try {
        statements();
    } catch (const Failure&) {
        show_box(platform_.dialogs, trouble, Icon::none);
    }
}

void SearchWords::charge_recherche() {
    under_trap("Erreur chargement recherche précédente", [this] {
        enter_program_folder(platform_);
        std::vector<std::string> entries;
        RecordReader<SearchEntry> reader{platform_.disk, join_path(platform_.program_folder, search_words_file)};
        SearchEntry entry;
        for (std::int64_t number = 1; number <= reader.count(); ++number) {
            reader.read(number, entry);
            entries.push_back(entry.trimmed());
        }
        window_.search.items = std::move(entries);
    });
}

void SearchWords::press_save() {
    const std::string& text = window_.search.text();
    if (is_untouched_search(text))
        return;
    if (text.empty())
        return show_box(platform_.dialogs, "Rien a sauvegarder !", Icon::warning);
    enregistre_recherche();
}

void SearchWords::enregistre_recherche() {
    const std::string entry{trim(state_.chemin_fichier)};
    const MessageBox question{"Conservez cette recherche ? - " + entry, std::string{application_title}, Buttons::yes_no,
                              Icon::question, 2};
    if (platform_.dialogs.MsgBox(question) == Answer::yes)
        under_trap("Une érreur est survenu !", [&] { store(entry); });
    charge_recherche();
    window_.A_conserver.enabled = false;
}

// The file is replaced whole, so a full disk leaves the entries that there were.
void SearchWords::store(std::string_view entry) {
    const std::string path = join_path(platform_.program_folder, search_words_file);
    std::vector<SearchEntry> entries;
    RecordReader<SearchEntry> reader{platform_.disk, path};
    const FileFacts seen = reader.facts();
    for (std::int64_t number = 1; number <= reader.count(); ++number)
        reader.read(number, entries.emplace_back());
    entries.emplace_back().set(entry);
    const auto file = platform_.disk.replace(path);
    for (const SearchEntry& each : entries)
        file->write(each.bytes());
    if (!file->commit_over(seen))
        throw Failure{FailureNumber::path_access, path};
}

} // namespace sonarelle
