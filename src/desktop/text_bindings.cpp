#include "desktop/text_bindings.h"

#include <QShortcut>

#include "desktop/colours.h"
#include "desktop/qt_text.h"

namespace sonarelle {

QColor field_ground(const Control& control) {
    return ground_for(control.fore_colour, control.back_colour, studio::well);
}

void paint_text_field(QPalette& palette, const Control& control) {
    const QColor ground = field_ground(control);
    const QColor ink = legible(to_qt(control.fore_colour, readable_on(ground)), ground);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Base, ground);
        palette.setColor(group, QPalette::Button, ground);
        palette.setColor(group, QPalette::Text, ink);
        palette.setColor(group, QPalette::ButtonText, ink);
    }
}

void embolden(QWidget& widget) {
    QFont font = widget.font();
    font.setPixelSize(std::max(14, QFontInfo{font}.pixelSize()));
    font.setBold(true);
    widget.setFont(font);
}

LabelBinding::LabelBinding(Label& label, StationLabel& widget, const DesktopServices& services)
    : Binding{label, widget, services},
      label_{label},
      text_{widget} {
    widget.on_press = [this] { run([this] { label_.click(); }); };
    widget.set_pressable(label.on_click != nullptr);
    if (label.on_click == nullptr)
        return;
    access_ = new QShortcut{&widget};
    connect(access_, &QShortcut::activated, this, [this] { run([this] { label_.click(); }); });
}

void LabelBinding::set_access(const QString& marked_caption) {
    marked_ = marked_caption;
    services().updates.mark(*this);
}

void LabelBinding::show_state() {
    const QString marked = marked_.isEmpty() ? to_qt(label_.caption) : marked_;
    text_.set_text(marked_.isEmpty() ? caption() : marked_);
    if (access_ != nullptr)
        access_->setKey(access_keys(from_qt(marked)));
}

QString LabelBinding::caption() const {
    return plain_caption(label_.caption);
}

TextBoxBinding::TextBoxBinding(TextBox& box, QLineEdit& widget, const DesktopServices& services)
    : Binding{box, widget, services},
      box_{box},
      line_{widget} {
    embolden(line_);
    connect(&line_, &QLineEdit::textEdited, this,
            [this](const QString& text) { run([&] { box_.set_text(from_qt(text)); }); });
    connect(&line_, &QLineEdit::returnPressed, this, [this] { give_keyboard_back(); });
}

// Writing it again would move the cursor of who is typing.
void TextBoxBinding::show_state() {
    const QString text = to_qt(box_.text());
    if (line_.text() != text)
        line_.setText(text);
}

void TextBoxBinding::paint(QPalette& palette) const {
    paint_text_field(palette, control());
}

RichTextBinding::RichTextBinding(RichText& text, QTextEdit& widget, const DesktopServices& services)
    : Binding{text, widget, services},
      text_{text},
      edit_{widget} {
    connect(&edit_, &QTextEdit::textChanged, this, [this] {
        run([this] {
            text_.text = from_qt(edit_.toPlainText());
            if (text_.on_change)
                text_.on_change();
        });
    });
    // The place of who is typing is an empty selection.
    connect(&edit_, &QTextEdit::selectionChanged, this, [this] { take_selection(); });
    connect(&edit_, &QTextEdit::cursorPositionChanged, this, [this] { take_selection(); });
}

void RichTextBinding::take_selection() {
    run([this] {
        const QTextCursor cursor = edit_.textCursor();
        text_.selection_start = cursor.selectionStart();
        text_.selection_length = cursor.selectionEnd() - cursor.selectionStart();
    });
}

void RichTextBinding::show_state() {
    const QString text = to_qt(text_.text);
    if (edit_.toPlainText() != text)
        edit_.setPlainText(text);
    QTextCursor cursor = edit_.textCursor();
    const int end = text_.selection_start + text_.selection_length;
    if (cursor.selectionStart() == text_.selection_start && cursor.selectionEnd() == end)
        return;
    cursor.setPosition(text_.selection_start);
    cursor.setPosition(end, QTextCursor::KeepAnchor);
    edit_.setTextCursor(cursor);
}

void RichTextBinding::paint(QPalette& palette) const {
    paint_text_field(palette, control());
}

} // namespace sonarelle
