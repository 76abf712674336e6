#pragma once

#include <cassert>
#include <cstdint>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "platform/units.h"
#include "platform/window_thread.h"

namespace sonarelle {

class Control;
class Window;

/// Who shows a control. One at most; told of every change of a property, on the window thread.
class ControlObserver {
public:
    virtual ~ControlObserver() = default;
    virtual void control_changed(Control& control) = 0;
};

/// A value of a control. Giving it another value tells the control's observer; an equal one does nothing.
template <typename Value>
class Property {
public:
    Property(Control& owner, Value initial)
        : owner_{owner},
          value_{std::move(initial)} {}
    Property(const Property&) = delete;
    Property& operator=(const Property&) = delete;

    Property& operator=(Value value);
    operator const Value&() const { return value_; } // NOLINT: a property reads as its value
    [[nodiscard]] const Value& get() const { return value_; }

private:
    Control& owner_;
    Value value_;
};

/// Red + 256 green + 65536 blue; with the top bit set, a colour of the desktop.
using Colour = std::int32_t;

/// The desktop's own colours of a button's text and face.
inline constexpr Colour desktop_text = static_cast<Colour>(0x80000012);
inline constexpr Colour desktop_face = static_cast<Colour>(0x8000000F);

/// Whether a colour is one of the desktop's, which has no bytes to reckon with.
[[nodiscard]] constexpr bool is_desktop_colour(Colour colour) {
    return colour < 0;
}

enum class ControlKind {
    window,
    label,
    text_box,
    check_box,
    option_button,
    button,
    graphic_button,
    image,
    slider,
    progress_bar,
    combo_box,
    list_box,
    menu_item,
    row_table,
    rich_text,
    frame,
    movie,
    sound_display
};

/// A part of a window as a plain value: it has a state and events, and no screen. Window thread only.
class Control {
public:
    Control(Window& parent, ControlKind kind, std::string name);
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    [[nodiscard]] const std::string& name() const { return name_; }
    [[nodiscard]] ControlKind kind() const { return kind_; }

    void observe(ControlObserver* observer) { observer_ = observer; }
    void notify() {
        if (observer_ != nullptr)
            observer_->control_changed(*this);
    }

    /// Whether the operator can reach it.
    [[nodiscard]] bool is_reachable() const { return enabled && visible; }

    Property<bool> enabled{*this, true};
    Property<bool> visible{*this, true};
    Property<std::string> hint{*this, {}};
    Property<Colour> fore_colour{*this, desktop_text};
    Property<Colour> back_colour{*this, desktop_face};
    /// A size that the station wishes, in twips; 0 leaves it to the view.
    Property<Twips> width{*this, Twips{}};
    Property<Twips> height{*this, Twips{}};
    std::function<void()> on_mouse_move;
    std::function<void(const std::vector<std::string>&)> on_files_dropped;

    /// The pointer is over it.
    void mouse_move() const { raise(on_mouse_move); }
    /// Files were dropped on it from another program: whole paths in the station's form.
    void drop_files(const std::vector<std::string>& paths) const {
        if (on_files_dropped && is_reachable())
            on_files_dropped(paths);
    }

protected:
    /// For a window, which is its own parent.
    Control(ControlKind kind, std::string name)
        : name_{std::move(name)},
          kind_{kind} {}

    static void raise(const std::function<void()>& event) {
        if (event)
            event();
    }
    /// What the operator does to a control that he can't reach does nothing.
    void raise_by_hand(const std::function<void()>& event) const {
        if (is_reachable())
            raise(event);
    }

private:
    std::string name_;
    ControlKind kind_;
    Window* parent_ = nullptr;
    ControlObserver* observer_ = nullptr;
};

template <typename Value>
Property<Value>& Property<Value>::operator=(Value value) {
    assert(on_window_thread());
    if (value_ != value) {
        value_ = std::move(value);
        owner_.notify();
    }
    return *this;
}

} // namespace sonarelle
