#include "desktop/window_view.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QLineEdit>
#include <QPainter>
#include <QScreen>
#include <QTextEdit>
#include <QVBoxLayout>
#include <QWindow>
#include <algorithm>
#include <utility>

#include "desktop/colours.h"
#include "desktop/frame_watch.h"
#include "desktop/picture_store.h"
#include "desktop/qt_text.h"
#include "platform/controls.h"

namespace sonarelle {

namespace {

constexpr int twips_per_pixel = 15;

QPointer<WindowView> last_active_view;

int pixels(Twips length) {
    return length.count() / twips_per_pixel;
}
Twips twips(int length) {
    return Twips{length * twips_per_pixel};
}

// A window that has just come doesn't know its own frame yet, but those of one desktop are alike.
QSize frame_size() {
    QSize frame{0, 0};
    for (const QWidget* top : QApplication::topLevelWidgets())
        if (dynamic_cast<const WindowView*>(top) != nullptr && top->isVisible())
            frame = frame.expandedTo(top->frameGeometry().size() - top->size());
    return frame;
}

// The place of a length that begins here, brought within the room as far as it fits.
int within(int start, int length, int room_start, int room_length) {
    return std::max(room_start, std::min(start, room_start + room_length - length));
}

} // namespace

WindowView::WindowView(Window& window, const DesktopServices& services, QSize least)
    : window_{window},
      services_{services},
      content_{new QWidget{this}},
      bar_{new QMenuBar{this}},
      menus_{window, *this, services} {
    setObjectName(to_qt(window.name()));
    setMouseTracking(true);
    content_->setMouseTracking(true);
    auto* column = new QVBoxLayout{this};
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->setMenuBar(bar_);
    column->addWidget(content_);
    menus_.fill(*bar_);
    setMinimumSize(least);
    const QSize wished{pixels(window.width), pixels(window.height)};
    resize(least.expandedTo(wished));
    window_.observe(this);
    services_.updates.mark(*this);
}

WindowView::~WindowView() {
    services_.updates.forget(*this);
    window_.observe(nullptr);
}

Binding* WindowView::binding_of(const Control& control) const {
    const auto found = std::ranges::find_if(bindings_, [&](const auto& b) { return &b->control() == &control; });
    return found == bindings_.end() ? nullptr : found->get();
}

bool WindowView::is_bound(const Control& control) const {
    return binding_of(control) != nullptr;
}

QString WindowView::title() const {
    return to_qt(window_.caption);
}

void WindowView::show_value() {
    showing_ = true;
    setWindowTitle(title());
    setCursor(window_.mouse_pointer == 11   ? Qt::WaitCursor
              : window_.mouse_pointer == 13 ? Qt::BusyCursor
                                            : Qt::ArrowCursor);
    show_place();
    show_state();
    ground_.show(window_, services_.pictures, *content_);
    update();
    showing_ = false;
}

// A maximised window has the screen's size; the station's own is for the time after.
void WindowView::show_place() {
    if (isMaximized())
        return;
    const QSize size = minimumSize().expandedTo({pixels(window_.width), pixels(window_.height)});
    if (window_.width.get().count() > 0 && size != this->size())
        resize(size);
    else
        keep_size();
    const QPoint place{pixels(window_.left), pixels(window_.top)};
    const bool is_given = window_.left.is_given() || window_.top.is_given();
    if (is_given && (!was_placed_ || place != pos())) {
        const QPoint shown = on_screen(place);
        window_.left = twips(shown.x());
        window_.top = twips(shown.y());
        move(shown);
        awaits_frame_ = frameGeometry() == geometry();
        wished_ = shown;
    }
    was_placed_ = was_placed_ || is_given;
}

// What the station would put beyond the screen comes back: the station knows of no frames, of a window that has not
// been seen not how large it must be, and nothing of a screen that is gone since the place was stored.
QPoint WindowView::on_screen(QPoint place) const {
    const QSize whole = size() + frame_size();
    const QRect room = screen_at({place, whole}).availableGeometry();
    return {within(place.x(), whole.width(), room.x(), room.width()),
            within(place.y(), whole.height(), room.y(), room.height())};
}

// The one that shows most of it.
const QScreen& WindowView::screen_at(const QRect& area) const {
    const QScreen* best = screen();
    int most = 0;
    for (const QScreen* each : QGuiApplication::screens()) {
        const QSize seen = each->geometry().intersected(area).size();
        if (seen.width() * seen.height() > most) {
            most = seen.width() * seen.height();
            best = each;
        }
    }
    return *best;
}

// The flag goes to the native window: Qt would take the widget off the screen and put it back.
void WindowView::show_state() {
    if (QWindow* native = windowHandle())
        native->setFlag(Qt::WindowStaysOnTopHint, window_.topmost);
    const WindowState state = window_.state;
    if (isMinimized() != (state == WindowState::minimised) || isMaximized() != (state == WindowState::maximised))
        setWindowState(state == WindowState::minimised   ? Qt::WindowMinimized
                       : state == WindowState::maximised ? Qt::WindowMaximized
                                                         : Qt::WindowNoState);
    const bool is_new = isVisible() != window_.visible;
    if (is_new && window_.visible)
        place_over_owner();
    if (is_new)
        change_visibility();
    // One that was on view already doesn't come before a box that waits for its answer.
    const bool is_called = std::exchange(shows_, window_.shows()) != window_.shows();
    const bool comes = is_new || (is_called && QApplication::activeModalWidget() == nullptr);
    if (!comes || !window_.visible || state == WindowState::minimised)
        return;
    raise();
    // What is typed must not go to a window that is covered; a notice, which has an owner, leaves the keyboard to it.
    if (!is_new && owner_.isNull())
        activateWindow();
}

// The keyboard goes back to the window that it came from.
void WindowView::change_visibility() {
    const bool had_keyboard = isActiveWindow();
    setVisible(window_.visible);
    if (had_keyboard && !window_.visible && !owner_.isNull() && owner_->isVisible())
        owner_->activateWindow();
}

void WindowView::place_over_owner() {
    if (owner_.isNull() || !owner_->isVisible())
        return;
    create();
    windowHandle()->setTransientParent(owner_->windowHandle());
    if (was_placed_)
        return;
    const QRect below = owner_->geometry();
    const QPoint place{below.center().x() - width() / 2, below.top() + below.height() / 3};
    move(place.x(), on_screen(place).y());
}

void WindowView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!event->spontaneous())
        watch_for_frame(*this, [this] { make_room_for_frame(); });
    watch_keys();
    // Where keys are commands, none of them falls on a button that nobody went to.
    if (window_.on_key_press && focusWidget() == nullptr)
        setFocus();
    if (window_.topmost && windowHandle() != nullptr)
        windowHandle()->setFlag(Qt::WindowStaysOnTopHint, true);
    if (!event->spontaneous())
        QTimer::singleShot(0, this, [this] { activated(); });
}

