#include "desktop/box_view.h"

#include <QApplication>
#include <QBoxLayout>
#include <QClipboard>
#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPainterPath>
#include <QScreen>
#include <QScrollArea>
#include <QWindow>
#include <algorithm>

#include "desktop/box_place.h"
#include "desktop/colours.h"
#include "desktop/fitted_text.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"
#include "desktop/text_size.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

// Pixels at a text of 13.
constexpr int box_width = 512;
constexpr int strip_height = 32; // of the title
constexpr int side = 24;
constexpr int gap = 16; // beside the sign
constexpr int mark_size = 40;
constexpr int sign_size = 22;

QPalette box_palette() {
    QPalette palette = studio_palette();
    palette.setColor(QPalette::Window, studio::card);
    return palette;
}

QLabel* mark_of(const BoxView::Look& look) {
    const int size = scaled(mark_size);
    const double ratio = qApp->devicePixelRatio();
    QPixmap mark{QSize{size, size} * ratio};
    mark.setDevicePixelRatio(ratio);
    mark.fill(Qt::transparent);
    QPainter painter{&mark};
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.is_trouble ? studio::trouble_fill : studio::control);
    painter.drawEllipse(0, 0, size, size);
    paint_sign(painter, look.sign, QRectF(0, 0, size, size), scaled(sign_size), studio::text);
    painter.end();
    auto* label = new QLabel;
    label->setPixmap(mark);
    return label;
}

} // namespace

QWidget* window_below_a_box() {
    if (QWidget* active = QApplication::activeWindow())
        return active;
    // Between two boxes no window is active yet: the answer is for the window that asked.
    if (QWidget* last = WindowView::last_active(); last != nullptr && last->isVisible() && !last->isMinimized())
        return last;
    QWidget* largest = nullptr;
    const auto area = [](const QWidget& widget) { return widget.width() * widget.height(); };
    for (QWidget* top : QApplication::topLevelWidgets())
        if (dynamic_cast<WindowView*>(top) != nullptr && top->isVisible() && !top->isMinimized() &&
            (largest == nullptr || area(*top) > area(*largest)))
            largest = top;
    return largest;
}

BoxView::BoxView(const QString& title, const QString& text, const Look& look, QWidget* over)
    : QDialog{over, Qt::Dialog | Qt::FramelessWindowHint},
      text_{text},
      look_{look},
      over_{over} {
    setWindowTitle(title);
    setAccessibleDescription(text);
    setAttribute(Qt::WA_TranslucentBackground); // around its corners
    setPalette(box_palette());
    setFixedWidth(std::min(scaled(box_width), room().width()));
    auto* area = new QScrollArea;
    body_ = new QWidget;
    build(*body_);
    area->setWidget(body_);
    area->setWidgetResizable(true);
    area->setFrameShape(QFrame::NoFrame);
    area->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area->setFocusPolicy(Qt::NoFocus);
    buttons_ = new QHBoxLayout;
    buttons_->setContentsMargins(scaled(side), studio::grid, scaled(side), scaled(side));
    buttons_->setSpacing(studio::grid);
    buttons_->addStretch(1);
    auto* rows = new QVBoxLayout{this};
    rows->setContentsMargins(1, scaled(strip_height), 1, 1);
    rows->setSpacing(0);
    rows->addWidget(area);
    rows->addLayout(buttons_);
}

void BoxView::build(QWidget& body) {
    auto* row = new QHBoxLayout{&body};
    row->setContentsMargins(scaled(side), scaled(side), scaled(side), scaled(gap));
    row->setSpacing(scaled(gap));
    if (look_.sign != Sign::none)
        row->addWidget(mark_of(look_), 0, Qt::AlignTop);
    column_ = new QVBoxLayout;
    column_->setSpacing(studio::grid);
    row->addLayout(column_, 1);
    add_words();
}

void BoxView::add_words() {
    const QString lines = QString{text_}.replace("\r\n", "\n").replace('\r', '\n').trimmed();
    const QString heading = lines.section('\n', 0, 0).trimmed();
    const QString rest = lines.section('\n', 1).trimmed();
    add_line(heading, studio_font(Type::deck_title, Step::compact, true), studio::text);
    if (!rest.isEmpty())
        add_line(rest, studio_font(Type::medium), studio::second);
    column_->addStretch(1);
}

