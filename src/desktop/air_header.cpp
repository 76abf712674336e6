#include "desktop/air_header.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/dresser.h"
#include "desktop/text_size.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

namespace {

constexpr QSize banner_size{475, 40};
constexpr int side_margin = 12;
constexpr int below_alarm = 4; // what parts the red from the decks
constexpr auto at_right = Qt::AlignRight | Qt::AlignVCenter;

StationLabel* label_of(const StationLabel::Style& style, const QString& text = {}) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

QString heading_of(DeckRole role) {
    switch (role) {
    case DeckRole::on_air:
        return "À L'ANTENNE";
    case DeckRole::paused:
        return "EN PAUSE";
    case DeckRole::heard:
        return "EN LECTURE";
    default:
        return "EN ATTENTE";
    }
}

Accent lamp_of(DeckRole role) {
    const bool is_heard = role == DeckRole::on_air || role == DeckRole::heard;
    return is_heard ? Accent::air : role == DeckRole::paused ? Accent::next : Accent::none;
}

} // namespace

AirHeader::AirHeader(Dresser& dresser, Antenne_FM& window)
    : grid_{new QGridLayout{this}},
      lamp_{new Lamp},
      heading_{label_of({.type = Type::small, .bold = true, .capitals = true, .characters = 26})},
      title_{label_of({.type = Type::air_title, .bold = true, .name = true, .characters = 14})},
      next_{label_of({.type = Type::following, .bold = true, .name = true, .characters = 20})},
      remaining_{label_of(
          {.type = Type::remaining, .bold = true, .digits = true, .characters = 7, .alignment = Qt::AlignCenter},
          "00:00:00")},
      left_word_{label_of({.type = Type::small, .quiet = true, .capitals = true, .fitted = true, .alignment = at_right},
                          "RESTE")},
      to_mix_{label_of({.type = Type::small, .capitals = true, .digits = true, .characters = 17})},
      silence_{label_of(
          {.type = Type::alarm, .bold = true, .digits = true, .characters = 18, .alignment = Qt::AlignCenter})},
      remedy_{label_of({.type = Type::small, .bold = true, .characters = 34, .alignment = Qt::AlignCenter},
                       "lecture liste (Entrée) pour relancer")},
      clock_{label_of({.type = Type::clock, .digits = true, .characters = 8, .alignment = at_right})},
      station_{label_of({.type = Type::small, .quiet = true, .characters = 32, .alignment = at_right})},
      banner_{new QWidget} {
    setMouseTracking(true);
    setObjectName("air_header");
    name_labels();
    banner_->setFixedSize(banner_size);
    QLabel* movie = dresser.movie(window.banner);
    movie->setParent(banner_);
    movie->setFixedSize(banner_size);
    auto* words = row_of({nullptr, left_word_, to_mix_, nullptr}, studio::half_grid);
    auto* time = column_of({remaining_, silence_}, 0);
    time->addLayout(words);
    time->addWidget(remedy_);
    grid_->setContentsMargins(0, 0, 0, 0);
    grid_->setSpacing(studio::grid);
    grid_->addLayout(left_column(dresser, window), 0, 0, Qt::AlignVCenter);
    grid_->addLayout(time, 0, 1, Qt::AlignVCenter);
    grid_->addLayout(right_column(), 0, 2, Qt::AlignVCenter);
    set_step(Step::compact);
    show_state();
}

QLayout* AirHeader::left_column(Dresser& dresser, Antenne_FM& window) const {
    auto* state = row_of({lamp_, heading_}, studio::grid);
    state->setStretchFactor(heading_, 1);
    auto* column = column_of({}, 0);
    column->setContentsMargins(side_margin, 0, 0, 0);
    column->addLayout(state);
    for (QWidget* part : {static_cast<QWidget*>(title_), static_cast<QWidget*>(next_), mark(dresser, window)})
        column->addWidget(part);
    return column;
}

QLayout* AirHeader::right_column() {
    auto* column = column_of({clock_, station_}, 2);
    column->setContentsMargins(0, 0, side_margin, 0);
    column->addWidget(banner_, 0, Qt::AlignRight);
    return column;
}

QWidget* AirHeader::mark(Dresser& dresser, Antenne_FM& window) const {
    StudioButton* mark = dresser.image(window.background_picture);
    mark->set_look(ButtonLook::picture);
    mark->setFocusPolicy(Qt::NoFocus);
    mark->setMaximumHeight(20);
    return mark;
}

