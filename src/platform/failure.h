#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace sonarelle {

/// The failures that the station tells apart, by the numbers that it shows.
enum class FailureNumber : int {
    none = 0,
    wrong_call = 5,
    overflow = 6,
    not_in_selection = 9,
    division_by_zero = 11,
    type_mismatch = 13,
    wrong_file_name = 52,
    file_not_found = 53,
    device_fault = 57,
    file_exists = 58,
    disk_full = 61,
    past_end_of_file = 62,
    wrong_record_number = 63,
    too_many_files = 67,
    device_unavailable = 68,
    permission_refused = 70,
    disk_not_ready = 71,
    other_drive = 74,
    path_access = 75,
    path_not_found = 76,
    no_object = 91,
    unplayable_file = 1001,
    dialog_cancelled = 32755
};

/// The number as it is shown.
[[nodiscard]] std::string digits_of(FailureNumber number);

/// The French sentence for a failure; `none` has one too.
[[nodiscard]] std::string_view failure_description(FailureNumber number);

/// What goes wrong, in the one form that every trap of the station reads.
/// `source` names the thing concerned (a path, a key, a word), `description` is a French sentence.
struct Failure : std::exception {
    explicit Failure(FailureNumber failure_number, std::string failure_source = {})
        : Failure(failure_number, std::move(failure_source), std::string{failure_description(failure_number)}) {}
    Failure(FailureNumber failure_number, std::string failure_source, std::string failure_sentence);

    /// "source : description", or the description alone.
    [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }

    FailureNumber number;
    std::string source;
    std::string description;

private:
    std::string message_;
};

/// Runs statements of which a failing one is skipped, and remembers the number of the last failure until it is cleared.
class ErrorIndicator {
public:
    /// True when the statement went through.
    template <typename Statement>
    bool skip(Statement&& statement) {
        try {
            std::forward<Statement>(statement)();
            return true;
        } catch (const Failure& failure) {
            number_ = failure.number;
            return false;
        }
    }

    [[nodiscard]] bool is_set() const { return number_ != FailureNumber::none; }
    [[nodiscard]] FailureNumber number() const { return number_; }
    void clear() { number_ = FailureNumber::none; }

private:
    FailureNumber number_ = FailureNumber::none;
};

} // namespace sonarelle
