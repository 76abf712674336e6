#include "desktop/properties_view.h"

#include <QBoxLayout>
#include <QLineEdit>
#include <QStringList>
#include <algorithm>

#include "desktop/panel.h"
#include "desktop/progress_strip.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{640, 440};
constexpr int least_sound_height = 140;
constexpr StationLabel::Style name_style{.type = Type::base, .quiet = true, .characters = 18};
constexpr StationLabel::Style unit_style{.type = Type::base, .quiet = true, .characters = 2};

// hh:mm:ss, as a list writes a duration; 0 for anything else.
double seconds_of(const QString& duration) {
    const QStringList parts = duration.trimmed().split(':');
    return parts.size() == 3 ? parts[0].toInt() * 3600 + parts[1].toInt() * 60 + parts[2].toInt() : 0;
}

StationLabel* plain_text(const StationLabel::Style& style, const QString& text) {
    auto* label = new StationLabel{style};
    label->set_text(text);
    return label;
}

} // namespace

PropertiesView::PropertiesView(Propriete& window, const DesktopServices& services)
    : WindowView{window, services, least_size},
      window_{window} {
    auto* rows = new QVBoxLayout{&content()};
    rows->setContentsMargins(studio::grid, studio::grid, studio::grid, studio::grid);
    rows->setSpacing(studio::grid);
    rows->addWidget(sound_panel(), 1);
    rows->addWidget(record_panel());
    rows->addLayout(foot());
    if (QWidget* rest = remaining_parts(dresser_))
        rows->addWidget(rest);
    binding_of(window_.bar)->on_shown = [this] { show_sound(); };
    binding_of(window_.length)->on_shown = [this] { show_sound(); };
    second_.setInterval(1000);
    QObject::connect(&second_, &QTimer::timeout, this, [this] { show_sound(); });
}

void PropertiesView::show_value() {
    WindowView::show_value();
    if (window_.visible != second_.isActive())
        window_.visible ? second_.start() : second_.stop();
    show_sound();
}

Panel* PropertiesView::sound_panel() {
    auto* panel = new Panel;
    auto* rows = new QVBoxLayout{panel};
    rows->setContentsMargins(12, 8, 12, 12);
    rows->setSpacing(studio::grid);
    auto* file = row_of({dresser_.label(window_.name_label, name_style)}, studio::grid);
    file->addWidget(dresser_.label(window_.file_name, {.type = Type::deck_title, .bold = true, .characters = 36}), 1);
    rows->addLayout(file);
    strip_ = dresser_.progress(window_.bar);
    strip_->setAccessibleName("Position dans le fichier");
    strip_->setMinimumHeight(least_sound_height);
    strip_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    start_ = grip(MarkHandle::Side::start, window_.start_label, window_.on_start_moved);
    end_ = grip(MarkHandle::Side::end, window_.end_label, window_.on_end_moved);
    rows->addWidget(strip_, 1);
    rows->addLayout(row_of({action(window_.play), action(window_.stop), nullptr}, studio::grid));
    auto* marks = new QGridLayout;
    marks->setHorizontalSpacing(studio::grid);
    marks->setVerticalSpacing(studio::grid);
    marks->setColumnStretch(6, 1);
    add_mark(*marks, window_.start_label, window_.start,
             {&window_.start_back, &window_.start_forward, &window_.mark_start});
    add_mark(*marks, window_.end_label, window_.end, {&window_.end_back, &window_.end_forward, &window_.mark_end});
    rows->addLayout(marks);
    return panel;
}

MarkHandle* PropertiesView::grip(MarkHandle::Side side, const Label& name, std::function<void(double)>& moved) {
    auto* handle = new MarkHandle{side, *strip_};
    handle->setObjectName(side == MarkHandle::Side::start ? "start_grip" : "end_grip");
    handle->setAccessibleName(plain_caption(name.caption));
    handle->setToolTip(plain_caption(name.caption));
    handle->on_moved = [this, &moved](double second) {
        if (moved)
            services().run_event([&] { moved(second); });
    };
    return handle;
}

