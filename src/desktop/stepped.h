#pragma once

#include "desktop/tokens.h"

class QWidget;

namespace sonarelle {

/// A part whose sizes follow the step of its window.
class Stepped {
public:
    virtual ~Stepped() = default;
    virtual void set_step(Step step) = 0;
};

/// Gives a step to a widget and to all parts in it.
void give_step(QWidget& root, Step step);

} // namespace sonarelle
