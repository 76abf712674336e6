#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "platform/timer.h"
#include "playlist/liste_son.h"
#include "playlist/search_words.h"

namespace sonarelle {

/// The search box of the list window: what is typed there selects the first row whose path holds it, whatever case and
/// accents. Rows are never hidden, since their numbers are those of the records. Window thread.
class ListSearch {
public:
    ListSearch(const Platform& platform, Liste_son& window);

    /// Another text was typed. That nothing was found is told when the hand rests, and once for a word that grows.
    void text_changed();
    /// The keyboard leaves the box: what was not found is told no more.
    void leave();
    /// An entry of the list was chosen.
    void entry_chosen();
    /// The next hit behind the selected row, and the one before it, round and round.
    void find_next();
    void find_previous();

private:
    [[nodiscard]] std::string wanted() const;
    [[nodiscard]] bool search(const std::string& text);
    /// The rows that hold a text, by their numbers.
    [[nodiscard]] std::vector<int> hits(const std::string& text) const;
    template <typename Choose>
    void step(const Choose& choose);
    void show(int row);
    void tell_after_a_rest();
    void tell_not_found(const char* words);

    const Platform& platform_;
    Liste_son& window_;
    Timer rest_;
    std::string not_found_; // the last text that no row held
    std::string told_;      // what the operator knows of already
};

/// A text without its accents, in lower case: what a hand types without looking for the keys.
[[nodiscard]] std::string folded(std::string_view text);

} // namespace sonarelle
