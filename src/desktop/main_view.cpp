#include "desktop/main_view.h"

#include <QBoxLayout>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QSlider>

#include "desktop/button_bindings.h"
#include "desktop/colours.h"
#include "desktop/level_meter.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"
#include "desktop/sound_picture.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{1000, 560}; // with its frame on a screen of 1024 by 600
constexpr StationLabel::Style panel_heading{.type = Type::tiny, .quiet = true, .characters = 14};
constexpr StationLabel::Style status{.type = Type::small, .quiet = true, .characters = 24};
constexpr StationLabel::Style trouble{.type = Type::medium, .bold = true, .characters = 24};
constexpr StationLabel::Style menu_word{
    .type = Type::base, .framed = true, .underlined = true, .characters = 8, .alignment = Qt::AlignCenter};

StationLabel* text_label(const StationLabel::Style& style, const QString& text = {}) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

void colour(QWidget& label, QColor accent) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, mixed(accent, Qt::white, 0.25));
    if (palette != label.palette())
        label.setPalette(palette);
}

// A panel whose column begins with its heading.
QVBoxLayout* column_in(Panel* panel, const QString& heading) {
    auto* column = new QVBoxLayout{panel};
    column->setContentsMargins(12, 8, 12, 10);
    column->setSpacing(5);
    if (!heading.isEmpty())
        column->addWidget(text_label(panel_heading, heading));
    return column;
}

} // namespace

MainView::MainView(Antenne_FM& window, const DesktopServices& services, const SoundReading& sound)
    : WindowView{window, services, least_size},
      window_{window} {
    build_rows(sound);
}

void MainView::build_rows(const SoundReading& sound) {
    auto* rows = new QVBoxLayout{&content()};
    rows->setContentsMargins(12, 6, 12, 4);
    rows->setSpacing(8);
    rows->addWidget(menu_labels());
    header_ = new AirHeader{dresser_, window_};
    rows->addWidget(header_);
    rows->addLayout(deck_row(), 3);
    rows->addLayout(lower_row(sound), 1);
    QWidget* foot = status_line();
    if (QWidget* rest = remaining_parts(dresser_))
        rows->addWidget(rest);
    rows->addWidget(foot);
}

// They stand for the menu bar while it is hidden, and answer to the same letters.
QWidget* MainView::menu_labels() {
    auto* line = new QWidget;
    line->setMouseTracking(true); // or the window would hear of no moves between the labels
    auto* row = new QHBoxLayout{line};
    row->setContentsMargins(0, 0, 0, 0);
    QStringList captions;
    for (const Label* label : window_.menu_labels())
        captions += to_qt(label->caption);
    const QStringList marked = with_mnemonics(captions);
    for (qsizetype place = 0; Label * label : window_.menu_labels()) {
        row->addWidget(dresser_.label(*label, menu_word));
        static_cast<LabelBinding*>(binding_of(*label))->set_access(marked[place++]);
    }
    row->addStretch(1);
    return line;
}

QLayout* MainView::deck_row() {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    for (int number = 1; number <= 3; ++number) {
        const auto place = static_cast<std::size_t>(number - 1);
        decks_[place] =
            new DeckPanel{*this, window_.deck(number), window_.slider_stand_ins.at(place), number, &content()};
        row->addWidget(decks_[place], 1);
    }
    return row;
}

QLayout* MainView::lower_row(const SoundReading& sound) {
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(chain_panel(), 4);
    row->addWidget(quick_load_panel(), 3);
    row->addWidget(effect_panel(sound), 3);
    row->addWidget(meter_panel(sound), 2);
    return row;
}

