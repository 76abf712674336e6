#include "support/private_folder.h"

#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace sonarelle::test {

namespace fs = std::filesystem;

PrivateFolder::PrivateFolder()
    : path_{fs::temp_directory_path() / "sonarelle-XXXXXX"} {
    if (::mkdtemp(path_.data()) == nullptr || ::chmod(path_.c_str(), 0755) != 0)
        throw std::runtime_error{"no folder for the test: " + path_};
}

PrivateFolder::~PrivateFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

void PrivateFolder::put(std::string_view name, std::string_view bytes) const {
    fs::create_directories(fs::path{path(name)}.parent_path());
    std::ofstream file{path(name), std::ios::binary};
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush())
        throw std::runtime_error{"can't write " + path(name)};
}

void PrivateFolder::put_folder(std::string_view name) const {
    fs::create_directories(path(name));
}

std::string PrivateFolder::bytes(std::string_view name) const {
    std::ifstream file{path(name), std::ios::binary};
    if (!file)
        throw std::runtime_error{"no file " + path(name)};
    return {std::istreambuf_iterator<char>{file}, {}};
}

bool PrivateFolder::exists(std::string_view name) const {
    return fs::exists(fs::symlink_status(path(name)));
}

std::vector<std::string> PrivateFolder::names(std::string_view folder) const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator{path(folder)})
        names.push_back(entry.path().filename());
    std::ranges::sort(names);
    return names;
}

void PrivateFolder::set_rights(std::string_view name, unsigned mode) const {
    fs::permissions(path(name), static_cast<fs::perms>(mode));
}

unsigned PrivateFolder::rights(std::string_view name) const {
    return static_cast<unsigned>(fs::status(path(name)).permissions());
}

} // namespace sonarelle::test
