#include "platform/controls.h"

#include <algorithm>
#include <cstdint>

namespace sonarelle {

OptionButton::OptionButton(Window& parent, OptionGroup& group, std::string name, std::string text)
    : Control{parent, ControlKind::option_button, std::move(name)},
      caption{*this, std::move(text)},
      group_{group} {
    group_.options_.push_back(this);
}

OptionButton::~OptionButton() {
    std::erase(group_.options_, this);
}

void OptionButton::show_value(bool chosen) {
    if (chosen)
        for (OptionButton* other : group_.options_)
            if (other != this)
                other->show_value(false);
    value_ = chosen;
    in_force_ = false;
}

void OptionButton::set_value(bool chosen) {
    const bool before = in_force_;
    show_value(chosen);
    in_force_ = chosen;
    if (chosen && !before)
        raise(on_click);
}

void MenuItem::hang(std::initializer_list<std::initializer_list<MenuItem*>> groups) {
    for (const auto& group : groups) {
        if (!entries_.empty())
            group_heads_.push_back(*group.begin());
        entries_.insert(entries_.end(), group);
    }
}

bool MenuItem::begins_group(const MenuItem& entry) const {
    return std::ranges::find(group_heads_, &entry) != group_heads_.end();
}

int ProgressBar::percent() const {
    const std::int64_t span = std::int64_t{maximum} - minimum;
    if (value >= maximum)
        return 100;
    if (span <= 0)
        return 0;
    return static_cast<int>(std::max<std::int64_t>(0, (std::int64_t{value} - minimum) * 100 / span));
}

void ComboBox::choose(int index) {
    if (!is_reachable() || index < 0 || index >= static_cast<int>(items.get().size()))
        return;
    selected = index;
    text_ = items.get()[static_cast<std::size_t>(index)];
    raise(on_click);
}

} // namespace sonarelle
