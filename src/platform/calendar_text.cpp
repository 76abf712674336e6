#include "platform/calendar_text.h"

#include "platform/clock.h"

namespace sonarelle {

namespace {

std::string digits(int number, std::size_t width) {
    std::string text = std::to_string(number);
    return text.size() < width ? std::string(width - text.size(), '0') + text : text;
}

} // namespace

std::string date_text(const Platform& platform) {
    const CalendarTime time = platform.clock.calendar();
    return digits(time.day, 2) + "/" + digits(time.month, 2) + "/" + digits(time.year, 4);
}

std::string time_text(const Platform& platform) {
    const CalendarTime time = platform.clock.calendar();
    return digits(time.hour, 2) + ":" + digits(time.minute, 2) + ":" + digits(time.second, 2);
}

std::string date_and_time(const Platform& platform) {
    return date_text(platform) + " - " + time_text(platform);
}

} // namespace sonarelle
