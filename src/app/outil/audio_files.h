#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "app/common/arguments.h"
#include "platform/failure.h"

namespace sonarelle {

/// The words from this place on: files and folders. @throws WrongWords without one, and for an empty one.
[[nodiscard]] std::vector<std::string> audio_words(const Arguments& arguments, std::size_t first);

/// The files that words mean: a word's file, or all below its folder, in the order of their names. A folder that can't
/// be read is told on standard error.
class AudioFiles {
public:
    explicit AudioFiles(const std::vector<std::string>& words);

    [[nodiscard]] const std::vector<std::string>& names() const { return names_; }
    [[nodiscard]] bool all_folders_read() const { return all_folders_read_; }

private:
    void add_files_below(const std::string& folder);

    std::vector<std::string> names_;
    bool all_folders_read_ = true;
};

/// Does the work for each file, shows how far it has come, and tells on standard error which can't be played and why.
/// True when all could; `refused` is called for each other.
bool for_each_file(
    const std::vector<std::string>& files, const std::function<void(const std::string&)>& work,
    const std::function<void(const std::string&, const Failure&)>& refused = [](const std::string&, const Failure&) {});

} // namespace sonarelle
