// From the program's entry to a main window that is ready.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::HasSubstr;
using testing::StartsWith;

class StartupTest : public DeskFixture {
protected:
    static constexpr std::string_view first_start_box =
        "Ecrirure dans la base de registre éffectuée! \n\nLes paramètre de Sonarelle ont étés mis a jour\n"
        "Veuillez vérifier toutes les valeurs dans le menu options puis Paramètre du programme\n"
        "Et les modifier si il y a lieu\n\n"
        "Vérifier également vos paramètres régionaux si erreur type incompatible\n"
        "La séparation des décimales pour les nombres doit ètre un point\n\n"
        "Vous pouvez relancer Sonarelle pour valider ";

    void remove(std::string_view file) { machine.disk.Kill("C:\\Sonarelle\\" + std::string{file}); }
    void expect_fault(std::string_view part) { machine.dialogs.expect_box(part, Answer::ok); }
};

using FirstStart = StartupTest;
using Splash = StartupTest;
using SecondDesk = StartupTest;

} // namespace

TEST_F(FirstStart, TellsTheOperatorAndEnds) {
    machine.dialogs.expect_box(first_start_box, Answer::ok);
    station.start("");
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
    EXPECT_TRUE(station.ended());
    EXPECT_FALSE(window.visible);
    EXPECT_FALSE(station.splash.visible);
}

TEST_F(FirstStart, LeavesTheFadeValuesOfAFirstStart) {
    machine.dialogs.expect_box(Answer::ok);
    station.start("");
    EXPECT_EQ(stored("Mix_audio"), "10");
    EXPECT_EQ(stored("Mix_audio_vitesse"), "35");
    EXPECT_EQ(stored("Mix_audio_attenuation"), "2");
    EXPECT_EQ(stored("type_affichage"), "T_défaut");
}

TEST_F(FirstStart, WritesNoJournal) {
    machine.dialogs.expect_box(Answer::ok);
    station.start("");
    EXPECT_FALSE(has_journal());
}

TEST_F(FirstStart, IsFollowedByOneThatReachesTheMainWindow) {
    machine.dialogs.expect_box(Answer::ok);
    station.start("");
    Station second{machine.platform};
    second.start("");
    EXPECT_TRUE(second.main_window.visible);
    EXPECT_FALSE(second.ended());
    EXPECT_EQ(second.settings.mix_audio, 10);
    EXPECT_EQ(second.settings.mix_audio_vitesse, 35);
    EXPECT_EQ(second.settings.mix_audio_attenuation, 2);
}

TEST_F(SecondDesk, SaysThatSonarelleIsOnTheAir) {
    start();
    Station second{machine.platform};
    second.start("");
    EXPECT_TRUE(second.warning_window.visible);
    EXPECT_THAT(second.warning_window.lines.caption.get(), StartsWith("Sonarelle est déjà à l'antenne"));
}

TEST_F(SecondDesk, HasNothingToSayBehindOneThatHasEnded) {
    {
        Station first{machine.platform};
        fill_store();
        first.start("");
    }
    start();
    EXPECT_FALSE(station.warning_window.visible);
}

TEST_F(SecondDesk, GoesOnTheAirWhereNothingCanBeClaimed) {
    machine.disk.refuse("C:\\Sonarelle\\liste.dfm", FailureNumber::path_access);
    start();
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(station.warning_window.visible);
}

TEST_F(Splash, HasTheProgramsPictureAndGoesWhenTheMainWindowIsThere) {
    fill_store();
    station.desk_wiring.startup.enter_program("");
    EXPECT_TRUE(station.splash.visible);
    EXPECT_FALSE(window.visible);
    EXPECT_EQ(station.splash.picture.picture.get(), "main_.jpg");
    station.splash.activate();
    EXPECT_FALSE(station.splash.visible);
    EXPECT_TRUE(window.visible);
    EXPECT_EQ(station.splash.mouse_pointer.get(), 0);
}

TEST_F(Splash, FillsItsWindowWithItsPicture) {
    EXPECT_EQ(station.splash.picture.width.get(), station.splash.width.get() - Twips{100});
    EXPECT_EQ(station.splash.picture.height.get(), station.splash.height.get() - Twips{490});
}

TEST_F(Splash, StartsTheMainWindowOnceHoweverOftenItComesToTheFront) {
    start();
    const std::string journal = journal_text();
    station.splash.activate();
    EXPECT_EQ(journal_text(), journal);
}

