#pragma once

#include <functional>
#include <string>

#include "platform/dialogs.h"
#include "windows/err_form.h"

namespace sonarelle {

struct Failure;

/// What the station tells the operator: in the warning window, which holds nothing up, and in boxes that wait for him.
/// Window thread.
class Notices {
public:
    Notices(Dialogs& dialogs, err_form& window)
        : dialogs_{dialogs},
          window_{window} {}

    /// Shows lines in the warning window without waiting for the operator.
    void warn(const std::string& lines);
    /// The same of a file that is missing. The names of others that the operator hasn't read yet stay with it.
    void warn_of_file(const std::string& heading, const std::string& path, const std::string& last_line);
    /// Writes lines into the warning window, for who shows it.
    void write_warning(const std::string& lines);
    void take_warning_back() { window_.hide(); }
    /// Called with the lines of each warning.
    std::function<void(const std::string&)> on_warning;

    /// An information box under the station's title.
    void inform(const std::string& text) { show_box(dialogs_, text, Icon::information); }

private:
    Dialogs& dialogs_;
    err_form& window_;
};

/// What a box says of a failure: the sentence, and on a line of its own what it concerns.
[[nodiscard]] std::string lines_of(const Failure& failure);

} // namespace sonarelle
