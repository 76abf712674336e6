#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/window.h"

namespace sonarelle {

/// The parts of a window. Events are calls: `click()` is what the operator does, and does nothing on a control that he
/// can't reach. Giving another value to a slider, check box, option or text raises its event at once, also from code;
/// an equal value raises nothing, and the `show_…` writes change what is seen and raise nothing.

class Label : public Control {
public:
    Label(Window& parent, std::string name, std::string text = {})
        : Control{parent, ControlKind::label, std::move(name)},
          caption{*this, std::move(text)} {}

    void click() { raise_by_hand(on_click); }

    Property<std::string> caption;
    std::function<void()> on_click;
};

class Button : public Control {
public:
    Button(Window& parent, std::string name, std::string text = {})
        : Control{parent, ControlKind::button, std::move(name)},
          caption{*this, std::move(text)} {}

    void click() { raise_by_hand(on_click); }

    Property<std::string> caption;
    Property<std::string> picture{*this, {}};
    std::function<void()> on_click;
    /// While it is true the space bar doesn't press it; the return key does.
    std::function<bool()> refuses_space;

protected:
    Button(Window& parent, ControlKind kind, std::string name, std::string text)
        : Control{parent, kind, std::move(name)},
          caption{*this, std::move(text)} {}
};

/// A button that is drawn, with colours of its own for the pointer over it and for being down.
class GraphicButton : public Button {
public:
    GraphicButton(Window& parent, std::string name, std::string text = {})
        : Button{parent, ControlKind::graphic_button, std::move(name), std::move(text)} {}

    Property<Colour> back_colour_down{*this, desktop_face};
    Property<Colour> back_colour_over{*this, desktop_face};
    Property<Colour> fore_colour_down{*this, desktop_text};
    Property<Colour> fore_colour_over{*this, desktop_text};
};

/// A picture, by its file's name. It can be pressed.
class Image : public Control {
public:
    Image(Window& parent, std::string name, std::string file = {})
        : Control{parent, ControlKind::image, std::move(name)},
          picture{*this, std::move(file)} {}

    void click() { raise_by_hand(on_click); }

    Property<std::string> picture;
    std::function<void()> on_click;
};

class Frame : public Control {
public:
    Frame(Window& parent, std::string name, std::string text = {})
        : Control{parent, ControlKind::frame, std::move(name)},
          caption{*this, std::move(text)} {}

    Property<std::string> caption;
};

class TextBox : public Control {
public:
    TextBox(Window& parent, std::string name, std::string initial = {})
        : Control{parent, ControlKind::text_box, std::move(name)},
          text_{*this, std::move(initial)} {}

    [[nodiscard]] const std::string& text() const { return text_; }
    void set_text(std::string text) {
        if (text == text_.get())
            return;
        text_ = std::move(text);
        raise(on_change);
    }

    std::function<void()> on_change;

private:
    Property<std::string> text_;
};

/// 0 is clear, 1 is ticked.
class CheckBox : public Control {
public:
    CheckBox(Window& parent, std::string name, std::string text = {})
        : Control{parent, ControlKind::check_box, std::move(name)},
          caption{*this, std::move(text)} {}

    [[nodiscard]] int value() const { return value_; }
    void set_value(int value) {
        if (value == value_)
            return;
        value_ = value;
        raise(on_click);
    }
    void click() {
        if (is_reachable())
            set_value(value_ == 0 ? 1 : 0);
    }

    Property<std::string> caption;
    std::function<void()> on_click;

private:
    Property<int> value_{*this, 0};
};

class OptionButton;

/// Options of which one at most is chosen.
class OptionGroup {
private:
    friend class OptionButton;
    std::vector<OptionButton*> options_;
};

class OptionButton : public Control {
public:
    OptionButton(Window& parent, OptionGroup& group, std::string name, std::string text = {});
    ~OptionButton() override;
    OptionButton(const OptionButton&) = delete;
    OptionButton& operator=(const OptionButton&) = delete;

    [[nodiscard]] bool value() const { return value_; }
    /// Choosing it clears the others of its group, and raises its click; clearing raises nothing.
    void set_value(bool chosen);
    /// Chooses it for the eye alone: it isn't in force, and choosing it raises its click.
    void show_value(bool chosen);
    void click() {
        if (is_reachable())
            set_value(true);
    }

    Property<std::string> caption;
    std::function<void()> on_click;

private:
    OptionGroup& group_;
    Property<bool> value_{*this, false};
    bool in_force_ = false;
};

class Slider : public Control {
public:
    Slider(Window& parent, std::string name, int least, int greatest)
        : Control{parent, ControlKind::slider, std::move(name)},
          minimum{*this, least},
          maximum{*this, greatest} {}

    [[nodiscard]] int value() const { return value_; }
    /// A value outside the range is refused.
    void set_value(int value) {
        if (show_value(value))
            raise(on_change);
    }
    /// Moves it for the eye alone; true when it moved.
    bool show_value(int value) {
        if (value == value_ || value < minimum || value > maximum)
            return false;
        value_ = value;
        return true;
    }

    Property<int> minimum;
    Property<int> maximum;
    std::function<void()> on_change;

private:
    Property<int> value_{*this, 0};
};

class ProgressBar : public Control {
public:
    ProgressBar(Window& parent, std::string name)
        : Control{parent, ControlKind::progress_bar, std::move(name)} {}