Panel* MainView::chain_panel() {
    auto* panel = new Panel{&content()};
    auto* column = column_in(panel, "ENCHAÎNEMENT");
    auto* decks = dresser_.mode(window_.deck_chain_lamp, window_.mix_titles);
    auto* list = dresser_.mode(window_.list_chain_lamp, window_.mix_list);
    decks->addWidget(dresser_.image(window_.hourly_styles, "Top horaire"));
    list->addWidget(dresser_.check_box(window_.load_ahead));
    auto* overlap = dresser_.text_box(window_.overlap);
    overlap->setAccessibleName("Superposition en secondes");
    overlap->setFixedWidth(44);
    overlap->setAlignment(Qt::AlignCenter);
    auto* less = dresser_.image(window_.overlap_less, "−");
    auto* more = dresser_.image(window_.overlap_more, "+");
    less->setAccessibleName("Superposition moins une seconde");
    more->setAccessibleName("Superposition plus une seconde");
    auto* unit = text_label({.type = Type::tiny, .quiet = true, .characters = 17}, "s de superposition");
    unit->setMinimumWidth(unit->sizeHint().width());
    auto* companion = dresser_.slider(window_.overlap_steps, Qt::Horizontal);
    companion->setAccessibleName("Superposition");
    companion->setMaximumWidth(64);
    auto* mix = row_of({less, overlap, more, unit, companion});
    column->addLayout(decks);
    column->addLayout(list);
    column->addLayout(mix);
    column->addStretch(1);
    return panel;
}

Panel* MainView::quick_load_panel() {
    auto* panel = new Panel{&content()};
    auto* column = column_in(panel, {});
    column->addWidget(dresser_.label(window_.running_chain, panel_heading));
    column->addWidget(dresser_.combo_box(window_.favourites));
    column->addWidget(dresser_.combo_box(window_.jingles));
    column->addWidget(text_label({.type = Type::tiny, .quiet = true, .characters = 18}, "espace : choisir le lecteur"));
    column->addStretch(1);
    return panel;
}

Panel* MainView::effect_panel(const SoundReading& sound) {
    auto* panel = new Panel{&content()};
    auto* column = column_in(panel, "EFFET VISUEL");
    auto* picture = new SoundPictureView{sound};
    keep(std::make_unique<SoundDisplayBinding>(window_.sound_display, *picture, services()));
    column->addWidget(picture, 1);
    column->addStretch(0);
    return panel;
}

Panel* MainView::meter_panel(const SoundReading& sound) {
    auto* panel = new Panel{&content()};
    auto* column = column_in(panel, {});
    auto* heading = text_label({.type = Type::base, .bold = true, .digits = true, .characters = 10}, "— LUFS");
    auto* meter = new LevelMeter{sound};
    auto* frame = dresser_.frame(window_.meters);
    frame->setFlat(true);
    auto* inside = new QVBoxLayout{frame};
    inside->setContentsMargins(0, 2, 0, 0);
    inside->addWidget(heading);
    inside->addWidget(meter, 1);
    meter->on_loudness = [heading](const QString& text) { heading->set_text(text); };
    column->addWidget(frame, 1);
    return panel;
}

QWidget* MainView::status_line() {
    auto* line = new QWidget;
    auto* row = new QHBoxLayout{line};
    row->setContentsMargins(2, 0, 2, 0);
    row->setSpacing(18);
    auto* elapsed =
        dresser_.label(window_.elapsed, {.type = Type::small, .quiet = true, .digits = true, .characters = 5});
    output_ = text_label(status);
    output_->setObjectName("output");
    played_ = text_label(
        {.type = Type::small, .quiet = true, .characters = 24, .alignment = Qt::AlignRight | Qt::AlignVCenter});
    row->addWidget(dresser_.label(window_.chain_status, status), 2);
    row->addWidget(elapsed);
    row->addWidget(output_, 4);
    row->addWidget(played_);
    return line;
}

void MainView::show_title(const QString& title) {
    air_title_ = title;
    if (windowTitle() != this->title())
        setWindowTitle(this->title());
}

QString MainView::title() const {
    return air_title_.isEmpty() ? WindowView::title() : air_title_;
}

void MainView::show_output(const QString& text, bool is_trouble) {
    output_->set_style(is_trouble ? trouble : status);
    output_->setPalette({});
    if (is_trouble)
        colour(*output_, studio::trouble);
    output_->set_text(text);
    header_->show_card_lost(is_trouble);
}

} // namespace sonarelle