// Not every screen has someone who makes a window active, so being shown counts too.
void WindowView::activated() {
    make_room_for_frame();
    if (window_.on_activate && isVisible())
        services_.run_event([this] { window_.activate(); });
}

// A place is the frame's, and one that was given before there was a frame became that of what is in it.
void WindowView::make_room_for_frame() {
    window_.take_frame(twips(frameGeometry().height() - height()));
    if (!awaits_frame_ || frameGeometry() == geometry())
        return;
    awaits_frame_ = false;
    const QSize room = screen()->availableGeometry().size() - (frameGeometry().size() - size());
    resize(size().boundedTo(room).expandedTo(minimumSize()));
    move(on_screen(wished_));
}

void WindowView::closeEvent(QCloseEvent* event) {
    event->ignore();
    services_.run_event([this] {
        if (window_.on_unload_request)
            window_.ask_to_close();
        else
            window_.hide();
    });
}

void WindowView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() != QEvent::WindowStateChange || showing_)
        return;
    const bool reduced = isMinimized() && window_.state != WindowState::minimised;
    services_.run_event([&] {
        window_.state = isMinimized()   ? WindowState::minimised
                        : isMaximized() ? WindowState::maximised
                                        : WindowState::normal;
        if (reduced)
            window_.reduce();
    });
}

WindowView* WindowView::last_active() {
    return last_active_view;
}

bool WindowView::event(QEvent* event) {
    if (event->type() == QEvent::WindowActivate) {
        last_active_view = this;
        activated();
    }
    return QWidget::event(event);
}

void WindowView::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    keep_place();
}

// Its place, too, may be another by now, in the station's mind; a size is no news of that.
void WindowView::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    keep_size();
}

// The station places one window by another, so it must know where the operator put it.
void WindowView::keep_place() {
    if (!isVisible() || isMinimized() || isMaximized())
        return;
    window_.take_frame(twips(frameGeometry().height() - height()));
    keep_size();
    was_placed_ = true;
    window_.left = twips(pos().x());
    window_.top = twips(pos().y());
}

void WindowView::keep_size() {
    if (!isVisible() || isMinimized() || isMaximized())
        return;
    const bool is_new = window_.width.get() != twips(width()) || window_.height.get() != twips(height());
    window_.width = twips(width());
    window_.height = twips(height());
    if (is_new)
        window_.grow();
}

void WindowView::mousePressEvent(QMouseEvent* event) {
    setFocus();
    if (event->button() == Qt::LeftButton)
        services_.run_event([this] { window_.click(); });
    else if (event->button() == Qt::RightButton)
        services_.run_event([this] { window_.right_click(); });
}

void WindowView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton)
        services_.run_event([this] { window_.double_click(); });
}

void WindowView::mouseMoveEvent(QMouseEvent*) {
    pointer_moved();
}

// A part that the pointer leaves gives it back to the window, though what lies beside it may hear of no moves.
void WindowView::pointer_moved() {
    if (window_.on_mouse_move)
        services_.run_event([this] { window_.mouse_move(); });
}

void WindowView::paintEvent(QPaintEvent*) {
    QPainter painter{this};
    if (ground_.picture().isNull())
        painter.fillRect(rect(), ground_.colour());
    else
        painter.drawPixmap(rect(), ground_.picture());
}

} // namespace sonarelle
