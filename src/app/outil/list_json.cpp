#include "app/outil/list_json.h"

#include <cmath>
#include <cstdint>
#include <limits>

#include "platform/failure.h"
#include "platform/text.h"

namespace sonarelle {

namespace {

constexpr const char* path_key = "chemin";
constexpr const char* start_key = "debut_lecture";
constexpr const char* end_key = "fin_lecture";
constexpr const char* genre_key = "genre";
constexpr const char* volume_key = "volume";
constexpr const char* duration_key = "duree_piste";
constexpr const char* records_key = "enregistrements";
constexpr double start_of_old_lists = 0.10;

Json json_of_start(double start) {
    if (std::isfinite(start))
        return start;
    if (std::isnan(start))
        return "nan";
    return start < 0 ? "-inf" : "inf";
}

template <typename Record>
Json json_with_start(const Record& record, std::int64_t number, Json start) {
    const auto text = [](const std::string& field) { return std::string{trim_right(field)}; };
    return {{"numero", number},
            {path_key, text(record.chemin())},
            {start_key, std::move(start)},
            {end_key, text(record.fin_lecture())},
            {genre_key, text(record.genre())},
            {volume_key, record.volume()},
            {duration_key, text(record.duree_piste())}};
}

/// One record of the JSON, with the failures of its fields naming it.
class RecordOfJson {
public:
    RecordOfJson(const ReadJson& object, std::size_t number)
        : object_{object},
          number_{number} {
        if (!object.is_object())
            refuse("n'est pas un objet");
    }

    [[nodiscard]] enreg_liste record() const {
        enreg_liste record;
        record.set_chemin(text(path_key));
        record.set_debut_lecture(start());
        record.set_fin_lecture(text(end_key));
        record.set_genre(text(genre_key));
        record.set_volume(volume());
        record.set_duree_piste(text(duration_key));
        return record;
    }

private:
    [[noreturn]] void refuse(const std::string& reason) const {
        throw Failure{FailureNumber::wrong_call, "enregistrement " + std::to_string(number_), reason};
    }

    [[noreturn]] void refuse_field(const char* key, const std::string& reason) const {
        refuse("le champ « " + std::string{key} + " » " + reason);
    }

    [[nodiscard]] const ReadJson& field(const char* key) const {
        const auto found = object_.find(key);
        if (found == object_.end())
            refuse_field(key, "manque");
        return *found;
    }

    [[nodiscard]] std::string text(const char* key) const {
        const ReadJson& value = field(key);
        if (!value.is_string())
            refuse_field(key, "n'est pas un texte");
        const auto& result = value.get_ref<const std::string&>();
        if (const auto foreign = first_foreign_character(result))
            refuse_field(key, "est refusé : " + sentence_of_foreign(*foreign));
        return result;
    }

    /// A record of an old list has none.
    [[nodiscard]] double start() const {
        const ReadJson& value = field(start_key);
        if (value.is_null())
            return start_of_old_lists;
        if (value.is_number())
            return value.get<double>();
        const auto infinity = std::numeric_limits<double>::infinity();
        if (value == "nan")
            return std::numeric_limits<double>::quiet_NaN();
        if (value == "inf" || value == "-inf")
            return value == "inf" ? infinity : -infinity;
        refuse_field(start_key, "n'est pas un nombre");
    }

    [[nodiscard]] std::int16_t volume() const {
        const ReadJson& value = field(volume_key);
        // The parser keeps what is not negative as an unsigned number, which a comparison with a signed one would wrap.
        if (value.is_number_unsigned() && value.get<std::uint64_t>() <= INT16_MAX)
            return value.get<std::int16_t>();
        const bool is_negative = value.is_number_integer() && !value.is_number_unsigned();
        if (!is_negative || value.get<std::int64_t>() < INT16_MIN)
            refuse_field(volume_key, "n'est pas un nombre entier de -32768 à 32767");
        return value.get<std::int16_t>();
    }

    const ReadJson& object_;
    std::size_t number_;
};

} // namespace

Json json_of(const enreg_liste& record, std::int64_t number) {
    return json_with_start(record, number, json_of_start(record.debut_lecture()));
}

Json json_of(const enreg_rfm& record, std::int64_t number) {
    return json_with_start(record, number, nullptr);
}

std::vector<enreg_liste> records_of(const ReadJson& list) {
    const ReadJson* records = &list;
    if (list.is_object())
        records = list.contains(records_key) ? &list[records_key] : nullptr;
    if (records == nullptr || !records->is_array())
        throw Failure{FailureNumber::wrong_call, "entrée standard", "aucun tableau « enregistrements »"};
    std::vector<enreg_liste> result;
    result.reserve(records->size());
    for (std::size_t i = 0; i < records->size(); ++i)
        result.push_back(RecordOfJson{(*records)[i], i + 1}.record());
    return result;
}

} // namespace sonarelle
