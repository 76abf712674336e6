// What two programs that work on the same lists do to each other.
#include <gmock/gmock.h>

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;

constexpr std::string_view default_path = "C:\\Sonarelle\\liste.dfm";
constexpr std::string_view own_path = "C:\\Sonarelle\\liste-2.dfm";

class TwoPrograms : public MaintenanceFixture {
protected:
    void open_default_list(Station& desk) {
        desk.settings.chemin_programme = station.settings.chemin_programme;
        if (!machine.disk.exists(default_path))
            machine.disk.put_file(default_path, bytes_of({record_of("C:\\a.mp3"), record_of("C:\\b.mp3")}));
        desk.list_window.A_liste_anciene.click();
        desk.list_window.rows.select(1);
    }
    /// As another program does: the file gets one more record.
    void add_record(std::string_view path, std::string_view song) {
        machine.disk.put_file(path, machine.disk.bytes(path) + bytes_of(record_of(song)));
    }
    /// An edit of the rows, which is saved at once.
    void change_volume(Station& desk, std::string_view volume) {
        machine.dialogs.expect_box(Answer::yes);
        machine.dialogs.expect_input(volume);
        desk.list_window.Modifier_volume.click();
    }
    [[nodiscard]] int volume_in(std::string_view path) { return record_in(machine.disk.bytes(path), 1).volume(); }
    [[nodiscard]] std::string warning() { return station.warning_window.lines.caption; }
};

} // namespace

TEST_F(TwoPrograms, LeaveARecordThatTheOtherHasAdded) {
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    change_volume(station, "40");
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"));
    EXPECT_EQ(volume_in(default_path), 100);
}

TEST_F(TwoPrograms, GoOnWithAListOfTheirOwnBehindAChangeOfTheOther) {
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    change_volume(station, "40");
    EXPECT_EQ(volume_in(own_path), 40);
    EXPECT_EQ(station.list.fichier_liste, "liste-2.dfm");
    change_volume(station, "60");
    EXPECT_EQ(volume_in(own_path), 60);
}

TEST_F(TwoPrograms, TellWhereTheChangesAreOnce) {
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    change_volume(station, "40");
    EXPECT_EQ(warning(), "liste.dfm a été modifiée par un autre programme\n\n"
                         "La liste de cette fenètre est enregistrée dans liste-2.dfm");
    station.warning_window.hide();
    change_volume(station, "60");
    EXPECT_FALSE(station.warning_window.visible);
}

TEST_F(TwoPrograms, NeverTakeAListThatSomeoneHasLeftBehind) {
    machine.disk.put_file(own_path, "reste");
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    change_volume(station, "40");
    EXPECT_EQ(machine.disk.bytes(own_path), "reste");
    EXPECT_EQ(volume_in("C:\\Sonarelle\\liste-3.dfm"), 40);
}

TEST_F(TwoPrograms, GoOnWithTheirOwnListAsLongAsNobodyElseWritesIt) {
    open_default_list(station);
    change_volume(station, "40");
    change_volume(station, "60");
    EXPECT_EQ(volume_in(default_path), 60);
    EXPECT_FALSE(machine.disk.exists(own_path));
}

TEST_F(TwoPrograms, TakeUpWhatTheOtherHasWrittenByLoadingIt) {
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    station.list_document.charge_liste();
    change_volume(station, "40");
    EXPECT_THAT(saved_paths(), ElementsAre("C:\\a.mp3", "C:\\b.mp3", "C:\\c.mp3"));
    EXPECT_EQ(volume_in(default_path), 40);
}

TEST_F(TwoPrograms, OfTwoDesksTheSecondLeavesTheFirstOnesList) {
    open_default_list(station);
    Station second{machine.platform};
    open_default_list(second);
    EXPECT_EQ(second.list.fichier_liste, "liste-2.dfm");
    change_volume(second, "40");
    EXPECT_EQ(volume_in(default_path), 100);
    EXPECT_EQ(volume_in(own_path), 40);
    change_volume(station, "60");
    EXPECT_EQ(volume_in(default_path), 60);
    EXPECT_EQ(volume_in(own_path), 40);
}

