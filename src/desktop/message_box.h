#pragma once

#include <QTimer>
#include <functional>

#include "desktop/box_view.h"
#include "desktop/box_words.h"
#include "platform/dialogs.h"

namespace sonarelle {

/// The name of what is on the air; empty for nothing.
using NameOnAir = std::function<QString()>;

/// A message box of the station on the screen. The question at the end says what is on the air, as long as it is.
class MessageBoxView : public BoxView {
public:
    explicit MessageBoxView(const MessageBox& box, QWidget* over = window_below_a_box(), NameOnAir name_on_air = {});

    /// The button that was pressed; the last one when the box was closed otherwise.
    [[nodiscard]] Answer answer() const { return answer_; }
    /// Null for an answer that it doesn't offer.
    [[nodiscard]] StudioButton* button(Answer answer) const;

private:
    void add_buttons(const MessageBox& box, const BoxWords& question);
    void add_air();
    void show_air();

    NameOnAir name_on_air_;
    QLabel* air_ = nullptr;
    QTimer second_;
    std::vector<std::pair<Answer, StudioButton*>> buttons_;
    Answer answer_ = Answer::ok;
};

/// Tells something over a window, and waits until it is read.
void tell(QWidget* over, const std::string& title, const std::string& text, Icon icon);

} // namespace sonarelle
