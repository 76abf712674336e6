#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace sonarelle::test {

/// A folder of this machine for one test, removed with all that it holds. All users may enter it.
class PrivateFolder {
public:
    PrivateFolder();
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    [[nodiscard]] const std::string& path() const { return path_; }
    [[nodiscard]] std::string path(std::string_view name) const { return path_ + "/" + std::string{name}; }

    /// Writes a file; makes its folders.
    void put(std::string_view name, std::string_view bytes = {}) const;
    void put_folder(std::string_view name) const;
    [[nodiscard]] std::string bytes(std::string_view name) const;
    [[nodiscard]] bool exists(std::string_view name) const;
    /// All names in a folder, hidden ones too, in byte order.
    [[nodiscard]] std::vector<std::string> names(std::string_view folder = ".") const;
    void set_rights(std::string_view name, unsigned mode) const;
    [[nodiscard]] unsigned rights(std::string_view name) const;

private:
    std::string path_;
};

} // namespace sonarelle::test
