#pragma once

#include <QPointer>
#include <QWidget>
#include <memory>
#include <vector>

#include "desktop/binding.h"
#include "desktop/menu_bindings.h"
#include "desktop/window_ground.h"
#include "platform/window.h"

class QVBoxLayout;

namespace sonarelle {

/// A window of the station on the screen: its place, title, state and background, the characters typed into it, its
/// menus, and the bindings of its controls.
class WindowView : public QWidget, public Shown, private ControlObserver {
public:
    /// `least`: the smallest size that loses no control; a smaller one that the station asks for is not taken.
    WindowView(Window& window, const DesktopServices& services, QSize least);
    ~WindowView() override;
    WindowView(const WindowView&) = delete;
    WindowView& operator=(const WindowView&) = delete;

    void show_value() override;

    [[nodiscard]] Window& window_value() const { return window_; }
    [[nodiscard]] const DesktopServices& services() const { return services_; }
    [[nodiscard]] MenuBindings& menus() { return menus_; }
    [[nodiscard]] QMenuBar& menu_bar() { return *bar_; }
    /// Below the menu bar: where the window's parts are laid out.
    [[nodiscard]] QWidget& content() { return *content_; }

    /// The window of the station that had the keyboard last; null before any had it.
    [[nodiscard]] static WindowView* last_active();

    /// The operator asks what can be done here.
    void ask_for_help();

    /// From now on it comes up over another window, below that one's header, and stays before it.
    void open_over(QWidget& owner) { owner_ = &owner; }

    /// Keeps a binding for as long as the window lives.
    template <typename Kind>
    Kind& keep(std::unique_ptr<Kind> binding) {
        Kind& kept = *binding;
        kept.on_left = [this] { pointer_moved(); };
        bindings_.push_back(std::move(binding));
        return kept;
    }
    [[nodiscard]] bool is_bound(const Control& control) const;
    /// The binding of a control; null for one that has none.
    [[nodiscard]] Binding* binding_of(const Control& control) const;

protected:
    /// The title on the window's frame: its caption, where a view knows nothing truer.
    [[nodiscard]] virtual QString title() const;
    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void control_changed(Control&) override { services_.updates.mark(*this); }
    void show_place();
    [[nodiscard]] QPoint on_screen(QPoint place) const;
    [[nodiscard]] const QScreen& screen_at(const QRect& area) const;
    void show_state();
    void change_visibility();
    void place_over_owner();
    [[nodiscard]] bool keys_go_elsewhere() const;
    [[nodiscard]] bool presses_button(const QKeyEvent& key) const;
    void keep_place();
    void keep_size();
    void watch_keys();
    void pointer_moved();
    void pass_characters(const QString& text);
    void activated();
    void make_room_for_frame();
    void show_first_menu();
    [[nodiscard]] bool press_button();
    [[nodiscard]] bool accepts_text() const;

    Window& window_;
    const DesktopServices& services_;
    QWidget* content_;
    QMenuBar* bar_;
    MenuBindings menus_;
    WindowGround ground_;
    QPointer<QWidget> owner_;
    std::vector<std::unique_ptr<Binding>> bindings_;
    bool showing_ = false;
    bool watches_keys_ = false;
    bool was_placed_ = false;
    bool awaits_frame_ = false; ///< It was placed before its frame was known,
    QPoint wished_;             ///< here.
    int shows_ = 0;             ///< How many of the window's were answered.
};

} // namespace sonarelle
