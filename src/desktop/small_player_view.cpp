#include "desktop/small_player_view.h"

#include <QBoxLayout>
#include <array>

#include "desktop/colours.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{420, 110}; // pixels at a text of 13

struct StateLook {
    const char* word;
    Accent lamp;
};

StateLook look_of(DeckRole role) {
    switch (role) {
    case DeckRole::on_air:
        return {"À l'antenne", Accent::air};
    case DeckRole::paused:
        return {"En pause", Accent::next};
    case DeckRole::heard:
        return {"En lecture", Accent::air};
    default:
        return {"En attente", Accent::none};
    }
}

} // namespace

SmallPlayerView::SmallPlayerView(mini_lecteur& window, const DesktopServices& services)
    : WindowView{window, services, {scaled(least_size.width()), scaled(least_size.height())}},
      window_{window} {
    auto* panel = new Panel;
    auto* rows = new QVBoxLayout{panel};
    rows->setContentsMargins(12, studio::grid, 12, studio::grid);
    rows->addLayout(reading());
    rows->addLayout(buttons());
    auto* column = new QVBoxLayout{&content()};
    column->setContentsMargins(studio::grid, studio::grid, studio::grid, studio::grid);
    column->addWidget(panel);
    if (QWidget* rest = remaining_parts(dresser_))
        column->addWidget(rest);
    binding_of(window.remaining)->on_shown = [this] { show_seconds(); };
    show_air({});
}

QLayout* SmallPlayerView::reading() {
    lamp_ = new Lamp;
    state_ = new StationLabel{{.type = Type::small, .bold = true, .capitals = true, .fitted = true}};
    state_->setObjectName("player_state");
    title_ = new StationLabel{{.type = Type::deck_title, .bold = true, .name = true, .characters = 16}};
    title_->setObjectName("player_title");
    seconds_ = dresser_.label(window_.remaining, {.type = Type::air_title,
                                                  .bold = true,
                                                  .digits = true,
                                                  .characters = 4,
                                                  .alignment = Qt::AlignRight | Qt::AlignVCenter});
    unit_ = new StationLabel{{.type = Type::following, .characters = 2}};
    unit_->set_text("s");
    auto* row = new QHBoxLayout;
    row->setSpacing(studio::grid);
    row->addWidget(lamp_);
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
    const std::array<std::pair<GraphicButton*, Sign>, 7> signs{{{&window_.back, Sign::back},
                                                                {&window_.play, Sign::play},
                                                                {&window_.stop, Sign::stop},
                                                                {&window_.forward, Sign::forward},
                                                                {&window_.next, Sign::zap},
                                                                {&window_.show_main_window, Sign::rows},
                                                                {&window_.quit, Sign::quit}}};
    auto* row = new QHBoxLayout;
    row->setSpacing(studio::half_grid);
    for (const auto& [button, sign] : signs) {
        StudioButton* face = dresser_.button(*button);
        face->set_sign(sign);
        row->addWidget(face, 1);
        if (button == &window_.next)
            next_ = face;
    }
    binding_of(window_.quit)->widget()->setAccessibleName("Quitter");
    binding_of(window_.quit)->set_key("Q");
    return row;
}

void SmallPlayerView::show_air(const PlayerAir& air) {
    air_ = air;
    const auto [word, lamp] = look_of(air.role);
    const bool is_alarm = !alarm().isEmpty();
    state_->set_text(is_alarm ? alarm() : QString{word}.toUpper());
    state_->set_ink(is_alarm ? studio::trouble_text : QColor{});
    lamp_->set_accent(is_alarm ? Accent::trouble : lamp);
    next_->set_accent(air.role == DeckRole::on_air ? Accent::next : Accent::none);
    title_->set_text(air.title);
    show_seconds();
}

QString SmallPlayerView::alarm() const {
    if (!air_.silence.isEmpty())
        return "SILENCE " + air_.silence;
    return air_.is_unheard ? "CARTE SON PERDUE" : "";
}

QString SmallPlayerView::title() const {
    QString state = alarm().isEmpty() ? look_of(air_.role).word : alarm();
    if (air_.title.isEmpty())
        return state;
    const QString named = state + " : " + air_.title;
    return has_seconds() ? named + ", reste " + seconds_->text() + " s" : named;
}

bool SmallPlayerView::has_seconds() const {
    return air_.role == DeckRole::on_air || air_.role == DeckRole::paused || air_.role == DeckRole::heard;
}

// Of a deck that has stopped none is left. The station's own count rests while a special mix holds the chain.
void SmallPlayerView::show_seconds() {
    seconds_->set_text(QString::number(air_.left));
    for (StationLabel* part : {seconds_, unit_})
        part->setVisible(has_seconds());
    if (windowTitle() != title())
        setWindowTitle(title());
}

} // namespace sonarelle
