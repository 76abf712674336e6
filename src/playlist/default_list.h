#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "platform/paths.h"
#include "platform/platform.h"
#include "playlist/list_file.h"
#include "playlist/list_rows.h"

namespace sonarelle {

/// The list that every change of rows is saved to: `liste.dfm` in the program's folder. Where another program works on
/// it, or has written it since this one last saw it, the station goes on with a list of its own (`liste-2.dfm` and so
/// on): the chain reads rows by their numbers, so no list can be two stations' at once. Window thread.
class DefaultList {
public:
    using Write = std::function<void(ListWriter&)>;

    explicit DefaultList(const Platform& platform)
        : platform_{platform} {}

    [[nodiscard]] const std::string& name() const { return name_; }

    /// Makes the list this station's own for its lifetime, and takes note of its state. A folder where nothing can be
    /// claimed keeps no list from the air.
    void claim();

    /// Whether this path names it.
    [[nodiscard]] bool is_own(std::string_view path) const;

    /// Whether this is `liste.dfm` and another program works on it.
    [[nodiscard]] bool is_anothers(std::string_view path) const;

    /// The rows were read from this file.
    void saw(std::string_view path, const FileFacts& facts);

    /// This station has changed a record of this file; what it had seen of it before holds.
    void changed(std::string_view path, const Rewritten& rewritten);

    /// This station has deleted lists, of which this may have been one.
    void notice_deletion();

    /// Keeps the list as it is under another name, once: the rows of another list are about to take its place.
    void keep_previous();

    /// Writes the whole list, never over rows that this station hasn't seen.
    void save(const Write& write);

    /// The same for a list that the operator names, and which was `seen` when he chose it.
    /// @throws Failure 75 when another program works on it, or has written it meanwhile.
    void save_as(const std::string& path, const std::optional<FileFacts>& seen, const Write& write);

    /// What the operator has to know about another program, once; empty: nothing.
    [[nodiscard]] std::string take_notice();

    /// The state of a list's file; nothing where there is none.
    [[nodiscard]] std::optional<FileFacts> state_of(const std::string& path) const;

private:
    [[nodiscard]] std::string path() const { return join_path(platform_.program_folder, name_); }
    [[nodiscard]] bool saved(const Write& write);
    void take_free_name();

    const Platform& platform_;
    std::string name_{default_list};
    std::unique_ptr<FileClaim> claim_;
    bool kept_ = false;
    bool claimed_ = false; // or as good as: nothing can be claimed there
    std::optional<FileFacts> seen_;
    std::string notice_;
};

} // namespace sonarelle
