#include "accessories/track_properties.h"

#include <algorithm>
#include <utility>

#include "platform/failure.h"
#include "platform/text.h"
#include "playlist/list_rows.h"

namespace sonarelle {

namespace {

constexpr char32_t escape_key = 27;
constexpr double one_step = 0.1;
constexpr Colour hover_colour = 0x80FF80;
constexpr auto pressed_colour = static_cast<Colour>(0x80000012); // the desktop's colour of a button's text

int percent_of(int x) {
    return to_integer(x * 100.0 / Propriete::bar_units).value();
}

} // namespace

TrackProperties::TrackProperties(const Platform& platform, const StationSettings& settings, const ListState& state,
                                 Propriete& window, ListAtWork& list, RecordReading& reading)
    : platform_{platform},
      settings_{settings},
      state_{state},
      window_{window},
      list_{list},
      reading_{reading},
      start_{window.start, window.start_timer},
      end_{window.end, window.end_timer} {
    connect_actions();
    connect_picture();
    connect_looks();
}

void TrackProperties::connect_actions() {
    list_.window().a_modif.on_click = [this] { a_modif(); };
    on_press(window_.play, [this] { play(); });
    on_press(window_.mark_start, [this] { press_start(); });
    on_press(window_.mark_end, [this] { press_end(); });
    on_press(window_.stop, [this] { stop(); });
    on_press(window_.start_back, [this] { step_back(start_); });
    on_press(window_.start_forward, [this] { step(start_, one_step); });
    on_press(window_.end_back, [this] { step_back(end_); });
    on_press(window_.end_forward, [this] { step(end_, one_step); });
    window_.progress_timer.on_tick = [this] { ErrorIndicator{}.skip([this] { show_progress(); }); };
    for (const Mark* mark : {&start_, &end_})
        mark->timer.on_tick = [this, mark] { ErrorIndicator{}.skip([&] { show_position(*mark); }); };
    window_.close.on_click = [this] { close(); };
    window_.save.on_click = [this] { save(); };
    window_.on_unload_request = [this] { close(); };
    window_.on_key_press = [this](char32_t key) {
        if (key == escape_key)
            close();
    };
}

void TrackProperties::connect_picture() {
    window_.bar.on_mouse_move_at = [this](int x) { tell_place(x); };
    window_.bar.on_click_at = [this](int x) { ErrorIndicator{}.skip([&] { go_to_place(x); }); };
    window_.bar.refusal = [this] { return graph_ ? "" : "Lancer d'abord la lecture"; };
    window_.on_start_moved = [this](double second) { move_start(second); };
    window_.on_end_moved = [this](double second) { move_end(second); };
    for (TextBox* field : {&window_.start, &window_.end, &window_.genre, &window_.volume, &window_.length})
        field->on_change = [this] { show_changes(); };
}

void TrackProperties::connect_looks() {
    for (Label* label : window_.actions())
        label->on_mouse_move = [label] { label->fore_colour = hover_colour; };
    window_.on_mouse_move = [this] { restore_colours(); };
}

// What an action can't do, it leaves without a word.
void TrackProperties::on_press(Label& label, std::function<void()> act) {
    label.on_click = [&label, act = std::move(act)] {
        label.fore_colour = pressed_colour;
        ErrorIndicator{}.skip(act);
    };
}

void TrackProperties::restore_colours() {
    for (Label* label : window_.actions())
        label->fore_colour = settings_.coul_label;
}

MediaGraph& TrackProperties::graph() const {
    if (!graph_)
        throw Failure{FailureNumber::no_object};
    return *graph_;
}

void TrackProperties::a_modif() {
    if (list_.rows().count() == 0 || !list_.allows(ListAction::a_modif))
        return;
    ErrorIndicator{}.skip([this] {
        forget_file();
        const bool has_volume = fill_finds_a_volume(std::max(1, list_.rows().selected()));
        restore_colours();
        window_.show();
        if (!has_volume)
            reading_.check_null_volume();
    });
}

bool TrackProperties::fill_finds_a_volume(int row) {
    const std::optional<DestinationRecord> read = reading_.read_record(row);
    DestinationRecord record = read.value_or(DestinationRecord{});
    record.convertir_valeur_son_ecriture();
    row_ = row;
    window_.path = record.dest_chemin;
    changed_ = false;
    window_.file_name.caption = record.dest_nom_fichier;
    window_.start.set_text(text_of(record.dest_debut, platform_.decimal_mark));
    window_.end.set_text(record.dest_fin);
    window_.genre.set_text(record.dest_genre);
    window_.volume.set_text(text_of(record.dest_volume));
    window_.length.set_text(record.dest_duree);
    saved_ = row_to_write();
    show_changes();
    return !read || record.dest_volume_pourcent != 0;
}

// Nothing is marked by ear on the file of the row that was shown before.
void TrackProperties::forget_file() {
    stop();
    graph_.reset();
    window_.bar.maximum = 0;
    window_.bar.caption = std::string{};
    for (Label* later : {&window_.stop, &window_.mark_end})
        later->visible = false;
}

void TrackProperties::play() {
    stop();
    graph_.reset();
    auto graph = platform_.media.create_graph();
    graph->RenderFile(window_.path.get());
    graph_ = std::move(graph);
    window_.bar.maximum = to_long(graph_->get_Duration());
    window_.stop.visible = true;
    graph_->Run();
    window_.progress_timer.enable();
    start_.timer.enable();
}

// The bar goes back to 0, the graph stays where it is: "Début" goes on from there.
void TrackProperties::stop() {
    for (Timer* timer : window_.timers())
        timer->disable();
    start_.paused = end_.paused = false;
    window_.bar.value = 0;
    if (graph_)
        graph_->Stop();
}

void TrackProperties::press_start() {
    press_mark(start_);
    if (start_.paused)
        window_.mark_end.visible = true;
}

void TrackProperties::press_end() {
    press_mark(end_);
    if (!end_.paused)
        show_position(end_);
}

// The first press marks the place, the next one goes on from it.
void TrackProperties::press_mark(Mark& mark) {
    mark.paused = graph().GetState() == MediaState::running;
    if (mark.paused) {
        graph().Pause();
        start_.timer.disable();
        end_.timer.disable();
        show_position(mark);
    } else {
        graph().Run();
        mark.timer.enable();
    }
}

// Both ends ask whether the start leaves room for a step back.
void TrackProperties::step_back(const Mark& mark) {
    if (to_double(window_.start.text(), platform_.decimal_mark) > 0)
        step(mark, -one_step);
}

void TrackProperties::step(const Mark& mark, double seconds) {
    graph().put_CurrentPosition(graph().get_CurrentPosition() + seconds);
    show_position(mark);
}

void TrackProperties::show_position(const Mark& mark) {
    mark.field.set_text(Format(graph().get_CurrentPosition(), start_pattern, platform_.decimal_mark));
}

void TrackProperties::show_progress() {
    window_.bar.value = to_long(graph().get_CurrentPosition());
}

void TrackProperties::tell_place(int x) {
    ProgressBar& bar = window_.bar;
    bar.hint = "lecteur chargé (F8) avec : " + window_.path.get();
    if (bar.maximum > 0)
        bar.caption = std::to_string(percent_of(x)) + "%";
}

void TrackProperties::go_to_place(int x) {
    graph().put_CurrentPosition(percent_of(x) * graph().get_Duration() / 100);
    show_progress();
}

// The start never passes the end.
void TrackProperties::move_start(double second) {
    const double end = window_.end_mark.get().value_or(second);
    put(start_, std::max(0.0, std::min(second, end)));
}

void TrackProperties::move_end(double second) {
    put(end_, std::max(second, window_.start_mark.get().value_or(0)));
}

// Where a hand has put it, no tick copies the position over it.
void TrackProperties::put(const Mark& mark, double second) {
    mark.timer.disable();
    mark.field.set_text(Format(second, start_pattern, platform_.decimal_mark));
}

void TrackProperties::show_changes() {
    const auto place_in = [](const std::function<double()>& read) {
        std::optional<double> place;
        ErrorIndicator{}.skip([&] { place = read(); });
        return place;
    };
    window_.start_mark = place_in([this] { return to_double(window_.start.text(), platform_.decimal_mark); });
    window_.end_mark = place_in([this] { return end_point_to_double(window_.end.text()); });
    window_.modified.visible = row_to_write() != saved_;
}

void TrackProperties::save() {
    if (!list_.allows(ListAction::a_modif))
        return;
    try {
        write_row();
    } catch (const Failure& failure) {
        list_.tell(failure.what(), Icon::stop);
    }
}

void TrackProperties::write_row() {
    if (state_.fichier_liste.empty()) {
        list_.tell("Pas de nom de fichier", Icon::none);
        return;
    }
    if (list_.window().a_Ne_pas_Sauve.checked) {
        list_.tell("Traitement impossible avec l'option\nNe pas sauver les modifications dans le fichier par défaut\n"
                   "Sauvegarder cette liste",
                   Icon::information);
        return;
    }
    const enreg_liste row = edited_row();
    list_.write_record(row_.value(), row);
    changed_ = true;
    saved_ = row;
    show_changes();
    list_.show_record(row_.value(), row);
}

std::optional<enreg_liste> TrackProperties::row_to_write() const {
    std::optional<enreg_liste> row;
    ErrorIndicator{}.skip([&] { row = edited_row(); });
    return row;
}

enreg_liste TrackProperties::edited_row() const {
    enreg_liste row;
    row.set_chemin(window_.path.get());
    row.set_debut_lecture(to_double(window_.start.text(), platform_.decimal_mark));
    row.set_fin_lecture(window_.end.text());
    row.set_genre(window_.genre.text());
    row.set_volume(static_cast<std::int16_t>(to_integer(window_.volume.text(), platform_.decimal_mark).value()));
    row.set_duree_piste(window_.length.text());
    return row;
}

void TrackProperties::close() {
    ErrorIndicator{}.skip([this] { stop(); });
    if (window_.visible && !changed_)
        list_.window().list_status.caption = " Pas de Modification ";
    window_.hide();
}

} // namespace sonarelle
