#include "playout/file_title.h"

#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr std::string_view dots = " ...";

} // namespace

FileTitle title_of(std::string_view path) {
    const std::string name{name_of_path(path)};
    const std::size_t count = character_count(name);
    return {std::string{left(name, count > 4 ? count - 4 : 0)}, std::string{extension_of(path)}};
}

std::string short_title(const std::string& name) {
    constexpr std::size_t longest = 22;
    return character_count(name) <= longest ? name : lower_case(std::string{left(name, longest + 1)}.append(dots));
}

std::string cut_title(const std::string& name, std::size_t longest) {
    return character_count(name) <= longest ? name : std::string{left(name, longest)}.append(dots);
}

} // namespace sonarelle
