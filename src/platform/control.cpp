#include "platform/control.h"

#include "platform/window.h"

namespace sonarelle {

Control::Control(Window& parent, ControlKind kind, std::string name)
    : name_{std::move(name)},
      kind_{kind},
      parent_{&parent} {
    parent.controls_.push_back(this);
}

Control::~Control() {
    if (parent_ != nullptr)
        std::erase(parent_->controls_, this);
}

} // namespace sonarelle
