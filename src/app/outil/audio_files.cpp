#include "app/outil/audio_files.h"

#include <algorithm>
#include <filesystem>
#include <iostream>

#include "app/outil/printable.h"
#include "app/outil/progress.h"
#include "platform/host/host_errors.h"

namespace sonarelle {

namespace {

void tell(const Failure& failure) {
    std::cerr << "sonarelle-outil : " << printable(failure.what()) << '\n';
}

} // namespace

std::vector<std::string> audio_words(const Arguments& arguments, std::size_t first) {
    std::vector<std::string> words{arguments.filled_word(first, "AUDIO")};
    for (std::size_t place = first + 1; place < arguments.words().size(); ++place)
        words.push_back(arguments.filled_word(place, "AUDIO"));
    return words;
}

AudioFiles::AudioFiles(const std::vector<std::string>& words) {
    for (const std::string& word : words) {
        std::error_code error;
        if (!std::filesystem::is_directory(word, error)) {
            names_.push_back(word);
            continue;
        }
        const auto first = static_cast<std::ptrdiff_t>(names_.size());
        add_files_below(word);
        std::sort(names_.begin() + first, names_.end());
    }
}

/// One folder is open at a time, however deep they lie.
void AudioFiles::add_files_below(const std::string& top) {
    std::vector<std::string> folders{top};
    while (!folders.empty()) {
        const std::string folder = std::move(folders.back());
        folders.pop_back();
        std::error_code error;
        std::filesystem::directory_iterator entry{folder, error};
        for (; !error && entry != std::filesystem::directory_iterator{}; entry.increment(error)) {
            std::error_code ignored; // what is neither a file nor a folder is left out
            if (entry->is_regular_file(ignored))
                names_.push_back(entry->path().string());
            else if (entry->symlink_status(ignored).type() == std::filesystem::file_type::directory)
                folders.push_back(entry->path().string());
        }
        if (error) {
            tell(failure_from(error.value(), Access::reading, folder));
            all_folders_read_ = false;
        }
    }
}

bool for_each_file(const std::vector<std::string>& files, const std::function<void(const std::string&)>& work,
                   const std::function<void(const std::string&, const Failure&)>& refused) {
    Progress progress{"mesure", static_cast<std::int64_t>(files.size())};
    bool all_opened = true;
    for (std::size_t place = 0; place < files.size(); ++place) {
        progress.reach(static_cast<std::int64_t>(place));
        try {
            work(files[place]);
        } catch (const Failure& failure) {
            all_opened = false;
            progress.clear();
            refused(files[place], failure);
            tell(failure);
        }
    }
    return all_opened;
}

} // namespace sonarelle
