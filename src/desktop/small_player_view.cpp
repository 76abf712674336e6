#include "desktop/small_player_view.h"

#include <QBoxLayout>
#include <array>

#include "desktop/panel.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{420, 110};

QString state_word(DeckRole role) {
    switch (role) {
    case DeckRole::on_air:
        return "● À L'ANTENNE";
    case DeckRole::paused:
        return "II EN PAUSE";
    default:
        return "■ EN ATTENTE";
    }
}

} // namespace

SmallPlayerView::SmallPlayerView(mini_lecteur& window, const DesktopServices& services)
    : WindowView{window, services, least_size},
      window_{window} {
    auto* panel = new Panel;
    auto* rows = new QVBoxLayout{panel};
    rows->addLayout(reading());
    rows->addLayout(buttons());
    auto* column = new QVBoxLayout{&content()};
    column->setContentsMargins(6, 6, 6, 6);
    column->addWidget(panel);
    if (QWidget* rest = remaining_parts(dresser_))
        column->addWidget(rest);
    binding_of(window.remaining)->on_shown = [this] { show_seconds(); };
    show_air(DeckRole::empty, {});
}

QLayout* SmallPlayerView::reading() {
    state_ = new StationLabel{{.type = Type::base, .bold = true, .characters = 15}};
    state_->setObjectName("player_state");
    title_ = new StationLabel{{.type = Type::following, .bold = true, .characters = 16}};
    title_->setObjectName("player_title");
    seconds_ = dresser_.label(window_.remaining, {.type = Type::air_title,
                                                  .bold = true,
                                                  .digits = true,
                                                  .characters = 4,
                                                  .alignment = Qt::AlignRight | Qt::AlignVCenter});
    unit_ = new StationLabel{{.type = Type::following, .characters = 2}};
    unit_->set_text("s");
    auto* row = new QHBoxLayout;
    row->addWidget(state_);
    row->addWidget(title_, 1);
    for (StationLabel* part : {seconds_, unit_}) {
        QSizePolicy room = part->sizePolicy();
        room.setRetainSizeWhenHidden(true);
        part->setSizePolicy(room);
        row->addWidget(part);
    }
    return row;
}

QLayout* SmallPlayerView::buttons() {
    const std::array<std::pair<GraphicButton*, const char*>, 7> signs{{{&window_.back, "◀◀"},
                                                                       {&window_.play, "▶"},
                                                                       {&window_.stop, "■"},
                                                                       {&window_.forward, "▶▶"},
                                                                       {&window_.next, "⇥"},
                                                                       {&window_.show_main_window, "☰"},
                                                                       {&window_.quit, "✕"}}};
    auto* row = new QHBoxLayout;
    for (const auto& [button, sign] : signs)
        row->addWidget(dresser_.button(*button, sign), 1);
    binding_of(window_.quit)->widget()->setAccessibleName("Quitter");
    return row;
}

void SmallPlayerView::show_air(DeckRole role, const QString& title, const QString& silence) {
    role_ = role;
    state_->set_text(silence.isEmpty() ? state_word(role) : "SILENCE " + silence);
    state_->set_alarming(!silence.isEmpty());
    title_->set_text(title);
    show_seconds();
}

// Of a deck that has stopped none is left.
void SmallPlayerView::show_seconds() {
    for (StationLabel* part : {seconds_, unit_})
        part->setVisible(role_ == DeckRole::on_air || role_ == DeckRole::paused);
}

} // namespace sonarelle
