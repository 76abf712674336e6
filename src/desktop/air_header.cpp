#include "desktop/air_header.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>

#include "desktop/colours.h"
#include "desktop/dresser.h"
#include "desktop/panel.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

namespace {

constexpr QSize banner_size{475, 40};
constexpr int title_height = 50; // two lines
constexpr QColor alarm_ground{0xb0, 0x14, 0x1e};
constexpr Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;

// An accent as the ink of a text on the dark ground.
QColor ink_of(const QColor& accent) {
    return mixed(accent, Qt::white, 0.25);
}

void colour(QWidget& label, const QColor& ink) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, ink);
    if (palette != label.palette())
        label.setPalette(palette);
}

} // namespace

AirHeader::AirHeader(Dresser& dresser, Antenne_FM& window)
    : heading_{new StationLabel{{.type = Type::small, .characters = 20}}},
      title_{new StationLabel{{.type = Type::deck_title, .bold = true, .wrapped = true, .characters = 14}}},
      next_{new StationLabel{{.type = Type::following, .characters = 16}}},
      remaining_{new StationLabel{
          {.type = Type::remaining, .bold = true, .digits = true, .characters = 7, .alignment = Qt::AlignCenter}}},
      left_word_{
          new StationLabel{{.type = Type::small, .bold = true, .quiet = true, .characters = 5, .alignment = right}}},
      to_mix_{new StationLabel{{.type = Type::small, .bold = true, .digits = true, .characters = 15}}},
      time_{new QWidget},
      silence_{
          new StationLabel{{.type = Type::clock, .bold = true, .digits = true, .characters = 18, .alignment = right}}},
      notice_{new StationLabel{{.type = Type::air_title, .bold = true, .alignment = right}}},
      clock_{new StationLabel{{.type = Type::deck_title, .digits = true, .characters = 8, .alignment = right}}},
      banner_{new QWidget} {
    setMouseTracking(true);
    setObjectName("air_header");
    name_labels();
    title_->setFixedHeight(title_height);
    banner_->setFixedSize(banner_size);
    QLabel* movie = dresser.movie(window.banner);
    movie->setParent(banner_);
    movie->setFixedSize(banner_size);
    notice_->setFixedSize(banner_size);
    remaining_->set_text("00:00:00");
    left_word_->set_text("RESTE");
    auto* time = new QVBoxLayout{time_};
    time->setContentsMargins(0, 0, 0, 0);
    time->setSpacing(0);
    time->addWidget(remaining_);
    time->addLayout(row_of({nullptr, left_word_, to_mix_, nullptr}, 4));
    auto* grid = new QGridLayout{this};
    grid->setContentsMargins(8, 0, 8, 0);
    grid->setHorizontalSpacing(10);
    grid->setVerticalSpacing(4);
    grid->addLayout(column_of({heading_, title_, next_, mark(dresser, window)}, 2), 0, 0, 2, 1);
    grid->addWidget(time_, 0, 1, 2, 1);
    grid->addWidget(clock_, 0, 2);
    grid->addWidget(banner_, 1, 2);
    grid->addWidget(notice_, 1, 2);
    grid->addWidget(silence_, 1, 1, 1, 2);
    setMinimumHeight(112);
    grid->setColumnStretch(0, 1);
    show_alarm();
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
                                      {notice_, "air_notice"},
                                      {clock_, "clock"}})
        label->setObjectName(name);
    remaining_->setAccessibleName("Temps restant");
}

void AirHeader::show_air(const AirLook& look) {
    if (look == look_)
        return;
    look_ = look;
    title_->set_text(look.title);
    remaining_->set_text(look.left);
    to_mix_->set_text(look.to_mix ? "· MIX DANS " + QString::number(*look.to_mix) + " s" : QString{});
    next_->set_text(look.next);
    show_heading();
    show_alarm();
}

void AirHeader::show_heading() {
    const QString play = " — Play " + QString::number(look_.deck);
    switch (look_.role) {
    case DeckRole::on_air:
        return heading_->set_text("● À L'ANTENNE" + play);
    case DeckRole::paused:
        return heading_->set_text("EN PAUSE" + play);
    case DeckRole::heard:
        return heading_->set_text("● EN LECTURE" + play);
    default:
        return heading_->set_text("EN ATTENTE");
    }
}

void AirHeader::show_card_lost(bool lost) {
    card_lost_ = lost;
    show_alarm();
}

// The remaining time and the banner make room, so that nothing below moves.
void AirHeader::show_alarm() {
    const bool silent = !look_.silence.isEmpty();
    silence_->set_text("SILENCE depuis " + look_.silence);
    notice_->set_text(card_lost_ ? "CARTE SON PERDUE" : look_.notice);
    const bool noticed = !notice_->text().isEmpty() && !silent;
    silence_->setVisible(silent);
    time_->setVisible(!silent);
    notice_->setVisible(noticed);
    banner_->setVisible(!silent && !noticed && !look_.suspended);
    setAccessibleName(silent ? silence_->text() : notice_->text());
    QPalette told; // what the texts stand on
    if (alarms())
        told.setColor(QPalette::Window, alarm_ground);
    setPalette(told);
    colour_labels();
    update();
}

void AirHeader::colour_labels() {
    const auto ink = [this](const QColor& at_rest) { return alarms() ? QColor{Qt::white} : ink_of(at_rest); };
    const bool is_heard = look_.role == DeckRole::on_air || look_.role == DeckRole::heard;
    const QColor state = is_heard ? studio::air : look_.role == DeckRole::paused ? studio::next : studio::text;
    colour(*heading_, ink(state));
    colour(*next_, ink(studio::next));
    colour(*to_mix_, ink(studio::next));
    colour(*notice_, ink(studio::next));
    for (StationLabel* label : {title_, remaining_, left_word_, silence_, clock_})
        if (alarms())
            colour(*label, Qt::white);
        else
            label->setPalette({});
}

void AirHeader::paintEvent(QPaintEvent*) {
    if (!alarms())
        return;
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(alarm_ground);
    painter.drawRoundedRect(rect(), 8, 8);
}

} // namespace sonarelle
