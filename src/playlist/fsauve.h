#pragma once

#include <algorithm>
#include <string>

#include "platform/controls.h"

namespace sonarelle {

/// The progress window of long work: a text and a bar. Closing it asks the work to end, which the work sees at its next
/// step.
struct fsauve : Window {
    fsauve()
        : Window{"fsauve"} {
        caption = "Traitement en cours";
        on_unload_request = [this] {
            cancelled_ = true;
            hide();
        };
    }

    Label step{*this, "Label1", "Traitement en cours ......Patientez SVP !"}; ///< What is being done.
    ProgressBar bar{*this, "ProgressBar1"};

    /// Shows the window with an empty bar, for work of so many steps.
    void begin(int steps, std::string text) {
        cancelled_ = false;
        bar.value = 0;
        bar.maximum = std::max(1, steps);
        step.caption = std::move(text);
        show();
    }
    void advance(int done, std::string text) {
        bar.value = done;
        step.caption = std::move(text);
    }
    void end() { hide(); }

    /// Whether the operator has closed it since the work began.
    [[nodiscard]] bool is_cancelled() const { return cancelled_; }

private:
    bool cancelled_ = false;
};

} // namespace sonarelle
