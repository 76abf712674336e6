#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/audio/sound_files.h"

namespace sonarelle {

/// The files of this machine, of which it is known when they are opened, read and closed.
class WatchedFiles final : public SoundFiles {
public:
    [[nodiscard]] FileFacts facts(const std::string& path) override { return files_.facts(path); }
    [[nodiscard]] std::unique_ptr<RecordFile> open(const std::string& path) override {
        ++opened;
        return std::make_unique<WatchedFile>(*this, files_.open(path));
    }

    int opened = 0;
    int open_now = 0;
    std::vector<std::int64_t> reads; ///< Where each began.

private:
    class WatchedFile final : public RecordFile {
    public:
        WatchedFile(WatchedFiles& watch, std::unique_ptr<RecordFile> file)
            : watch_{watch},
              file_{std::move(file)} {
            ++watch_.open_now;
        }
        ~WatchedFile() override { --watch_.open_now; }
        WatchedFile(const WatchedFile&) = delete;
        WatchedFile& operator=(const WatchedFile&) = delete;

        [[nodiscard]] std::int64_t length() const override { return file_->length(); }
        std::size_t read(std::int64_t position, std::span<std::byte> into) override {
            watch_.reads.push_back(position);
            return file_->read(position, into);
        }

    private:
        WatchedFiles& watch_;
        std::unique_ptr<RecordFile> file_;
    };

    MachineFiles files_;
};

} // namespace sonarelle
