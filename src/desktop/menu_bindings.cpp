#include "desktop/menu_bindings.h"

#include <QActionGroup>
#include <QCursor>
#include <algorithm>

#include "desktop/fitted_text.h"
#include "desktop/menu_style.h"
#include "desktop/mnemonics.h"
#include "desktop/qt_text.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr int longest_entry = 480; // pixels at a text of 13

} // namespace

MenuItemBinding::MenuItemBinding(MenuItem& item, QWidget& window, const DesktopServices& services)
    : item_{item},
      services_{services} {
    if (item.entries().empty())
        make_action();
    else
        make_menu(window);
    action_->setObjectName(to_qt(item.name()));
    action_->setProperty(entry_destroys, item.destroys);
    // A shortcut works while the menu bar is hidden, too.
    window.addAction(action_);
    item.observe(this);
    show_value();
}

void MenuItemBinding::make_menu(QWidget& window) {
    menu_ = std::make_unique<QMenu>(&window);
    menu_->setObjectName(to_qt(item_.name()));
    menu_->setToolTipsVisible(true);
    action_ = menu_->menuAction();
    connect(menu_.get(), &QMenu::aboutToShow, this, [this] {
        services_.run_event([this] { item_.open(); });
        services_.updates.flush();
    });
}

void MenuItemBinding::make_action() {
    action_ = new QAction{this};
    action_->setAutoRepeat(false); // a held key is one press
    // A group of its own draws a dot, and leaves to the station which of the others is cleared.
    if (item_.is_one_of_many) {
        auto* group = new QActionGroup{this};
        group->setExclusionPolicy(QActionGroup::ExclusionPolicy::ExclusiveOptional);
        group->addAction(action_);
    }
    connect(action_, &QAction::triggered, this, [this] {
        services_.run_event([this] { item_.click(); });
        services_.updates.mark(*this); // the press turned the mark, which is the station's
    });
}

MenuItemBinding::~MenuItemBinding() {
    services_.updates.forget(*this);
    item_.observe(nullptr);
}

QString MenuItemBinding::whole_words() const {
    QString caption = plain_caption(item_.caption);
    if (!item_.opens_box || caption.endsWith("..") || caption.endsWith(u'…'))
        return caption;
    const QString words = caption.trimmed();
    return words + (words.endsWith(':') ? " …" : "…");
}

QString MenuItemBinding::words() const {
    return fitting_line(whole_words(), QFontMetrics{studio_font(Type::base)}, scaled(longest_entry));
}

void MenuItemBinding::show_value() {
    const bool is_cut = words() != whole_words();
    action_->setText(words().replace("&", "&&"));
    action_->setToolTip(item_.hint.get().empty() && is_cut ? whole_words() : to_qt(item_.hint));
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
        if (item.begins_group(*child))
            menu->addSeparator();
        MenuItemBinding& below = entry(*child);
        menu->addAction(&below.action());
        below.on_shown = [menu, elsewhere = std::move(below.on_shown)] {
            if (elsewhere)
                elsewhere();
            mark_letters(*menu);
        };
    }
    if (menu != nullptr)
        mark_letters(*menu);
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
