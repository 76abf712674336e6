#include "playlist/list_document.h"

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view matin = "C:\\Listes\\matin.dfm";

class ListDocumentTest : public StationFixture {
protected:
    void load_current_list(std::string_view path, const std::vector<enreg_liste>& records) {
        machine.disk.put_file(path, bytes_of(records));
        station.list.fichier_liste = path;
        station.list_document.charge_liste();
    }

    [[nodiscard]] std::vector<std::string> paths() {
        std::vector<std::string> result;
        for (int row = 1; row <= rows().count(); ++row)
            result.push_back(rows().text(row));
        return result;
    }
};

using Paths = std::vector<std::string>;

} // namespace

TEST_F(ListDocumentTest, ShowsARecordInSixColumns) {
    open_list(matin, {record_of(" C:\\a.mp3", "200", 80, 2.4, " Pop", "00:03:20")});
    EXPECT_EQ(rows().row(1), (RowTable::Row{"C:\\a.mp3", "2.40", "200.00", "Pop", "80", "00:03:20"}));
}

TEST_F(ListDocumentTest, HasItsColumnsInOrderWithTheirCaptionsAndWidths) {
    std::vector<std::pair<std::string, int>> columns;
    for (const Column& column : rows().columns())
        columns.emplace_back(column.caption, column.width.count());
    EXPECT_EQ(columns, (std::vector<std::pair<std::string, int>>{{"Chemin complet du fichier ", 6700},
                                                                 {"Début lecture a : (Secondes)", 2500},
                                                                 {"Fin lecture a : (Secondes)", 2500},
                                                                 {"Genre", 1300},
                                                                 {"Volume %", 1000},
                                                                 {"Durée piste", 1100}}));
}

TEST_F(ListDocumentTest, ReadsAnEndWrittenWithAComma) {
    open_list(matin, {record_of("a", "200,5")});
    EXPECT_EQ(rows().sub_item(1, 2), "200.50");
}

TEST_F(ListDocumentTest, WritesDecimalsWithTheStationsOwnMark) {
    machine.platform.decimal_mark = DecimalMark::comma;
    Station other{machine.platform};
    machine.disk.put_file(matin, bytes_of(record_of("a", "200.5", 100, 1.5)));
    machine.dialogs.expect_open(matin);
    other.list_window.A_liste.click();
    EXPECT_EQ(other.list_window.rows.sub_item(1, 1), "1,50");
    EXPECT_EQ(other.list_window.rows.sub_item(1, 2), "200,50");
}

TEST_F(ListDocumentTest, OfAFileOf417BytesIsEmpty) {
    machine.disk.put_file(matin, std::string(417, 'x'));
    machine.dialogs.expect_open(matin);
    station.list_window.A_liste.click();
    EXPECT_EQ(rows().count(), 0);
}

TEST_F(ListDocumentTest, AsksForAListInTheProgramFolder) {
    open_list(matin, {});
    EXPECT_EQ(machine.dialogs.last().title, "Ouvrir un fichier liste");
    EXPECT_EQ(machine.dialogs.last().folder, "C:\\Sonarelle\\");
    EXPECT_EQ(machine.dialogs.last().text, "*.dfm");
    EXPECT_EQ(machine.dialogs.last().filter, "fichier (*.dfm)|*.dfm");
}

TEST_F(ListDocumentTest, LoadedOverRowsMergesThem) {
    open_list(matin, {record_of("a")});
    open_list("C:\\Listes\\soir.dfm", {record_of("b")});
    EXPECT_EQ(paths(), (Paths{"a", "b"}));
}

TEST_F(ListDocumentTest, LoadedOverRowsSavesTheMergeInTheDefaultList) {
    open_list(matin, {record_of("a")});
    open_list("C:\\Listes\\soir.dfm", {record_of("b")});
    EXPECT_EQ(default_list_bytes(), bytes_of({record_of("a"), record_of("b")}));
}

TEST_F(ListDocumentTest, IsTheDefaultListAfterAMerge) {
    open_list(matin, {record_of("a")});
    open_list("C:\\Listes\\soir.dfm", {record_of("b")});
    EXPECT_EQ(station.list.fichier_liste, "liste.dfm");
}

TEST_F(ListDocumentTest, LoadedIntoAnEmptyTableLeavesTheDefaultListAlone) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", "ancien");
    open_list(matin, {record_of("a")});
    EXPECT_EQ(default_list_bytes(), "ancien");
}

TEST_F(ListDocumentTest, SaysWhatIsLoaded) {
    open_list(matin, {record_of("a"), record_of("b")});
    EXPECT_EQ(station.list_window.list_status.caption.get(), "Lecture en attente .. Nb : 2");
    EXPECT_EQ(station.list_window.caption.get(), "Fichier liste : C:\\Listes\\matin.dfm");
    EXPECT_EQ(station.list_window.Supprimer_fichier.caption.get(), "Supprimer le fichier C:\\Listes\\matin.dfm");
}

