#include "desktop/main_view.h"

#include <QBoxLayout>
#include <QKeyEvent>
#include <algorithm>

#include "desktop/colours.h"
#include "desktop/desk_row.h"
#include "desktop/lower_panels.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"
#include "desktop/remaining_parts.h"
#include "desktop/segments.h"
#include "desktop/strip.h"
#include "desktop/text_bindings.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr QSize least_size{1000, 459}; // pixels; without its menu bar
constexpr StationLabel::Style status{.type = Type::small, .quiet = true, .characters = 24};
constexpr StationLabel::Style alarm{.type = Type::small, .bold = true, .characters = 32};
constexpr StationLabel::Style menu_word{
    .type = Type::base, .framed = true, .flat = true, .underlined = true, .fitted = true, .alignment = Qt::AlignCenter};

} // namespace

MainView::MainView(Antenne_FM& window, const DesktopServices& services, const SoundReading& sound)
    : WindowView{window, services, {least_size.width(), scaled(least_size.height())}},
      window_{window} {
    build_rows(sound);
    take_step(step_of(size()));
}

void MainView::build_rows(const SoundReading& sound) {
    rows_ = new QVBoxLayout{&content()};
    rows_->setContentsMargins(0, 0, 0, 0);
    rows_->setSpacing(0);
    menu_strip_ = menu_labels();
    header_ = new AirHeader{dresser_, window_};
    auto* header_row = new DeskRow;
    header_row->add(header_);
    rows_->addWidget(menu_strip_);
    rows_->addWidget(header_row);
    rows_->addWidget(deck_row(), 1);
    rows_->addSpacing(studio::grid);
    const LowerPanels lower = lower_panels(*this, window_, sound);
    chain_ = lower.chain;
    rows_->addWidget(lower.row);
    rows_->addSpacing(studio::grid);
    QWidget* foot = status_line();
    if (QWidget* rest = remaining_parts(dresser_))
        rows_->addWidget(rest);
    rows_->addWidget(foot);
}

// Within a step the waveforms take what height there is.
void MainView::take_step(Step step) {
    step_ = step;
    give_step(content(), step);
    const StepLengths& lengths = lengths_of(step);
    for (QWidget* strip : {menu_strip_, static_cast<QWidget*>(&menu_bar())})
        strip->setFixedHeight(scaled(lengths.menu));
}

void MainView::resizeEvent(QResizeEvent* event) {
    WindowView::resizeEvent(event);
    if (const Step step = step_of(size()); step != step_ && rows_ != nullptr)
        take_step(step);
}

// They stand for the menu bar while it is hidden, in a strip as high as it, and answer to the same letters.
QWidget* MainView::menu_labels() {
    auto* strip = new Strip;
    auto* row = new QHBoxLayout{strip};
    row->setContentsMargins(studio::grid, 0, studio::grid, 0);
    row->setSpacing(0);
    QStringList captions;
    for (const Label* label : window_.menu_labels())
        captions += to_qt(label->caption);
    const QStringList marked = with_mnemonics(captions);
    for (qsizetype place = 0; Label * label : window_.menu_labels()) {
        row->addWidget(dresser_.label(*label, menu_word));
        auto* binding = static_cast<LabelBinding*>(binding_of(*label));
        binding->set_access(marked[place++]);
        binding->on_shown = [this, strip] {
            strip->setVisible(
                std::ranges::any_of(window_.menu_labels(), [](const Label* each) { return each->visible.get(); }));
        };
    }
    row->addStretch(1);
    return strip;
}

QWidget* MainView::deck_row() {
    auto* row = new DeskRow;
    for (int number = 1; number <= 3; ++number) {
        const auto place = static_cast<std::size_t>(number - 1);
        decks_[place] =
            new DeckPanel{*this, window_.deck(number), window_.slider_stand_ins.at(place), number, &content()};
        row->add(decks_[place]);
    }
    return row;
}

QWidget* MainView::status_line() {
    auto* line = new Strip;
    auto* row = new QHBoxLayout{line};
    row->setContentsMargins(2 * studio::grid + studio::half_grid, 0, 2 * studio::grid + studio::half_grid, 0);
    row->setSpacing(3 * studio::grid);
    dresser_.unseen(window_.elapsed); // the deck on the air shows it
    output_ = new StationLabel{status};
    output_->setObjectName("output");
    silence_ = new StationLabel{alarm};
    silence_->set_fill(studio::trouble_fill);
    silence_->setObjectName("status_silence");
    played_ = new StationLabel{
        {.type = Type::small, .quiet = true, .characters = 24, .alignment = Qt::AlignRight | Qt::AlignVCenter}};
    row->addWidget(dresser_.label(window_.chain_status, status), 2);
    row->addWidget(output_, 4);
    row->addWidget(silence_, 3);
    row->addWidget(played_, 2);
    line->setFixedHeight(scaled(lengths_of(Step::compact).status));
    return line;
}

void MainView::show_air(const AirLook& look) {
    header_->show_air(look);
    chain_->set_alarm(!look.silence.isEmpty());
    silence_->set_text("Silence à l'antenne depuis " + look.silent_since);
    silence_->setVisible(!look.silence.isEmpty());
}

void MainView::keyPressEvent(QKeyEvent* event) {
    const bool is_return = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (is_return && !event->isAutoRepeat() && focusWidget() == this && header_->offers_restart() && on_restart)
        return on_restart();
    WindowView::keyPressEvent(event);
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
    output_->set_style(is_trouble ? alarm : status);
    output_->set_fill(is_trouble ? studio::trouble_fill : QColor{});
    output_->set_text(text);
}

} // namespace sonarelle