// Not the station's controls, so the names are the view's.
void AirHeader::name_labels() {
    for (const auto& [label, name] : {std::pair{heading_, "air_state"},
                                      {title_, "air_title"},
                                      {next_, "air_next"},
                                      {remaining_, "remaining"},
                                      {to_mix_, "air_to_mix"},
                                      {silence_, "air_silence"},
                                      {remedy_, "air_remedy"},
                                      {station_, "air_station"},
                                      {clock_, "clock"}})
        label->setObjectName(name);
    remaining_->setAccessibleName("Temps restant");
}

void AirHeader::set_step(Step step) {
    const StepLengths& lengths = lengths_of(step);
    setFixedHeight(scaled(lengths.header));
    step_ = step;
    show_banner();
}

// The first to go where there is little room.
void AirHeader::show_banner() {
    banner_->setVisible(step_ == Step::large && !alarms());
}

void AirHeader::show_air(const AirLook& look) {
    if (look == look_)
        return;
    look_ = look;
    show_state();
}

void AirHeader::show_state() {
    show_words();
    show_time();
    show_banner();
    colour_labels();
    setAccessibleName(is_silent() ? silence_->text() : alarms() ? title_->text() : look_.notice);
    QPalette told; // what the texts stand on
    if (alarms())
        told.setColor(QPalette::Window, studio::trouble_fill);
    setPalette(told);
    update();
}

void AirHeader::show_words() {
    const bool lost = !look_.lost_for.isEmpty();
    const bool plays = look_.role != DeckRole::empty && look_.role != DeckRole::ended;
    const QString silent = look_.of_list ? "LISTE ACTIVE, RIEN N'EST DIFFUSÉ" : "RIEN N'EST DIFFUSÉ";
    heading_->set_text(is_silent() ? silent
                       : lost      ? "PERSONNE N'ENTEND"
                       : plays     ? heading_of(look_.role) + " — Play " + QString::number(look_.deck)
                                   : heading_of(look_.role));
    title_->set_text(lost && !is_silent() ? "CARTE SON PERDUE" : look_.title);
    const QString unheard = look_.title.isEmpty() ? QString{} : " : " + look_.title + " joue sans sortie";
    const QString following = is_silent() ? "dernier titre diffusé, arrêté à " + look_.silent_since
                              : lost      ? "depuis " + look_.lost_for + unheard
                                          : look_.next;
    const bool tells_more = !alarms() && !look_.then.isEmpty();
    next_->set_text(tells_more ? following + ", puis " + look_.then : following);
    next_->set_narrow_text(tells_more ? following : QString{});
    station_->set_text(!look_.notice.isEmpty()         ? look_.notice
                       : is_silent() && look_.is_noted ? "noté au journal"
                       : lost && !is_silent()          ? "reprise dès le retour de la carte"
                                                       : look_.station);
}

// Three equal columns, as of the decks below; the words of a silence take more of the middle.
void AirHeader::show_time() {
    remaining_->set_text(look_.left);
    to_mix_->set_text(look_.to_mix ? "·  MIX DANS " + QString::number(*look_.to_mix) + " s" : QString{});
    silence_->set_text("SILENCE depuis " + look_.silence);
    for (QWidget* part : {remaining_, left_word_})
        part->setVisible(!is_silent());
    to_mix_->setVisible(!is_silent() && look_.to_mix.has_value());
    silence_->setVisible(is_silent());
    remedy_->setVisible(offers_restart());
    grid_->setColumnStretch(0, 2);
    grid_->setColumnStretch(1, is_silent() ? 3 : 2);
    grid_->setColumnStretch(2, 2);
}

// White on the red of an alarm; at rest each in the colour of what it speaks of.
void AirHeader::colour_labels() {
    const auto ink = [this](const QColor& at_rest) { return alarms() ? QColor{Qt::white} : at_rest; };
    const Accent lamp = lamp_of(look_.role);
    lamp_->set_accent(alarms() ? Accent::primary : lamp);
    heading_->set_ink(ink(lamp == Accent::air    ? studio::air_text
                          : lamp == Accent::next ? studio::next_text
                                                 : studio::second));
    next_->set_ink(ink(studio::next_text));
    to_mix_->set_ink(ink(studio::next_text));
    station_->set_ink(alarms() ? QColor{Qt::white} : look_.notice.isEmpty() ? QColor{} : studio::next_text);
    for (StationLabel* label : {title_, remaining_, left_word_, silence_, remedy_, clock_})
        label->set_ink(alarms() ? QColor{Qt::white} : QColor{});
}

void AirHeader::paintEvent(QPaintEvent*) {
    if (!alarms())
        return;
    QPainter painter{this};
    painter.fillRect(rect().adjusted(0, 0, 0, -below_alarm), studio::trouble_fill);
}

} // namespace sonarelle
