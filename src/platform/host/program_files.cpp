#include "platform/host/program_files.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <filesystem>
#include <set>
#include <span>
#include <string_view>
#include <vector>

#include "platform/failure.h"
#include "platform/host/machine_files.h"
#include "platform/host/name_lookup.h"
#include "platform/host/safe_file.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr const char* folder_of_the_build = SONARELLE_PICTURES_DIR;

std::vector<std::string> names_in(const std::string& folder) {
    std::vector<std::string> names;
    const bool read = for_each_name(folder, [&](std::string_view name, unsigned char) {
        names.emplace_back(name);
        return true;
    });
    if (!read)
        throw Failure{FailureNumber::path_not_found, folder};
    std::ranges::sort(names);
    return names;
}

std::string path_in(const std::string& folder, const std::string& name) {
    return (std::filesystem::path{folder} / name).string();
}

bool is_supplied(const std::string& folder, const std::string& name) {
    std::error_code error;
    return !name.starts_with('.') && std::filesystem::is_regular_file(path_in(folder, name), error);
}

void copy_file(const std::string& from, const std::string& to) {
    const OpenFile source = open_plain(from, O_RDONLY, Access::reading, from);
    SafeFile target{to, to};
    std::array<std::byte, 65536> block{};
    for (;;) {
        const ssize_t count = ::read(source.handle.get(), block.data(), block.size());
        if (count < 0)
            throw_errno(Access::reading, from);
        if (count == 0)
            break;
        target.write(std::span{block}.first(static_cast<std::size_t>(count)));
    }
    target.commit();
}

} // namespace

std::optional<std::string> supplied_files() {
    std::error_code error;
    return supplied_files(std::filesystem::read_symlink("/proc/self/exe", error).string(), folder_of_the_build);
}

std::optional<std::string> supplied_files(const std::string& program, const std::string& drawn) {
    std::error_code error;
    const std::filesystem::path installed =
        std::filesystem::path{program}.parent_path().parent_path() / "share/sonarelle";
    for (const std::filesystem::path& folder : {installed, std::filesystem::path{drawn}})
        if (std::filesystem::is_directory(folder, error))
            return folder.string();
    return std::nullopt;
}

void fill_program_folder(const std::string& supplied, const std::string& program_folder) {
    std::error_code error;
    std::filesystem::create_directories(program_folder, error);
    if (error)
        throw Failure{FailureNumber::path_access, program_folder};

    std::set<std::string> present;
    for (const std::string& name : names_in(program_folder))
        present.insert(lower_case(name));
    for (const std::string& name : names_in(supplied))
        if (is_supplied(supplied, name) && !present.contains(lower_case(name)))
            copy_file(path_in(supplied, name), path_in(program_folder, name));
}

} // namespace sonarelle
