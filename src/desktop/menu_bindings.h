#pragma once

#include <QMenu>
#include <QMenuBar>
#include <map>
#include <memory>
#include <vector>

#include "desktop/desktop_services.h"
#include "desktop/update_queue.h"
#include "platform/controls.h"

namespace sonarelle {

/// An entry of a menu, and the menu that hangs under it.
class MenuItemBinding : public QObject, public Shown, private ControlObserver {
public:
    MenuItemBinding(MenuItem& item, QWidget& window, const DesktopServices& services);
    ~MenuItemBinding() override;
    MenuItemBinding(const MenuItemBinding&) = delete;
    MenuItemBinding& operator=(const MenuItemBinding&) = delete;

    void show_value() final;
    [[nodiscard]] QAction& action() const { return *action_; }
    /// Null for an entry without entries.
    [[nodiscard]] QMenu* menu() const { return menu_.get(); }
    /// Its caption on the screen: with dots where it opens a box, its path as long as a menu is wide.
    [[nodiscard]] QString words() const;

    /// Called after each update.
    std::function<void()> on_shown;

private:
    void control_changed(Control&) override { services_.updates.mark(*this); }
    void make_menu(QWidget& window);
    void make_action();
    [[nodiscard]] QString whole_words() const;

    MenuItem& item_;
    const DesktopServices& services_;
    std::unique_ptr<QMenu> menu_;
    QAction* action_;
};

/// All menus of a window: its bar, and those that open at the pointer.
class MenuBindings {
public:
    MenuBindings(Window& window, QWidget& widget, const DesktopServices& services);
    ~MenuBindings();
    MenuBindings(const MenuBindings&) = delete;
    MenuBindings& operator=(const MenuBindings&) = delete;

    /// The bar goes while all its menus are hidden.
    void fill(QMenuBar& bar);
    void popup(MenuItem& item, const Control* under = nullptr);
    /// The entry's action, for a tool button or a shortcut.
    [[nodiscard]] QAction& action(MenuItem& item);
    [[nodiscard]] QMenu* menu(MenuItem& item) { return entry(item).menu(); }

private:
    MenuItemBinding& entry(MenuItem& item);
    void show_bar(QMenuBar& bar) const;

    Window& window_;
    QWidget& widget_;
    const DesktopServices& services_;
    std::map<const MenuItem*, std::unique_ptr<MenuItemBinding>> entries_;
};

} // namespace sonarelle
