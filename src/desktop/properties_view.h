#pragma once

#include <QTimer>

#include "accessories/propriete.h"
#include "desktop/dresser.h"
#include "desktop/mark_handle.h"

class QBoxLayout;
class QGridLayout;

namespace sonarelle {

class Panel;

/// A row's properties: the shape of its sound with the marks of its start and its end, to be dragged and to be set by
/// ear, and the fields.
class PropertiesView : public WindowView {
public:
    PropertiesView(Propriete& window, const DesktopServices& services);

    void show_value() override;

private:
    [[nodiscard]] Panel* sound_panel();
    [[nodiscard]] Panel* record_panel();
    [[nodiscard]] QLayout* foot();
    void add_mark(QGridLayout& grid, Label& name, TextBox& field, std::initializer_list<Label*> actions);
    void add_field(QBoxLayout& row, Label& name, TextBox& field, const QString& unit, int characters);
    [[nodiscard]] QLineEdit* number_field(TextBox& field, const Label& name);
    [[nodiscard]] StudioButton* action(Label& label, const Label* line = nullptr);
    [[nodiscard]] MarkHandle* grip(MarkHandle::Side side, const Label& name, std::function<void(double)>& moved);

    void show_sound();
    [[nodiscard]] double seconds_in(const Waveform* sound) const;

    Propriete& window_;
    Dresser dresser_{*this};
    ProgressStrip* strip_ = nullptr;
    MarkHandle* start_ = nullptr;
    MarkHandle* end_ = nullptr;
    QTimer second_; ///< Asks for a shape that is still being read.
};

} // namespace sonarelle
