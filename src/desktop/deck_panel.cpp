#include "desktop/deck_panel.h"

#include <QBoxLayout>
#include <QGridLayout>
#include <QSlider>
#include <algorithm>

#include "desktop/colours.h"
#include "desktop/progress_strip.h"
#include "desktop/qt_text.h"
#include "desktop/text_size.h"
#include "desktop/time_text.h"
#include "desktop/title_label.h"
#include "desktop/volume_bar.h"

namespace sonarelle {

namespace {

constexpr auto at_right = Qt::AlignRight | Qt::AlignVCenter;

/// Heights of a deck's rows and widths of its transport, in pixels; the zap has what is left besides.
struct DeckLengths {
    int heading, title, details, figures, least_wave;
    std::array<int, 8> transport;
    int gap;
};

constexpr std::size_t play_place = 1;
constexpr std::size_t zap_place = 6;
constexpr DeckLengths narrow{20, 24, 16, 36, 40, {30, 40, 30, 30, 30, 30, 36, 44}, 4};
constexpr DeckLengths compact{20, 24, 16, 36, 40, {36, 52, 36, 36, 36, 36, 36, 56}, 4};
constexpr DeckLengths large{22, 32, 18, 54, 106, {48, 72, 48, 48, 48, 48, 48, 88}, 8};

const DeckLengths& deck_lengths_of(Step step) {
    return step == Step::large ? large : step == Step::narrow ? narrow : compact;
}

StationLabel* label_of(const StationLabel::Style& style, const QString& text = {}) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

struct RoleLook {
    Accent card;
    Accent lamp;
    QString word;
};

RoleLook look_of(const DeckLook& look) {
    if (look.is_refused)
        return {Accent::trouble, Accent::trouble, "NON TROUVÉ"};
    if (look.is_unheard)
        return {Accent::trouble, Accent::trouble, "JOUE SANS SORTIE"};
    switch (look.role) {
    case DeckRole::loaded:
        if (look.is_paused)
            return {Accent::none, Accent::next, "EN PAUSE"};
        return look.is_next ? RoleLook{Accent::next, Accent::next, "CHARGÉ, SUIVANT"}
                            : RoleLook{Accent::none, Accent::none, "CHARGÉ"};
    case DeckRole::heard:
        return {Accent::none, Accent::air, "EN LECTURE"};
    case DeckRole::on_air:
        return {Accent::air, Accent::air, "À L'ANTENNE"};
    case DeckRole::paused:
        return {Accent::air, Accent::next, "EN PAUSE"};
    case DeckRole::ended:
        return {Accent::none, Accent::none, look.file.isEmpty() ? "" : "ARRÊTÉ"};
    case DeckRole::empty:
        break;
    }
    return {Accent::none, Accent::none, ""};
}

QColor ink_of(Accent accent) {
    return accent == Accent::air       ? studio::air_text
           : accent == Accent::next    ? studio::next_text
           : accent == Accent::trouble ? studio::trouble_text
                                       : studio::text;
}

} // namespace

DeckPanel::DeckPanel(WindowView& view, DeckControls& controls, Label& slider_stand_in, int number, QWidget* parent)
    : Panel{parent},
      view_{view},
      controls_{controls},
      number_{number},
      grid_{new QGridLayout{this}},
      lamp_{new Lamp{this}},
      name_{label_of({.type = Type::small, .bold = true, .capitals = true, .fitted = true},
                     "LECTEUR " + QString::number(number))},
      state_{label_of({.type = Type::small, .bold = true, .fitted = true})},
      kind_{label_of({.type = Type::small, .quiet = true, .characters = 5, .alignment = at_right})},
      details_{label_of({.type = Type::small, .quiet = true, .characters = 24})},
      elapsed_{label_of({.type = Type::figure, .bold = true, .digits = true, .shrinking = true, .characters = 4}, "0")},
      left_{label_of({.type = Type::figure,
                      .bold = true,
                      .digits = true,
                      .shrinking = true,
                      .characters = 7,
                      .alignment = at_right})} {
    Dresser dresser{view};
    build_labels(dresser);
    build_transport(dresser);
    build_volume(dresser, slider_stand_in);
    name_parts();
    lay_out();
    set_step(Step::compact);
    view.binding_of(controls.open)->take_drops_on(*this);
    view.binding_of(controls.progress)->on_shown = [this] { show_times(); };
    show_look({});
}

void DeckPanel::build_labels(Dresser& dresser) {
    title_ = dresser.title(controls_.title, {.type = Type::deck_title, .bold = true, .name = true, .characters = 16});
    end_ = dresser.label(controls_.counter,
                         {.type = Type::figure, .bold = true, .digits = true, .shrinking = true, .characters = 4});
    progress_ = dresser.progress(controls_.progress);
    progress_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding); // the shape takes what height there is
    const StationLabel::Style word{.type = Type::tiny, .quiet = true, .characters = 6};
    words_ = {label_of(word, "écoulé"), label_of(word, "fin"), label_of(word, "reste")};
    dresser.unseen(controls_.playing_mark); // the lamp shows the main deck
}

