#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <span>
#include <string>
#include <string_view>

#include "platform/failure.h"
#include "platform/scheduler.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/virtual_time.h"

namespace sonarelle {

inline std::span<const std::byte> as_bytes_of(std::string_view text) {
    return std::as_bytes(std::span{text});
}

/// The number of the failure that a statement throws; `none` where it goes through.
template <typename Statement>
FailureNumber number_of_failure(Statement&& statement) {
    try {
        statement();
    } catch (const Failure& failure) {
        return failure.number;
    }
    return FailureNumber::none;
}

/// A disk with two folders of music.
class DiskTest : public testing::Test {
protected:
    DiskTest() {
        disk.put_file("D:\\Musique\\Été.mp3", "abcdef");
        disk.put_file("D:\\Musique\\Rock\\b.mp3", "b");
        disk.put_folder("C:\\Sonarelle");
    }

    void write_whole(std::string_view path, std::string_view text) {
        const auto file = disk.replace(path);
        file->write(as_bytes_of(text));
        file->commit();
    }
    std::string read_at(std::string_view path, std::int64_t position, std::size_t count) {
        std::string bytes(count, '\0');
        bytes.resize(disk.open(path)->read(position, std::as_writable_bytes(std::span{bytes})));
        return bytes;
    }

    Scheduler scheduler;
    VirtualTime time{scheduler};
    SimulatedDisk disk{time};
};

} // namespace sonarelle
