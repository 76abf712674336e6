#include "desktop/deck_panel.h"

#include <QBoxLayout>
#include <QSlider>

#include "desktop/colours.h"
#include "desktop/progress_strip.h"
#include "desktop/qt_text.h"
#include "desktop/title_label.h"

namespace sonarelle {

namespace {

constexpr int least_transport_height = 36;
constexpr StationLabel::Style aside{.type = Type::tiny, .quiet = true, .characters = 11};
constexpr StationLabel::Style figure{.type = Type::figure, .digits = true, .characters = 5};
constexpr StationLabel::Style right_figure{
    .type = Type::figure, .digits = true, .characters = 5, .alignment = Qt::AlignRight | Qt::AlignVCenter};

StationLabel* aside_label(const QString& text, Qt::Alignment alignment = Qt::AlignLeft) {
    auto* label = new StationLabel{aside};
    auto style = aside;
    style.alignment = alignment | Qt::AlignVCenter;
    label->set_style(style);
    label->set_text(text);
    return label;
}

struct RoleLook {
    Accent frame;
    Accent lamp;
    const char* word;
};

RoleLook look_of(DeckRole role) {
    switch (role) {
    case DeckRole::loaded:
        return {Accent::next, Accent::next, "chargé"};
    case DeckRole::heard:
        return {Accent::none, Accent::air, "en lecture"};
    case DeckRole::on_air:
        return {Accent::air, Accent::air, "à l'antenne"};
    case DeckRole::paused:
        return {Accent::air, Accent::next, "en pause"};
    case DeckRole::ended:
    case DeckRole::empty:
        break;
    }
    return {Accent::none, Accent::none, ""};
}

} // namespace

DeckPanel::DeckPanel(WindowView& view, DeckControls& controls, Label& slider_stand_in, int number, QWidget* parent)
    : Panel{parent},
      view_{view},
      controls_{controls},
      lamp_{new Lamp{this}},
      state_{aside_label({}, Qt::AlignRight)},
      elapsed_{new StationLabel{figure, this}} {
    Dresser dresser{view};
    auto* left = new QVBoxLayout;
    left->setSpacing(5);
    left->addLayout(heading(number));
    title_ = dresser.title(controls.title, {.type = Type::deck_title, .bold = true, .characters = 16});
    left->addWidget(title_);
    left->addLayout(figures(dresser));
    progress_ = dresser.progress(controls.progress);
    progress_->setAccessibleName("Position, lecteur " + QString::number(number));
    progress_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding); // the shape takes what height there is
    left->addWidget(progress_, 1);
    left->addLayout(transport(dresser, number));
    auto* row = new QHBoxLayout{this};
    row->setContentsMargins(12, 10, 10, 10);
    row->setSpacing(10);
    row->addLayout(left, 1);
    row->addLayout(volume(dresser, slider_stand_in));
    view.binding_of(controls.open)->take_drops_on(*this);
    view.binding_of(controls.progress)->on_shown = [this] { show_elapsed(); };
}

QLayout* DeckPanel::heading(int number) {
    auto* name = aside_label("LECTEUR " + QString::number(number));
    auto* row = row_of({lamp_, name, nullptr, state_});
    // The station's own mark of the main deck: the lamp shows it.
    auto* mark = Dresser{view_}.image(controls_.playing_mark, "▶");
    mark->set_look(ButtonLook::picture);
    mark->setMaximumSize(18, 18);
    mark->setFocusPolicy(Qt::NoFocus);
    // The deck's parts stay where they are when it comes.
    QSizePolicy room = mark->sizePolicy();
    room.setRetainSizeWhenHidden(true);
    mark->setSizePolicy(room);
    row->addWidget(mark);
    return row;
}

QLayout* DeckPanel::figures(Dresser& dresser) {
    auto* end = dresser.label(controls_.counter, right_figure);
    auto* grid = new QGridLayout;
    grid->setSpacing(0);
    grid->addWidget(elapsed_, 0, 0, Qt::AlignLeft);
    grid->addWidget(end, 0, 1, Qt::AlignRight);
    grid->addWidget(aside_label("écoulé"), 1, 0);
    grid->addWidget(aside_label("fin", Qt::AlignRight), 1, 1);
    elapsed_->set_text("0");
    return grid;
}

