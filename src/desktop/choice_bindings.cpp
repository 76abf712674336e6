#include "desktop/choice_bindings.h"

#include <QKeyEvent>
#include <QLineEdit>

#include "desktop/colours.h"
#include "desktop/qt_text.h"
#include "desktop/text_bindings.h"

namespace sonarelle {

namespace {

// A box that can be seen on a dark plate, with the air's green in it.
void paint_indicator(QPalette& palette) {
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        palette.setColor(group, QPalette::Base, QColor{0x4a, 0x51, 0x5c});
        palette.setColor(group, QPalette::Text, studio::air);
    }
}

} // namespace

CheckBoxBinding::CheckBoxBinding(CheckBox& box, QCheckBox& widget, const DesktopServices& services)
    : Binding{box, widget, services},
      box_{box},
      check_{widget} {
    check_.setFocusPolicy(Qt::TabFocus);
    // The value is the control's: what the click made of it comes back by the update.
    connect(&check_, &QCheckBox::clicked, this, [this] {
        run([this] { box_.click(); });
        check_.setChecked(box_.value() != 0);
    });
}

void CheckBoxBinding::show_state() {
    check_.setText(caption());
    check_.setChecked(box_.value() != 0);
}

void CheckBoxBinding::paint(QPalette& palette) const {
    Binding::paint(palette);
    paint_indicator(palette);
}

QString CheckBoxBinding::caption() const {
    return plain_caption(box_.caption);
}

OptionBinding::OptionBinding(OptionButton& option, QRadioButton& widget, const DesktopServices& services)
    : Binding{option, widget, services},
      option_{option},
      radio_{widget} {
    radio_.setFocusPolicy(Qt::TabFocus);
    // Which one is chosen is the group's business, which may choose none.
    radio_.setAutoExclusive(false);
    connect(&radio_, &QRadioButton::clicked, this, [this] {
        run([this] { option_.click(); });
        radio_.setChecked(option_.value());
    });
}

void OptionBinding::show_state() {
    radio_.setText(caption());
    radio_.setChecked(option_.value());
}

void OptionBinding::paint(QPalette& palette) const {
    Binding::paint(palette);
    paint_indicator(palette);
}

QString OptionBinding::caption() const {
    return plain_caption(option_.caption);
}

ComboBoxBinding::ComboBoxBinding(ComboBox& box, QComboBox& widget, const DesktopServices& services)
    : Binding{box, widget, services},
      box_{box},
      combo_{widget} {
    embolden(combo_);
    combo_.setFocusPolicy(box.takes_typing ? Qt::StrongFocus : Qt::TabFocus);
    if (box.takes_typing)
        take_typing();
    connect(&combo_, &QComboBox::activated, this, [this](int index) { choose(index); });
}

void ComboBoxBinding::take_typing() {
    combo_.setEditable(true);
    combo_.setInsertPolicy(QComboBox::NoInsert);
    combo_.setCompleter(nullptr);
    combo_.lineEdit()->installEventFilter(this);
    connect(combo_.lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& text) { run([&] { box_.set_text(from_qt(text)); }); });
}

// After a choice the letters are the window's commands again.
void ComboBoxBinding::choose(int index) {
    run([&] { box_.choose(index); });
    give_keyboard_back();
}

void ComboBoxBinding::show_state() {
    if (shown_items_ != box_.items.get()) {
        shown_items_ = box_.items.get();
        combo_.clear();
        for (const std::string& item : shown_items_)
            combo_.addItem(to_qt(item));
    }
    const QString text = to_qt(box_.text());
    if (!box_.takes_typing)
        return show_choice(text);
    if (combo_.currentIndex() != box_.selected)
        combo_.setCurrentIndex(box_.selected);
    if (combo_.currentText() != text)
        combo_.setEditText(text);
}

// A text that isn't the chosen entry's stands in the box like one.
void ComboBoxBinding::show_choice(const QString& text) {
    combo_.setPlaceholderText(text);
    const int shown = combo_.itemText(box_.selected) == text ? box_.selected.get() : -1;
    if (combo_.currentIndex() != shown)
        combo_.setCurrentIndex(shown);
}

void ComboBoxBinding::paint(QPalette& palette) const {
    paint_text_field(palette, control());
    for (const auto group : {QPalette::Active, QPalette::Inactive})
        palette.setColor(group, QPalette::PlaceholderText, palette.color(group, QPalette::Text));
}

bool ComboBoxBinding::eventFilter(QObject* object, QEvent* event) {
    if (event->type() == QEvent::Wheel && (!combo_.hasFocus() || !box_.takes_typing)) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::KeyPress && answer_key(*static_cast<QKeyEvent*>(event)))
        return true;
    if (event->type() == QEvent::FocusIn && box_.on_enter)
        run([this] { box_.enter(); });
    if (event->type() == QEvent::FocusOut && box_.on_leave)
        run([this] { box_.leave(); });
    return Binding::eventFilter(object, event);
}

// A key that the station answers itself isn't typed as well, and in a chooser no letter looks for an entry.
bool ComboBoxBinding::answer_key(const QKeyEvent& key) {
    for (const char32_t character : key.text().toUcs4())
        run([&] { box_.key_press(character); });
    const bool is_space = key.key() == Qt::Key_Space;
    if (box_.takes_typing && (key.key() == Qt::Key_Escape || key.key() == Qt::Key_Return)) {
        give_keyboard_back();
        return true;
    }
    if (box_.takes_typing)
        return is_space && box_.on_key_press;
    if (is_space)
        give_keyboard_back();
    const bool is_arrow = key.key() == Qt::Key_Up || key.key() == Qt::Key_Down;
    if (is_arrow)
        combo_.showPopup();
    return is_arrow || (!key.text().isEmpty() && key.text()[0].isPrint());
}

ListBoxBinding::ListBoxBinding(ListBox& box, QListWidget& widget, const DesktopServices& services)
    : Binding{box, widget, services},
      box_{box},
      list_{widget} {
    connect(&list_, &QListWidget::currentRowChanged, this, [this](int row) {
        if (row >= 0)
            run([&] { box_.choose(row); });
    });
}

void ListBoxBinding::show_state() {
    if (shown_items_ != box_.items.get()) {
        shown_items_ = box_.items.get();
        list_.clear();
        for (const std::string& item : shown_items_)
            list_.addItem(to_qt(item));
    }
    list_.setCurrentRow(box_.selected);
}

void ListBoxBinding::paint(QPalette& palette) const {
    paint_text_field(palette, control());
}

} // namespace sonarelle