void DeckPanel::build_transport(Dresser& dresser) {
    const QString next = QString::number(number_ % 3 + 1);
    constexpr std::array keys{"F8", "F9", "F11"};
    const QString key = keys[static_cast<std::size_t>(number_ - 1)];
    buttons_ = {dresser.button(controls_.open), dresser.button(controls_.play),
                dresser.button(controls_.stop), dresser.button(controls_.pause),
                dresser.button(controls_.back), dresser.button(controls_.forward),
                dresser.button(controls_.zap),  dresser.button(controls_.special_mix)};
    constexpr std::array signs{Sign::open, Sign::play, Sign::stop, Sign::pause, Sign::back, Sign::forward};
    for (std::size_t place = 0; place < signs.size(); ++place)
        buttons_[place]->set_sign(signs[place]);
    buttons_[zap_place]->set_sign(Sign::zap, "Play " + next, next);
    buttons_.back()->set_words("Mix " + key, key);
}

// The decks are the same but for their number.
void DeckPanel::name_parts() {
    const QString next = QString::number(number_ % 3 + 1);
    for (const auto& [control, name] : std::initializer_list<std::pair<const Control*, QString>>{
             {&controls_.open, "Ouvrir"},
             {&controls_.play, "Lecture"},
             {&controls_.stop, "Stopper"},
             {&controls_.pause, "Pause"},
             {&controls_.back, "Reculer"},
             {&controls_.forward, "Avancer"},
             {&controls_.zap, "Zapper sur Play" + next},
             {&controls_.special_mix, "Mixage spécial"},
             {&controls_.progress, "Position"},
             {&controls_.slider, "Volume"},
             {&controls_.quieter, "Moins fort"},
             {&controls_.louder, "Plus fort"},
             {&controls_.keep_volume, "Garder le volume dans la liste"}})
        view_.binding_of(*control)->set_spoken_name(name + ", lecteur " + QString::number(number_));
}

void DeckPanel::build_volume(Dresser& dresser, Label& slider_stand_in) {
    slider_ = dresser.slider(controls_.slider, Qt::Vertical);
    // Full is at the top, and the keys follow the eye.
    slider_->setInvertedAppearance(true);
    slider_->setInvertedControls(true);
    dresser.unseen(slider_stand_in); // the bar stands there
    bar_ = new VolumeBar;
    view_.binding_of(controls_.slider)->on_shown = [this] { show_volume(); };
    percent_ = dresser.label(controls_.percent,
                             {.type = Type::base, .bold = true, .characters = 5, .alignment = Qt::AlignCenter});
    volume_buttons_ = {dresser.button(controls_.quieter), dresser.button(controls_.louder),
                       dresser.button(controls_.keep_volume)};
    volume_buttons_[0]->set_sign(Sign::minus);
    volume_buttons_[1]->set_sign(Sign::plus);
    volume_buttons_[2]->set_words("Vol.");
    for (StudioButton* button : volume_buttons_) {
        button->set_size(ButtonSize::small);
        button->set_least_width(24);
    }
}

QLayout* DeckPanel::heading() {
    auto* row = row_of({lamp_, name_, state_, kind_}, studio::grid);
    row->setStretchFactor(kind_, 1);
    row->addStretch(); // for the kind, where that gives way
    return row;
}

QLayout* DeckPanel::figures() {
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    const std::array<StationLabel*, 3> figures{elapsed_, end_, left_};
    for (int column = 0; column < 3; ++column) {
        const auto place = static_cast<std::size_t>(column);
        const Qt::Alignment side = column == 2 ? Qt::AlignRight : Qt::AlignLeft;
        grid->addWidget(words_[place], 0, column, side);
        grid->addWidget(figures[place], 1, column, side);
        grid->setColumnStretch(column, column == 2 ? 0 : 1);
    }
    return grid;
}

QLayout* DeckPanel::transport() {
    auto* row = row_of({}, studio::half_grid);
    for (StudioButton* button : buttons_)
        row->addWidget(button);
    row->setStretchFactor(buttons_[zap_place], 1);
    return row;
}

QLayout* DeckPanel::volume() {
    auto* steps = row_of({volume_buttons_[0], volume_buttons_[1]}, studio::half_grid);
    auto* column = column_of({percent_}, studio::half_grid);
    column->addWidget(slider_, 1, Qt::AlignHCenter);
    column->addWidget(bar_, 1, Qt::AlignHCenter);
    column->addLayout(steps);
    column->addWidget(volume_buttons_[2]);
    return column;
}

