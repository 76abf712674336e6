#include "air_fixture.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "configuration/settings_store.h"
#include "platform/clock.h"
#include "platform/failure.h"
#include "platform/platform.h"
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::int64_t half_wave = 48;
constexpr std::size_t frame_bytes = 4;
constexpr std::size_t head_bytes = 44;
const std::string program_folder = "C:\\Sonarelle";

void put_number(std::byte* at, std::uint32_t value, std::size_t size) {
    for (std::size_t byte = 0; byte < size; ++byte)
        at[byte] = static_cast<std::byte>(value >> 8 * byte);
}

std::array<std::byte, head_bytes> head_of(std::uint32_t data_bytes) {
    std::array<std::byte, head_bytes> head{};
    const auto put_name = [&head](std::size_t at, const char* name) { std::memcpy(head.data() + at, name, 4); };
    put_name(0, "RIFF");
    put_number(&head[4], data_bytes + head_bytes - 8, 4);
    put_name(8, "WAVE");
    put_name(12, "fmt ");
    put_number(&head[16], 16, 4);
    put_number(&head[20], 1, 2);
    put_number(&head[22], 2, 2);
    put_number(&head[24], frame_rate, 4);
    put_number(&head[28], frame_rate * frame_bytes, 4);
    put_number(&head[32], frame_bytes, 2);
    put_number(&head[34], 16, 2);
    put_name(36, "data");
    put_number(&head[40], data_bytes, 4);
    return head;
}

class ToneFile final : public RecordFile {
public:
    ToneFile(int seconds, ToneTracks::Side side)
        : head_{head_of(static_cast<std::uint32_t>(seconds * frame_rate) * frame_bytes)},
          length_{static_cast<std::int64_t>(head_bytes) +
                  seconds * frame_rate * static_cast<std::int64_t>(frame_bytes)} {
        const std::size_t place = side == ToneTracks::Side::left ? 0 : 2;
        for (std::int64_t frame = 0; frame < 2 * half_wave; ++frame) {
            const auto sample = static_cast<std::int16_t>(ToneTracks::tone(frame) * 32768.0F);
            put_number(&wave_[static_cast<std::size_t>(frame) * frame_bytes + place],
                       static_cast<std::uint16_t>(sample), 2);
        }
    }

    [[nodiscard]] std::int64_t length() const override { return length_; }

    std::size_t read(std::int64_t position, std::span<std::byte> into) override {
        const auto count = static_cast<std::size_t>(
            std::clamp<std::int64_t>(length_ - position, 0, static_cast<std::int64_t>(into.size())));
        for (std::size_t done = 0; done < count;) {
            const auto at = static_cast<std::size_t>(position) + done;
            const std::span<const std::byte> rest = at < head_bytes
                                                        ? std::span{head_}.subspan(at)
                                                        : std::span{wave_}.subspan((at - head_bytes) % wave_.size());
            const std::size_t piece = std::min(count - done, rest.size());
            std::ranges::copy(rest.first(piece), into.begin() + static_cast<std::ptrdiff_t>(done));
            done += piece;
        }
        return count;
    }

private:
    std::array<std::byte, head_bytes> head_;
    std::array<std::byte, 2 * half_wave * frame_bytes> wave_{};
    std::int64_t length_;
};

} // namespace

float ToneTracks::tone(std::int64_t frame) {
    return frame / half_wave % 2 == 0 ? level : -level;
}

const ToneTracks::Track& ToneTracks::track(const std::string& path) const {
    const auto found = tracks_.find(path);
    if (found == tracks_.end())
        throw Failure{FailureNumber::file_not_found, path};
    return found->second;
}

FileFacts ToneTracks::facts(const std::string& path) {
    return {.size = track(path).seconds, .modified = 1, .is_folder = false};
}

std::unique_ptr<RecordFile> ToneTracks::open(const std::string& path) {
    const Track& opened = track(path);
    return std::make_unique<ToneFile>(opened.seconds, opened.side);
}

AirFixture::AirFixture(Clock& clock, Scheduler& scheduler, Media& media, std::shared_ptr<ToneTracks> tracks)
    : disk{clock},
      dialogs{clock},
      tracks_{std::move(tracks)},
      station{Platform{clock, scheduler, disk, settings, dialogs, media, random, shell, program_folder}} {
    disk.put_folder(program_folder);
    disk.ChDir(program_folder);
    SettingsStore{settings, program_folder, DecimalMark::point}.write_column(&SettingRow::repair);
    station.settings.chemin_programme = "C:\\Sonarelle\\";
    station.create_main_window();
    station.desk.on_event = [this, &clock](const OnAirEvent& event) { events.emplace_back(clock.now(), event); };
}

void AirFixture::open_tracks(int count, int seconds, double start) {
    std::vector<enreg_liste> records;
    for (int number = 1; number <= count; ++number) {
        tracks_->add(track(number), seconds, number % 2 == 1 ? ToneTracks::Side::left : ToneTracks::Side::right);
        disk.put_file(track(number));
        records.push_back(record_of(track(number), std::to_string(seconds) + ".00", 100, start));
    }
    const std::string list = "C:\\Sonarelle\\essai.dfm";
    disk.put_file(list, bytes_of(records));
    dialogs.expect_open(list);
    station.list_window.A_liste.click();
    station.list_window.rows.select(1);
}

void AirFixture::start_in_option(int option) {
    Liste_son& window = station.list_window;
    const std::array options{&window.player_mode, &window.random_mode, &window.defined_end_mode,
                             &window.full_length_mode};
    options.at(static_cast<std::size_t>(option - 1))->click();
    window.play_list.click();
}

std::vector<Frames> AirFixture::starts() const {
    std::vector<Frames> frames;
    for (const auto& [at, event] : events)
        if (event.kind == OnAirEvent::Kind::started)
            frames.push_back(at);
    return frames;
}

} // namespace sonarelle
