#pragma once

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QRadioButton>

#include "desktop/binding.h"
#include "platform/controls.h"

namespace sonarelle {

class CheckBoxBinding : public Binding {
public:
    CheckBoxBinding(CheckBox& box, QCheckBox& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    [[nodiscard]] QString caption() const override;

private:
    CheckBox& box_;
    QCheckBox& check_;
};

class OptionBinding : public Binding {
public:
    OptionBinding(OptionButton& option, QRadioButton& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    [[nodiscard]] QString caption() const override;

private:
    OptionButton& option_;
    QRadioButton& radio_;
};

/// The wheel over a box that has no focus scrolls what it lies on. A chooser gives the keyboard back to its window
/// after each choice.
class ComboBoxBinding : public Binding {
public:
    ComboBoxBinding(ComboBox& box, QComboBox& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    void take_typing();
    void choose(int index);
    void show_choice(const QString& text);
    bool answer_key(const QKeyEvent& key);

    ComboBox& box_;
    QComboBox& combo_;
    std::vector<std::string> shown_items_;
};

class ListBoxBinding : public Binding {
public:
    ListBoxBinding(ListBox& box, QListWidget& widget, const DesktopServices& services);

protected:
    void show_state() override;
    void paint(QPalette& palette) const override;

private:
    ListBox& box_;
    QListWidget& list_;
    std::vector<std::string> shown_items_;
};

} // namespace sonarelle
