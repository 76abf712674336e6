#pragma once

#include "desktop/panel.h"

namespace sonarelle {

/// A card from edge to edge of its window.
class CardStrip : public Panel {
public:
    /// A deep one has the ground of a bar, where the cards are dark.
    explicit CardStrip(bool is_deep = false, QWidget* parent = nullptr)
        : Panel{parent},
          deep_{is_deep} {}

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    bool deep_;
};

} // namespace sonarelle
