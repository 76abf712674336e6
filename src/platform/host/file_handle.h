#pragma once

#include <unistd.h>

#include <utility>

namespace sonarelle {

/// Owner of an open file of this machine.
class FileHandle {
public:
    FileHandle() = default;
    explicit FileHandle(int descriptor)
        : descriptor_{descriptor} {}
    FileHandle(FileHandle&& other) noexcept
        : descriptor_{std::exchange(other.descriptor_, -1)} {}
    FileHandle& operator=(FileHandle&& other) noexcept {
        std::swap(descriptor_, other.descriptor_);
        return *this;
    }
    ~FileHandle() {
        if (is_open())
            ::close(descriptor_);
    }

    [[nodiscard]] bool is_open() const { return descriptor_ >= 0; }
    [[nodiscard]] int get() const { return descriptor_; }

private:
    int descriptor_ = -1;
};

} // namespace sonarelle