TEST_F(Splash, IsShownForAnUnknownDisplayTypeToo) {
    fill_store();
    set("type_affichage", "T_inconnu");
    station.desk_wiring.startup.enter_program("");
    EXPECT_TRUE(station.splash.visible);
    EXPECT_EQ(station.splash.picture.picture.get(), "main_.jpg");
}

TEST_F(Splash, IsShownWithoutItsPictureWhenTheFileIsMissing) {
    remove("main_.jpg");
    start();
    EXPECT_EQ(station.splash.picture.picture.get(), "");
    EXPECT_TRUE(window.visible);
}

TEST_F(StartupTest, AFreshStoreGetsTheDesktopsColoursAtTheEntry) {
    station.desk_wiring.startup.enter_program("");
    EXPECT_EQ(stored("coul_label", "Couleur_liste"), "-2147483630");
    EXPECT_EQ(stored("coul_fenètre", "Couleur_liste"), "-2147483633");
    EXPECT_EQ(stored("type_affichage"), "T_perso");
    EXPECT_EQ(station.settings.type_affichage, "T_défaut");
    EXPECT_EQ(station.settings.coul_label, desktop_text);
    EXPECT_EQ(station.settings.coul_fenetre, desktop_face);
}

TEST_F(StartupTest, AFilledStoreKeepsItsColoursAtTheEntry) {
    fill_store();
    station.desk_wiring.startup.enter_program("");
    EXPECT_EQ(stored("coul_label", "Couleur_liste"), "16777215");
    EXPECT_EQ(stored("type_affichage"), "T_défaut");
}

TEST_F(StartupTest, WritesASeparationAndTheExecutionIntoTheJournal) {
    machine.disk.put_file("C:\\Sonarelle\\journal.doc", "avant\r\n");
    start();
    EXPECT_EQ(journal_text(), "avant\r\n\r\n05/01/2026 - 06:00:00 Ex\xe9"
                              "cution de Sonarelle\r\n");
}

TEST_F(StartupTest, NamesTheWindowsAfterTheProgramWhenTheStationHasNoName) {
    start();
    EXPECT_EQ(window.caption.get(), "Sonarelle V 6.1.3 - -");
    EXPECT_EQ(station.list_window.caption.get(), "Sonarelle V 6.1.3");
}

TEST_F(StartupTest, NamesTheWindowsAfterTheStation) {
    fill_store();
    set("Nom_antenne_fm", "Radio Port");
    station.start("");
    EXPECT_EQ(window.caption.get(), "Radio Port");
    EXPECT_EQ(station.small_player.caption.get(), "Radio Port");
    EXPECT_EQ(station.list_window.caption.get(), "Radio Port");
}

TEST_F(StartupTest, PlacesTheMainWindowWhereItWas) {
    fill_store();
    set("Position_haut", "1500", "Position");
    set("Position_gauche", "3000", "Position");
    station.start("");
    EXPECT_EQ(window.top.get(), Twips{1500});
    EXPECT_EQ(window.left.get(), Twips{3000});
}

TEST_F(StartupTest, PlaysTheBannerWhenTheMachineIsOnline) {
    start();
    EXPECT_TRUE(window.banner.playing);
    EXPECT_TRUE(window.banner.loop);
    EXPECT_EQ(window.banner.movie.get(), "C:\\Sonarelle\\bandeau_Flash.swf");
}

TEST_F(StartupTest, LeavesTheBannerAloneOffline) {
    machine.shell.online = false;
    start();
    EXPECT_FALSE(window.banner.playing);
    EXPECT_EQ(window.banner.movie.get(), "");
}

TEST_F(StartupTest, ShowsThePicturesOfTheDecks) {
    start();
    for (const DeckControls& deck : window.decks) {
        EXPECT_EQ(deck.open.picture.get(), "Open_noir.gif");
        EXPECT_EQ(deck.zap.picture.get(), "bouton_fleche_noir.gif");
        EXPECT_EQ(deck.play.picture.get(), "tplay_noir.gif");
    }
}

TEST_F(StartupTest, ShowsTheBlackBackgroundWhateverTheStoreSays) {
    fill_store();
    machine.disk.put_file("C:\\Sonarelle\\bleu.jpg", "image");
    set("logo_fond", "C:\\Sonarelle\\bleu.jpg");
    station.start("");
    EXPECT_EQ(window.picture.get(), "fond_noir1.jpg");
    EXPECT_EQ(station.settings.logo_fond, "C:\\Sonarelle\\fond_noir1.jpg");
}

TEST_F(StartupTest, ShowsThePicturesOfTheListWindow) {
    start();
    EXPECT_EQ(station.list_window.picture.get(), "C:\\Sonarelle\\Liste_Sonarine1.jpg");
    EXPECT_EQ(station.list_window.side_picture.picture.get(), "C:\\Sonarelle\\Logo_liste1.gif");
}

