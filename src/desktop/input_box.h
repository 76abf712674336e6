#pragma once

#include "desktop/box_view.h"
#include "platform/dialogs.h"

class QLineEdit;

namespace sonarelle {

/// The station's question for a text on the screen. Its field has the keyboard, with all of its words selected.
class InputBoxView : public BoxView {
public:
    /// `words` stand in the field at first.
    InputBoxView(const InputBox& box, const QString& words, QWidget* over = window_below_a_box());

    [[nodiscard]] QLineEdit& field() const { return *field_; }

private:
    QLineEdit* field_;
};

} // namespace sonarelle
