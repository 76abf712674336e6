#include "desktop/lower_panels.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>

#include "desktop/control_painters.h"
#include "desktop/desk_row.h"
#include "desktop/dresser.h"
#include "desktop/level_meter.h"
#include "desktop/qt_text.h"
#include "desktop/segments.h"
#include "desktop/sound_picture.h"
#include "desktop/text_size.h"
#include "windows/antenne_fm.h"

namespace sonarelle {

namespace {

// Pixels.
constexpr int overlap_width = 44;
constexpr int heading_height = 18;
constexpr int edge = 7; // above the heading, and below the last row
const QString quick_load_heading = "CHARGEMENT RAPIDE";

StationLabel* label_of(const StationLabel::Style& style, const QString& text = {}) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

/// A card with its heading, and at the right of that what else is said there.
class HeadedPanel : public Panel, public Stepped {
public:
    HeadedPanel(const QString& heading, StationLabel* aside = nullptr)
        : column_{new QVBoxLayout{this}},
          heading_{label_of({.type = Type::tiny, .quiet = true, .capitals = true, .fitted = true}, heading)},
          aside_{aside} {
        auto* head = row_of({heading_}, studio::grid);
        if (aside != nullptr)
            head->addWidget(aside, 1);
        else
            head->addStretch(1);
        column_->addLayout(head);
        set_step(Step::compact);
    }

    [[nodiscard]] QVBoxLayout& column() { return *column_; }

