#include "app/common/arguments.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

const Option& option_named(std::string_view name, std::span<const Option> allowed) {
    const auto found = std::ranges::find(allowed, name, &Option::name);
    if (found == allowed.end())
        throw WrongWords{"option inconnue : " + std::string{name}};
    return *found;
}

void check_characters(std::string_view word) {
    if (const auto foreign = first_foreign_character(word))
        throw Failure{FailureNumber::wrong_call, std::string{word}, sentence_of_foreign(*foreign)};
}

constexpr std::string_view end_of_options = "--";

} // namespace

Arguments::Arguments(std::span<char* const> words, std::span<const Option> allowed) {
    bool options_ended = false;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        check_characters(word);
        if (options_ended || !word.starts_with(end_of_options)) {
            words_.push_back(word);
            continue;
        }
        options_ended = word == end_of_options;
        if (options_ended)
            continue;
        auto& values = options_[word];
        if (!option_named(word, allowed).has_value)
            continue;
        if (++i == words.size())
            throw WrongWords{"valeur absente après " + word};
        check_characters(words[i]);
        values.emplace_back(words[i]);
    }
}

const std::string& Arguments::word(std::size_t place, std::string_view what) const {
    if (place >= words_.size())
        throw WrongWords{"il manque : " + std::string{what}};
    return words_[place];
}

const std::string& Arguments::filled_word(std::size_t place, std::string_view what) const {
    const std::string& found = word(place, what);
    if (found.empty())
        throw WrongWords{"mot vide à la place de : " + std::string{what}};
    return found;
}

void Arguments::expect_at_most(std::size_t count) const {
    if (words_.size() > count)
        throw WrongWords{"mot en trop : " + words_[count]};
}

std::vector<std::string> Arguments::values(std::string_view option) const {
    const auto found = options_.find(option);
    return found == options_.end() ? std::vector<std::string>{} : found->second;
}

std::string Arguments::value(std::string_view option, std::string_view otherwise) const {
    const auto found = values(option);
    return found.empty() ? std::string{otherwise} : found.back();
}

} // namespace sonarelle
