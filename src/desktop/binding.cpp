#include "desktop/binding.h"

#include <QHelpEvent>
#include <QToolTip>

#include "desktop/colours.h"
#include "desktop/file_drops.h"
#include "desktop/qt_text.h"
#include "desktop/tips.h"

namespace sonarelle {

Binding::Binding(Control& control, QWidget& widget, const DesktopServices& services)
    : control_{control},
      widget_{&widget},
      services_{services} {
    widget.setObjectName(to_qt(control.name()));
    widget.installEventFilter(this);
    control.observe(this);
    services.updates.mark(*this);
    if (control.on_files_dropped)
        drops_ = std::make_unique<FileDrops>(control, services);
    take_drops_on(widget);
}

Binding::~Binding() {
    services_.updates.forget(*this);
    control_.observe(nullptr);
}

void Binding::take_drops_on(QWidget& widget) {
    if (drops_ != nullptr)
        drops_->take_on(widget);
}

void Binding::show_value() {
    if (widget_.isNull())
        return;
    showing_ = true;
    const QString hint = to_qt(control_.hint);
    show_state();
    const QString told = hint.isEmpty() ? caption() : hint;
    const QString name = spoken_name_.isEmpty() ? told : spoken_name_;
    if (!names_itself() && !name.isEmpty() && widget_->accessibleName() != name) // else the view's own holds
        widget_->setAccessibleName(name);
    if (widget_->toolTip() != tip())
        widget_->setToolTip(tip());
    QPalette palette = widget_->palette();
    paint(palette);
    if (palette != widget_->palette())
        widget_->setPalette(palette);
    show_enabled();
    widget_->setVisible(control_.visible);
    showing_ = false;
    if (on_shown)
        on_shown();
}

void Binding::set_lit(bool lit) {
    lit_ = lit;
    if (!widget_.isNull())
        show_enabled();
}

void Binding::show_enabled() {
    if (lit_ || !control_.is_reachable())
        give_keyboard_back();
    widget_->setEnabled(control_.enabled && !lit_);
}

// What can be worked is named by its tip, too; a text that is read says itself what it is.
QString Binding::tip() const {
    QString hint = to_qt(control_.hint);
    const bool can_be_worked = widget_->focusPolicy() != Qt::NoFocus && control_.kind() != ControlKind::row_table;
    if (!hint.isEmpty() || !can_be_worked)
        return hint;
    return caption().isEmpty() ? widget_->accessibleName() : caption();
}

bool Binding::show_tip(QPoint place) const {
    if (widget_->toolTip().isEmpty())
        return false;
    QToolTip::showText(place, tip_of(widget_->toolTip(), key_), widget_);
    return true;
}

// The toolkit would hand it on to the next part, and the space bar with it.
void Binding::give_keyboard_back() {
    const QWidget* focus = widget_->window()->focusWidget();
    if (focus != nullptr && (focus == widget_ || widget_->isAncestorOf(focus)))
        widget_->window()->setFocus();
}

void Binding::paint(QPalette& palette) const {
    const QColor fore = to_qt(control_.fore_colour, studio::text);
    palette.setColor(QPalette::Active, QPalette::WindowText, fore);
    palette.setColor(QPalette::Inactive, QPalette::WindowText, fore);
}

bool Binding::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::ToolTip && object == widget_ && show_tip(static_cast<QHelpEvent*>(event)->globalPos()))
        return true;
    if (event->type() == QEvent::Enter && control_.on_mouse_move)
        run([this] { control_.mouse_move(); });
    if (event->type() == QEvent::Leave && control_.on_mouse_move && on_left)
        on_left();
    return QObject::eventFilter(object, event);
}

} // namespace sonarelle
