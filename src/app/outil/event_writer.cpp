#include "app/outil/event_writer.h"

#include <cmath>

#include "app/outil/printable.h"
#include "platform/numbers.h"

namespace sonarelle {

namespace {

std::string seconds_text(Frames time) {
    return Format(in_seconds(time), "0.000", DecimalMark::point);
}

double rounded_seconds(Frames span) {
    return std::round(in_seconds(span) * 1000) / 1000;
}

std::string answer_text(const Question& question) {
    if (question.kind != QuestionKind::box)
        return question.cancelled ? "annuler" : question.entered;
    switch (question.button) {
    case Answer::yes:
        return "oui";
    case Answer::no:
        return "non";
    case Answer::cancel:
        return "annuler";
    default:
        return "ok";
    }
}

/// How a row was drawn: from how many, and which were passed over on the way.
EventWriter::Json draw_of(const OnAirEvent& event, EventWriter::Json row) {
    EventWriter::Json passed_over = EventWriter::Json::array();
    for (const PassedOver& each : event.passed_over)
        passed_over.push_back({{"numero", each.number}, {"raison", std::string{each.reason}}});
    row["parmi"] = event.among;
    row["ecartes"] = std::move(passed_over);
    return row;
}

std::string line_of(Frames time, std::string_view event, const EventWriter::Json& fields) {
    const std::string head = "{\"t\":" + seconds_text(time) + ",\"evenement\":\"" + std::string{event} + '"';
    return head + (fields.empty() ? "}" : ',' + json_line(fields).substr(1)) + '\n';
}

} // namespace

void EventWriter::line(Frames at, std::string_view event, const Json& fields) {
    give(at, line_of(at - origin_, event, fields));
}

void EventWriter::give(Frames at, std::string line) {
    const std::string told = std::to_string(lost_) + (lost_ > 1 ? " lignes perdues" : " ligne perdue");
    if (lost_ > 0 && sink_(line_of(at - origin_, "avertissement", Json{{"texte", told + " : personne ne lisait"}})))
        lost_ = 0;
    if (!sink_(std::move(line)))
        ++lost_;
}

void EventWriter::write(Frames now, const OnAirEvent& event) {
    const Frames at = now - event.ago;
    using Kind = OnAirEvent::Kind;
    const Json deck{{"lecteur", event.deck}};
    Json track = deck;
    track.update(Json{{"index", event.row}, {"chemin", event.path}});
    const Json row{{"index", event.row}, {"chemin", event.path}};
    switch (event.kind) {
    case Kind::loaded:
        track["fin"] = event.end;
        return line(at, "chargement", track);
    case Kind::started:
        ++starts_;
        track["mix_courant"] = event.overlap;
        track["prechargement"] = event.load_lead;
        return line(at, "depart", track);
    case Kind::fade_began:
        return line(at, "fondu", deck);
    case Kind::cut:
        return line(at, "coupe", deck);
    case Kind::drawn:
        return line(at, "tirage", draw_of(event, row));
    case Kind::inserted: {
        Json inserted = draw_of(event, row);
        inserted["numero"] = event.number;
        return line(at, "insertion", inserted);
    }
    case Kind::removed:
        return line(at, "retire", row);
    case Kind::stopped:
        return line(at, "arret", Json{{"texte", event.text}});
    case Kind::silence:
        return line(at, "silence", Json::object());
    case Kind::silence_over:
        return line(at, "fin_silence", Json{{"duree", rounded_seconds(event.span)}});
    case Kind::resumed: {
        Json resumed = row;
        resumed["apres"] = rounded_seconds(event.span);
        return line(at, "reprise", resumed);
    }
    }
}

void EventWriter::write(Frames at, const Question& question) {
    line(at, "question", Json{{"titre", question.title}, {"texte", question.text}, {"reponse", answer_text(question)}});
}

void EventWriter::write_warning(Frames at, const std::string& text) {
    line(at, "avertissement", Json{{"texte", text}});
}

void EventWriter::write_end_of_file(Frames at, int deck) {
    line(at, "fin_fichier", Json{{"lecteur", deck}});
}

void EventWriter::write_account(Frames at) {
    give(at, "{\"t\":" + seconds_text(at - origin_) + ",\"evenement\":\"bilan\",\"departs\":" +
                 std::to_string(starts_) + ",\"silence_total\":" + seconds_text(silence_) +
                 ",\"charge_max_ms\":" + Format(longest_load_ms_, "0.0", DecimalMark::point) + "}\n");
}

} // namespace sonarelle
