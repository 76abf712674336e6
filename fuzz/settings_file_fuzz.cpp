// Any bytes as a settings file: they are refused as damaged, or what was read is written and read back the same.
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "fuzz_check.h"
#include "platform/failure.h"
#include "platform/host/host_drive_table.h"
#include "platform/host/settings_text.h"

using namespace sonarelle;

namespace {

void settings_file(std::string_view bytes) {
    try {
        const SettingsText text = SettingsText::parsed(bytes);
        const std::string json = text.json();
        check(SettingsText::parsed(json) == text, "settings are read back as they were written");
        check(SettingsText::parsed(json).json() == json, "settings are written the same each time");
    } catch (const Failure& failure) {
        check(failure.number == FailureNumber::device_fault, "a damaged file is failure 57");
    }
}

void drive_table_file(std::string_view bytes) {
    try {
        const DriveTable table = parsed_drive_table(bytes, "/");
        check(parsed_drive_table(drive_table_text(table), "/").entries() == table.entries(),
              "drives are read back as they were written");
    } catch (const Failure& failure) {
        check(failure.number == FailureNumber::device_fault, "a damaged file is failure 57");
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes{data, data + size};
    settings_file(bytes);
    drive_table_file(bytes);
    return 0;
}