QLayout* DeckPanel::transport(Dresser& dresser, int number) {
    auto* open = dresser.button(controls_.open, "Ouvrir");
    open->setAccessibleName("Ouvrir, lecteur " + QString::number(number));
    play_ = dresser.button(controls_.play, "▶");
    play_->setAccessibleName("Lecture, lecteur " + QString::number(number));
    auto* stop = dresser.button(controls_.stop, "■");
    auto* pause = dresser.button(controls_.pause, "II");
    auto* back = dresser.button(controls_.back, "◀◀");
    auto* forward = dresser.button(controls_.forward, "▶▶");
    zap_ = dresser.button(controls_.zap, "→ Play" + QString::number(number % 3 + 1));
    constexpr std::array keys{"F8", "F9", "F11"};
    auto* mix =
        dresser.button(controls_.special_mix, QStringLiteral("Mix ") + keys[static_cast<std::size_t>(number - 1)]);
    auto* grid = new QGridLayout;
    grid->setHorizontalSpacing(5);
    grid->setVerticalSpacing(5);
    grid->addWidget(open, 0, 0, 1, 3);
    int column = 3;
    for (StudioButton* button : {play_, stop, pause}) {
        grid->addWidget(button, 0, column, 1, 3);
        column += 3;
    }
    grid->addWidget(back, 1, 0, 1, 2);
    grid->addWidget(forward, 1, 2, 1, 2);
    grid->addWidget(zap_, 1, 4, 1, 5);
    grid->addWidget(mix, 1, 9, 1, 3);
    for (StudioButton* button : {open, play_, stop, pause, back, forward, zap_, mix})
        button->setMinimumHeight(least_transport_height);
    for (int i = 0; i < 12; ++i)
        grid->setColumnStretch(i, 1);
    return grid;
}

QLayout* DeckPanel::volume(Dresser& dresser, Label& slider_stand_in) {
    auto* louder = dresser.button(controls_.louder, "+");
    auto* quieter = dresser.button(controls_.quieter, "−");
    auto* slider = dresser.slider(controls_.slider, Qt::Vertical);
    // Full is at the top, and the keys follow the eye.
    slider->setInvertedAppearance(true);
    slider->setInvertedControls(true);
    slider->setMinimumHeight(70);
    auto* stand_in = dresser.label(slider_stand_in, {.characters = 3, .alignment = Qt::AlignCenter});
    auto* percent = dresser.label(controls_.percent, {.digits = true, .characters = 5, .alignment = Qt::AlignCenter});
    auto* keep = dresser.button(controls_.keep_volume, "Vol.");
    auto* column = new QVBoxLayout;
    column->setSpacing(4);
    for (StudioButton* button : {louder, quieter, keep})
        button->set_least_width(44);
    column->addWidget(louder, 0, Qt::AlignHCenter);
    column->addWidget(slider, 1, Qt::AlignHCenter);
    column->addWidget(stand_in, 0, Qt::AlignHCenter);
    column->addWidget(quieter, 0, Qt::AlignHCenter);
    column->addWidget(percent, 0, Qt::AlignHCenter);
    column->addWidget(keep, 0, Qt::AlignHCenter);
    column->addStretch(0); // the slider may be hidden
    return column;
}

void DeckPanel::show_elapsed() {
    elapsed_->set_text(QString::number(controls_.progress.value.get()));
}

void DeckPanel::show_look(const DeckLook& look) {
    const auto [frame, lamp, word] = look_of(look.role);
    const bool on_air = look.role == DeckRole::on_air;
    set_accent(frame);
    lamp_->set_accent(lamp);
    play_->set_accent(on_air ? Accent::air : Accent::none);
    zap_->set_accent(on_air ? Accent::next : Accent::none);
    state_->set_text(word);
    title_->set_heard(look.heard);
    progress_->set_fill(lamp == Accent::air ? studio::air : studio::next);
    const double whole = controls_.progress.maximum;
    const auto share = [&](std::optional<double> second) -> std::optional<double> {
        const bool shown = look.role != DeckRole::empty && second && whole > 0;
        return shown ? std::optional{*second / whole} : std::nullopt;
    };
    progress_->set_sound(look.sound, whole);
    progress_->set_marks(share(look.mix_point), share(look.end_point));
    if (look.elapsed && whole > 0) {
        progress_->set_share(*look.elapsed / whole);
        elapsed_->set_text(QString::number(*look.elapsed));
    }
}

} // namespace sonarelle
