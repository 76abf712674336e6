#include "playlist/audio_editor.h"

#include <gmock/gmock.h>

#include "support/maintenance_fixture.h"

namespace sonarelle {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AudioEditorTest : public MaintenanceFixture {};

} // namespace

TEST_F(AudioEditorTest, OpensTheSelectedFile) {
    open_rows({"C:\\a.wav", "C:\\b c.wav"});
    rows().select(2);
    station.settings.chemin_editeur_audio = "C:\\Outils\\editeur.exe";
    list().a_modifie_morceau.click();
    EXPECT_THAT(machine.shell.started, ElementsAre(SimulatedShell::Start{"C:\\Outils\\editeur.exe", "C:\\b c.wav"}));
}

TEST_F(AudioEditorTest, SaysThatThereIsNone) {
    open_rows({"C:\\a.wav"});
    for (const char* none : {"X", ""}) {
        station.settings.chemin_editeur_audio = none;
        machine.dialogs.expect_box("Aucun éditeur audio", Answer::ok);
        list().a_modifie_morceau.click();
    }
    EXPECT_THAT(machine.shell.started, IsEmpty());
}

TEST_F(AudioEditorTest, SaysThatTheRowHasNoFile) {
    open_rows({""});
    station.settings.chemin_editeur_audio = "C:\\editeur.exe";
    machine.dialogs.expect_box("Pas de nom de fichier!", Answer::ok);
    list().a_modifie_morceau.click();
}

TEST_F(AudioEditorTest, IsRefusedWhenModificationsAreNotSaved) {
    open_rows({"C:\\a.wav"});
    station.settings.chemin_editeur_audio = "C:\\editeur.exe";
    list().a_Ne_pas_Sauve.click();
    machine.dialogs.expect_box("Traitement impossible avec l'option", Answer::ok);
    list().a_modifie_morceau.click();
    EXPECT_THAT(machine.shell.started, IsEmpty());
}

TEST_F(AudioEditorTest, TellsWhenTheProgramCannotBeStarted) {
    open_rows({"C:\\a.wav"});
    station.settings.chemin_editeur_audio = "C:\\editeur.exe";
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("C:\\editeur.exe", Answer::ok);
    list().a_modifie_morceau.click();
}

} // namespace sonarelle
