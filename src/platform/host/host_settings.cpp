#include "platform/host/host_settings.h"

#include <sys/stat.h>

#include "platform/failure.h"
#include "platform/host/file_times.h"
#include "platform/host/shared_file.h"

namespace sonarelle {

HostSettings::HostSettings(std::string file)
    : file_{std::move(file)} {}

std::string HostSettings::GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                     std::string_view otherwise) {
    const std::string* value = current().value(application, section, key);
    return value != nullptr ? *value : std::string{otherwise};
}

void HostSettings::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                               std::string_view value) {
    const Setting setting{std::string{section}, std::string{key}, std::string{value}};
    save_all(application, std::span{&setting, 1});
}

void HostSettings::save_all(std::string_view application, std::span<const Setting> settings) {
    const SharedFileLock lock{file_};
    SettingsText text;
    bool damaged = false;
    try {
        text = read();
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::device_fault)
            throw;
        damaged = true;
    }
    bool changed = damaged;
    for (const Setting& setting : settings)
        changed = text.set(application, setting) || changed;
    if (!changed)
        return;
    const std::string json = text.json();
    if (damaged)
        set_aside(file_);
    write_shared_file(file_, json);
    is_known_ = false;
}

std::vector<Setting> HostSettings::all(std::string_view application) {
    return current().all(application);
}

HostSettings::Stamp HostSettings::stamp() const {
    struct stat facts {};
    if (::stat(file_.c_str(), &facts) != 0)
        return {};
    return {true, facts.st_dev, facts.st_ino, facts.st_size, nanoseconds(facts.st_mtim)};
}

SettingsText HostSettings::read() const {
    const auto json = read_shared_file(file_);
    if (!json)
        return {};
    try {
        return SettingsText::parsed(*json);
    } catch (const Failure& failure) {
        throw Failure{failure.number, file_, failure.description};
    }
}

const SettingsText& HostSettings::current() {
    const Stamp found = stamp();
    if (is_known_ && found == known_stamp_)
        return known_;
    is_known_ = false;
    const std::int64_t read_at = nanoseconds_now();
    known_ = read();
    known_stamp_ = found;
    is_known_ = std::chrono::nanoseconds{read_at - found.modified} > file_time_settles;
    return known_;
}

} // namespace sonarelle
