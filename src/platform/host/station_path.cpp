#include "platform/host/station_path.h"

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view separators = "\\/";

/// Takes the first name off a path, with the separators around it.
std::string_view take_name(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(separators), path.size()));
    const std::string_view name = path.substr(0, path.find_first_of(separators));
    path.remove_prefix(name.size());
    return name;
}

} // namespace

std::string StationPath::text() const {
    std::string result = is_share() ? drive : drive + ":";
    for (const std::string& name : names)
        result.append("\\").append(name);
    return names.empty() && !is_share() ? result + "\\" : result;
}

char drive_letter_of(std::string_view path) {
    if (path.size() < 2 || path[1] != ':')
        return 0;
    const char letter = path[0];
    if (letter >= 'a' && letter <= 'z')
        return static_cast<char>(letter - 'a' + 'A');
    return letter >= 'A' && letter <= 'Z' ? letter : '\0';
}

bool names_a_share(std::string_view path) {
    return path.size() >= 2 && path.substr(0, 2).find_first_not_of(separators) == std::string_view::npos;
}

void append_names(StationPath& path, std::string_view rest) {
    for (std::string_view name = take_name(rest); !name.empty(); name = take_name(rest)) {
        if (name != "." && name != "..")
            path.names.emplace_back(name);
        else if (name == ".." && !path.names.empty())
            path.names.pop_back();
    }
}

StationPath share_path(std::string_view path) {
    std::string_view rest = path;
    const std::string_view server = take_name(rest);
    const std::string_view share = take_name(rest);
    if (server.empty() || share.empty())
        throw Failure{failure_number::device_unavailable, std::string{path}};
    StationPath result{"\\\\" + std::string{server} + "\\" + std::string{share}, {}};
    append_names(result, rest);
    return result;
}

bool can_be_named(std::string_view name) {
    return !first_foreign_character(name) && !has_forbidden_character(name) &&
           name.find('\\') == std::string_view::npos;
}

} // namespace sonarelle