void PropertiesView::add_mark(QGridLayout& grid, Label& name, TextBox& field, std::initializer_list<Label*> actions) {
    const int line = grid.rowCount();
    grid.addWidget(dresser_.label(name, name_style), line, 0);
    grid.addWidget(number_field(field, name), line, 1);
    grid.addWidget(plain_text(unit_style, "s"), line, 2);
    for (int column = 3; Label * label : actions)
        grid.addWidget(action(*label, &name), line, column++);
}

Panel* PropertiesView::record_panel() {
    auto* panel = new Panel;
    auto* row = new QHBoxLayout{panel};
    row->setContentsMargins(12, 8, 12, 8);
    row->setSpacing(studio::grid);
    row->addWidget(dresser_.label(window_.genre_label, {.type = Type::base, .quiet = true, .characters = 6}));
    auto* genre = dresser_.text_box(window_.genre);
    genre->setAccessibleName(plain_caption(window_.genre_label.caption));
    genre->setTextMargins(4, 0, 4, 0);
    row->addWidget(genre, 1);
    add_field(*row, window_.volume_label, window_.volume, "%", 7);
    add_field(*row, window_.length_label, window_.length, {}, 10);
    return panel;
}

void PropertiesView::add_field(QBoxLayout& row, Label& name, TextBox& field, const QString& unit, int characters) {
    row.addSpacing(studio::grid);
    row.addWidget(dresser_.label(name, {.type = Type::base, .quiet = true, .characters = characters}));
    row.addWidget(number_field(field, name));
    if (!unit.isEmpty())
        row.addWidget(plain_text(unit_style, unit));
}

QLineEdit* PropertiesView::number_field(TextBox& field, const Label& name) {
    auto* box = dresser_.text_box(field);
    box->setAccessibleName(plain_caption(name.caption));
    box->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    box->setFixedWidth(96);
    return box;
}

// Its hint alone doesn't say which line it belongs to.
StudioButton* PropertiesView::action(Label& label, const Label* line) {
    StudioButton* button = dresser_.label_button(label);
    button->set_size(ButtonSize::control);
    if (line != nullptr)
        binding_of(label)->set_spoken_name(plain_caption(line->caption) + " : " + to_qt(label.hint));
    return button;
}

QLayout* PropertiesView::foot() {
    auto* modified = dresser_.label(
        window_.modified,
        {.type = Type::base, .bold = true, .characters = 8, .alignment = Qt::AlignRight | Qt::AlignVCenter});
    auto* save = dresser_.button(window_.save);
    save->set_accent(Accent::primary);
    return row_of({nullptr, modified, save, dresser_.button(window_.close)}, studio::grid);
}

double PropertiesView::seconds_in(const Waveform* sound) const {
    if (sound != nullptr && sound->seconds() > 0)
        return sound->seconds();
    return window_.bar.maximum > 0 ? window_.bar.maximum : seconds_of(to_qt(window_.length.text()));
}

void PropertiesView::show_sound() {
    const bool is_read = services().waveform_of && window_.visible;
    const auto sound = is_read ? services().waveform_of(window_.path) : nullptr;
    const double whole = seconds_in(sound.get());
    const auto share = [whole](std::optional<double> second) {
        return second && whole > 0 ? std::optional{std::clamp(*second / whole, 0.0, 1.0)} : std::nullopt;
    };
    strip_->set_sound(sound, whole);
    strip_->set_start(share(window_.start_mark));
    strip_->set_marks({}, share(window_.end_mark));
    strip_->set_key_steps(std::max(1.0, whole / 100), std::max(10.0, whole / 20)); // the bar counts in percent
    start_->set_place(window_.start_mark);
    end_->set_place(window_.end_mark);
}

} // namespace sonarelle
