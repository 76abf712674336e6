#include "desktop/list_view.h"

#include <QBoxLayout>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRadioButton>
#include <array>

#include "desktop/card_strip.h"
#include "desktop/chip.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"
#include "desktop/segments.h"
#include "desktop/text_run.h"
#include "desktop/text_size.h"
#include "desktop/toggle.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{1000, 230}; // pixels: its strips and two rows
constexpr int edge = 20;               // pixels, left of what is read
constexpr int foot_edge = 12;
constexpr int search_width = 168; // pixels
constexpr int search_width_narrow = 80;
constexpr Qt::Alignment right = Qt::AlignRight | Qt::AlignVCenter;
constexpr StationLabel::Style heading{.type = Type::tiny, .quiet = true, .capitals = true, .characters = 18};
constexpr StationLabel::Style aside{.type = Type::small, .quiet = true};

std::vector<ColumnLook> column_looks() {
    return {{},
            {.short_heading = "Début (s)", .narrow = 88, .compact = 216, .large = 264, .figures = true},
            {.short_heading = "Fin (s)", .narrow = 80, .compact = 200, .large = 248, .figures = true},
            {.narrow = 112, .compact = 128, .large = 176},
            {.narrow = 88, .compact = 96, .large = 128, .figures = true},
            {.narrow = 100, .compact = 112, .large = 152, .figures = true}};
}

StationLabel* words(const StationLabel::Style& style, const QString& text) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

QHBoxLayout* row_in(QWidget& strip, int left) {
    auto* row = new QHBoxLayout{&strip};
    row->setContentsMargins(left, 0, foot_edge, 0);
    row->setSpacing(studio::grid);
    return row;
}

} // namespace

ListView::ListView(Liste_son& window, const DesktopServices& services)
    : WindowView{window, services, {least_size.width(), scaled(least_size.height())}},
      window_{window} {
    build_rows();
    order_keyboard();
    take_step(wanted_step());
    binding_of(window_.rows)->widget()->setFocus(); // at the first
}

void ListView::build_rows() {
    auto* rows = new QVBoxLayout{&content()};
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(0);
    rows->addWidget(header());
    rows->addWidget(modes());
    rows->addWidget(table(), 1);
    rows->addWidget(foot());
    if (QWidget* rest = remaining_parts(dresser_))
        rows->addWidget(rest);
}

QWidget* ListView::header() {
    header_ = new CardStrip;
    remaining_ = dresser_.label(
        window_.remaining,
        {.type = Type::list_remaining, .bold = true, .digits = true, .characters = 7, .alignment = Qt::AlignCenter});
    clock_ = dresser_.label(window_.time_of_day,
                            {.type = Type::deck_title, .digits = true, .characters = 8, .alignment = right});
    auto* zap =
        dresser_.label(window_.zap_status, {.type = Type::base, .bold = true, .characters = 15, .alignment = right});
    remaining_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    changed_ = new Chip{"liste modifiée"};
    zap->set_pressable(true);
    auto* others = row_of({nullptr, changed_, zap}, studio::grid);
    others->addLayout(search());
    others->addWidget(clock_);
    auto* row = row_in(*header_, edge);
    row->addLayout(header_texts(), 1);
    row->addWidget(remaining_);
    row->addLayout(others, 1);
    for (const Label* label : {&window_.track_name, &window_.remaining, &window_.time_of_day})
        binding_of(*label)->on_shown = [this] { tell_air(); };
    return header_;
}

QLayout* ListView::search() {
    search_ = dresser_.combo_box(window_.search);
    binding_of(window_.search)->set_spoken_name("Rechercher"); // whatever stands in it
    search_->setToolTip("Rechercher dans les chemins de la liste");
    search_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    search_->lineEdit()->setAccessibleName("Texte à chercher");
    search_->lineEdit()->setToolTip(search_->toolTip());
    auto* hits = dresser_.label(window_.search_hits, {.type = Type::small, .quiet = true, .characters = 9});
    auto* save = dresser_.label_button(window_.search_label);
    save->set_size(ButtonSize::small);
    save->set_least_width(32);
    stops_.insert(stops_.end(), {search_, save});
    return row_of({hits, search_, save}, studio::half_grid);
}

QLayout* ListView::header_texts() {
    title_ = dresser_.label(window_.track_name, {.type = Type::list_title, .bold = true, .characters = 20});
    progress_ = dresser_.label(window_.progress, aside);
    running_deck_ = dresser_.label(window_.running_deck, aside);
    file_ = dresser_.label(window_.file_in_use, aside);
    state_ = new TextRun{{dresser_.label(window_.list_status, aside), progress_, running_deck_, file_}};
    for (const Label* label : {&window_.list_status, &window_.progress, &window_.running_deck, &window_.file_in_use})
        binding_of(*label)->on_shown = [this] { tell_list(); };
    auto* column = column_of({title_, state_}, 0);
    column->setAlignment(Qt::AlignVCenter);
    return column;
}

