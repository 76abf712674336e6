#pragma once

#include <QPointer>
#include <QWidget>
#include <functional>
#include <memory>

#include "desktop/desktop_services.h"
#include "desktop/update_queue.h"
#include "platform/control.h"

namespace sonarelle {

class FileDrops;

/// Ties a control to a widget: what the station changes is shown, what the operator does goes through the one door.
/// It decides nothing. The control outlives it.
class Binding : public QObject, public Shown, private ControlObserver {
public:
    Binding(Control& control, QWidget& widget, const DesktopServices& services);
    ~Binding() override;
    Binding(const Binding&) = delete;
    Binding& operator=(const Binding&) = delete;

    /// Brings the widget up to the control's state.
    void show_value() final;

    [[nodiscard]] Control& control() const { return control_; }
    [[nodiscard]] QWidget* widget() const { return widget_; }

    /// Files for the control may be dropped on this widget, too.
    void take_drops_on(QWidget& widget);

    /// The key that does what a press of the control does, for its tip; empty for none.
    void set_key(const QString& key) { key_ = key; }

    /// What a screen reader calls the part where the station's words don't tell it from its like; those describe it
    /// then.
    void set_spoken_name(const QString& name) { spoken_name_ = name; }

    /// A lit part is a lamp: it can't be pressed while it shows its state.
    void set_lit(bool lit);

    /// The pointer has left a part that heard of it.
    std::function<void()> on_left;

    /// Called after each update, for what a window shows beside the control itself.
    std::function<void()> on_shown;

protected:
    /// The part of the state that only this kind has.
    virtual void show_state() = 0;
    /// The control's colours, by the roles of the widget's palette.
    virtual void paint(QPalette& palette) const;
    /// What a screen reader calls it where there is no hint.
    [[nodiscard]] virtual QString caption() const { return {}; }
    /// A text that is read says itself what it is.
    [[nodiscard]] virtual bool names_itself() const { return false; }

    /// Hands over what the operator did; what the binding itself writes to the widget is none of his doing.
    void run(const std::function<void()>& event) const {
        if (!showing_)
            services_.run_event(event);
    }
    [[nodiscard]] const DesktopServices& services() const { return services_; }
    bool eventFilter(QObject* object, QEvent* event) override;
    /// To the window, whose keys are commands; does nothing where the part hasn't the keyboard.
    void give_keyboard_back();

private:
    void control_changed(Control&) override { services_.updates.mark(*this); }
    [[nodiscard]] QString tip() const;
    [[nodiscard]] bool show_tip(QPoint place) const;
    void show_enabled();

    Control& control_;
    QPointer<QWidget> widget_;
    std::unique_ptr<FileDrops> drops_; ///< Null where the station takes no files.
    const DesktopServices& services_;
    QString key_;
    QString spoken_name_; ///< Empty where the station's words will do.
    bool showing_ = false;
    bool lit_ = false;
};

/// Stands for a control that another part of the view shows. It has no size.
class UnseenPart : public QWidget {
public:
    explicit UnseenPart(QWidget* parent)
        : QWidget{parent} {
        setFixedSize(0, 0);
    }
};

class UnseenBinding : public Binding {
public:
    using Binding::Binding;

protected:
    void show_state() override {}
};

} // namespace sonarelle
