#include "desktop/desktop.h"

#include <QActionGroup>
#include <QApplication>
#include <QFileInfo>
#include <QFontDatabase>
#include <QStyle>
#include <QTime>
#include <QToolTip>
#include <algorithm>

#include "accessories/chargement.h"
#include "accessories/propriete.h"
#include "desktop/colours.h"
#include "desktop/draw_view.h"
#include "desktop/list_view.h"
#include "desktop/main_view.h"
#include "desktop/menu_style.h"
#include "desktop/mnemonics.h"
#include "desktop/part_access.h"
#include "desktop/plain_views.h"
#include "desktop/properties_view.h"
#include "desktop/qt_text.h"
#include "desktop/small_player_view.h"
#include "desktop/time_text.h"
#include "platform/calendar_text.h"
#include "platform/failure.h"
#include "platform/numbers.h"
#include "playout/air_view.h"

namespace sonarelle {

namespace {

std::unique_ptr<WindowView> view_of(Window& window, const DesktopServices& services, const SoundReading& sound) {
    if (auto* main = dynamic_cast<Antenne_FM*>(&window))
        return std::make_unique<MainView>(*main, services, sound);
    if (auto* list = dynamic_cast<Liste_son*>(&window))
        return std::make_unique<ListView>(*list, services);
    if (auto* player = dynamic_cast<mini_lecteur*>(&window))
        return std::make_unique<SmallPlayerView>(*player, services);
    if (auto* splash = dynamic_cast<Chargement*>(&window))
        return splash_view(*splash, services);
    if (auto* properties = dynamic_cast<Propriete*>(&window))
        return std::make_unique<PropertiesView>(*properties, services);
    if (auto* draws = dynamic_cast<liste*>(&window))
        return std::make_unique<DrawView>(*draws, services);
    return form_view(window, services);
}

/// A window that has no place of its own on the screen.
bool opens_over_the_desk(const Window& window) {
    return dynamic_cast<const Antenne_FM*>(&window) == nullptr && dynamic_cast<const Liste_son*>(&window) == nullptr &&
           dynamic_cast<const mini_lecteur*>(&window) == nullptr && dynamic_cast<const Chargement*>(&window) == nullptr;
}

// Nothing for what is no number yet. A deck beside the main one, whose counter is put back, plays its file out.
std::optional<double> end_of(const Deck& deck, DeckRole role) {
    std::optional<double> end;
    ErrorIndicator{}.skip([&] { end = (role == DeckRole::heard ? deck.whole_duration() : deck.end_point()).value(); });
    return end > 0 ? end : std::nullopt;
}

/// A deck that waits for its start, which is at its start of play.
bool begins_anew(const Deck& deck, DeckRole role) {
    return (role == DeckRole::loaded || role == DeckRole::ended) && deck.controls.progress.value == 0;
}

/// The line above the entries that delete, which are a menu's last ones; null where it has none.
QAction* line_above_what_destroys(const QMenu& menu) {
    const auto entries = menu.actions();
    const auto found =
        std::ranges::find_if(entries, [](const QAction* entry) { return entry->property(entry_destroys).toBool(); });
    return found == entries.begin() || found == entries.end() ? nullptr : *std::prev(found);
}

} // namespace

void dress_application() {
    tell_screen_readers_of_parts();
    QApplication::setStyle(new MenuStyle); // which the application then owns
    QApplication::setPalette(studio_palette());
    QToolTip::setPalette(studio_palette());
    QFont font = QApplication::font();
    if (QFontDatabase::families().contains("Inter"))
        font.setFamily("Inter");
    QApplication::setFont(font);
}

Desktop::Desktop(const std::vector<Window*>& windows, Desk& desk, const DesktopServices& services,
                 const SoundReading& sound)
    : desk_{desk},
      services_{services} {
    for (Window* window : windows) {
        views_.push_back(view_of(*window, services, while_heard(sound)));
        if (auto* main = dynamic_cast<MainView*>(views_.back().get()))
            main_ = main;
        if (auto* list = dynamic_cast<ListView*>(views_.back().get()))
            list_ = list;
        if (auto* player = dynamic_cast<SmallPlayerView*>(views_.back().get()))
            player_ = player;
    }
    for (const auto& view : views_)
        if (main_ != nullptr && opens_over_the_desk(view->window_value()))
            view->open_over(*main_);
    connect_readings();
    name_keys(keys_of(desk_.window));
}

Desktop::~Desktop() = default;

QWidget* Desktop::widget_of(const Window& window) const {
    const auto found = std::ranges::find_if(views_, [&](const auto& view) { return &view->window_value() == &window; });
    return found == views_.end() ? nullptr : found->get();
}

QString Desktop::name_on_air() const {
    return to_qt(sonarelle::name_on_air(desk_));
}

// What no sound card takes nobody hears. It is read all the same, so that none of it is shown later.
SoundReading Desktop::while_heard(const SoundReading& sound) const {
    SoundReading heard = sound;
    if (sound.level)
        heard.level = [this, level = sound.level] {
            const LevelReading reading = level();
            return lost_.isValid() ? LevelReading{} : reading;
        };
    if (sound.newest)
        heard.newest = [this, newest = sound.newest](std::span<float> frames) {
            newest(frames);
            if (lost_.isValid())
                std::ranges::fill(frames, 0.0F);
        };
    if (sound.bands)
        heard.bands = [this, bands = sound.bands] {
            const std::span<const float> levels = bands();
            return lost_.isValid() ? std::span<const float>{} : levels;
        };
    return heard;
}

void Desktop::watch(Control& control, std::function<void()> show) {
    for (const auto& view : views_)
        if (Binding* binding = view->binding_of(control)) {
            const auto before = std::move(binding->on_shown);
            binding->on_shown = [before, show = std::move(show)] {
                if (before)
                    before();
                show();
            };
            return;
        }
}

void Desktop::name_keys(const std::vector<NamedKey>& keys) {
    for (const auto& [control, key] : keys)
        if (Binding* binding = main_ == nullptr ? nullptr : main_->binding_of(*control))
            binding->set_key(to_qt(key));
}

void Desktop::name_keys_of_decks() {
    for (const Deck& deck : desk_.ring.decks)
        name_keys(keys_of_deck(deck.controls, desk_.ring.is_main(deck)));
}

// What is told in one window and read at a glance in the other.
void Desktop::connect_readings() {
    if (main_ == nullptr || list_ == nullptr || player_ == nullptr)
        return;
    watch(desk_.list_window.remaining, [this] { show_list(); });
    watch(desk_.list_window.list_status, [this] { show_list(); });
    watch(desk_.window.overlap, [this] { show_decks(); });
    main_->on_restart = [this] { services_.run_event([this] { desk_.list_window.play_list.click(); }); };
    for (DeckControls& deck : desk_.window.decks)
        for (Control* control : std::initializer_list<Control*>{&deck.title, &deck.counter, &deck.progress,
                                                                &deck.playing_mark, &deck.play, &deck.pause})
            watch(*control, [this] { show_decks(); });
    QObject::connect(&second_, &QTimer::timeout, &second_, [this] { show_second(); });
    second_.setSingleShot(true);
    second_.setTimerType(Qt::PreciseTimer);
    show_second();
}

// The clock goes on and the air is told as it is, whatever the chain does.
void Desktop::show_second() {
    clock_ = to_qt(time_text(desk_.platform));
    show_decks();
    main_->show_clock(clock_);
    show_missing();
    second_.start(1000 - QTime::currentTime().msec());
}

// An old answer is asked for anew when its row is painted, which may not happen for hours by itself.
void Desktop::show_missing() {
    const bool is_time = QTime::currentTime().second() % 15 == 0;
    if (missing_.has_news && (missing_.has_news() || is_time))
        list_->rows().repaint_all();
}

void Desktop::show_decks() {
    for (Deck& deck : desk_.ring.decks)
        main_->show_look(deck.number(), look_of(deck));
    name_keys_of_decks();
    main_->show_played("Nombre de fichiers lus : " + QString::number(desk_.chain.nb_fichiers_ecoutes.value()));
    show_air();
    show_list();
}

DeckLook Desktop::look_of(Deck& deck) {
    DeckLook look;
    look.role = role_of(desk_, deck);
    look.end_point = end_of(deck, look.role);
    look.is_refused = deck.controls.title.caption.get() == missing_title;
    if (look.role == DeckRole::empty)
        return look;
    const bool sounds = look.role == DeckRole::on_air || look.role == DeckRole::heard;
    look.is_next = deck_to_come(desk_) == &deck;
    look.is_unheard = sounds && lost_.isValid();
    look.file = to_qt(name_without_ending(deck.path));
    look.genre = to_qt(deck.genre);
    look.kind = QFileInfo{to_qt(deck.path)}.suffix().toUpper();
    if (deck_on_air(desk_) == &deck)
        look.left = seconds_left(desk_);
    if (services_.waveform_of)
        look.sound = services_.waveform_of(deck.path);
    if (begins_anew(deck, look.role)) // the bar stands at 0
        look.elapsed = static_cast<int>(Fix(deck.start_of_play()));
    look.is_paused = look.role == DeckRole::loaded && deck.pause_lecteur.is_true();
    const bool rests = look.role == DeckRole::on_air && waits_for_special_mix(desk_); // the chain's own display
    if (rests || look.is_paused || look.role == DeckRole::heard)
        ErrorIndicator{}.skip([&] { look.elapsed = deck.whole_position().value(); });
    look.mix_point = mix_point(desk_, deck);
    return look;
}

AirLook Desktop::look_of_air() {
    const Deck* deck = deck_on_air(desk_);
    const auto [next, then] = what_follows();
    const auto silent = silent_seconds(desk_);
    const QString since = silent ? QTime::fromString(clock_, "HH:mm:ss").addSecs(-*silent).toString("HH:mm:ss") : "";
    return {.role = air_role(desk_),
            .deck = deck == nullptr ? 0 : deck->number(),
            .title = name_on_air(),
            .left = clock_text(seconds_left(desk_)),
            .to_mix = seconds_to_mix(desk_),
            .next = next,
            .then = then,
            .suspended = waits_for_special_mix(desk_),
            .notice = notice(),
            .silence = to_qt(silence_text(desk_)),
            .silent_since = since,
            .of_list = desk_.chain.mode_enchainement.is_true(),
            .can_start = desk_.list_window.play_list.enabled && desk_.row_count() > 0,
            .lost_for = lost_.isValid() ? clock_text(static_cast<int>(lost_.elapsed() / 1000)).mid(3) : "",
            .is_noted = desk_.chain.journal_actif.is_true(),
            .station = station_line()};
}

// One moment's air for all windows.
void Desktop::show_air() {
    const AirLook air = look_of_air();
    const bool is_lost = lost_.isValid();
    if (!air.title.isEmpty())
        last_title_ = air.title;
    AirLook told = air; // whose header names in a silence what was the last on the air
    if (!air.silence.isEmpty())
        told.title = last_title_;
    main_->show_air(told);
    main_->show_title(air.title.isEmpty() ? air.title : to_qt(desk_.settings.nom_radio + " : ") + air.title);
    list_->follow_step(step_of(main_->size()));
    list_->show_air(
        {.title = air.title, .left = air.left, .clock = clock_, .silence = air.silence, .is_unheard = is_lost});
    player_->show_air({.role = air.role,
                       .title = air.title,
                       .left = seconds_left(desk_),
                       .silence = air.silence,
                       .is_unheard = is_lost});
}

QString Desktop::station_line() const {
    const bool writes = desk_.chain.journal_actif.is_true();
    return to_qt(desk_.settings.nom_radio) + (writes ? "  ·  journal activé" : "  ·  journal désactivé");
}

// Its length stands behind it once a deck holds it.
QString Desktop::length_beside(const std::string& next) {
    for (Deck& deck : desk_.ring.decks)
        if (deck.path == next && role_of(desk_, deck) == DeckRole::loaded)
            return " (" + clock_text(static_cast<int>(deck.controls.progress.maximum)) + ")";
    return {};
}

IsMissing Desktop::known_missing() const {
    return [this](const std::string& path) { return missing_.is_missing && missing_.is_missing(path); };
}

// What comes next, in words, and the name of what comes then.
std::pair<QString, QString> Desktop::what_follows() {
    if (waits_for_special_mix(desk_))
        return {"chaîne suspendue : mixage spécial", {}};
    if (is_stopped_by_a_fault(desk_))
        return {"Ensuite : rien", {}};
    const IsMissing is_missing = known_missing();
    const std::vector<std::string> paths = paths_to_come(desk_, is_missing);
    if (paths.empty())
        return {};
    const std::string& next = paths.front();
    return {"Ensuite : " + to_qt(name_without_ending(next)) +
                (is_missing(next) ? " (fichier absent)" : length_beside(next)),
            paths.size() > 1 && !is_missing(paths.back()) ? to_qt(name_without_ending(paths.back())) : QString{}};
}

QString Desktop::notice() const {
    if (!is_stopped_by_a_fault(desk_))
        return {};
    return desk_.chain.mode_enchainement.is_true() ? "LISTE STOPPÉE" : "ENCHAÎNEMENT STOPPÉ";
}

void Desktop::show_list() {
    const bool on = desk_.ring.has_main_deck() && desk_.chain.mode_enchainement.is_true();
    const int playing = on ? desk_.list.ligne_en_lecture.value() : 0;
    list_->rows().set_marks({.playing = playing, .next = on ? row_to_come(desk_, known_missing()) : 0});
}

void Desktop::show_output(const std::string& text, bool is_trouble) {
    if (main_ == nullptr)
        return;
    if (!is_trouble)
        lost_.invalidate();
    else if (!lost_.isValid())
        lost_.start();
    main_->show_output(to_qt(text), is_trouble);
    show_decks();
}

void Desktop::mark_missing(MissingFiles files) {
    missing_ = std::move(files);
    if (list_ != nullptr)
        list_->rows().is_missing = missing_.is_missing;
}

void Desktop::offer_outputs(OutputChoice choice) {
    QMenu* options = main_ == nullptr ? nullptr : main_->menus().menu(desk_.window.Option_);
    if (options == nullptr)
        return;
    outputs_ = std::move(choice);
    output_menu_ = std::make_unique<QMenu>("Sortie audio");
    output_menu_->setObjectName("Sortie_audio");
    options->insertMenu(line_above_what_destroys(*options), output_menu_.get());
    options->insertSeparator(output_menu_->menuAction());
    mark_letters(*options);
    QObject::connect(output_menu_.get(), &QMenu::aboutToShow, output_menu_.get(), [this] { fill_outputs(); });
}

// Cards come and go, so the entries are made when they are looked at.
void Desktop::fill_outputs() {
    output_menu_->clear();
    output_entries_ = std::make_unique<QActionGroup>(nullptr);
    std::vector<std::string> names = outputs_.names();
    const std::string chosen = outputs_.chosen();
    if (!chosen.empty() && std::ranges::find(names, chosen) == names.end())
        names.push_back(chosen);
    names.insert(names.begin(), std::string{});
    for (const std::string& name : names) {
        QAction* action = output_menu_->addAction(name.empty() ? "Sortie par défaut" : to_qt(name).replace("&", "&&"));
        action->setCheckable(true);
        output_entries_->addAction(action);
        action->setChecked(name == chosen);
        QObject::connect(action, &QAction::triggered, output_menu_.get(),
                         [this, name] { services_.run_event([&] { outputs_.choose(name); }); });
    }
    mark_letters(*output_menu_);
}

} // namespace sonarelle
