// The default list is kept once before the rows of another list take its place; a failed save leaves the names.
#include "support/station_fixture.h"

namespace sonarelle {

namespace {

class PreviousList : public StationFixture {
protected:
    PreviousList() { machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("C:\\avant.mp3"))); }

    void open_another() { open_list("C:\\Listes\\matin.dfm", {record_of("C:\\a.mp3"), record_of("C:\\b.mp3")}); }
    [[nodiscard]] std::string kept() {
        return machine.disk.exists(kept_name) ? machine.disk.bytes(kept_name) : std::string{};
    }
    static constexpr const char* kept_name = "C:\\Sonarelle\\liste précédente.dfm";
};

} // namespace

TEST_F(PreviousList, IsKeptBeforeAnotherListTakesItsPlace) {
    open_another();
    station.list_document.sauve_tout();
    EXPECT_EQ(kept(), bytes_of(record_of("C:\\avant.mp3")));
    EXPECT_EQ(default_list_bytes().size(), 2U * 418U);
}

TEST_F(PreviousList, IsKeptOnce) {
    open_another();
    station.list_document.sauve_tout();
    open_list("C:\\Listes\\soir.dfm", {record_of("C:\\c.mp3")});
    EXPECT_EQ(kept(), bytes_of(record_of("C:\\avant.mp3")));
}

TEST_F(PreviousList, StandsOverTheRunsThatFollow) {
    machine.disk.put_file(kept_name, "d'hier");
    open_another();
    station.list_document.sauve_tout();
    EXPECT_EQ(kept(), "d'hier");
}

TEST_F(PreviousList, IsNotKeptOfItsOwnRows) {
    station.list_window.A_liste_anciene.click();
    station.list_document.sauve_tout();
    EXPECT_EQ(kept(), "");
}

TEST_F(PreviousList, AFailedSaveLeavesTheNamesAsTheyWere) {
    open_another();
    machine.disk.set_capacity(machine.disk.used());
    machine.dialogs.expect_box("Disque plein", Answer::ok);
    station.list_document.sauve_tout();
    EXPECT_EQ(station.list.fichier_liste, "C:\\Listes\\matin.dfm");
    EXPECT_EQ(default_list_bytes(), bytes_of(record_of("C:\\avant.mp3")));
}

TEST_F(PreviousList, ARowThatComesByItselfIsSavedOnlyWhereThatIsWanted) {
    open_another();
    station.list_window.a_Ne_pas_Sauve.click();
    station.list_document.save_by_itself();
    EXPECT_EQ(default_list_bytes(), bytes_of(record_of("C:\\avant.mp3")));
    station.list_window.A_sauve.click();
    station.list_document.save_by_itself();
    EXPECT_EQ(default_list_bytes().size(), 2U * 418U);
}

TEST_F(PreviousList, OfAFolderThatHadNoneIsKeptOnceAnotherListTakesItsPlace) {
    machine.disk.Kill("C:\\Sonarelle\\liste.dfm");
    open_another();
    station.list_document.sauve_tout();
    const std::string first = default_list_bytes();
    station.list_window.Effacer_liste.click();
    open_list("C:\\Listes\\soir.dfm", {record_of("C:\\c.mp3")});
    station.list_document.sauve_tout();
    EXPECT_EQ(kept(), first);
}

TEST_F(PreviousList, AListThatIsLoadedToRowsIsSavedOnlyWhereThatIsWanted) {
    open_another();
    station.list_window.a_Ne_pas_Sauve.click();
    open_list("C:\\Listes\\soir.dfm", {record_of("C:\\c.mp3")});
    EXPECT_EQ(rows().count(), 3);
    EXPECT_EQ(default_list_bytes(), bytes_of(record_of("C:\\avant.mp3")));
}

} // namespace sonarelle