void DeckPanel::lay_out() {
    grid_->addLayout(heading(), 0, 0);
    grid_->addWidget(title_, 1, 0);
    grid_->addWidget(details_, 2, 0);
    grid_->addLayout(figures(), 3, 0);
    grid_->addWidget(progress_, 4, 0);
    grid_->addLayout(volume(), 0, 1, 5, 1);
    grid_->addLayout(transport(), 5, 0, 1, 2);
    grid_->setColumnStretch(0, 1);
    grid_->setRowStretch(4, 1);
}

void DeckPanel::set_step(Step step) {
    const StepLengths& lengths = lengths_of(step);
    const DeckLengths& own = deck_lengths_of(step);
    const QSize margin = lengths.card_margin;
    grid_->setContentsMargins(margin.width(), margin.height(), margin.width(), margin.height());
    grid_->setVerticalSpacing(studio::half_grid);
    grid_->setHorizontalSpacing(lengths.margin + studio::half_grid);
    grid_->setColumnMinimumWidth(1, scaled(lengths.volume));
    const std::array rows{own.heading, own.title, own.details, own.figures, own.least_wave};
    for (std::size_t row = 0; row < rows.size(); ++row)
        grid_->setRowMinimumHeight(static_cast<int>(row), scaled(rows[row]));
    kind_->setVisible(step != Step::narrow);
    for (std::size_t place = 0; place < buttons_.size(); ++place) {
        buttons_[place]->set_least_width(scaled(own.transport[place]));
        buttons_[place]->setMaximumWidth(place == zap_place ? QWIDGETSIZE_MAX : scaled(own.transport[place]));
    }
}

void DeckPanel::show_look(const DeckLook& look) {
    look_ = look;
    show_state();
    const double whole = controls_.progress.maximum;
    const auto share = [&](std::optional<double> second) -> std::optional<double> {
        const bool shown = look.role != DeckRole::empty && second && whole > 0;
        return shown ? std::optional{std::min(1.0, *second / whole)} : std::nullopt; // the bar has whole seconds
    };
    progress_->set_sound(look.sound, whole);
    progress_->set_marks(share(look.mix_point), share(look.end_point));
    show_times();
}

void DeckPanel::show_state() {
    const auto [card, lamp, word] = look_of(look_);
    const bool on_air = look_.role == DeckRole::on_air;
    set_accent(card);
    lamp_->set_accent(lamp);
    state_->set_text(word);
    state_->set_ink(ink_of(card));
    kind_->set_text(look_.genre.isEmpty() ? look_.kind : look_.kind + " · " + look_.genre);
    kind_->set_narrow_text(look_.kind);
    buttons_[play_place]->set_accent(on_air ? Accent::air : Accent::none);
    buttons_[play_place]->setAccessibleDescription(on_air ? "le lecteur est à l'antenne" : "");
    view_.binding_of(controls_.play)->set_lit(on_air);
    buttons_[zap_place]->set_accent(on_air ? Accent::next : Accent::none);
    title_->set_file(look_.file);
    const QColor ink = is_bare() ? studio::caption : QColor{};
    for (StationLabel* label : std::initializer_list<StationLabel*>{title_, elapsed_, end_, left_})
        label->set_ink(ink);
    progress_->set_fill(lamp == Accent::next ? studio::next : studio::air);
    progress_->set_output(!look_.is_unheard);
}

/// Nothing is on it, and nothing was looked for in vain.
bool DeckPanel::is_bare() const {
    const bool holds_nothing = look_.role == DeckRole::empty || look_.role == DeckRole::ended;
    return holds_nothing && look_.file.isEmpty() && !look_.is_refused;
}

// While the slider is hidden the bar in its place can't be moved.
void DeckPanel::show_volume() {
    const Slider& slider = controls_.slider;
    const int span = slider.maximum - slider.minimum;
    bar_->setVisible(!slider.visible);
    bar_->set_share(span > 0 ? 1.0 * (slider.maximum - slider.value()) / span : 1);
}

void DeckPanel::show_times() {
    const bool is_empty = look_.role == DeckRole::empty;
    const double whole = controls_.progress.maximum;
    const int elapsed = look_.elapsed.value_or(static_cast<int>(controls_.progress.value.get()));
    if (look_.elapsed && whole > 0)
        progress_->set_share(*look_.elapsed / whole);
    elapsed_->set_text(QString::number(elapsed));
    const int end = static_cast<int>(look_.end_point.value_or(0));
    if (look_.end_point) // whole seconds, as beside it
        end_->set_text(QString::number(end));
    left_->set_text(clock_text(is_empty ? 0 : look_.left.value_or(end - elapsed)));
    QString details = clock_text(is_empty ? 0 : static_cast<int>(whole));
    if (!is_empty && look_.mix_point)
        details += "  ·  mix a " + QString::number(static_cast<int>(*look_.mix_point)) + " s";
    if (look_.role == DeckRole::ended && !look_.file.isEmpty())
        details += "  ·  En attente";
    details_->set_text(details);
}

} // namespace sonarelle
