// The entries that start outside programs or switch a small behaviour.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class DeskCommandsTest : public DeskFixture {
protected:
    DeskCommandsTest() { start(); }

    [[nodiscard]] std::vector<std::string> programs() const {
        std::vector<std::string> names;
        for (const SimulatedShell::Start& start : machine.shell.started)
            names.push_back(start.program);
        return names;
    }
};

using Programs = DeskCommandsTest;
using Help = DeskCommandsTest;
using VisualEffect = DeskCommandsTest;
using Cursors = DeskCommandsTest;

} // namespace

TEST_F(Programs, OfTheCdIsStarted) {
    window.A_lecteur_CD_Win.click();
    EXPECT_THAT(programs(), ElementsAre("C:\\WINDOWS\\CDPLAYER.EXE"));
}

TEST_F(Programs, OfTheCdThatIsMissingIsReplacedByTheMediaPlayer) {
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("CDPLAYER.EXE (sous windows 95/98) est introuvable\n"
                               "Windows Media Player sous windows XP va etre testé",
                               Answer::ok);
    machine.dialogs.on_answered = [this](const Question&) { machine.shell.has_programs = true; };
    window.A_lecteur_CD_Win.click();
    EXPECT_THAT(programs(), ElementsAre("C:\\Program Files\\Windows Media Player\\wmplayer.exe"));
}

TEST_F(Programs, OfTheCdThatAreAllMissingAreGivenUp) {
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("CDPLAYER.EXE", Answer::ok);
    window.A_lecteur_CD_Win.click();
    EXPECT_THAT(programs(), IsEmpty());
}

TEST_F(Programs, OfTheVolumeIsStartedOrReportedMissing) {
    window.a_vol.click();
    EXPECT_THAT(programs(), ElementsAre("C:\\WINDOWS\\system32\\sndvol32.exe"));
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("sndvol32.exe est introuvable", Answer::ok);
    window.a_vol.click();
}

TEST_F(Help, IsTheGuideAtTheDesk) {
    window.aideprog.click();
    EXPECT_THAT(machine.shell.guide_shown_for, ElementsAre("Antenne_FM"));
    EXPECT_THAT(programs(), IsEmpty());
}

TEST_F(Help, IsTheGuideAtTheWindowThatAsks) {
    std::vector<std::string> askers;
    for (Window* asker : station.windows()) {
        asker->ask_for_help();
        askers.push_back(asker->name());
    }
    EXPECT_EQ(machine.shell.guide_shown_for, askers);
}

TEST_F(Help, WithoutAGuideIsReportedMissing) {
    machine.shell.has_guide = false;
    machine.dialogs.expect_box("L'aide est introuvable", Answer::ok);
    window.aideprog.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::information);
}

TEST_F(Help, IsTheOperatorsOwnProgramWhereHeHasSetOne) {
    set("Programme_aide", "C:\\Sonarelle\\Aide_Sonarine.exe");
    station.settings_load.Chargement_parametres();
    window.aideprog.click();
    EXPECT_THAT(programs(), ElementsAre("C:\\Sonarelle\\Aide_Sonarine.exe"));
    EXPECT_THAT(machine.shell.guide_shown_for, IsEmpty());
}

TEST_F(Help, ByAProgramThatIsMissingIsReportedMissing) {
    station.settings.programme_aide = "C:\\Sonarelle\\Aide_Sonarine.exe";
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("L'aide est introuvable", Answer::ok);
    window.aideprog.click();
}

TEST_F(DeskCommandsTest, OpenAndCloseTheCdsDoor) {
    window.A_Ouvrir_CD.click();
    EXPECT_TRUE(machine.shell.cd_door_open);
    window.A_fermer_CD.click();
    EXPECT_FALSE(machine.shell.cd_door_open);
}

