#include "desktop/menu_bindings.h"

#include <QCursor>
#include <algorithm>

#include "desktop/colours.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

// Menus lie over panels of the windows' own colour, so theirs is lighter.
QPalette menu_palette() {
    QPalette palette = studio_palette();
    palette.setColor(QPalette::Window, studio::control);
    palette.setColor(QPalette::Base, studio::control);
    return palette;
}

} // namespace

MenuItemBinding::MenuItemBinding(MenuItem& item, QWidget& window, const DesktopServices& services)
    : item_{item},
      services_{services} {
    if (!item.entries().empty()) {
        menu_ = std::make_unique<QMenu>(&window);
        menu_->setObjectName(to_qt(item.name()));
        menu_->setToolTipsVisible(true);
        menu_->setPalette(menu_palette());
        action_ = menu_->menuAction();
        connect(menu_.get(), &QMenu::aboutToShow, this, [this] {
            services_.run_event([this] { item_.open(); });
            services_.updates.flush();
        });
    } else {
        action_ = new QAction{this};
        connect(action_, &QAction::triggered, this, [this] {
            services_.run_event([this] { item_.click(); });
            services_.updates.mark(*this); // the press turned the mark, which is the station's
        });
    }
    action_->setObjectName(to_qt(item.name()));
    // A shortcut works while the menu bar is hidden, too.
    window.addAction(action_);
    item.observe(this);
    show_value();
}

MenuItemBinding::~MenuItemBinding() {
    services_.updates.forget(*this);
    item_.observe(nullptr);
}

void MenuItemBinding::show_value() {
    action_->setText(to_qt(item_.caption));
    action_->setToolTip(to_qt(item_.hint));
    action_->setShortcut(QKeySequence{to_qt(item_.shortcut)});
    action_->setEnabled(item_.enabled);
    action_->setVisible(item_.visible);
    if (menu_ == nullptr) {
        action_->setCheckable(item_.checked);
        action_->setChecked(item_.checked);
    }
    if (on_shown)
        on_shown();
}

MenuBindings::MenuBindings(Window& window, QWidget& widget, const DesktopServices& services)
    : window_{window},
      widget_{widget},
      services_{services} {
    window_.on_popup = [this](MenuItem& item, const Control* under) { popup(item, under); };
    for (Control* control : window.controls())
        if (control->kind() == ControlKind::menu_item)
            static_cast<void>(entry(static_cast<MenuItem&>(*control)));
}

MenuBindings::~MenuBindings() {
    window_.on_popup = nullptr;
}

MenuItemBinding& MenuBindings::entry(MenuItem& item) {
    if (const auto known = entries_.find(&item); known != entries_.end())
        return *known->second;
    auto made = std::make_unique<MenuItemBinding>(item, widget_, services_);
    QMenu* menu = made->menu();
    MenuItemBinding& binding = *(entries_[&item] = std::move(made));
    for (MenuItem* child : item.entries()) {
        if (child->begins_group())
            menu->addSeparator();
        menu->addAction(&entry(*child).action());
    }
    return binding;
}

QAction& MenuBindings::action(MenuItem& item) {
    return entry(item).action();
}

void MenuBindings::fill(QMenuBar& bar) {
    for (MenuItem* item : window_.menu_bar) {
        bar.addAction(&entry(*item).action());
        entry(*item).on_shown = [this, &bar] { show_bar(bar); };
    }
    show_bar(bar);
}

void MenuBindings::show_bar(QMenuBar& bar) const {
    QStringList captions;
    for (const MenuItem* item : window_.menu_bar)
        captions += to_qt(item->caption);
    const QStringList marked = with_mnemonics(captions);
    for (qsizetype place = 0; place < marked.size(); ++place)
        bar.actions()[place]->setText(marked[place]);
    bar.setVisible(std::ranges::any_of(window_.menu_bar, [](const MenuItem* item) { return item->visible.get(); }));
}

// Opens without waiting: the handler that asked for it goes on.
void MenuBindings::popup(MenuItem& item, const Control* under) {
    const auto* part = under == nullptr ? nullptr : widget_.findChild<QWidget*>(to_qt(under->name()));
    const bool is_seen = part != nullptr && part->isVisible();
    if (QMenu* menu = entry(item).menu())
        menu->popup(is_seen ? part->mapToGlobal(part->rect().bottomLeft()) : QCursor::pos());
}

} // namespace sonarelle
