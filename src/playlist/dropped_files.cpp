#include "playlist/dropped_files.h"

#include <algorithm>
#include <array>

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr int deepest_folder = 12; // a link may lead back
constexpr std::size_t most_files = 32767;

bool is_sound_file(std::string_view name) {
    constexpr std::array<std::string_view, 12> endings{".mp3", ".wav", ".wma", ".mid",  ".avi", ".mpg",
                                                       ".ogg", ".m4a", ".aac", ".flac", ".aif", ".opus"};
    const std::string lower = lower_case(name);
    return std::ranges::any_of(endings, [&lower](std::string_view ending) { return lower.ends_with(ending); });
}

bool is_folder(Disk& disk, const std::string& path) {
    bool folder = false;
    ErrorIndicator{}.skip([&] { folder = disk.facts(path).is_folder; });
    return folder;
}

void append_folder(Disk& disk, const std::string& folder, int depth, std::vector<std::string>& files) {
    std::vector<std::string> names;
    ErrorIndicator{}.skip([&] {
        for (std::string name = disk.Dir(with_backslash(folder), FileAttributes::folder); !name.empty();
             name = disk.Dir())
            if (name != "." && name != "..")
                names.push_back(std::move(name));
    });
    std::ranges::sort(names, {}, [](const std::string& name) { return lower_case(name); });
    for (const std::string& name : names) {
        if (files.size() >= most_files)
            return;
        const std::string path = join_path(folder, name);
        if (!is_folder(disk, path)) {
            if (is_sound_file(name))
                files.push_back(path);
        } else if (depth < deepest_folder) {
            append_folder(disk, path, depth + 1, files);
        }
    }
}

} // namespace

std::vector<std::string> files_of_drop(Disk& disk, const std::vector<std::string>& paths) {
    std::vector<std::string> files;
    for (const std::string& path : paths)
        if (is_folder(disk, path))
            append_folder(disk, path, 1, files);
        else
            files.push_back(path);
    return files;
}

} // namespace sonarelle
