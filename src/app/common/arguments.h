#pragma once

#include <map>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace sonarelle {

/// Words that make no command: the usage is shown and the status is 2.
struct WrongWords : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// An option of the command line, with or without a value behind it.
struct Option {
    std::string_view name;
    bool has_value = false;
};

/// The words behind a command's own word, and the options among them.
class Arguments {
public:
    /// A lone `--` ends the options, so that a word may begin with `--`. @throws WrongWords for an option that isn't
    /// among the allowed ones, or that lacks its value; Failure 5 for a character that Windows-1252 lacks.
    Arguments(std::span<char* const> words, std::span<const Option> allowed);

    [[nodiscard]] const std::vector<std::string>& words() const { return words_; }
    /// The word at a place, counted from 0. @throws WrongWords when there are fewer, naming what is missing.
    [[nodiscard]] const std::string& word(std::size_t place, std::string_view what) const;
    /// The same for a word that says nothing when it is empty. @throws WrongWords when it is.
    [[nodiscard]] const std::string& filled_word(std::size_t place, std::string_view what) const;
    /// @throws WrongWords when there are more words than `count`.
    void expect_at_most(std::size_t count) const;

    [[nodiscard]] bool has(std::string_view option) const { return options_.contains(option); }
    /// All values of a repeatable option, in order.
    [[nodiscard]] std::vector<std::string> values(std::string_view option) const;
    /// The last value of an option, or the text given here.
    [[nodiscard]] std::string value(std::string_view option, std::string_view otherwise) const;

private:
    std::vector<std::string> words_;
    std::map<std::string, std::vector<std::string>, std::less<>> options_;
};

} // namespace sonarelle
