#pragma once

#include "desktop/row_table_binding.h"
#include "desktop/station_label.h"
#include "desktop/studio_button.h"
#include "desktop/window_view.h"
#include "platform/controls.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLabel;
class QLineEdit;
class QListWidget;
class QRadioButton;
class QSlider;
class QTextEdit;

namespace sonarelle {

class ProgressStrip;
class Segment;
class TitleLabel;

/// Makes the widget of a control and binds the two. The widget belongs to the window's content until it is laid out.
class Dresser {
public:
    explicit Dresser(WindowView& view)
        : view_{view} {}

    StationLabel* label(Label& label, const StationLabel::Style& style = {});
    /// A title that the station may turn.
    TitleLabel* title(Label& label, const StationLabel::Style& style);
    QLineEdit* text_box(TextBox& box);
    QCheckBox* check_box(CheckBox& box);
    QRadioButton* option(OptionButton& option);
    /// A label that is pressed, as a button with its caption.
    StudioButton* label_button(Label& label);
    StudioButton* button(Button& button, const QString& symbol = {});
    /// A picture; until its file is there, a symbol or a word.
    StudioButton* image(Image& image, const QString& symbol = {}, Accent accent = Accent::none);
    /// An option with its picture for a lamp: one segment, lit while the option is chosen. Both can be pressed.
    Segment* mode(Image& lamp, OptionButton& option);
    QSlider* slider(Slider& slider, Qt::Orientation orientation);
    ProgressStrip* progress(ProgressBar& bar);
    QComboBox* combo_box(ComboBox& box);
    QListWidget* list_box(ListBox& box);
    QTextEdit* rich_text(RichText& text);
    QGroupBox* frame(Frame& frame);
    QLabel* movie(Movie& movie);
    RowTableView* table(RowTable& table);

    /// A control that another part of the view shows.
    void unseen(Control& control);
    /// The usual widget of its kind; null for a menu entry and for what only its own window can show.
    QWidget* usual(Control& control);
    /// All parts that no call has dressed yet.
    [[nodiscard]] std::vector<Control*> undressed() const;

private:
    [[nodiscard]] QWidget* parent() const { return &view_.content(); }
    [[nodiscard]] const DesktopServices& services() const { return view_.services(); }

    WindowView& view_;
};

} // namespace sonarelle
