#include "app/outil/arguments.h"

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
        throw Failure{failure_number::wrong_call, std::string{word},
                      "le caractère « " + *foreign + " » n'existe pas en Windows-1252"};
}

bool is_option(std::string_view word) {
    return word.size() > 2 && word.starts_with("--");
}

} // namespace

Arguments::Arguments(std::span<char* const> words, std::span<const Option> allowed) {
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::string word = words[i];
        check_characters(word);
        if (!is_option(word)) {
            words_.push_back(word);
            continue;
        }
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