TEST_F(ListDocumentTest, EnablesWhatNeedsAList) {
    for (MenuItem* entry : station.list_window.entries_that_need_a_list())
        EXPECT_FALSE(entry->enabled) << entry->name();
    open_list(matin, {record_of("a")});
    for (MenuItem* entry : station.list_window.entries_that_need_a_list())
        EXPECT_TRUE(entry->enabled) << entry->name();
}

TEST_F(ListDocumentTest, NamesTheListEverywhere) {
    open_list(matin, {});
    EXPECT_EQ(station.list.fichier_liste, matin);
    EXPECT_EQ(station.list.fichier_liste_precedent, matin);
    EXPECT_EQ(station.list.nom_sauvegarde, matin);
    EXPECT_EQ(station.list_window.file_name.text(), matin);
    EXPECT_EQ(station.list.nom_fichier, "matin.dfm");
}

TEST_F(ListDocumentTest, MakesTheListsDriveTheCurrentOne) {
    open_list("D:\\matin.dfm", {record_of("a")});
    EXPECT_EQ(machine.disk.current_drive(), 'D');
}

TEST_F(ListDocumentTest, LoadsAListOfTheNetwork) {
    open_list("\\\\serveur\\partage\\matin.dfm", {record_of("a")});
    EXPECT_EQ(paths(), Paths{"a"});
}

TEST_F(ListDocumentTest, KeepsItsRowsWhenTheDialogIsCancelled) {
    open_list(matin, {record_of("a")});
    machine.dialogs.expect_cancel();
    station.list_window.A_liste.click();
    EXPECT_EQ(paths(), Paths{"a"});
}

TEST_F(ListDocumentTest, IsCalledByThePatternAfterACancelledDialog) {
    machine.dialogs.expect_cancel();
    station.list_window.A_liste.click();
    EXPECT_EQ(station.list.fichier_liste, "*.dfm");
}

TEST_F(ListDocumentTest, ReadsBackARowNumberThatStandsForADuration) {
    open_list(matin, {record_of("a", "200.00", 100, 0.1, "Rock", ""), record_of("b", "200.00", 100, 0.1, "Rock", "")});
    station.list_document.sauve_tout();
    station.list_document.charge_liste();
    EXPECT_EQ(rows().sub_item(2, list_column::duration), "2");
    EXPECT_EQ(station.record_reading.lire_enreg_destinataire(2).dest_duree, "2       ");
}

TEST_F(ListDocumentTest, SaysNothingOfACancelledDialog) {
    machine.dialogs.expect_cancel();
    station.list_window.A_liste.click();
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

TEST_F(ListDocumentTest, TakesBackItsNameWhenAnEmptyNameIsChosen) {
    open_list(matin, {});
    machine.dialogs.expect_open("");
    station.list_window.A_liste.click();
    EXPECT_EQ(station.list.fichier_liste, "matin.dfm");
}

TEST_F(ListDocumentTest, OfTheDefaultListWritesNothing) {
    const std::string own = "C:\\Sonarelle\\liste.dfm";
    open_list(own, {record_of("a")});
    EXPECT_EQ(station.list_window.caption.get(), "Fichier liste : " + own);
}

TEST_F(ListDocumentTest, LoadsFromTheContextMenuAlike) {
    machine.disk.put_file(matin, bytes_of(record_of("a")));
    machine.dialogs.expect_open(matin);
    station.list_window.A_Charge.click();
    EXPECT_EQ(paths(), Paths{"a"});
}

TEST_F(ListDocumentTest, TellsWhenTheDiskRefusesAList) {
    machine.disk.put_file(matin, bytes_of(record_of("a")));
    machine.disk.refuse(matin, FailureNumber::permission_refused);
    machine.dialogs.expect_open(matin);
    machine.dialogs.expect_box("Permission refusée", Answer::ok);
    station.list_window.A_liste.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_NE(machine.dialogs.last().text.find(matin), std::string::npos);
}

TEST_F(ListDocumentTest, SaysNothingOfAnyOtherFailure) {
    machine.disk.refuse(matin, FailureNumber::device_fault);
    machine.dialogs.expect_open(matin);
    station.list_window.A_liste.click();
    EXPECT_EQ(machine.dialogs.asked().size(), 1U);
}

TEST_F(ListDocumentTest, TellsEachRefusalOfTheDisk) {
    for (const FailureNumber number :
         {FailureNumber::permission_refused, FailureNumber::disk_not_ready, FailureNumber::other_drive,
          FailureNumber::path_access, FailureNumber::path_not_found}) {
        machine.disk.refuse(matin, number);
        machine.dialogs.expect_open(matin);
        machine.dialogs.expect_box(failure_description(number), Answer::ok);
        station.list_window.A_liste.click();
        machine.disk.heal(matin);
    }
}

TEST_F(ListDocumentTest, OffersItsDeletionByNameWhenItIsLoadedAnew) {
    load_current_list(matin, {record_of("a")});
    EXPECT_EQ(station.list_window.Supprimer_fichier.caption.get(), "Supprimer le fichier C:\\Listes\\matin.dfm");
}

TEST_F(ListDocumentTest, ShowsTheBusyPointerWhileTheDefaultListIsRead) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("a")));
    machine.disk.take("C:\\Sonarelle\\liste.dfm", seconds(1));
    int pointer = 0;
    machine.time.at(milliseconds(500), [&] { pointer = station.list_window.mouse_pointer; });
    station.list_window.A_liste_anciene.click();
    EXPECT_EQ(pointer, 13);
}

