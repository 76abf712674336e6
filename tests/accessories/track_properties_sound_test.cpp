#include <gtest/gtest.h>

#include "audio/sound_fixture.h"
#include "platform/random.h"
#include "platform/simulated/scripted_dialogs.h"
#include "platform/simulated/simulated_disk.h"
#include "platform/simulated/simulated_settings.h"
#include "platform/simulated/simulated_shell.h"
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

/// A station whose graphs sound, in virtual time, with one row that plays a file of counted frames.
struct SoundingStation {
    SoundingStation() {
        disk.MkDir("C:\\Sonarelle");
        disk.put_file("C:\\Sonarelle\\matin.dfm", bytes_of({record_of(wav, "30.00", 100, 0.10)}));
        dialogs.expect_open("C:\\Sonarelle\\matin.dfm");
        station.list_window.A_liste.click();
        station.list_window.rows.select(1);
        station.list_window.a_modif.click();
    }

    SoundFixture sound;
    std::string wav = sound.folder.counting_wav("titre.wav", 30);
    SimulatedDisk disk{sound.time};
    SimulatedSettings settings;
    ScriptedDialogs dialogs{sound.time};
    SimulatedShell shell;
    Random random{1};
    Platform platform{sound.time,  sound.scheduler, disk,  settings,       dialogs,
                      sound.media, random,          shell, "C:\\Sonarelle"};
    Station station{platform};
};

std::string wav_text(const SoundingStation& bench, std::size_t column) {
    return bench.station.list_window.rows.sub_item(1, column);
}

} // namespace

TEST(TrackPropertiesSound, RowHoldsThePlacesThatWereHeardWhenTheyWereMarked) {
    SoundingStation bench;
    Propriete& window = bench.station.properties_window;
    window.play.click();
    bench.sound.run_for(milliseconds(4250));
    window.mark_start.click();
    bench.sound.run_for(milliseconds(3000));
    window.mark_end.click();
    bench.sound.run_for(milliseconds(2500));
    window.mark_end.click();
    window.save.click();

    EXPECT_EQ(wav_text(bench, 1), "4.25");
    EXPECT_EQ(wav_text(bench, 2), "6.75");
}

TEST(TrackPropertiesSound, PauseIsSilentAndGoesOnWithTheSampleThatWasMarked) {
    SoundingStation bench;
    Propriete& window = bench.station.properties_window;
    window.play.click();
    bench.sound.run_for(milliseconds(4000));
    window.mark_start.click();
    const std::int64_t marked = bench.sound.time.now().count();
    bench.sound.run_for(milliseconds(1000));
    window.mark_start.click();
    const std::int64_t resumed = bench.sound.time.now().count();
    bench.sound.run_for(milliseconds(1000));

    EXPECT_EQ(bench.sound.peak(marked + 480, resumed), 0.0F);
    EXPECT_NEAR(bench.sound.left(resumed + 24000), counted(marked + 24000), 1e-4F);
}

TEST(TrackPropertiesSound, ClickOnTheBarIsHeardFromThatPlace) {
    SoundingStation bench;
    Propriete& window = bench.station.properties_window;
    window.play.click();
    bench.sound.run_for(milliseconds(1000));
    const std::int64_t clicked = bench.sound.time.now().count();
    window.bar.click_at(Propriete::bar_units / 2);
    bench.sound.run_for(milliseconds(1000));

    const std::int64_t place = nearest_frame(50 * 30.0 / 100).count();
    EXPECT_NEAR(bench.sound.left(clicked + 24000), counted(place + 24000), 1e-4F);
}

TEST(TrackPropertiesSound, StepIsHeardAsATenthOfASecond) {
    SoundingStation bench;
    Propriete& window = bench.station.properties_window;
    window.play.click();
    bench.sound.run_for(milliseconds(4000));
    const std::int64_t stepped = bench.sound.time.now().count();
    window.start_forward.click();
    bench.sound.run_for(milliseconds(1000));

    EXPECT_NEAR(bench.sound.left(stepped + 24000), counted(stepped + 4800 + 24000), 1e-4F);
}

} // namespace sonarelle
