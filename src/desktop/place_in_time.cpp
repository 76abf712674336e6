#include "desktop/place_in_time.h"

#include <QAccessibleWidget>
#include <QKeyEvent>
#include <QWidget>
#include <algorithm>

namespace sonarelle {

namespace {

class PlaceAccess : public QAccessibleWidget, public QAccessibleValueInterface {
public:
    PlaceAccess(QWidget* widget, PlaceInTime& place)
        : QAccessibleWidget{widget},
          place_{place} {}

    [[nodiscard]] QAccessible::Role role() const override {
        return place_.can_move() ? QAccessible::Slider : QAccessible::ProgressBar;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override {
        const bool is_told = kind == QAccessible::Description && !widget()->accessibleDescription().isEmpty();
        if ((kind != QAccessible::Value && kind != QAccessible::Description) || is_told || place_.whole() <= 0)
            return QAccessibleWidget::text(kind);
        return place_text(place_.place()) + " sur " + place_text(place_.whole());
    }
    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QVariant currentValue() const override { return place_.place(); }
    void setCurrentValue(const QVariant& value) override { place_.move_to(value.toDouble()); }
    [[nodiscard]] QVariant maximumValue() const override { return place_.whole(); }
    [[nodiscard]] QVariant minimumValue() const override { return 0.0; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 0.1; }

private:
    PlaceInTime& place_;
};

QAccessibleInterface* place_access(const QString&, QObject* object) {
    auto* place = dynamic_cast<PlaceInTime*>(object);
    return place == nullptr ? nullptr : new PlaceAccess{static_cast<QWidget*>(object), *place};
}

} // namespace

PlaceInTime::PlaceInTime() {
    QAccessible::installFactory(&place_access); // the toolkit keeps one of a kind
}

QString place_text(double seconds) {
    const auto whole = static_cast<int>(std::max(0.0, seconds));
    const auto two_digits = [](int number) { return QString::number(number).rightJustified(2, '0'); };
    const QString in_hour = two_digits(whole / 60 % 60) + ":" + two_digits(whole % 60);
    return whole < 3600 ? in_hour : QString::number(whole / 3600) + ":" + in_hour;
}

bool move_by_key(PlaceInTime& moved, const QKeyEvent& key, double step, double long_step) {
    if ((key.modifiers() & ~(Qt::ShiftModifier | Qt::KeypadModifier)) != 0)
        return false;
    const double by = key.modifiers().testFlag(Qt::ShiftModifier) ? long_step : step;
    switch (key.key()) {
    case Qt::Key_Left:
        moved.move_to(moved.place() - by);
        return true;
    case Qt::Key_Right:
        moved.move_to(moved.place() + by);
        return true;
    case Qt::Key_Home:
        moved.move_to(0);
        return true;
    case Qt::Key_End:
        moved.move_to(moved.whole());
        return true;
    default:
        return false;
    }
}

void tell_moved(QWidget& widget, double second) {
    if (!QAccessible::isActive())
        return;
    QAccessibleValueChangeEvent moved{&widget, second};
    QAccessible::updateAccessibility(&moved);
}

} // namespace sonarelle
