#include "platform/host/output_choice.h"

#include <nlohmann/json.hpp>
#include <optional>

#include "platform/failure.h"
#include "platform/host/shared_file.h"

namespace sonarelle {

namespace {

constexpr const char* key = "sortie";

std::optional<std::string> parsed(const std::string& text) {
    const auto entries = nlohmann::json::parse(text, nullptr, false);
    if (!entries.is_object() || !entries.contains(key) || !entries[key].is_string())
        return std::nullopt;
    return entries[key].get<std::string>();
}

std::string text_of(const std::string& name) {
    try {
        return nlohmann::json{{key, name}}.dump(4) + "\n";
    } catch (const nlohmann::json::exception&) {
        throw Failure{FailureNumber::wrong_call, {}, "Le nom de la sortie n'est pas de l'UTF-8"};
    }
}

} // namespace

std::string load_output_choice(const std::string& file) {
    std::string name;
    ErrorIndicator{}.skip([&] {
        if (const auto text = read_shared_file(file))
            name = parsed(*text).value_or("");
    });
    return name;
}

void save_output_choice(const std::string& file, const std::string& name) {
    const std::string text = text_of(name);
    const SharedFileLock lock{file};
    if (const auto old = read_shared_file(file); old && !parsed(*old))
        set_aside(file);
    write_shared_file(file, text);
}

} // namespace sonarelle