TEST_F(ListDocumentTest, BeginsTheNextDialogInTheProgramFolderAfterARefusal) {
    station.settings.chemin_musique = "D:\\Musique";
    machine.disk.refuse(matin, FailureNumber::path_not_found);
    machine.dialogs.expect_open(matin);
    machine.dialogs.expect_box(Answer::ok);
    station.list_window.A_liste.click();
    EXPECT_EQ(station.settings.chemin_musique, "C:\\Sonarelle\\");
}

TEST_F(ListDocumentTest, KeepsTheRowsReadBeforeTheDiskBroke) {
    machine.disk.put_file(matin, bytes_of({record_of("a"), record_of("b"), record_of("c")}));
    machine.disk.fail_read_at(matin, 2 * 418);
    machine.dialogs.expect_open(matin);
    station.list_window.A_liste.click();
    EXPECT_EQ(paths(), (Paths{"a", "b"}));
}

TEST_F(ListDocumentTest, ReplacesAllRowsWhenItIsLoadedAnew) {
    open_list(matin, {record_of("a"), record_of("b")});
    load_current_list("C:\\Listes\\soir.dfm", {record_of("c")});
    EXPECT_EQ(paths(), Paths{"c"});
}

TEST_F(ListDocumentTest, KeepsItsRowsWithoutAListToLoad) {
    open_list(matin, {record_of("a")});
    station.list.fichier_liste.clear();
    station.list_document.charge_liste();
    EXPECT_EQ(paths(), Paths{"a"});
}

TEST_F(ListDocumentTest, SelectsTheCurrentRowWhenItIsLoadedAnew) {
    station.list.index_en_cours = 2;
    load_current_list(matin, {record_of("a"), record_of("b")});
    EXPECT_EQ(rows().selected(), 2);
}

TEST_F(ListDocumentTest, KeepsItsRowsWhenTheCurrentOneDoesNotExist) {
    station.list.index_en_cours = 9;
    load_current_list(matin, {record_of("a")});
    EXPECT_EQ(paths(), Paths{"a"});
}

TEST_F(ListDocumentTest, CreatesAMissingDefaultListEmpty) {
    station.list_window.A_liste_anciene.click();
    EXPECT_EQ(rows().count(), 0);
    EXPECT_EQ(default_list_bytes(), "");
}

TEST_F(ListDocumentTest, AppendsTheDefaultListWithoutADialog) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of(record_of("b")));
    open_list(matin, {record_of("a")});
    station.list_window.A_liste_anciene.click();
    EXPECT_EQ(paths(), (Paths{"a", "b"}));
}

TEST_F(ListDocumentTest, InsertsBehindTheSelectedRowAfterTheDefaultListWasLoaded) {
    machine.disk.put_file("C:\\Sonarelle\\liste.dfm", bytes_of({record_of("a"), record_of("b")}));
    station.list.index_en_cours = 2;
    open_list(matin, {record_of("c")});
    rows().select(1);
    station.list.index_en_cours = 3;
    station.list_window.A_liste_anciene.click();
    EXPECT_EQ(station.list.index_insertion, 4);
}

TEST_F(ListDocumentTest, ShowsThePlainPointerAfterALoad) {
    station.list_window.A_liste_anciene.click();
    EXPECT_EQ(station.list_window.mouse_pointer, 0);
}

TEST_F(ListDocumentTest, LoadsShowsAndSavesMoreRowsThanA16BitCounterHas) {
    const std::vector<enreg_liste> records(40000, record_of("a"));
    open_list(matin, records);
    station.list_document.sauve_tout();
    EXPECT_EQ(rows().count(), 40000);
    EXPECT_EQ(default_list_bytes().size(), 40000U * 418U);
}

TEST_F(ListDocumentTest, SurvivesAListOfRandomBytes) {
    std::string bytes;
    for (int i = 0; i < 20 * 418; ++i)
        bytes += static_cast<char>(static_cast<unsigned char>(machine.random.Rnd() * 256));
    machine.disk.put_file(matin, bytes);
    machine.dialogs.expect_open(matin);
    station.list_window.A_liste.click();
    EXPECT_EQ(rows().count(), 20);
}

} // namespace sonarelle
