#pragma once

#include <functional>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/units.h"

namespace sonarelle {

class Button;
class MenuItem;

enum class WindowState { normal, minimised, maximised };

/// Where a window stands, across or down. Another place raises the window's `on_move`, whoever moved it.
class WindowPlace : public Property<Twips> {
public:
    explicit WindowPlace(Window& window);
    WindowPlace& operator=(Twips place);

    /// Whether anyone has put it somewhere, if only at the edge; otherwise the screen finds a place.
    [[nodiscard]] bool is_given() const { return given_; }

private:
    Window& window_;
    bool given_ = false;
};

/// A window of the station: a struct of controls derives from it. Places and sizes are in twips.
class Window : public Control {
public:
    explicit Window(std::string name)
        : Control{ControlKind::window, std::move(name)} {
        visible = false;
    }

    /// All parts, in the order in which they were made.
    [[nodiscard]] const std::vector<Control*>& controls() const { return controls_; }

    /// Brings it on view, in front of the others.
    void show() {
        visible = true;
        ++shows_;
        notify();
    }
    /// How often it was shown.
    [[nodiscard]] int shows() const { return shows_; }
    void hide() { visible = false; }

    /// The operator typed a character, or asked to close the window.
    void key_press(char32_t character) {
        if (key_preview && on_key_press)
            on_key_press(character);
    }
    void ask_to_close() { raise(on_unload_request); }
    /// He pressed its background once, twice, or with the right button.
    void click() const { raise(on_click); }
    void double_click() const { raise(on_double_click); }
    /// He asked for the menu bar, which was hidden.
    void call_menus() const { raise(on_menus_called); }
    void right_click() const { raise(on_right_click); }
    /// He asked what can be done here.
    void ask_for_help() const { raise(on_help); }
    /// It has come to the front, and can be seen.
    void activate() const { raise(on_activate); }
    /// The desktop has put a frame round it, which is as thick.
    void take_frame(Twips above_and_below) {
        if (frame_height_ == above_and_below)
            return;
        frame_height_ = above_and_below;
        raise(on_move);
    }
    /// What the frame adds to its height; none while no frame is known.
    [[nodiscard]] Twips frame_height() const { return frame_height_; }
    /// It has another size.
    void grow() const { raise(on_move); }
    /// He reduced it; a `state` that the station sets is none of his doing.
    void reduce() const { raise(on_reduce); }
    /// Shows a menu under one of its parts, or at the pointer.
    void popup(MenuItem& menu, const Control* under = nullptr) {
        if (on_popup)
            on_popup(menu, under);
    }

    Property<std::string> caption{*this, {}};
    Property<std::string> picture{*this, {}};
    WindowPlace left{*this};
    WindowPlace top{*this};
    Property<bool> topmost{*this, false};
    Property<WindowState> state{*this, WindowState::normal};
    Property<int> mouse_pointer{*this, 0}; ///< 0 is the plain pointer, 11 and 13 show busy.
    Property<bool> key_preview{*this, true};
    Button* default_button = nullptr; ///< The return key presses it where no other button has the focus.
    std::string keys_once;            ///< Characters that count once, however long their key is held.
    bool answers_space = false; ///< The space bar is a command of the window, and presses no button that has the focus.

    std::vector<MenuItem*> menu_bar; ///< The top menus; their entries hang under them.

    std::function<void(char32_t)> on_key_press;
    std::function<void()> on_click;
    std::function<void()> on_double_click;
    std::function<void()> on_menus_called;
    std::function<void()> on_right_click;
    std::function<void()> on_help;
    std::function<void()> on_activate;
    std::function<void()> on_move; ///< Another place, size or frame.
    std::function<void()> on_reduce;
    std::function<void()> on_unload_request;
    std::function<void(MenuItem&, const Control* under)> on_popup;

private:
    friend class Control;
    friend class WindowPlace;

    std::vector<Control*> controls_;
    int shows_ = 0;
    Twips frame_height_{};
};

inline WindowPlace::WindowPlace(Window& window)
    : Property{window, Twips{}},
      window_{window} {}

inline WindowPlace& WindowPlace::operator=(Twips place) {
    given_ = true;
    if (get() == place)
        return *this;
    Property::operator=(place);
    Window::raise(window_.on_move);
    return *this;
}

} // namespace sonarelle