TEST_F(TwoPrograms, DoNotSaveOverAListThatTheOtherWorksOn) {
    open_default_list(station);
    Station second{machine.platform};
    open_default_list(second);
    machine.dialogs.expect_save(default_path);
    machine.dialogs.expect_box("il va ètre écrasé", Answer::yes);
    machine.dialogs.expect_box("Un autre programme travaille sur cette liste", Answer::ok);
    const std::string before = default_list_bytes();
    second.list_window.A_enreg_sous.click();
    EXPECT_EQ(default_list_bytes(), before);
}

TEST_F(TwoPrograms, DoNotSaveOverAListThatChangesBehindTheQuestion) {
    open_rows({"C:\\a.mp3"});
    machine.disk.put_file("c:\\soir.dfm", "");
    machine.dialogs.expect_save("c:\\soir.dfm");
    machine.dialogs.expect_box("il va ètre écrasé", Answer::yes, seconds(10));
    machine.dialogs.expect_box("Un autre programme vient de modifier cette liste", Answer::ok);
    machine.time.at(machine.time.now() + seconds(5), [this] { add_record("c:\\soir.dfm", "C:\\z.mp3"); });
    list().A_enreg_sous.click();
    EXPECT_EQ(machine.disk.bytes("c:\\soir.dfm"), bytes_of(record_of("C:\\z.mp3")));
}

TEST_F(TwoPrograms, SaveTheirOwnDefaultListByItsNameAndGoOnWithIt) {
    open_default_list(station);
    machine.dialogs.expect_save(default_path);
    machine.dialogs.expect_box("il va ètre écrasé", Answer::yes);
    list().A_enreg_sous.click();
    change_volume(station, "40");
    EXPECT_EQ(volume_in(default_path), 40);
}

TEST_F(TwoPrograms, PutNoRecordInThePlaceOfAnotherTracks) {
    open_default_list(station);
    machine.disk.put_file(default_path, bytes_of({record_of("C:\\z.mp3"), record_of("C:\\a.mp3")}));
    EXPECT_THROW(replace_record(machine.disk, default_path, 1, record_of("C:\\a.mp3", "30.00")), Failure);
    EXPECT_EQ(record_in(default_list_bytes(), 1).trimmed_chemin(), "C:\\z.mp3");
}

TEST_F(TwoPrograms, DoNotHoldUpTheAirByTheirWords) {
    open_default_list(station);
    add_record(default_path, "C:\\c.mp3");
    Timer tick{"tick", 0, machine.platform.scheduler};
    tick.set_interval(100);
    tick.on_tick = [this] { station.list_document.sauve_tout(); };
    tick.enable();
    machine.run_for(milliseconds(150));
    EXPECT_TRUE(station.warning_window.visible);
}

TEST_F(TwoPrograms, AFullDiskDoesNotHoldUpTheAirEither) {
    open_default_list(station);
    machine.disk.set_capacity(machine.disk.used());
    Timer tick{"tick", 0, machine.platform.scheduler};
    tick.set_interval(100);
    tick.on_tick = [this] { station.list_document.sauve_tout(); };
    tick.enable();
    machine.run_for(milliseconds(150));
    EXPECT_THAT(warning(), HasSubstr("Disque plein"));
}

TEST_F(TwoPrograms, TellWhichFileTheChainReads) {
    open_rows({"C:\\a.mp3"});
    EXPECT_EQ(list().file_in_use.caption.get(), "Dans fichier " + std::string{matin});
    change_volume(station, "40");
    EXPECT_EQ(list().file_in_use.caption.get(), "Dans fichier liste.dfm (matin.dfm : modifications non enregistrées)");
}

TEST_F(TwoPrograms, TellOfNoUnsavedChangesBehindASave) {
    open_rows({"C:\\a.mp3"});
    change_volume(station, "40");
    machine.dialogs.expect_save("c:\\listes\\soir.dfm");
    list().A_enreg_sous.click();
    EXPECT_EQ(list().file_in_use.caption.get(), "Dans fichier c:\\listes\\soir.dfm");
}

} // namespace sonarelle