TEST_F(StartupTest, StoresTheProgramsFolderWithItsBackslash) {
    start();
    EXPECT_EQ(stored("Chemin_programme"), "C:\\Sonarelle\\");
    EXPECT_EQ(station.settings.chemin_programme, "C:\\Sonarelle\\");
}

TEST_F(StartupTest, ReportsAMissingPictureAndKeepsTheWindow) {
    remove("tplay_noir.gif");
    fill_store();
    expect_fault("Attention  !\nErreur tplay_noir.gif  ");
    station.start("");
    EXPECT_THAT(machine.dialogs.last().text,
                HasSubstr(" Erreur N°  53\nDes paramètres ou des fichiers sont manquants!!!\n"
                          "Allez dans le menu OPTION puis PARAMETRES \n"));
    EXPECT_THAT(machine.dialogs.last().text, testing::EndsWith("Exécutez a nouveau Sonarelle"));
    EXPECT_TRUE(window.visible);
    EXPECT_FALSE(station.ended());
}

TEST_F(StartupTest, AfterAMissingPictureTheRestOfTheCreationIsLeftOut) {
    remove("fond_noir1.jpg");
    fill_store();
    expect_fault("fond_noir1.jpg");
    station.start("\"C:\\Musique\\titre.mp3\"");
    EXPECT_EQ(journal_text(), "\r\n");
    EXPECT_EQ(window.deck(1).open.picture.get(), "");
    EXPECT_FALSE(station.small_player.visible);
}

TEST_F(StartupTest, LeavesTheListsPictureForTheTwoWordsThatMeanNone) {
    remove("Liste_Sonarine1.jpg");
    fill_store();
    for (const std::string_view word : {"Vrai", "non"}) {
        set("Logo_liste", word);
        Station another{machine.platform};
        another.list_window.picture = "avant.jpg";
        another.start("");
        EXPECT_EQ(another.list_window.picture.get(), "avant.jpg") << word;
        EXPECT_TRUE(another.main_window.visible);
    }
}

TEST_F(StartupTest, ShowsNoPictureForASettingThatNamesNone) {
    fill_store();
    for (const std::string_view key : {"logo_fond", "Logo_liste", "Logo_fichier", "logo"})
        set(key, "");
    station.start("");
    EXPECT_EQ(station.list_window.picture.get(), "");
    EXPECT_EQ(window.picture.get(), "fond_noir1.jpg");
}

TEST_F(StartupTest, ShowsTheVisualEffectThatWasChosen) {
    fill_store();
    set("Effet visuel", "Oui");
    station.start("");
    EXPECT_TRUE(window.sound_display.visible);
    EXPECT_TRUE(window.sound_display.takes_sound);
}

TEST_F(StartupTest, TellsTheOverlapAndTheLoadLeadWhereTheOperatorPoints) {
    start();
    EXPECT_EQ(window.overlap.hint.get(), "Superposition de : 6 seconde(s)");
    EXPECT_EQ(window.load_ahead.hint.get(), "Préchargement (7 s avant le mix) ");
    EXPECT_EQ(window.deck(2).slider.hint.get(), "Volume %100");
    EXPECT_EQ(window.deck(2).special_mix.hint.get(), "Mixage spécial sur lecteur en cours (F9) avec : ");
}

TEST_F(StartupTest, FillsBothQuickLoadBoxesWithTheListsThatWereChosen) {
    put_list("C:\\Listes\\favoris.dfm", 2);
    put_list("C:\\Listes\\jingles.dfm", 3);
    fill_store();
    set("Load_combo1", "C:\\Listes\\favoris.dfm");
    set("Load_combo2", "C:\\Listes\\jingles.dfm");
    station.start("");
    EXPECT_EQ(window.favourites.items.get().size(), 2U);
    EXPECT_EQ(window.jingles.items.get().size(), 3U);
}

TEST_F(StartupTest, NamesTheProgramInItsMenus) {
    start();
    EXPECT_EQ(window.a_assosiation.caption.get(), "Associer des fichiers audio , vidéo ou liste a : Sonarelle");
    EXPECT_EQ(window.Quitter_.caption.get(), "Quitter Sonarelle (Q)");
}

TEST_F(StartupTest, PaintsTheWindows) {
    start();
    EXPECT_EQ(window.chain_status.fore_colour.get(), 16777215);
    EXPECT_EQ(station.list_window.rows.back_colour.get(), 9408399);
}

} // namespace sonarelle
