#pragma once

#include <QLineEdit>
#include <QTextEdit>

#include "desktop/binding.h"
#include "desktop/station_label.h"
#include "platform/controls.h"

class QShortcut;

namespace sonarelle {

class LabelBinding : public Binding {
public:
    LabelBinding(Label& label, StationLabel& widget, const DesktopServices& services);

    /// The caption with a mark before the letter that calls it with Alt, where the station's has none.
    void set_access(const QString& marked_caption);

protected:
    void show_state() override;
    [[nodiscard]] QString caption() const override;
    [[nodiscard]] bool names_itself() const override { return true; }

private:
    Label& label_;
    StationLabel& text_;
    QString marked_;
    QShortcut* access_ = nullptr; ///< The widget's; null for a text that is no button.
};

class TextBoxBinding : public Binding {
public:
    TextBoxBinding(TextBox& box, QLineEdit& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;

private:
    TextBox& box_;
    QLineEdit& line_;
};

class RichTextBinding : public Binding {
public:
    RichTextBinding(RichText& text, QTextEdit& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;

private:
    void take_selection();

    RichText& text_;
    QTextEdit& edit_;
};

/// Ground of what holds text: the told one where its ink reads on it; the studio's, with a breath of it, elsewhere.
[[nodiscard]] QColor field_ground(const Control& control);
/// That ground, and an ink that reads on it.
void paint_text_field(QPalette& palette, const Control& control);

/// Text of a told colour on a told ground is read more easily when it is bold and not small.
void embolden(QWidget& widget);

} // namespace sonarelle
