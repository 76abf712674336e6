#include "desktop/list_view.h"

#include <QBoxLayout>
#include <QHeaderView>
#include <QRadioButton>
#include <set>

#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{1000, 560}; // with its frame on a screen of 1024 by 600
// White on a middle grey reads well when it is bold and of this size.
constexpr StationLabel::Style bold_text{.type = Type::medium, .bold = true, .characters = 18};
constexpr StationLabel::Style button_text{
    .type = Type::medium, .framed = true, .characters = 8, .alignment = Qt::AlignCenter};

} // namespace

ListView::ListView(Liste_son& window, const DesktopServices& services)
    : WindowView{window, services, least_size},
      window_{window} {
    build_rows();
}

void ListView::build_rows() {
    auto* rows = new QVBoxLayout{&content()};
    rows->setContentsMargins(12, 10, 12, 6);
    rows->setSpacing(8);
    rows->addLayout(header());
    rows->addLayout(table_row(), 1);
    rows->addLayout(button_row());
    rows->addLayout(status_row());
}

QLayout* ListView::header() {
    auto* panel = new Panel{&content()};
    auto* row = new QHBoxLayout{panel};
    row->setContentsMargins(14, 6, 14, 6);
    title_ = dresser_.label(window_.track_name, {.type = Type::deck_title, .bold = true, .characters = 20});
    auto* list = dresser_.label(window_.file_in_use, {.type = Type::base, .quiet = true, .characters = 20});
    remaining_ = dresser_.label(
        window_.remaining,
        {.type = Type::clock, .bold = true, .digits = true, .characters = 7, .alignment = Qt::AlignCenter});
    clock_ = dresser_.label(
        window_.time_of_day,
        {.type = Type::deck_title, .digits = true, .characters = 9, .alignment = Qt::AlignRight | Qt::AlignVCenter});
    for (const Label* label : {&window_.track_name, &window_.remaining, &window_.time_of_day})
        binding_of(*label)->on_shown = [this] { tell_air(); };
    row->addLayout(column_of({title_, list}, 2), 1);
    row->addWidget(remaining_);
    row->addWidget(clock_, 1);
    return column_of({panel});
}

void ListView::show_air(const ListAir& air) {
    air_ = air;
    tell_air();
}

// From the load on the station's own labels speak of the track to come, and their clock waits for the chain's tick; the
// operator reads what is on the air, in both windows the same.
void ListView::tell_air() {
    const QString known = air_.title.isEmpty() ? to_qt(window_.track_name.caption.get()) : air_.title;
    title_->set_text(air_.silence.isEmpty() ? known : "SILENCE depuis " + air_.silence);
    title_->set_alarming(!air_.silence.isEmpty());
    remaining_->set_text(air_.left);
    remaining_->setAccessibleName("Temps restant");
    clock_->set_text(air_.clock);
    if (windowTitle() != title())
        setWindowTitle(title());
}

QLayout* ListView::table_row() {
    auto* table = dresser_.table(window_.rows);
    table->setAccessibleName("Liste");
    rows_ = static_cast<RowTableBinding*>(binding_of(window_.rows));
    table->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(table, &QWidget::customContextMenuRequested, this, [this] { show_row_menu(); });
    auto* row = new QHBoxLayout;
    row->setSpacing(10);
    row->addWidget(table, 1);
    row->addWidget(side_column());
    return row;
}

QString ListView::title() const {
    return air_.title.isEmpty() ? WindowView::title() : air_.title;
}

StudioButton* ListView::lamp(Image& image, const char* name) {
    auto* button = dresser_.image(image, "●");
    button->setAccessibleName(name);
    button->set_look(ButtonLook::lamp);
    button->setFixedSize(28, 28);
    return button;
}

QWidget* ListView::side_column() {
    auto* side = new Panel{&content()};
    side->setFixedWidth(236);
    auto* column = new QVBoxLayout{side};
    column->setContentsMargins(12, 10, 12, 10);
    column->setSpacing(6);
    const auto heading = [column](const QString& text) {
        auto* label = new StationLabel{{.type = Type::tiny, .quiet = true}};
        label->set_text(text);
        column->addWidget(label);
    };
    heading("MODE DE LECTURE");
    const std::array<std::pair<Image*, OptionButton*>, 4> modes{
        {{&window_.player_lamp, &window_.player_mode},
         {&window_.random_lamp, &window_.random_mode},
         {&window_.defined_end_lamp, &window_.defined_end_mode},
         {&window_.full_length_lamp, &window_.full_length_mode}}};
    for (const auto& [picture, option] : modes)
        column->addLayout(dresser_.mode(*picture, *option));
    heading("INSERTION");
    column->addLayout(row_of(
        {lamp(window_.jingles_switch, "Insertion de jingles"), dresser_.label(window_.jingles_status, bold_text)}));
    column->addLayout(
        row_of({lamp(window_.items_switch, "Insertion d'une liste"), dresser_.label(window_.items_status, bold_text)}));
    column->addStretch(1);
    return side;
}

QLayout* ListView::button_row() {
    auto* play = dresser_.image(window_.play_list, "▶ lecture liste", Accent::air);
    auto* zap = dresser_.image(window_.zap, "⇥ Zap (Z)", Accent::next);
    auto* stop = dresser_.image(window_.stop_decks, "■ Stopper");
    auto* place = dresser_.image(window_.show_playing_row, "◎ Position");
    place->setAccessibleName("Position");
    auto* strip = dresser_.image(window_.side_picture);
    strip->set_look(ButtonLook::picture);
    strip->setFocusPolicy(Qt::NoFocus);
    strip->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    auto* row = row_of({play, zap, stop, place, strip});
    row->setStretchFactor(strip, 1); // it takes what the buttons leave
    row->addWidget(dresser_.label(window_.save_as, button_text));
    row->addWidget(menu_button());
    return row;
}

QLayout* ListView::status_row() {
    auto* column = new QVBoxLayout;
    auto* row = row_of({dresser_.label(window_.list_status, bold_text), dresser_.label(window_.progress, bold_text),
                        dresser_.label(window_.running_deck, bold_text), nullptr,
                        dresser_.label(window_.zap_status, bold_text)},
                       18);
    if (QWidget* rest = remaining_parts(dresser_))
        column->addWidget(rest);
    column->addLayout(row);
    return column;
}

StudioButton* ListView::menu_button() {
    auto* button = new StudioButton{&content()};
    button->setText("Menu");
    button->setAccessibleName("Toutes les commandes de la liste");
    all_entries_ = new QMenu{this};
    fill_menu(*all_entries_);
    connect(button, &QAbstractButton::clicked, this, [this, button] {
        all_entries_->popup(button->mapToGlobal(QPoint{0, -all_entries_->sizeHint().height()}));
    });
    return button;
}

// Entries that hang under no other, each once.
void ListView::fill_menu(QMenu& menu) {
    std::set<const Control*> hung;
    std::vector<MenuItem*> items;
    for (Control* control : window_.controls())
        if (control->kind() == ControlKind::menu_item) {
            items.push_back(static_cast<MenuItem*>(control));
            hung.insert(items.back()->entries().begin(), items.back()->entries().end());
        }
    for (MenuItem* item : items)
        if (!hung.contains(item) && !item->caption.get().empty())
            menu.addAction(&menus().action(*item));
}

void ListView::show_row_menu() {
    services().run_event([this] { window_.Load_Pl.open(); });
    if (window_.Load_Pl.entries().empty())
        all_entries_->popup(QCursor::pos());
    else
        menus().popup(window_.Load_Pl);
}

} // namespace sonarelle
