#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <utility>

namespace sonarelle {

/// The numbers of the failures that the station tells apart.
namespace failure_number {
inline constexpr int wrong_call = 5;
inline constexpr int overflow = 6;
inline constexpr int not_in_selection = 9;
inline constexpr int division_by_zero = 11;
inline constexpr int type_mismatch = 13;
inline constexpr int wrong_file_name = 52;
inline constexpr int file_not_found = 53;
inline constexpr int device_fault = 57;
inline constexpr int file_exists = 58;
inline constexpr int disk_full = 61;
inline constexpr int past_end_of_file = 62;
inline constexpr int wrong_record_number = 63;
inline constexpr int too_many_files = 67;
inline constexpr int device_unavailable = 68;
inline constexpr int permission_refused = 70;
inline constexpr int disk_not_ready = 71;
inline constexpr int other_drive = 74;
inline constexpr int path_access = 75;
inline constexpr int path_not_found = 76;
inline constexpr int no_object = 91;
inline constexpr int unplayable_file = 1001;
inline constexpr int dialog_cancelled = 32755;
} // namespace failure_number

/// The French sentence for a failure number; an unknown number has one too.
[[nodiscard]] std::string_view failure_description(int number);

/// What goes wrong, in the one form that every trap of the station reads.
/// `source` names the thing concerned (a path, a key, a word), `description` is a French sentence.
struct Failure : std::exception {
    explicit Failure(int failure_number, std::string failure_source = {})
        : Failure(failure_number, std::move(failure_source), std::string{failure_description(failure_number)}) {}
    Failure(int failure_number, std::string failure_source, std::string failure_sentence);

    /// "source : description", or the description alone.
    [[nodiscard]] const char* what() const noexcept override { return message_.c_str(); }

    int number;
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

    [[nodiscard]] bool is_set() const { return number_ != 0; }
    [[nodiscard]] int number() const { return number_; }
    void clear() { number_ = 0; }

private:
    int number_ = 0;
};

} // namespace sonarelle
