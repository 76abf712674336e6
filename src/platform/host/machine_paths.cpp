#include "platform/host/machine_paths.h"

#include <unistd.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "platform/failure.h"
#include "platform/paths.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

struct Free {
    void operator()(char* text) const { std::free(text); }
};

/// The folder that the shell is in, by the links through which the operator came there: a drive may lie on them.
std::filesystem::path shell_folder() {
    const std::unique_ptr<char, Free> folder{::get_current_dir_name()};
    return folder ? std::filesystem::path{folder.get()} : std::filesystem::path{"/"};
}

[[noreturn]] void refuse(std::string_view path, FailureNumber number, std::string sentence) {
    throw Failure{number, std::string{path}, std::move(sentence)};
}

void check_characters(std::string_view path) {
    if (const auto foreign = first_foreign_character(path))
        refuse(path, FailureNumber::wrong_file_name, sentence_of_foreign(*foreign));
    const auto forbidden = path.find_first_of(forbidden_in_names);
    if (forbidden != std::string_view::npos)
        refuse(path, FailureNumber::wrong_file_name,
               "Le caractère « " + std::string{path[forbidden]} + " » ne va pas dans un nom de fichier");
}

} // namespace

std::string absolute_machine_path(std::string_view path) {
    namespace fs = std::filesystem;
    const fs::path whole = shell_folder() / fs::path{path};
    // Behind a link, `..` isn't the name before it; up to the last one the disk must be asked.
    const std::string text = whole.string();
    const auto last_up = (text + "/").rfind("/../");
    fs::path result = whole;
    if (last_up != std::string::npos) {
        std::error_code error;
        const fs::path head = fs::weakly_canonical(text.substr(0, last_up + 3), error);
        if (!error)
            result = head.string() + text.substr(std::min(last_up + 3, text.size()));
    }
    const std::string plain = result.lexically_normal();
    return plain.size() > 1 && plain.ends_with('/') ? plain.substr(0, plain.size() - 1) : plain;
}

std::string station_path_of(const DriveTable& table, std::string_view machine_path) {
    if (machine_path.find('\\') != std::string_view::npos)
        refuse(machine_path, FailureNumber::wrong_file_name, "Le caractère « \\ » ne va pas dans un nom de fichier");
    const auto path = table.station_path(absolute_machine_path(machine_path));
    if (!path)
        refuse(machine_path, FailureNumber::device_unavailable, "Aucun lecteur n'atteint ce fichier");
    try {
        check_characters(*path);
    } catch (const Failure& failure) {
        refuse(machine_path, failure.number, failure.description);
    }
    return *path;
}

} // namespace sonarelle
