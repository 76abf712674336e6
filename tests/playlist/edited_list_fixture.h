#pragma once

#include <string>
#include <vector>

#include "support/station_fixture.h"

namespace sonarelle {

/// A list of rows that the operator edits.
class EditedList : public StationFixture {
protected:
    /// A list with rows of these paths at volume 80, one of which is pressed.
    void open_rows(std::initializer_list<const char*> paths, int selected) {
        std::vector<enreg_liste> records;
        for (const char* path : paths)
            records.push_back(record_of(path, "200.00", 80));
        open_list("C:\\Sonarelle\\jour.dfm", records);
        rows().click(selected);
    }
    [[nodiscard]] std::vector<std::string> paths() {
        std::vector<std::string> all;
        for (int row = 1; row <= rows().count(); ++row)
            all.push_back(rows().text(row));
        return all;
    }
    [[nodiscard]] std::vector<std::string> saved_paths() {
        const std::string bytes = default_list_bytes();
        std::vector<std::string> all;
        for (std::size_t number = 1; number * enreg_liste::size <= bytes.size(); ++number)
            all.push_back(record_in(bytes, number).trimmed_chemin());
        return all;
    }

    Liste_son& list = station.list_window;
};

} // namespace sonarelle
