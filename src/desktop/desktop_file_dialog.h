#pragma once

#include <QFileDialog>
#include <string>

#include "desktop/path_forms.h"

namespace sonarelle {

/// Chooses a file of this machine for the station. One that the station can't hold or reach is refused by name, and
/// the dialog stays.
class DesktopFileDialog : public QFileDialog {
public:
    DesktopFileDialog(const PathForms& paths, QWidget* parent);

    /// Folder and file are in the station's form; a file name may be a pattern, or a whole path.
    void begin_at(const std::string& folder, const std::string& file);

    /// The file that was accepted, in the station's form.
    [[nodiscard]] const std::string& chosen() const { return chosen_; }

    void accept() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    const PathForms& paths_;
    std::string chosen_;
};

} // namespace sonarelle
