#include "platform/host/settings_text.h"

#include <algorithm>
#include <nlohmann/json.hpp>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

template <typename Value>
Value& SettingsText::Named<Value>::operator[](std::string_view name) {
    const auto [place, is_new] = places_.try_emplace(lower_case(name), entries_.size());
    if (is_new)
        entries_.emplace_back(std::string{name}, Value{});
    return entries_[place->second].second;
}

template <typename Value>
const Value* SettingsText::Named<Value>::find(std::string_view name) const {
    const auto place = places_.find(lower_case(name));
    return place == places_.end() ? nullptr : &entries_[place->second].second;
}

/// Takes the JSON as it is read: three names deep there are texts, and nothing else is anywhere.
class SettingsText::Reader : public nlohmann::json_sax<nlohmann::json> {
public:
    explicit Reader(SettingsText& into)
        : into_{into} {}

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
            static_cast<void>(into_.applications_[name]);
        if (names_.size() == 2)
            static_cast<void>(into_.applications_[names_[0]][name]);
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
    throw Failure{FailureNumber::device_fault,
                  {},
                  "Fichier de réglages abîmé : " + reader.complaint() +
                      (reader.position() > 0 ? " (ligne " + line + ")" : std::string{})};
}

std::string SettingsText::json() const {
    using Object = nlohmann::ordered_json;
    // The names of a group differ already, so nobody looks for the one that is added.
    const auto add = [](Object& group, const std::string& name, Object value) -> Object& {
        return group.get_ref<Object::object_t&>().emplace_back(name, std::move(value)).second;
    };
    auto root = Object::object();
    for (const auto& [application, sections] : applications_) {
        auto& in_application = add(root, application, Object::object());
        for (const auto& [section, values] : sections) {
            auto& in_section = add(in_application, section, Object::object());
            for (const auto& [key, value] : values)
                add(in_section, key, value);
        }
    }
    try {
        return root.dump(4) + "\n";
    } catch (const nlohmann::json::exception&) {
        throw Failure{FailureNumber::wrong_call, {}, "Un réglage contient un texte qui n'est pas de l'UTF-8"};
    }
}

const std::string* SettingsText::value(std::string_view application, std::string_view section,
                                       std::string_view key) const {
    const Application* sections = applications_.find(application);
    const Section* values = sections != nullptr ? sections->find(section) : nullptr;
    return values != nullptr ? values->find(key) : nullptr;
}

bool SettingsText::set(std::string_view application, const Setting& setting) {
    const std::string* old = value(application, setting.section, setting.key);
    if (old != nullptr && *old == setting.value)
        return false;
    applications_[application][setting.section][setting.key] = setting.value;
    return true;
}

std::vector<Setting> SettingsText::all(std::string_view application) const {
    std::vector<Setting> result;
    const Application* sections = applications_.find(application);
    if (sections == nullptr)
        return result;
    for (const auto& [section, values] : *sections)
        for (const auto& [key, value] : values)
            result.push_back({section, key, value});
    std::ranges::stable_sort(result, {}, [](const Setting& setting) { return lower_case(setting.section); });
    return result;
}

} // namespace sonarelle
