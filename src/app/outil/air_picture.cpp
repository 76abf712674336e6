#include "app/outil/air_picture.h"

#include <algorithm>
#include <locale>
#include <sstream>

#include "app/outil/printable.h"
#include "platform/failure.h"

namespace sonarelle {

namespace {

constexpr double margin = 40;
constexpr double width = 1200;
constexpr double lane_height = 60;
constexpr double bar_height = 44;
constexpr int decks = 3;
constexpr double narrowest_labelled = 90;
constexpr double closest_times = 60;

std::string escaped(const std::string& text) {
    std::string result;
    for (const char character : text) {
        switch (character) {
        case '&':
            result += "&amp;";
            break;
        case '<':
            result += "&lt;";
            break;
        case '>':
            result += "&gt;";
            break;
        case '"':
            result += "&quot;";
            break;
        default:
            result += character;
        }
    }
    return result;
}

double lane_top(int deck) {
    return margin + (deck - 1) * lane_height;
}

std::string number(double value) {
    std::ostringstream text;
    text.imbue(std::locale::classic());
    text.precision(2);
    text << std::fixed << value;
    return text.str();
}

} // namespace

/// Where the instants of a run stand, from the left.
class AirPicture::Scale {
public:
    explicit Scale(Frames length)
        : pixels_per_frame_{width / static_cast<double>(std::max<std::int64_t>(1, length.count()))} {}

    [[nodiscard]] double pixels(Frames span) const { return pixels_per_frame_ * static_cast<double>(span.count()); }
    [[nodiscard]] double place(Frames at) const { return margin + pixels(at); }
    [[nodiscard]] std::string x(Frames at) const { return number(place(at)); }
    [[nodiscard]] std::string width_of(Frames span) const { return number(pixels(span)); }

private:
    double pixels_per_frame_;
};

AirPicture::Bar* AirPicture::open_bar(int deck) {
    const auto found = std::find_if(bars_.rbegin(), bars_.rend(), [deck](const Bar& bar) { return bar.deck == deck; });
    return found == bars_.rend() || !found->open ? nullptr : &*found;
}

void AirPicture::take(Frames at, const OnAirEvent& event) {
    if (Bar* bar = open_bar(event.deck)) {
        if (event.kind == OnAirEvent::Kind::fade_began)
            bar->fades_from = at;
        else if (event.kind == OnAirEvent::Kind::started)
            bar->open = false;
    }
    if (event.kind == OnAirEvent::Kind::started)
        labels_.at(static_cast<std::size_t>(event.deck - 1)) =
            std::to_string(event.row) + " " + event.path.substr(event.path.rfind('\\') + 1);
}

void AirPicture::advance(Frames now, Frames next) {
    for (int deck = 1; deck <= decks; ++deck) {
        const auto end = watch_.runs_until(deck, now);
        Bar* bar = open_bar(deck);
        if (!end) {
            if (bar != nullptr)
                bar->open = false;
            continue;
        }
        if (bar == nullptr)
            bar = &bars_.emplace_back(Bar{deck, labels_.at(static_cast<std::size_t>(deck - 1)), {now, now}, {}, true});
        bar->played.to = std::max(bar->played.to, std::min(next, *end));
    }
}

std::string AirPicture::svg(Frames length) const {
    std::ostringstream out;
    const Scale scale{length};
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << number(width + 2 * margin) << ' '
        << number(decks * lane_height + 2 * margin) << "\" font-family=\"sans-serif\" font-size=\"12\">\n"
        << "<rect width=\"100%\" height=\"100%\" fill=\"#15171b\"/>\n";
    draw_times(out, scale, length);
    for (const Stretch& silence : silences_)
        out << "<rect class=\"silence\" x=\"" << scale.x(silence.from) << "\" y=\"" << number(margin) << "\" width=\""
            << scale.width_of(silence.to - silence.from) << "\" height=\"" << number(decks * lane_height)
            << "\" fill=\"#d22\"/>\n";
    for (const Bar& bar : bars_)
        draw_bar(out, scale, bar);
    for (int deck = 1; deck <= decks; ++deck)
        out << "<text x=\"14\" y=\"" << number(lane_top(deck) + bar_height / 2 + 4) << "\" fill=\"#9aa0a8\">" << deck
            << "</text>\n";
    out << "</svg>\n";
    return out.str();
}

/// A label stands on bars that have room for it.
void AirPicture::draw_bar(std::ostream& out, const Scale& scale, const Bar& bar) {
    const std::string top = number(lane_top(bar.deck));
    const std::string bottom = number(lane_top(bar.deck) + bar_height);
    const std::string end_top = number(lane_top(bar.deck) + (bar.fades_from ? bar_height / 2 : 0));
    const Frames fades_from = std::min(bar.fades_from.value_or(bar.played.to), bar.played.to);
    const std::string from = scale.x(bar.played.from);
    const std::string to = scale.x(bar.played.to);
    out << "<polygon points=\"" << from << ',' << top << ' ' << scale.x(fades_from) << ',' << top << ' ' << to << ','
        << end_top << ' ' << to << ',' << bottom << ' ' << from << ',' << bottom
        << "\" fill=\"#1f3a2b\" stroke=\"#3ddc84\"/>\n";
    if (scale.pixels(bar.played.to - bar.played.from) >= narrowest_labelled)
        out << "<text class=\"track\" x=\"" << number(scale.place(bar.played.from) + 6) << "\" y=\""
            << number(lane_top(bar.deck) + bar_height / 2 + 4) << "\" fill=\"#ffffff\">"
            << escaped(printable(bar.label)) << "</text>\n";
}

/// A line at each full minute, or as many minutes apart as leave room for their times.
void AirPicture::draw_times(std::ostream& out, const Scale& scale, Frames length) {
    std::int64_t minutes = 1;
    while (scale.pixels(seconds(60 * minutes)) < closest_times)
        minutes *= 2;
    for (std::int64_t minute = 0; seconds(60 * minute) <= length; minute += minutes) {
        const std::string x = scale.x(seconds(60 * minute));
        out << "<path d=\"M" << x << ' ' << number(margin - 6) << 'V' << number(margin + decks * lane_height)
            << "\" stroke=\"#33373d\"/>\n<text x=\"" << x << "\" y=\"" << number(margin - 12)
            << "\" fill=\"#9aa0a8\" text-anchor=\"middle\">" << minute << " min</text>\n";
    }
}

} // namespace sonarelle