void ListView::show_air(const ListAir& air) {
    air_ = air;
    tell_air();
}

// From the load on the station's own labels speak of the track to come, and their clock waits for the chain's tick; the
// operator reads what is on the air, in both windows the same.
void ListView::tell_air() {
    const QString known = air_.title.isEmpty() ? to_qt(window_.track_name.caption.get()) : air_.title;
    title_->set_text(alarm().isEmpty() ? known : alarm());
    title_->set_ink(alarm().isEmpty() ? QColor{} : studio::trouble_text);
    remaining_->set_text(air_.left);
    remaining_->setAccessibleName("Temps restant");
    clock_->set_text(air_.clock);
    clock_->setVisible(step_ == Step::large); // the desk has one above the list
    if (windowTitle() != title())
        setWindowTitle(title());
}

QString ListView::alarm() const {
    if (!air_.silence.isEmpty())
        return "SILENCE depuis " + air_.silence;
    return air_.is_unheard ? "CARTE SON PERDUE" : "";
}

// The deck of the chain over decks is no news of a list, and a list that rests has no second to tell.
void ListView::tell_list() {
    running_deck_->setVisible(!window_.reads_the_list());
    progress_->setVisible(progress_->text().startsWith('('));
    tell_changes();
    state_->arrange();
}

// Changes that no file of the operator's has yet are told in brackets behind the list's name, and are a state of the
// list rather than a part of the name.
void ListView::tell_changes() {
    const QString told = to_qt(window_.file_in_use.caption.get());
    const qsizetype bracket = told.endsWith(" : modifications non enregistrées)") ? told.lastIndexOf(" (") : -1;
    file_->set_text(told.left(bracket));
    changed_->setVisible(bracket >= 0);
    changed_->setToolTip(bracket < 0 ? QString{} : told.sliced(bracket + 2).chopped(1));
    changed_->setAccessibleDescription(changed_->toolTip());
}

QString ListView::title() const {
    return air_.title.isEmpty() ? WindowView::title() : air_.title;
}

QWidget* ListView::modes() {
    modes_ = new CardStrip{true};
    auto* row = row_in(*modes_, edge);
    headings_ = {words(heading, "MODE DE LECTURE"), words(heading, "INSERTION")};
    row->addWidget(headings_[0]);
    const std::array<std::pair<Image*, OptionButton*>, 4> choices{
        {{&window_.player_lamp, &window_.player_mode},
         {&window_.random_lamp, &window_.random_mode},
         {&window_.defined_end_lamp, &window_.defined_end_mode},
         {&window_.full_length_lamp, &window_.full_length_mode}}};
    std::vector<Segment*> segments;
    for (const auto& [picture, option] : choices) {
        segments.push_back(dresser_.mode(*picture, *option));
        stops_.push_back(binding_of(*option)->widget());
        binding_of(*option)->on_shown = [this, before = binding_of(*option)->on_shown] {
            before();
            tell_list();
        };
    }
    row->addWidget(new SegmentedChoice{segments});
    row->addStretch(1);
    row->addWidget(headings_[1]);
    row->addLayout(insertion(window_.jingles_switch, window_.jingles_status, 17, "Insertion de jingles"));
    row->addLayout(insertion(window_.items_switch, window_.items_status, 11, "Insertion d'une liste"));
    return modes_;
}

// The switch says what its words say.
QLayout* ListView::insertion(Image& image, Label& label, int longest, const char* name) {
    auto* toggle = new Toggle{&content()};
    keep(std::make_unique<ToggleBinding>(image, *toggle, services()));
    binding_of(image)->set_spoken_name(name);
    auto* text = dresser_.label(label, {.type = Type::base, .bold = true, .characters = longest});
    text->set_pressable(false); // it is a part of the switch
    toggle->take_presses_on(*text);
    binding_of(label)->on_shown = [toggle, text] { toggle->setChecked(text->text().contains(" On")); };
    stops_.push_back(toggle);
    return row_of({toggle, text}, studio::half_grid);
}

QWidget* ListView::table() {
    auto* table = dresser_.table(window_.rows);
    table->setAccessibleName("Liste");
    table->set_columns(column_looks());
    rows_ = static_cast<RowTableBinding*>(binding_of(window_.rows));
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, this, [this, table](QPoint place) {
        menus().menu(window_.Load_Pl)->popup(table->viewport()->mapToGlobal(place));
    });
    stops_.push_back(table);
    return table;
}

