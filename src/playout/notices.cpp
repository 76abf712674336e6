#include "playout/notices.h"

#include <algorithm>

#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr int most_files_named = 10; // in one warning

} // namespace

void Notices::write_warning(const std::string& lines) {
    window_.caption = "ATTENTION ERREUR";
    window_.lines.caption = lines;
    if (on_warning)
        on_warning(lines);
}

void Notices::warn(const std::string& lines) {
    write_warning(lines);
    window_.show();
}

void Notices::warn_of_file(const std::string& heading, const std::string& path, const std::string& last_line) {
    const std::string head = heading + "\n";
    const std::string foot = "\n" + last_line;
    const std::string shown = window_.lines.caption;
    std::string paths = path;
    if (window_.visible && shown.starts_with(head) && shown.ends_with(foot))
        paths = shown.substr(head.size(), shown.size() - head.size() - foot.size()) + "\n" + path;
    while (std::ranges::count(paths, '\n') >= most_files_named)
        paths.erase(0, paths.find('\n') + 1);
    write_warning(head + path + foot); // who listens elsewhere has heard of the others
    window_.lines.caption = head + paths + foot;
    window_.show();
}

std::string lines_of(const Failure& failure) {
    return failure.source.empty() ? failure.description : failure.description + "\n" + failure.source;
}

} // namespace sonarelle
