#include "playlist/default_list.h"

#include <utility>
#include <vector>

#include "platform/application.h"
#include "platform/disk.h"
#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

void DefaultList::claim() {
    if (std::exchange(claimed_, true))
        return;
    ErrorIndicator{}.skip([this] {
        claim_ = platform_.disk.claim(path());
        if (claim_ == nullptr) {
            take_free_name();
            notice_ = std::string{application_title} +
                      " est déjà à l'antenne\n\nLes modifications de la liste iront dans " + name_;
        }
    });
    ErrorIndicator{}.skip([this] { seen_ = state_of(path()); });
}

void DefaultList::saw(std::string_view path, const FileFacts& facts) {
    claim();
    if (is_own(path))
        seen_ = facts;
}

void DefaultList::changed(std::string_view path, const Rewritten& rewritten) {
    if (is_own(path) && seen_ == rewritten.before)
        seen_ = rewritten.after;
}

void DefaultList::notice_deletion() {
    if (!state_of(path()))
        seen_.reset();
}

// Where it can't be kept the save goes on: the rows on the air are worth more.
void DefaultList::keep_previous() {
    if (kept_ || !state_of(path()))
        return;
    kept_ = true;
    ErrorIndicator{}.skip([this] {
        const std::string place = join_path(platform_.program_folder, previous_list);
        if (state_of(place)) // a copy of an earlier run stands: what came behind it are the runs' own
            return;
        const auto before = platform_.disk.open(path());
        std::vector<std::byte> bytes(static_cast<std::size_t>(before->length()));
        bytes.resize(before->read(0, bytes));
        if (bytes.empty())
            return;
        const auto kept = platform_.disk.replace(place);
        kept->write(bytes);
        kept->commit();
    });
}

void DefaultList::save(const Write& write) {
    claim();
    if (saved(write))
        return;
    const std::string lost = std::exchange(name_, {});
    take_free_name();
    notice_ =
        lost + " a été modifiée par un autre programme\n\nLa liste de cette fenètre est enregistrée dans " + name_;
    if (!saved(write))
        throw Failure{FailureNumber::path_access, name_, "Un autre programme écrit les listes de ce dossier"};
}

bool DefaultList::saved(const Write& write) {
    ListWriter writer{platform_.disk, path()};
    write(writer);
    const auto written = writer.commit_over(seen_);
    if (written)
        seen_ = written;
    return written.has_value();
}

void DefaultList::save_as(const std::string& path, const std::optional<FileFacts>& seen, const Write& write) {
    claim();
    const bool own = is_own(path);
    std::unique_ptr<FileClaim> claim;
    if (!own && (claim = platform_.disk.claim(path)) == nullptr)
        throw Failure{FailureNumber::path_access, path, "Un autre programme travaille sur cette liste"};
    ListWriter writer{platform_.disk, path};
    write(writer);
    const auto written = writer.commit_over(seen);
    if (!written)
        throw Failure{FailureNumber::path_access, path, "Un autre programme vient de modifier cette liste"};
    if (own)
        seen_ = written;
}

// A list that another run has left behind stays: it may be all that is left of someone's work.
void DefaultList::take_free_name() {
    for (int number = 2;; ++number) {
        name_ = "liste-" + std::to_string(number) + ".dfm";
        if (!state_of(path()) && (claim_ = platform_.disk.claim(path())) != nullptr)
            break;
    }
    seen_.reset();
}

bool DefaultList::is_own(std::string_view path) const {
    return equal_ignoring_case(platform_.disk.absolute(path), platform_.disk.absolute(this->path()));
}

bool DefaultList::is_anothers(std::string_view path) const {
    return name_ != default_list &&
           equal_ignoring_case(platform_.disk.absolute(path),
                               platform_.disk.absolute(join_path(platform_.program_folder, default_list)));
}

std::optional<FileFacts> DefaultList::state_of(const std::string& path) const {
    try {
        return platform_.disk.facts(path);
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::file_not_found)
            throw;
        return std::nullopt;
    }
}

std::string DefaultList::take_notice() {
    return std::exchange(notice_, {});
}

} // namespace sonarelle
