#include "platform/simulated/simulated_settings.h"

#include <algorithm>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

std::string SimulatedSettings::GetSetting(std::string_view application, std::string_view section, std::string_view key,
                                          std::string_view otherwise) {
    const Setting* setting = find(applications_[lower_case(application)], section, key);
    return setting == nullptr ? std::string{otherwise} : setting->value;
}

void SimulatedSettings::SaveSetting(std::string_view application, std::string_view section, std::string_view key,
                                    std::string_view value) {
    const Setting setting{std::string{section}, std::string{key}, std::string{value}};
    save_all(application, {&setting, 1});
}

void SimulatedSettings::save_all(std::string_view application, std::span<const Setting> settings) {
    check_writable();
    Values& values = applications_[lower_case(application)];
    for (const Setting& setting : settings)
        put(values, setting);
}

std::vector<Setting> SimulatedSettings::all(std::string_view application) {
    Values values = applications_[lower_case(application)];
    std::ranges::stable_sort(values, {}, [](const Setting& setting) { return lower_case(setting.section); });
    return values;
}

Setting* SimulatedSettings::find(Values& values, std::string_view section, std::string_view key) {
    const auto found = std::ranges::find_if(values, [&](const Setting& setting) {
        return equal_ignoring_case(setting.section, section) && equal_ignoring_case(setting.key, key);
    });
    return found == values.end() ? nullptr : &*found;
}

// The first spelling of a section and key stays.
void SimulatedSettings::put(Values& values, const Setting& setting) {
    if (Setting* known = find(values, setting.section, setting.key))
        known->value = setting.value;
    else
        values.push_back(setting);
}

void SimulatedSettings::check_writable() const {
    if (refusal_ != FailureNumber::none)
        throw Failure{refusal_, "reglages.json"};
}

} // namespace sonarelle
