#include "desktop/draw_view.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QListWidget>
#include <array>

#include "desktop/flow_layout.h"
#include "desktop/panel.h"
#include "desktop/remaining_parts.h"
#include "desktop/station_label.h"
#include "desktop/tokens.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{760, 480};
constexpr int least_list = 110; // pixels across: a number and its word

StationLabel* words(const QString& text) {
    auto* label = new StationLabel{{.type = Type::small, .quiet = true, .fitted = true}};
    label->set_text(text);
    return label;
}

QVBoxLayout* column_in(QWidget& panel) {
    auto* column = new QVBoxLayout{&panel};
    column->setContentsMargins(12, studio::grid, 12, studio::grid);
    column->setSpacing(studio::grid);
    return column;
}

} // namespace

DrawView::DrawView(liste& window, const DesktopServices& services)
    : WindowView{window, services, least_size},
      window_{window} {
    auto* halves = row_of({of_list(), of_jingles()}, studio::grid);
    halves->setStretch(0, 3);
    halves->setStretch(1, 2);
    auto* column = new QVBoxLayout{&content()};
    column->setContentsMargins(studio::grid, studio::grid, studio::grid, studio::grid);
    column->setSpacing(studio::grid);
    column->addLayout(halves, 1);
    column->addWidget(of_file());
    column->addLayout(buttons());
    if (QWidget* rest = remaining_parts(dresser_))
        column->addWidget(rest);
}

QWidget* DrawView::of_list() {
    auto* panel = new Panel;
    auto* column = column_in(*panel);
    column->addWidget(heading(window_.heading));
    column->addLayout(lists(window_.played, window_.draws), 1);
    column->addLayout(field("Nombre à chercher", window_.number));
    column->addLayout(field("Réponse", window_.finding));
    column->addLayout(field("Tirage", window_.drawn));
    auto* figures = new QHBoxLayout;
    figures->addLayout(figure("Déjà tirés", window_.total));
    figures->addLayout(figure("Tirages nuls", window_.null_draws));
    figures->addStretch(1);
    column->addLayout(figures);
    column->addWidget(text(window_.total_index));
    column->addWidget(text(window_.file));
    return panel;
}

QWidget* DrawView::of_jingles() {
    auto* panel = new Panel;
    auto* column = column_in(*panel);
    column->addWidget(heading(window_.jingles_heading));
    column->addLayout(lists(window_.jingles_played, window_.jingle_draws), 1);
    column->addLayout(field("Tirage", window_.jingle_drawn));
    column->addLayout(figure("Déjà tirés", window_.jingle_total));
    for (Label* label : {&window_.jingle_name, &window_.jingle_index, &window_.jingle_every, &window_.jingle_file})
        column->addWidget(text(*label));
    return panel;
}

QWidget* DrawView::of_file() {
    auto* panel = new Panel;
    auto* column = column_in(*panel);
    column->addWidget(heading(window_.file_heading));
    auto* line = new QWidget;
    auto* facts = new FlowLayout{line};
    for (Label* label : {&window_.file_name, &window_.file_start, &window_.file_end, &window_.file_genre,
                         &window_.file_volume, &window_.file_duration})
        facts->addWidget(dresser_.label(*label, {.type = Type::base, .characters = 24}));
    column->addWidget(line);
    return panel;
}

QLayout* DrawView::buttons() {
    auto* row = new QHBoxLayout;
    row->setSpacing(studio::grid);
    row->addStretch(1);
    for (Button* button :
         {&window_.reload, &window_.clear_lists, &window_.clear_table, &window_.add_current, &window_.close})
        row->addWidget(dresser_.button(*button));
    return row;
}

QWidget* DrawView::heading(Label& label) {
    return dresser_.label(label, {.type = Type::medium, .bold = true, .characters = 20});
}

QWidget* DrawView::text(Label& label) {
    return dresser_.label(label, {.type = Type::base, .name = true, .characters = 24});
}

QLayout* DrawView::lists(ListBox& played, ListBox& draws) {
    auto* row = new QHBoxLayout;
    row->setSpacing(studio::grid);
    const std::array<std::pair<ListBox*, const char*>, 2> parts{{{&played, "Déjà tirés"}, {&draws, "Tirages"}}};
    for (const auto& [box, name] : parts) {
        QListWidget* list = dresser_.list_box(*box);
        list->setUniformItemSizes(true); // there may be as many as the list has rows
        list->setMinimumWidth(least_list);
        binding_of(*box)->set_spoken_name(name);
        row->addLayout(column_of({words(name), list}, studio::half_grid), box == &draws ? 3 : 1);
    }
    return row;
}

QLayout* DrawView::field(const QString& name, TextBox& box) {
    QLineEdit* line = dresser_.text_box(box);
    line->setReadOnly(&box != &window_.number);
    binding_of(box)->set_spoken_name(name);
    auto* row = row_of({words(name), line}, studio::grid);
    row->setStretch(1, 1);
    return row;
}

QLayout* DrawView::figure(const QString& name, Label& label) {
    auto* row = row_of({words(name), dresser_.label(label, {.type = Type::base, .bold = true, .characters = 6})},
                       studio::half_grid);
    row->addStretch(1);
    return row;
}

} // namespace sonarelle
