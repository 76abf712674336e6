#include "platform/host/shared_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <filesystem>

#include "platform/failure.h"
#include "platform/host/file_lock.h"
#include "platform/host/host_errors.h"
#include "platform/host/safe_file.h"

namespace sonarelle {

namespace {

// Settings and tables have some KB; what is far from that was put there by mistake or in bad will.
constexpr std::size_t largest_file = 16 << 20;

std::string lock_name(const std::filesystem::path& path) {
    return path.parent_path() / ("." + path.stem().string() + ".verrou");
}

void make_folder_of(const std::string& path) {
    std::error_code error;
    const auto folder = std::filesystem::path{path}.parent_path();
    if (!folder.empty())
        std::filesystem::create_directories(folder, error);
    if (error)
        throw failure_from(error.value(), Access::writing, path);
}

/// A lock is only ever made or found, never followed to where a link points; another user's needs no right to write.
FileHandle open_lock(const std::string& name) {
    constexpr int flags = O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC;
    FileHandle file{::open(name.c_str(), O_RDWR | O_CREAT | flags, 0666)};
    if (!file.is_open() && (errno == EACCES || errno == EPERM))
        file = FileHandle{::open(name.c_str(), O_RDONLY | flags)};
    return file;
}

void check_is_plain(const FileHandle& file, const std::string& path) {
    struct stat facts {};
    if (::fstat(file.get(), &facts) != 0)
        throw_errno(Access::writing, path);
    if (!S_ISREG(facts.st_mode))
        throw Failure{FailureNumber::device_fault, path, "Ce n'est pas un fichier ordinaire"};
}

} // namespace

std::optional<std::string> read_shared_file(const std::string& path) {
    const FileHandle file{::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK)};
    if (!file.is_open() && (errno == ENOENT || errno == ENOTDIR))
        return std::nullopt;
    if (!file.is_open())
        throw_errno(Access::writing, path);
    check_is_plain(file, path);
    std::string text;
    std::array<char, 16384> block{};
    for (;;) {
        const ssize_t count = ::read(file.get(), block.data(), block.size());
        if (count == 0)
            return text;
        if (count > 0)
            text.append(block.data(), static_cast<std::size_t>(count));
        else if (errno != EINTR)
            throw_errno(Access::writing, path);
        if (text.size() > largest_file)
            throw Failure{FailureNumber::device_fault, path, "Ce fichier est bien trop grand"};
    }
}

SharedFileLock::SharedFileLock(const std::string& path) {
    make_folder_of(path);
    file_ = open_lock(lock_name(path));
    if (!file_.is_open())
        throw_errno(Access::writing, path);
    wait_for_lock(file_, path);
}

void write_shared_file(const std::string& path, std::string_view text) {
    SafeFile file{path, path};
    file.write(text);
    file.commit();
}

void set_aside(const std::string& path) {
    for (int number = 1;; ++number) {
        const std::string aside = path + ".abime" + (number == 1 ? "" : "-" + std::to_string(number));
        if (std::filesystem::exists(std::filesystem::symlink_status(aside)))
            continue;
        if (::rename(path.c_str(), aside.c_str()) != 0)
            throw_errno(Access::writing, path);
        return;
    }
}

std::optional<Failure> set_aside_if_damaged(const std::string& path, const std::function<void()>& check) {
    const auto fault_of = [&]() -> std::optional<Failure> {
        try {
            check();
            return std::nullopt;
        } catch (const Failure& failure) {
            return failure;
        }
    };
    auto fault = fault_of();
    if (fault && fault->number == FailureNumber::device_fault)
        ErrorIndicator{}.skip([&] {
            const SharedFileLock lock{path};
            if (fault_of()) // another program may have mended it
                set_aside(path);
        });
    return fault;
}

} // namespace sonarelle
