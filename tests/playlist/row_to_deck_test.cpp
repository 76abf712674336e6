#include "playlist/row_to_deck.h"

#include <functional>

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

class RowToDeckTest : public StationFixture {
protected:
    RowToDeck row_to_deck{machine.platform,
                          station.list,
                          station.chain,
                          station.list_window,
                          station.record_reading,
                          {[this](int) {
                               behind_the_question();
                               return true;
                           },
                           [this](int deck, const DestinationRecord&) { loaded.push_back(deck); }}};
    std::function<void()> behind_the_question = [] {};
    std::vector<int> loaded;
};

} // namespace

TEST_F(RowToDeckTest, LoadsTheDeckThatWasNamed) {
    open_list("C:\\matin.dfm", {record_of("C:\\a.mp3")});
    rows().select(1);
    row_to_deck.Charg1_son();
    row_to_deck.charg2_son();
    row_to_deck.Charg3_son();
    EXPECT_EQ(loaded, (std::vector<int>{1, 2, 3}));
}

TEST_F(RowToDeckTest, ReadsTheRecordFromTheFileNotFromTheRow) {
    open_list("C:\\matin.dfm", {record_of("C:\\a.mp3"), record_of("C:\\b.mp3")});
    rows().select(2);
    rows().set_text(2, "C:\\autre.mp3");
    row_to_deck.Charg1_son();
    EXPECT_EQ(station.list.chemin_fichier, "C:\\b.mp3");
    EXPECT_EQ(station.chain.chemin_lecture, "C:\\b.mp3");
}

TEST_F(RowToDeckTest, SaysThatARowBeyond16BitsCantBeSent) {
    open_list("C:\\matin.dfm", std::vector<enreg_liste>(40000, record_of("C:\\a.mp3")));
    rows().select(40000);
    machine.dialogs.expect_box("La ligne 40000 ne peut pas être envoyée sur un lecteur", Answer::ok);
    row_to_deck.Charg1_son();
    EXPECT_TRUE(loaded.empty());
}

TEST_F(RowToDeckTest, LoadsTheDeckFromTheMenu) {
    machine.add_track("C:\\a.mp3", 100);
    open_list("C:\\matin.dfm", {record_of("C:\\a.mp3")});
    rows().select(1);
    station.list_window.char2.click();
    EXPECT_EQ(station.main_window.deck(2).title.caption.get(), "00:01:40 ( a )");
    EXPECT_EQ(station.chain.chemin_lecture2, "C:\\a.mp3");
}

TEST_F(RowToDeckTest, DoesNothingWithoutAList) {
    rows().append({"a", "0.10", "1.00", "", "100", ""});
    rows().select(1);
    row_to_deck.Charg1_son();
    EXPECT_TRUE(loaded.empty());
}

TEST_F(RowToDeckTest, LeavesTheDeckItsFileWhenNothingCanBeRead) {
    open_list("C:\\matin.dfm", {record_of("C:\\a.mp3")});
    rows().select(1);
    station.chain.chemin_lecture2 = "C:\\b.mp3";
    station.list.fichier_liste = "*.dfm";
    row_to_deck.charg2_son();
    EXPECT_EQ(station.chain.chemin_lecture2, "C:\\b.mp3");
    EXPECT_TRUE(loaded.empty());
}

TEST_F(RowToDeckTest, SendsTheRowThatWasSelectedThoughOneBeforeItWentBehindTheQuestion) {
    open_list("C:\\matin.dfm", {record_of("C:\\a.mp3"), record_of("C:\\b.mp3"), record_of("C:\\c.mp3")});
    rows().select(2);
    behind_the_question = [this] {
        machine.disk.put_file("C:\\matin.dfm", bytes_of({record_of("C:\\b.mp3"), record_of("C:\\c.mp3")}));
    };
    row_to_deck.Charg1_son();
    EXPECT_EQ(station.chain.chemin_lecture, "C:\\b.mp3");
}

TEST_F(RowToDeckTest, OffersTheTwoDecksThatAreNotOnTheAir) {
    station.chain.lecteur_en_cours = 2;
    station.list_window.Load_Pl.open();
    EXPECT_TRUE(station.list_window.char1.enabled);
    EXPECT_FALSE(station.list_window.char2.enabled);
    EXPECT_TRUE(station.list_window.char3.enabled);
}

TEST_F(RowToDeckTest, OffersPastingWhileTheClipboardHoldsText) {
    station.list_window.Load_Pl.open();
    EXPECT_FALSE(station.list_window.coller.enabled);
    machine.shell.set_clipboard_text("C:\\a.mp3");
    station.list_window.Load_Pl.open();
    EXPECT_TRUE(station.list_window.coller.enabled);
}

} // namespace sonarelle