    void set_step(Step step) override {
        const int side = lengths_of(step).card_margin.width();
        column_->setContentsMargins(side, edge, side, edge);
        column_->setSpacing(lengths_of(step).gap);
        // The rows below stay where they are, whatever comes and goes beside the heading.
        for (StationLabel* words : {heading_, aside_})
            if (words != nullptr)
                words->setFixedHeight(scaled(heading_height));
    }

private:
    QVBoxLayout* column_;
    StationLabel* heading_;
    StationLabel* aside_;
};

/// The arrow keys in the overlap's field take its steps, and Return leaves it and is nothing more.
class StepKeys : public QObject {
public:
    StepKeys(QLineEdit& field, Slider& steps, const DesktopServices& services)
        : QObject{&field},
          field_{field},
          steps_{steps},
          services_{services} {
        field.installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* field, QEvent* event) override {
        const int key = event->type() == QEvent::KeyPress ? static_cast<QKeyEvent*>(event)->key() : 0;
        if (key == Qt::Key_Return || key == Qt::Key_Enter) {
            field_.window()->setFocus();
            return true;
        }
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            return QObject::eventFilter(field, event);
        services_.run_event([&] { steps_.set_value(steps_.value() + (key == Qt::Key_Up ? 1 : -1)); });
        return true;
    }

private:
    QLineEdit& field_;
    Slider& steps_;
    const DesktopServices& services_;
};

/// Less, the overlap's seconds, more.
QLayout* overlap_steps(WindowView& view, Dresser& dresser, Antenne_FM& window) {
    auto* overlap = dresser.text_box(window.overlap);
    overlap->setAccessibleName("Superposition en secondes");
    overlap->setFixedWidth(scaled(overlap_width));
    overlap->setAlignment(Qt::AlignCenter);
    new StepKeys{*overlap, window.overlap_steps, view.services()}; // which the field then owns
    dresser.unseen(window.overlap_steps);
    auto* less = dresser.image(window.overlap_less);
    auto* more = dresser.image(window.overlap_more);
    less->set_sign(Sign::minus);
    more->set_sign(Sign::plus);
    less->setAccessibleName("Superposition moins une seconde");
    more->setAccessibleName("Superposition plus une seconde");
    for (StudioButton* step : {less, more})
        step->set_size(ButtonSize::control);
    auto* unit = label_of({.type = Type::base, .quiet = true, .fitted = true}, "s de superposition");
    unit->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    unit->set_narrow_text("s");
    return row_of({less, overlap, more, unit}, studio::half_grid);
}

SegmentedChoice* chain_choice(WindowView& view, Antenne_FM& window) {
    Dresser dresser{view};
    return new SegmentedChoice{{dresser.mode(window.deck_chain_lamp, window.mix_titles),
                                dresser.mode(window.list_chain_lamp, window.mix_list)}};
}

Panel* chain_panel(WindowView& view, Antenne_FM& window, SegmentedChoice* modes) {
    Dresser dresser{view};
    auto* running = dresser.label(
        window.running_chain,
        {.type = Type::small, .quiet = true, .characters = 16, .alignment = Qt::AlignRight | Qt::AlignVCenter});
    // While no chain runs it says what the next panel is headed by.
    view.binding_of(window.running_chain)->on_shown = [running] {
        running->setVisible(running->text().toUpper() != quick_load_heading);
    };
    auto* panel = new HeadedPanel{"ENCHAÎNEMENT", running};
    auto* hourly = dresser.image(window.hourly_styles, "Top horaire");
    hourly->set_size(ButtonSize::control);
    hourly->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    auto* choice = row_of({modes, hourly}, studio::grid);
    choice->setStretchFactor(modes, 1);
    auto* mix = row_of({}, studio::grid);
    mix->addLayout(overlap_steps(view, dresser, window), 1);
    mix->addWidget(dresser.check_box(window.load_ahead));
    panel->column().addLayout(choice);
    panel->column().addLayout(mix);
    panel->column().addStretch(1);
    return panel;
}

Panel* quick_load_panel(WindowView& view, Antenne_FM& window) {
    Dresser dresser{view};
    auto* panel = new HeadedPanel{
        quick_load_heading,
        label_of({.type = Type::small, .quiet = true, .fitted = true, .alignment = Qt::AlignRight | Qt::AlignVCenter},
                 "espace : choisir le lecteur")};
    for (const auto& [box, sign, name] :
         {std::tuple{&window.favourites, Sign::star, "Favoris"}, {&window.jingles, Sign::note, "Jingles"}}) {
        QComboBox* chooser = dresser.combo_box(*box);
        view.binding_of(*box)->set_spoken_name(name);
        chooser->setProperty(sign_before_text, static_cast<int>(sign));
        panel->column().addWidget(chooser);
    }
    panel->column().addStretch(1);
    return panel;
}

Panel* effect_panel(WindowView& view, Antenne_FM& window, const SoundReading& sound) {
    auto* panel = new HeadedPanel{"EFFET VISUEL"};
    auto* picture = new SoundPictureView{sound};
    Binding& binding =
        view.keep(std::make_unique<SoundDisplayBinding>(window.sound_display, *picture, view.services()));
    binding.on_shown = [panel, &window] { panel->setVisible(window.sound_display.visible); };
    panel->column().addWidget(picture, 1);
    return panel;
}

Panel* meter_panel(WindowView& view, Antenne_FM& window, const SoundReading& sound) {
    Dresser dresser{view};
    auto* figure =
        label_of({.type = Type::small, .bold = true, .characters = 10, .alignment = Qt::AlignRight | Qt::AlignVCenter},
                 loudness_text({}));
    auto* panel = new HeadedPanel{to_qt(window.meters.caption).toUpper(), figure};
    dresser.unseen(window.meters); // the panel is its frame
    auto* meter = new LevelMeter{sound};
    meter->on_loudness = [figure](const QString& text) { figure->set_text(text); };
    panel->column().addWidget(meter, 1);
    return panel;
}

} // namespace

// Three equal columns, as of the decks above; effect and level share the third.
LowerPanels lower_panels(WindowView& view, Antenne_FM& window, const SoundReading& sound) {
    auto* panels = new DeskRow{&StepLengths::panels};
    auto* third = row_of({}, studio::grid);
    for (Panel* panel : {effect_panel(view, window, sound), meter_panel(view, window, sound)}) {
        panel->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // both have one width
        third->addWidget(panel, 1);
    }
    auto* chain = chain_choice(view, window);
    panels->add(chain_panel(view, window, chain));
    panels->add(quick_load_panel(view, window));
    auto* both = new QWidget;
    both->setMouseTracking(true);
    both->setLayout(third);
    panels->add(both);
    return {panels, chain};
}

} // namespace sonarelle
