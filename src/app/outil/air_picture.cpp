#include "app/outil/air_picture.h"

#include <algorithm>
#include <fstream>
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

void AirPicture::save(const std::string& file, Frames length) const {
    std::ofstream out{file, std::ios::binary};
    const double scale = width / static_cast<double>(std::max<std::int64_t>(1, length.count()));
    const auto x = [scale](Frames at) { return number(margin + scale * static_cast<double>(at.count())); };
    const auto wide = [scale](const Stretch& stretch) {
        return number(scale * static_cast<double>((stretch.to - stretch.from).count()));
    };
    out << "<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"" << number(width + 2 * margin) << "\" height=\""
        << number(decks * lane_height + 2 * margin) << "\" font-family=\"sans-serif\" font-size=\"12\">\n";
    for (const Stretch& silence : silences_)
        out << "<rect class=\"silence\" x=\"" << x(silence.from) << "\" y=\"" << number(margin) << "\" width=\""
            << wide(silence) << "\" height=\"" << number(decks * lane_height) << "\" fill=\"#d22\"/>\n";
    for (const Bar& bar : bars_) {
        const double top = lane_top(bar.deck);
        const Frames fades_from = std::min(bar.fades_from.value_or(bar.played.to), bar.played.to);
        out << "<polygon points=\"" << x(bar.played.from) << ',' << number(top) << ' ' << x(fades_from) << ','
            << number(top) << ' ' << x(bar.played.to) << ',' << number(bar.fades_from ? top + bar_height / 2 : top)
            << ' ' << x(bar.played.to) << ',' << number(top + bar_height) << ' ' << x(bar.played.from) << ','
            << number(top + bar_height) << "\" fill=\"#7ab\" stroke=\"#245\"/>\n<text x=\"" << x(bar.played.from)
            << "\" y=\"" << number(top + bar_height - 6) << "\">" << escaped(printable(bar.label)) << "</text>\n";
    }
    for (int deck = 1; deck <= decks; ++deck)
        out << "<text x=\"8\" y=\"" << number(lane_top(deck) + bar_height / 2) << "\">" << deck << "</text>\n";
    out << "</svg>\n";
    if (!out.flush())
        throw Failure{failure_number::path_access, file};
}

} // namespace sonarelle
