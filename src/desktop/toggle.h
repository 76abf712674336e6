#pragma once

#include <QAbstractButton>

#include "desktop/binding.h"
#include "platform/controls.h"

namespace sonarelle {

/// A switch: its knob to the right and lit while it is on. What a press makes of it is the station's.
class Toggle : public QAbstractButton {
public:
    explicit Toggle(QWidget* parent = nullptr);

    /// A press on them is one of the switch.
    void take_presses_on(QWidget& words);
    [[nodiscard]] QSize sizeHint() const override;

protected:
    void nextCheckState() override {}
    void paintEvent(QPaintEvent* event) override;
    void enterEvent(QEnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] QColor ground() const;
};

/// A picture that is pressed as a switch. Somebody else shows whether it is on.
class ToggleBinding : public Binding {
public:
    ToggleBinding(Image& image, Toggle& widget, const DesktopServices& services);

protected:
    void show_state() override {}
};

} // namespace sonarelle
