#include "app/outil/event_writer.h"

#include <ostream>

#include "platform/numbers.h"

namespace sonarelle {

namespace {

std::string seconds_text(Frames time) {
    return Format(in_seconds(time), "0.000", DecimalMark::point);
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

} // namespace

void EventWriter::line(Frames at, std::string_view event, const Json& fields) {
    out_ << "{\"t\":" << seconds_text(at - origin_) << ",\"evenement\":\"" << event << '"';
    if (!fields.empty())
        out_ << ',' << std::string_view{fields.dump()}.substr(1);
    else
        out_ << '}';
    out_ << '\n' << std::flush;
}

void EventWriter::write(Frames at, const OnAirEvent& event) {
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
    case Kind::inserted:
        return line(at, "insertion", row);
    case Kind::removed:
        return line(at, "retire", row);
    case Kind::stopped:
        return line(at, "arret", Json{{"texte", event.text}});
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

void EventWriter::write_silence(Frames at) {
    line(at, "silence", Json::object());
}

void EventWriter::write_account(Frames at) {
    out_ << "{\"t\":" << seconds_text(at - origin_) << ",\"evenement\":\"bilan\",\"departs\":" << starts_
         << ",\"silence_total\":" << seconds_text(silence_)
         << ",\"charge_max_ms\":" << Format(longest_load_ms_, "0.0", DecimalMark::point) << "}\n"
         << std::flush;
}

} // namespace sonarelle
