#include "desktop/part_access.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QCheckBox>
#include <QRadioButton>
#include <functional>

#include "desktop/reader_window.h"
#include "desktop/station_label.h"
#include "desktop/toggle.h"
#include "desktop/window_view.h"

namespace sonarelle {

namespace {

// A screen reader can't wait for the answer of a box that a press may open, so the press is queued; and it presses
// nothing behind a box, as the mouse doesn't.
void press(QWidget& part, const std::function<void()>& act) {
    const QWidget* box = QApplication::activeModalWidget();
    if (part.isEnabled() && (box == nullptr || box == part.window()))
        QMetaObject::invokeMethod(&part, act, Qt::QueuedConnection);
}

class LabelAccess : public QAccessibleWidget {
public:
    explicit LabelAccess(StationLabel& label)
        : QAccessibleWidget{&label},
          label_{label} {}

    [[nodiscard]] QAccessible::Role role() const override {
        return label_.is_pressable() ? QAccessible::Button : QAccessible::StaticText;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? label_.spoken() : QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override {
        return label_.is_pressable() ? QStringList{pressAction()} : QAccessibleWidget::actionNames();
    }

    void doAction(const QString& action) override {
        if (action == pressAction() && label_.on_press)
            press(label_, label_.on_press);
    }

private:
    StationLabel& label_;
};

/// What is checked or not. The toolkit's own would change the look of it and leave the station as it is.
class ChoiceAccess : public QAccessibleWidget {
public:
    ChoiceAccess(QAbstractButton& button, QAccessible::Role role)
        : QAccessibleWidget{&button, role},
          button_{button} {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.checkable = true;
        state.checked = button_.isChecked();
        return state;
    }

    [[nodiscard]] QStringList actionNames() const override { return {toggleAction()}; }

    void doAction(const QString& action) override {
        if (action == toggleAction())
            press(button_, [button = &button_] { button->click(); });
    }

private:
    QAbstractButton& button_;
};

QAccessibleInterface* part_access(const QString&, QObject* object) {
    if (auto* label = dynamic_cast<StationLabel*>(object))
        return new LabelAccess{*label};
    if (auto* option = qobject_cast<QRadioButton*>(object))
        return new ChoiceAccess{*option, QAccessible::RadioButton};
    if (auto* box = qobject_cast<QCheckBox*>(object))
        return new ChoiceAccess{*box, QAccessible::CheckBox};
    if (auto* toggle = dynamic_cast<Toggle*>(object))
        return new ChoiceAccess{*toggle, QAccessible::CheckBox};
    if (dynamic_cast<WindowView*>(object) != nullptr || dynamic_cast<ReaderWindow*>(object) != nullptr)
        return new QAccessibleWidget{static_cast<QWidget*>(object), QAccessible::Window};
    return nullptr;
}

} // namespace

void tell_screen_readers_of_parts() {
    QAccessible::installFactory(&part_access); // the toolkit keeps one of a kind
}

} // namespace sonarelle