TEST_F(DeskCommandsTest, WithoutACdDriveDoNothing) {
    machine.shell.has_cd_drive = false;
    window.A_Ouvrir_CD.click();
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(DeskCommandsTest, AllowDraggingOrNot) {
    EXPECT_EQ(station.list.glisser_autorise.word(), -1);
    window.A_glisser_déplacer.click();
    EXPECT_EQ(station.list.glisser_autorise.word(), 0);
    EXPECT_EQ(window.A_glisser_déplacer.caption.get(), "Ne pas autoriser sur la liste, le glisser / déplacer");
    window.A_glisser_déplacer.click();
    EXPECT_EQ(station.list.glisser_autorise.word(), -1);
    EXPECT_EQ(window.A_glisser_déplacer.caption.get(), "Autoriser sur la liste, le glisser / déplacer");
}

TEST_F(DeskCommandsTest, ForgetTheSearchWords) {
    machine.disk.put_file("C:\\Sonarelle\\recherche.dit", "mots");
    machine.dialogs.expect_box("Ok liste recherche vide", Answer::ok);
    window.Supprimer_recherche.click();
    EXPECT_EQ(machine.disk.Dir("C:\\Sonarelle\\recherche.dit"), "");
}

TEST_F(DeskCommandsTest, WithoutSearchWordsSayNothing) {
    window.Supprimer_recherche.click();
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(VisualEffect, IsShownAndStored) {
    window.A_visuel_active.click();
    EXPECT_TRUE(window.sound_display.visible);
    EXPECT_TRUE(window.sound_display.takes_sound);
    EXPECT_TRUE(window.A_visuel_active.checked);
    EXPECT_FALSE(window.A_visuel_desactive.checked);
    EXPECT_EQ(stored("Effet visuel"), "Oui");
    EXPECT_EQ(station.settings.effet_visuel, "Oui");
}

TEST_F(VisualEffect, IsHiddenAndTakesNoMoreSound) {
    window.A_visuel_active.click();
    window.A_visuel_desactive.click();
    EXPECT_FALSE(window.sound_display.visible);
    EXPECT_FALSE(window.sound_display.takes_sound);
    EXPECT_TRUE(window.A_visuel_desactive.checked);
    EXPECT_EQ(stored("Effet visuel"), "Non");
}

TEST_F(VisualEffect, IsMarkedAsTheOscilloscopeThatItIsFromTheStart) {
    EXPECT_TRUE(window.A_affichage1.checked);
    EXPECT_FALSE(window.A_affichage2.checked);
}

TEST_F(VisualEffect, IsAnOscilloscopeOrASpectrum) {
    window.A_affichage2.click();
    EXPECT_EQ(window.sound_display.Affichage.get(), SoundPicture::spectrum);
    EXPECT_TRUE(window.A_affichage2.checked);
    EXPECT_FALSE(window.A_affichage1.checked);
    window.A_affichage1.click();
    EXPECT_EQ(window.sound_display.Affichage.get(), SoundPicture::oscilloscope);
    EXPECT_FALSE(window.A_affichage2.checked);
}

TEST_F(Cursors, AreShownInThePlaceOfTheirLabels) {
    window.aa_montrer_curseur.click();
    for (const DeckControls& deck : window.decks)
        EXPECT_TRUE(deck.slider.visible);
    for (const Label& label : window.slider_stand_ins)
        EXPECT_FALSE(label.visible);
    EXPECT_TRUE(window.aa_montrer_curseur.checked);
    EXPECT_FALSE(window.aa_cacher_curseur.checked);
    EXPECT_EQ(stored("Montrer curseur"), "Oui");
}

TEST_F(Cursors, AreHidden) {
    window.aa_montrer_curseur.click();
    window.aa_cacher_curseur.click();
    EXPECT_FALSE(window.deck(3).slider.visible);
    EXPECT_TRUE(window.slider_stand_ins[2].visible);
    EXPECT_EQ(stored("Montrer curseur"), "Non");
}

TEST_F(Cursors, WhoseChoiceCantBeStoredAreShownAllTheSame) {
    machine.settings.refuse_writes();
    machine.dialogs.expect_box(Answer::ok);
    window.aa_montrer_curseur.click();
    EXPECT_EQ(machine.dialogs.last().icon, Icon::stop);
    EXPECT_TRUE(window.deck(1).slider.visible);
}

} // namespace sonarelle