int BoxView::line_width() const {
    const int beside = look_.sign == Sign::none ? 0 : scaled(mark_size) + scaled(gap);
    return width() - 2 - 2 * scaled(side) - beside;
}

// What is cut is told whole where the pointer rests on it.
QLabel* BoxView::add_line(const QString& text, const QFont& font, const QColor& ink) {
    const QString fitting = with_fitting_words(text, QFontMetrics{font}, line_width());
    auto* label = new QLabel{fitting};
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setFont(font);
    QPalette palette = box_palette();
    palette.setColor(QPalette::WindowText, ink);
    label->setPalette(palette);
    label->setFixedSize(line_width(), label->heightForWidth(line_width()));
    label->setAccessibleName(text);
    if (without_joints(fitting) != text)
        label->setToolTip(text);
    column_->addWidget(label);
    return label;
}

StudioButton& BoxView::add_button(const QString& words, Accent accent) {
    auto* button = new StudioButton{this};
    button->setText(words);
    button->setAccessibleName(words);
    button->setToolTip(words);
    button->set_accent(accent);
    buttons_->addWidget(button);
    row_ += button;
    return *button;
}

void BoxView::mark_letters() {
    QStringList captions;
    for (const StudioButton* button : row_)
        captions += button->text();
    const QStringList marked = with_mnemonics(captions);
    for (qsizetype place = 0; place < row_.size(); ++place) {
        row_[place]->set_marked(marked[place]);
        row_[place]->setShortcut(access_keys(from_qt(marked[place])));
    }
}

QRect BoxView::room() const {
    const QScreen* on = over_.isNull() ? QGuiApplication::primaryScreen() : over_->screen();
    return on->availableGeometry();
}

// A text that no screen holds can be scrolled; the buttons stay.
void BoxView::fit_to_screen() {
    const int rest = scaled(strip_height) + 1 + buttons_->sizeHint().height();
    auto* area = findChild<QScrollArea*>();
    area->setFixedHeight(std::min(body_->sizeHint().height(), room().height() - rest));
    adjustSize();
}

void BoxView::showEvent(QShowEvent* event) {
    fit_to_screen();
    move(place_of_box(size(), over_));
    if (focusWidget() == nullptr && default_ != nullptr)
        default_->setFocus();
    QDialog::showEvent(event);
}

void BoxView::keyPressEvent(QKeyEvent* event) {
    const bool returns = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    const bool answers = returns || event->key() == Qt::Key_Escape;
    if (answers && event->isAutoRepeat())
        return;
    if (event->matches(QKeySequence::Copy))
        QGuiApplication::clipboard()->setText(windowTitle() + "\n" + text_);
    else if (returns)
        press_button();
    else if (event->key() == Qt::Key_F1)
        ask_for_help();
    else
        QDialog::keyPressEvent(event);
}

void BoxView::press_button() {
    if (auto* button = dynamic_cast<StudioButton*>(focusWidget()))
        button->click();
    else if (default_ != nullptr)
        default_->click();
}

// What can be done here is told of the window that asks.
void BoxView::ask_for_help() const {
    if (const auto* box = dynamic_cast<const BoxView*>(over_.data()))
        box->ask_for_help();
    else if (auto* window = dynamic_cast<WindowView*>(over_.data()))
        window->ask_for_help();
}

// It has no frame of the desktop's, so its title is what moves it.
void BoxView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && event->position().y() < scaled(strip_height))
        windowHandle()->startSystemMove();
}

void BoxView::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF edge = QRectF{rect()}.adjusted(0.5, 0.5, -0.5, -0.5);
    QPainterPath plate;
    plate.addRoundedRect(edge, studio::card_radius, studio::card_radius);
    painter.fillPath(plate, studio::card);
    const QRect strip{0, 0, width(), scaled(strip_height)};
    painter.setClipRect(strip);
    painter.fillPath(plate, studio::control);
    painter.setFont(studio_font(Type::small, Step::compact, true));
    painter.setPen(studio::second);
    const QRect words = strip.adjusted(scaled(gap), 0, -scaled(gap), 0);
    painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                     painter.fontMetrics().elidedText(windowTitle(), Qt::ElideMiddle, words.width()));
    painter.setClipping(false);
    painter.strokePath(plate, QPen{look_.is_trouble ? studio::trouble : studio::field_line, 1});
}

} // namespace sonarelle
