#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/drive_table.h"
#include "platform/host/host_disk.h"
#include "support/private_folder.h"

namespace sonarelle::test {

/// A disk whose drive D lies in a folder of the test.
struct DiskFixture {
    DiskFixture() { drives.set("D", folder.path()); }

    [[nodiscard]] std::vector<std::string> all(std::string_view pattern,
                                               FileAttributes attributes = FileAttributes::normal) {
        std::vector<std::string> names;
        for (std::string name = disk.Dir(pattern, attributes); !name.empty(); name = disk.Dir())
            names.push_back(name);
        return names;
    }

    [[nodiscard]] std::string read(std::string_view path) {
        const auto file = disk.open(path);
        std::string bytes(static_cast<std::size_t>(file->length()), '\0');
        bytes.resize(file->read(0, std::as_writable_bytes(std::span{bytes})));
        return bytes;
    }

    void save(std::string_view path, std::string_view text) {
        const auto file = disk.replace(path);
        file->write(std::as_bytes(std::span{text}));
        file->commit();
    }

    PrivateFolder folder;
    DriveTable drives;
    HostDisk disk{drives};
};

} // namespace sonarelle::test
