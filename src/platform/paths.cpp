#include "platform/paths.h"

#include "platform/text.h"

namespace sonarelle {

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
    return name.find_first_of("*?<>|\"") != std::string_view::npos;
}

bool matches_pattern(std::string_view name, std::string_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern.front() == '*') {
        for (std::string_view rest = name;; take_character(rest)) {
            if (matches_pattern(rest, pattern.substr(1)))
                return true;
            if (rest.empty())
                return false;
        }
    }
    if (name.empty())
        return pattern == ".*"; // so that *.* means every file
    const bool any = pattern.front() == '?';
    const char32_t wanted = take_character(pattern);
    const char32_t found = take_character(name);
    return (any || equal_ignoring_case(character(wanted), character(found))) && matches_pattern(name, pattern);
}

} // namespace sonarelle
