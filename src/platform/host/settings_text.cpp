#include "platform/host/settings_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

std::string_view name_of(const std::pair<std::string, std::string>& entry) {
    return entry.first;
}
template <typename Named>
std::string_view name_of(const Named& entry) {
    return entry.name;
}

template <typename Entries>
auto find_named(Entries& entries, std::string_view name) {
    return std::ranges::find_if(entries,
                                [name](const auto& entry) { return equal_ignoring_case(name_of(entry), name); });
}

/// The entry of this name, added where there is none.
template <typename Entry>
Entry& named(std::vector<Entry>& entries, std::string_view name) {
    const auto found = find_named(entries, name);
    return found != entries.end() ? *found : entries.emplace_back(Entry{std::string{name}, {}});
}

} // namespace

/// Takes the JSON as it is read: three names deep there are texts, and nothing else is anywhere.
class SettingsText::Reader : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit Reader(SettingsText& into) : into_{into} {}

    [[nodiscard]] const std::string& complaint() const { return complaint_; }
    [[nodiscard]] std::size_t position() const { return position_; }

    bool null() override { return refuse_value(); }
    bool boolean(bool) override { return refuse_value(); }
    bool number_integer(number_integer_t) override { return refuse_value(); }
    bool number_unsigned(number_unsigned_t) override { return refuse_value(); }
    bool number_float(number_float_t, const string_t&) override { return refuse_value(); }
    bool binary(binary_t&) override { return refuse_value(); }
    bool start_array(std::size_t) override { return refuse_value(); }
    bool end_array() override { return true; }

    bool start_object(std::size_t) override {
        if (names_.size() == names_deep)
            return refuse_value();
        names_.emplace_back();
        return true;
    }

    bool key(string_t& name) override {
        names_.back() = name;
        if (names_.size() == 1)
            named(into_.applications_, name);
        if (names_.size() == 2)
            named(named(into_.applications_, names_[0]).sections, name);
        return true;
    }

    bool string(string_t& value) override {
        if (names_.size() != names_deep)
            return refuse_value();
        into_.set(names_[0], {names_[1], names_[2], value});
        return true;
    }

    bool end_object() override {
        names_.pop_back();
        return true;
    }

    bool parse_error(std::size_t position, const std::string&, const nlohmann::json::exception&) override {
        position_ = position;
        complaint_ = "ce n'est pas du JSON";
        return false;
    }

private:
    static constexpr std::size_t names_deep = 3;

    bool refuse_value() {
        complaint_ = names_.empty() ? "il ne commence pas par une accolade"
                                    : "la valeur de « " + names_.back() + " » n'est pas " +
                                          (names_.size() == names_deep ? "un texte entre guillemets" : "un groupe");
        return false;
    }

    SettingsText& into_;
    std::vector<std::string> names_; // of the objects that are open, the outermost first
    std::string complaint_;
    std::size_t position_ = 0;
};

SettingsText SettingsText::parsed(std::string_view json) {
    SettingsText result;
    Reader reader{result};
    if (nlohmann::json::sax_parse(json, &reader))
        return result;
    const std::string_view before = json.substr(0, reader.position());
    const std::string line = std::to_string(1 + std::ranges::count(before, '\n'));
    throw Failure{failure_number::device_fault,
                  {},
                  "Fichier de réglages abîmé : " + reader.complaint() +
                      (reader.position() > 0 ? " (ligne " + line + ")" : std::string{})};
}

std::string SettingsText::json() const {
    auto root = nlohmann::ordered_json::object();
    for (const Application& application : applications_) {
        auto& sections = root[application.name] = nlohmann::ordered_json::object();
        for (const Section& section : application.sections) {
            auto& values = sections[section.name] = nlohmann::ordered_json::object();
            for (const auto& [key, value] : section.values)
                values[key] = value;
        }
    }
    try {
        return root.dump(4) + "\n";
    } catch (const nlohmann::json::exception&) {
        throw Failure{failure_number::wrong_call, {}, "Un réglage contient un texte qui n'est pas de l'UTF-8"};
    }
}

const std::string* SettingsText::value(std::string_view application, std::string_view section,
                                       std::string_view key) const {
    const auto in_application = find_named(applications_, application);
    if (in_application == applications_.end())
        return nullptr;
    const auto in_section = find_named(in_application->sections, section);
    if (in_section == in_application->sections.end())
        return nullptr;
    const auto found = find_named(in_section->values, key);
    return found == in_section->values.end() ? nullptr : &found->second;
}

bool SettingsText::set(std::string_view application, const Setting& setting) {
    const std::string* old = value(application, setting.section, setting.key);
    if (old != nullptr && *old == setting.value)
        return false;
    named(named(named(applications_, application).sections, setting.section).values, setting.key).second =
        setting.value;
    return true;
}

std::vector<Setting> SettingsText::all(std::string_view application) const {
    std::vector<Setting> result;
    const auto found = find_named(applications_, application);
    if (found == applications_.end())
        return result;
    for (const Section& section : found->sections)
        for (const auto& [key, value] : section.values)
            result.push_back({section.name, key, value});
    std::ranges::stable_sort(result, {}, [](const Setting& setting) { return lower_case(setting.section); });
    return result;
}

} // namespace sonarelle