QWidget* ListView::foot() {
    foot_ = new CardStrip;
    auto* row = row_in(*foot_, foot_edge);
    transport(*row);
    row->addWidget(side_picture(), 1); // it takes what the buttons leave
    labels(*row);
    return foot_;
}

void ListView::labels(QBoxLayout& row) {
    auto* look = dresser_.image(window_.look);
    auto* help = dresser_.image(window_.help);
    look->set_words("Look");
    help->set_words("Aide");
    auto* list = dresser_.label_button(window_.list_label);
    binding_of(window_.list_label)->set_spoken_name("Menu de la liste"); // the rows are the list
    for (StudioButton* button :
         {list, dresser_.label_button(window_.delete_label), dresser_.label_button(window_.add_label),
          dresser_.label_button(window_.save_as), look, dresser_.label_button(window_.display_label), help,
          dresser_.label_button(window_.close_label)}) {
        button->set_size(ButtonSize::control);
        row.addWidget(button);
        stops_.push_back(button);
    }
}

void ListView::transport(QBoxLayout& row) {
    play_ = dresser_.image(window_.play_list);
    auto* zap = dresser_.image(window_.zap, {}, Accent::next);
    auto* stop = dresser_.image(window_.stop_decks);
    auto* place = dresser_.image(window_.show_playing_row);
    play_->set_sign(Sign::play, "lecture liste");
    zap->set_sign(Sign::zap, "Zap (Z)");
    stop->set_sign(Sign::stop, "Stopper (S)");
    place->set_sign(Sign::place, "Position");
    place->setAccessibleName("Position");
    auto* desk = dresser_.image(window_.show_main_window);
    desk->set_sign(Sign::rows, "");
    desk->setAccessibleName("Fenètre principale");
    // It can't be pressed while the list runs, and is its lamp then.
    binding_of(window_.play_list)->on_shown = [this] {
        play_->set_accent(window_.play_list.enabled ? Accent::none : Accent::air);
        play_->setAccessibleDescription(window_.play_list.enabled ? "" : "la liste est en lecture");
    };
    transport_ = {play_, zap, stop};
    for (StudioButton* button : {play_, zap, stop, place, desk}) {
        button->set_size(ButtonSize::control);
        button->installEventFilter(this);
        row.addWidget(button);
        stops_.push_back(button);
    }
}

StudioButton* ListView::side_picture() {
    auto* strip = dresser_.image(window_.side_picture);
    strip->set_look(ButtonLook::picture);
    strip->setFocusPolicy(Qt::NoFocus);
    strip->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    return strip;
}

// The table has the window's keyboard. As a proxy it would have the window's place in the round of the tab key, too.
void ListView::focusInEvent(QFocusEvent*) {
    binding_of(window_.rows)->widget()->setFocus();
}

void ListView::order_keyboard() {
    for (std::size_t stop = 1; stop < stops_.size(); ++stop)
        setTabOrder(stops_[stop - 1], stops_[stop]);
}

// No hand that falls on the space bar starts, zaps or stops the list; Return does.
bool ListView::eventFilter(QObject* object, QEvent* event) {
    const bool is_key = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease;
    if (is_key && std::ranges::find(transport_, object) != transport_.end())
        return static_cast<QKeyEvent*>(event)->key() == Qt::Key_Space;
    return WindowView::eventFilter(object, event);
}

void ListView::follow_step(Step of_desk) {
    desk_step_ = of_desk;
    if (wanted_step() != step_)
        take_step(wanted_step());
}

void ListView::resizeEvent(QResizeEvent* event) {
    WindowView::resizeEvent(event);
    if (wanted_step() != step_)
        take_step(wanted_step());
}

Step ListView::wanted_step() const {
    constexpr int any_height = 640; // pixels: a list is as high as it likes
    const Step own = step_of({width(), any_height});
    return own == Step::large && desk_step_ && *desk_step_ != Step::large ? Step::compact : own;
}

void ListView::take_step(Step step) {
    step_ = step;
    give_step(content(), step);
    const ListLengths& lengths = list_lengths_of(step);
    header_->setFixedHeight(scaled(lengths.header));
    modes_->setFixedHeight(scaled(lengths.modes));
    foot_->setFixedHeight(scaled(lengths.foot));
    tell_air();
    search_->setFixedWidth(scaled(step == Step::narrow ? search_width_narrow : search_width));
    remaining_->setMaximumHeight(scaled(lengths.header)); // figures have nothing below their line
    for (StationLabel* text : headings_)
        text->setVisible(step != Step::narrow);
}

} // namespace sonarelle
