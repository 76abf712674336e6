#include "platform/paths.h"

#include <optional>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

/// Takes a character from both, if the one of the pattern stands for the one of the name.
bool take_same(std::string_view& name, std::string_view& pattern) {
    if (name.empty() || pattern.empty())
        return false;
    const bool any = pattern.front() == '?';
    const char32_t wanted = take_character(pattern);
    const char32_t found = take_character(name);
    return any || wanted == found || equal_ignoring_case(character(wanted), character(found));
}

} // namespace

std::string_view name_of_path(std::string_view path) {
    const auto last = path.rfind('\\');
    return last == std::string_view::npos ? path : path.substr(last + 1);
}

std::string_view folder_of_path(std::string_view path) {
    const auto last = path.rfind('\\');
    if (last == std::string_view::npos)
        return {};
    const bool root = last == 2 && path[1] == ':';
    return path.substr(0, root ? last + 1 : last);
}

std::string with_backslash(std::string_view folder) {
    std::string result{folder};
    if (character_count(folder) > 3 && !folder.ends_with('\\'))
        result += '\\';
    return result;
}

std::string join_path(std::string_view folder, std::string_view name) {
    std::string result{folder};
    if (!folder.empty() && !folder.ends_with('\\'))
        result += '\\';
    return result.append(name);
}

std::string extension_of(std::string_view path) {
    return lower_case(right(path, 3));
}

bool is_network_path(std::string_view path) {
    return path.starts_with('\\');
}

bool has_forbidden_character(std::string_view name) {
    return name.find_first_of(forbidden_in_names) != std::string_view::npos;
}

void check_path(std::string_view path) {
    if (has_forbidden_character(path) || path.find('\0') != std::string_view::npos)
        throw Failure{FailureNumber::wrong_file_name, std::string{path}};
    if (const auto foreign = first_foreign_character(path))
        throw Failure{FailureNumber::wrong_file_name, std::string{path}, sentence_of_foreign(*foreign)};
}

bool matches_pattern(std::string_view name, std::string_view pattern) {
    // Behind the last *, and where in the name it was tried last: on a mismatch that * takes one character more.
    std::optional<std::string_view> behind_star;
    std::string_view tried;
    while (!name.empty() || !(pattern.empty() || pattern == ".*")) {
        if (pattern.starts_with('*')) {
            pattern.remove_prefix(1);
            behind_star = pattern;
            tried = name;
        } else if (!take_same(name, pattern)) {
            if (!behind_star || tried.empty())
                return false;
            take_character(tried);
            name = tried;
            pattern = *behind_star;
        }
    }
    return true;
}

} // namespace sonarelle