    /// 0 to 100; exactly 100 once the value has reached the maximum.
    [[nodiscard]] int percent() const;

    /// The pointer moves over the bar, or presses it: `x` counts from the left edge, `units_wide` is the right one.
    void move_over(int x) { raise_at(on_mouse_move_at, x); }
    void click_at(int x) { raise_at(on_click_at, x); }

    Property<int> minimum{*this, 0};
    Property<int> maximum{*this, 100};
    Property<int> value{*this, 0};
    Property<int> units_wide{*this, 100};
    Property<std::string> caption{*this, {}};
    std::function<void(int x)> on_mouse_move_at;
    std::function<void(int x)> on_click_at;
    /// Why a press moves nothing at this moment, in the operator's words; empty where it does.
    std::function<std::string()> refusal;

private:
    void raise_at(const std::function<void(int)>& event, int x) const {
        if (event && is_reachable())
            event(x);
    }
};

/// A text that can be typed, and entries that can be chosen. Typing raises the change, choosing raises the click.
class ComboBox : public Control {
public:
    ComboBox(Window& parent, std::string name, std::string initial = {})
        : Control{parent, ControlKind::combo_box, std::move(name)},
          text_{*this, std::move(initial)} {}

    [[nodiscard]] const std::string& text() const { return text_; }
    void set_text(std::string text) {
        if (text == text_.get())
            return;
        text_ = std::move(text);
        raise(on_change);
    }
    /// Chooses an entry, counted from 0.
    void choose(int index);
    /// The keyboard goes to it, and leaves it.
    void enter() { raise(on_enter); }
    void leave() { raise(on_leave); }
    /// A character was typed while it had the focus.
    void key_press(char32_t character) {
        if (is_reachable() && on_key_press)
            on_key_press(character);
    }

    Property<std::vector<std::string>> items{*this, {}};
    Property<int> selected{*this, -1};
    bool takes_typing = true; ///< Otherwise it is a chooser, whose text the station writes.
    std::function<void()> on_enter;
    std::function<void()> on_leave;
    std::function<void()> on_change;
    std::function<void()> on_click;
    std::function<void(char32_t)> on_key_press;

private:
    Property<std::string> text_;
};

class ListBox : public Control {
public:
    ListBox(Window& parent, std::string name)
        : Control{parent, ControlKind::list_box, std::move(name)} {}

    void choose(int index) {
        if (!is_reachable())
            return;
        selected = index;
        raise(on_click);
    }

    Property<std::vector<std::string>> items{*this, {}};
    Property<int> selected{*this, -1};
    std::function<void()> on_click;
};

/// An entry of a menu, or a menu of entries: what hangs under it makes it one.
class MenuItem : public Control {
public:
    MenuItem(Window& parent, std::string name, std::string text = {}, std::string keys = {})
        : Control{parent, ControlKind::menu_item, std::move(name)},
          caption{*this, std::move(text)},
          shortcut{*this, std::move(keys)} {}

    void click() { raise_by_hand(on_click); }
    /// The menu is about to show its entries.
    void open() { raise(on_open); }

    /// Hangs entries under it, in groups that a line parts. An entry may hang under several.
    void hang(std::initializer_list<std::initializer_list<MenuItem*>> groups);
    [[nodiscard]] const std::vector<MenuItem*>& entries() const { return entries_; }
    /// A line stands above this one of its entries.
    [[nodiscard]] bool begins_group(const MenuItem& entry) const;

    Property<std::string> caption;
    Property<std::string> shortcut; ///< As "F5" or "Ctrl+Y".
    Property<bool> checked{*this, false};
    bool opens_box = false;      ///< It shows a box or a window of its own, in which the work is done.
    bool is_one_of_many = false; ///< At most one of its group is checked.
    bool destroys = false;       ///< It deletes what can't be had back.
    std::function<void()> on_click;
    std::function<void()> on_open;

private:
    std::vector<MenuItem*> entries_;
    std::vector<const MenuItem*> group_heads_; // but for the first group's
};

/// Gives a trait to entries of the menus.
inline void mark_entries(bool MenuItem::*trait, std::initializer_list<MenuItem*> entries) {
    for (MenuItem* entry : entries)
        entry->*trait = true;
}

/// A place for a movie, by its file's name.
class Movie : public Control {
public:
    Movie(Window& parent, std::string name)
        : Control{parent, ControlKind::movie, std::move(name)} {}

    void Play() { playing = true; }

    Property<std::string> movie{*this, {}};
    Property<bool> loop{*this, false};
    Property<bool> playing{*this, false};
};

enum class SoundPicture { oscilloscope, spectrum };

/// A picture of what is heard.
class SoundDisplay : public Control {
public:
    SoundDisplay(Window& parent, std::string name)
        : Control{parent, ControlKind::sound_display, std::move(name)} {}

    /// Takes sound in, or stops doing so.
    void InStart() { takes_sound = true; }
    void InStop() { takes_sound = false; }

    Property<SoundPicture> Affichage{*this, SoundPicture::oscilloscope};
    Property<bool> takes_sound{*this, false};
};

/// Text of several fonts and colours.
class RichText : public Control {
public:
    RichText(Window& parent, std::string name)
        : Control{parent, ControlKind::rich_text, std::move(name)} {}

    Property<std::string> text{*this, {}};
    Property<int> selection_start{*this, 0};
    Property<int> selection_length{*this, 0};
    std::function<void()> on_change;
};

} // namespace sonarelle
