#include "platform/duration_text.h"

#include "platform/text.h"

namespace sonarelle {

namespace {

/// A count of seconds or minutes as the next greater unit and what is left of the smaller one.
struct Sixtieths {
    double whole = 0;
    int rest = 0;
};

// The text is cut by place, two decimals behind one mark, so that it works with either mark.
Sixtieths by_hundredths(double count, DecimalMark mark) {
    const std::string text = Format(count / 60, "0.00", mark);
    const double hundredths = Val(right(text, 2));
    return {Val(left(text, character_count(text) - 3)), to_integer(hundredths * 60 / 100).value()};
}

std::string two_digits(double field) {
    const std::string text = Format(field, "0", DecimalMark::point);
    return text.size() == 1 ? "0" + text : text;
}

std::string joined(double seconds, DecimalMark mark) {
    Sixtieths minutes{0, to_long(seconds)};
    Sixtieths hours;
    if (seconds >= 60)
        minutes = by_hundredths(seconds, mark);
    hours.rest = to_long(minutes.whole);
    if (minutes.whole >= 60)
        hours = by_hundredths(minutes.whole, mark);
    return two_digits(hours.whole) + ":" + two_digits(hours.rest) + ":" + two_digits(minutes.rest);
}

} // namespace

std::string format_heure(double duration_in_seconds, DecimalMark mark) {
    return joined(to_integer(Fix(duration_in_seconds)).value(), mark);
}

std::string formate_duree(double duration_in_seconds, DecimalMark mark) {
    return joined(duration_in_seconds, mark);
}

} // namespace sonarelle
