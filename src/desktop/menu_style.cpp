#include "desktop/menu_style.h"

#include <QEvent>
#include <QMenu>
#include <QPainter>
#include <QStyleOption>

#include "desktop/signs.h"
#include "desktop/text_size.h"
#include "desktop/tips.h"

namespace sonarelle {

namespace {

// Pixels at a text of 13.
constexpr int entry_height = 28;
constexpr int separator_height = 13;
constexpr int marks = 32; ///< The column left of the words.
constexpr int mark_size = 16;
constexpr int padding = 10;
constexpr int gap = 24;            ///< Before a shortcut, and for the arrow of a menu.
constexpr int edge = 6;            ///< Around the entries.
constexpr int wake_up_delay = 500; // ms

bool is_menu(const QWidget* widget) {
    return qobject_cast<const QMenu*>(widget) != nullptr;
}

void draw_plate(QPainter& painter, const QRect& area, const QColor& ground, const QPen& pen, int corner) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(ground);
    painter.setPen(pen);
    const double half = pen.style() == Qt::NoPen ? 0 : 0.5;
    painter.drawRoundedRect(QRectF{area}.adjusted(half, half, -half, -half), corner, corner);
    painter.restore();
}

Sign mark_of(const QStyleOptionMenuItem& entry, bool destroys) {
    return destroys ? Sign::warn : entry.checked ? Sign::check : Sign::none;
}

void draw_mark(QPainter& painter, const QStyleOptionMenuItem& entry, bool destroys, const QColor& ink) {
    const int size = scaled(mark_size);
    const QRectF place(entry.rect.left() + scaled(marks - mark_size) / 2.0, entry.rect.top(), size,
                       entry.rect.height());
    if (entry.checked && entry.checkType == QStyleOptionMenuItem::Exclusive) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(place.center(), size / 5.0, size / 5.0);
    } else {
        paint_sign(painter, mark_of(entry, destroys), place, size, ink);
    }
}

void draw_words(QPainter& painter, const QStyleOptionMenuItem& entry, const QColor& ink) {
    const QRect area = entry.rect.adjusted(scaled(marks), 0, -scaled(padding), 0);
    const QString words = entry.text.section('\t', 0, 0);
    const QString shortcut = entry.text.section('\t', 1);
    painter.setFont(entry.font);
    painter.setPen(ink);
    painter.drawText(area, Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextShowMnemonic, words);
    const bool reachable = entry.state.testFlag(QStyle::State_Enabled);
    painter.setPen(reachable ? studio::second : studio::off);
    painter.drawText(area, Qt::AlignVCenter | Qt::AlignRight | Qt::TextSingleLine, shortcut);
}

void draw_entry(QPainter& painter, const QStyleOptionMenuItem& entry, bool destroys) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const bool reachable = entry.state.testFlag(QStyle::State_Enabled);
    const QColor ink = !reachable ? studio::off : destroys ? studio::trouble_text : studio::text;
    if (reachable && entry.state.testFlag(QStyle::State_Selected))
        draw_plate(painter, entry.rect, studio::selection, Qt::NoPen, studio::small_radius);
    draw_mark(painter, entry, destroys, ink);
    draw_words(painter, entry, ink);
    if (entry.menuItemType == QStyleOptionMenuItem::SubMenu) {
        const int size = scaled(mark_size);
        const QRect place{entry.rect.right() - scaled(padding) - size / 2, entry.rect.top(), size, entry.rect.height()};
        paint_sign(painter, Sign::right, place, size, ink);
    }
    painter.restore();
}

void draw_separator(QPainter& painter, const QRect& area) {
    painter.fillRect(QRect{area.left() + 4, area.center().y(), area.width() - 8, 1}, studio::line);
}

} // namespace

void MenuStyle::polish(QWidget* widget) {
    StudioStyle::polish(widget);
    if (is_menu(widget)) {
        widget->setAttribute(Qt::WA_TranslucentBackground); // around its corners
        widget->setFont(studio_font(Type::base));
    }
    if (widget->inherits("QTipLabel"))
        widget->installEventFilter(this);
}

int MenuStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
    case PM_MenuPanelWidth:
        return 1;
    case PM_MenuHMargin:
    case PM_MenuVMargin:
        return edge - 1;
    case PM_ToolTipLabelFrameWidth:
        return 5;
    default:
        return StudioStyle::pixelMetric(metric, option, widget);
    }
}

int MenuStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    return hint == SH_ToolTip_WakeUpDelay ? wake_up_delay : StudioStyle::styleHint(hint, option, widget, data);
}

QSize MenuStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (type != CT_MenuItem || entry == nullptr || !is_menu(widget))
        return StudioStyle::sizeFromContents(type, option, size, widget);
    if (entry->menuItemType == QStyleOptionMenuItem::Separator)
        return {scaled(marks), separator_height};
    const bool has_more = entry->text.contains('\t') || entry->menuItemType == QStyleOptionMenuItem::SubMenu;
    return {size.width() + scaled(marks + padding + (has_more ? gap : 0)), scaled(entry_height)};
}

void MenuStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    if (element == PE_PanelMenu)
        draw_plate(*painter, option->rect, studio::card, QPen{studio::field_line, 1}, studio::card_radius);
    else if (element == PE_PanelTipLabel)
        painter->fillRect(option->rect, studio::tip);
    else if (element != PE_FrameMenu) // the plate has an edge
        StudioStyle::drawPrimitive(element, option, painter, widget);
}

void MenuStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const auto* menu = qobject_cast<const QMenu*>(widget);
    if (menu != nullptr && element == CE_MenuEmptyArea)
        return;
    if (element != CE_MenuItem || entry == nullptr || menu == nullptr)
        return StudioStyle::drawControl(element, option, painter, widget);
    if (entry->menuItemType == QStyleOptionMenuItem::Separator)
        return draw_separator(*painter, entry->rect);
    const QAction* action = menu->actionAt(entry->rect.center());
    draw_entry(*painter, *entry, action != nullptr && action->property(entry_destroys).toBool());
}

bool MenuStyle::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Show || event->type() == QEvent::Move)
        keep_off_remaining_time(*static_cast<QWidget*>(object));
    return StudioStyle::eventFilter(object, event);
}

} // namespace sonarelle
