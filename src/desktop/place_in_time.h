#pragma once

#include <QString>

class QKeyEvent;
class QWidget;

namespace sonarelle {

/// What a widget is to a screen reader that stands for a place in a sound, and may be moved.
class PlaceInTime {
public:
    PlaceInTime();
    virtual ~PlaceInTime() = default;
    PlaceInTime(const PlaceInTime&) = delete;
    PlaceInTime& operator=(const PlaceInTime&) = delete;

    /// Seconds.
    [[nodiscard]] virtual double place() const = 0;
    [[nodiscard]] virtual double whole() const = 0;
    [[nodiscard]] virtual bool can_move() const = 0;
    /// The operator wants it there.
    virtual void move_to(double second) = 0;
};

/// A place for the eye: mm:ss, and h:mm:ss from an hour on.
[[nodiscard]] QString place_text(double seconds);

/// Takes the arrow keys by a step, with Shift by a long one, and Home and End; seconds. False for any other key.
[[nodiscard]] bool move_by_key(PlaceInTime& moved, const QKeyEvent& key, double step, double long_step);

/// A screen reader is told that the place of a widget is another.
void tell_moved(QWidget& widget, double second);

} // namespace sonarelle
