// The warning window's information and the about windows.
#include <gmock/gmock.h>

#include "playout/desk_fixture.h"

namespace sonarelle {

namespace {

class AboutWindowsTest : public DeskFixture {
protected:
    AboutWindowsTest() { start(); }

    [[nodiscard]] std::string opened() const {
        return machine.shell.started.empty() ? std::string{} : machine.shell.started.back().file;
    }

    err_form& warning = station.warning_window;
    frmAbout& about = station.about_window;
    vbplus& update = station.update_window;
};

using Warnings = AboutWindowsTest;

} // namespace

TEST_F(Warnings, TellHowManyFilesWerePlayed) {
    station.chain.nb_fichiers_ecoutes = 41;
    warning.info.on_click();
    EXPECT_EQ(warning.caption.get(), "Sonarelle");
    EXPECT_EQ(warning.lines.caption.get(),
              "Info \rNombre de fichiers ayant été lus\r\n\r\n Pour cette séssion\r\n\r\nNb : 41");
    EXPECT_TRUE(warning.visible);
}

TEST_F(Warnings, HaveTheirOwnCaptionAgainWithTheNextOne) {
    warning.info.click();
    station.notices.warn("Recherche de fichier");
    EXPECT_EQ(warning.caption.get(), "ATTENTION ERREUR");
}

TEST_F(Warnings, AreClosedByTheirButtonByEscapeAndByTheWindow) {
    warning.show();
    warning.ok.click();
    EXPECT_FALSE(warning.visible);
    warning.show();
    warning.key_press(27);
    EXPECT_FALSE(warning.visible);
    warning.show();
    warning.ask_to_close();
    EXPECT_FALSE(warning.visible);
}

TEST_F(AboutWindowsTest, TellTheVersion) {
    window.show_about.click();
    EXPECT_TRUE(about.visible);
    EXPECT_EQ(about.caption.get(), "À propos de Sonarelle");
    EXPECT_EQ(about.lblVersion.caption.get(), "FREEWARE   Version 6.1.3");
    about.cmdOK.click();
    EXPECT_FALSE(about.visible);
}

TEST_F(AboutWindowsTest, AreClosedByTheirOwnCloseButtonsToo) {
    for (Window* closed :
         {static_cast<Window*>(&about), static_cast<Window*>(&update), static_cast<Window*>(&station.splash)}) {
        closed->show();
        closed->ask_to_close();
        EXPECT_FALSE(closed->visible) << closed->name();
    }
}

TEST_F(AboutWindowsTest, AreClosedByEscape) {
    for (Window* left : {static_cast<Window*>(&about), static_cast<Window*>(&update)}) {
        left->show();
        left->key_press(27);
        EXPECT_FALSE(left->visible) << left->name();
    }
}

TEST_F(AboutWindowsTest, StartTheSystemsInformation) {
    EXPECT_EQ(about.cmdSysInfo.caption.get(), "&Infos système...");
    about.cmdSysInfo.click();
    EXPECT_EQ(machine.shell.started.back().program, "MSINFO32.EXE");
}

TEST_F(AboutWindowsTest, SayThatThereIsNoInformation) {
    machine.shell.has_programs = false;
    machine.dialogs.expect_box("Les informations système ne sont pas disponibles actuellement", Answer::ok);
    about.cmdSysInfo.click();
}

TEST_F(AboutWindowsTest, OpenTheSite) {
    about.site.click();
    EXPECT_EQ(opened(), maker::site);
}

TEST_F(AboutWindowsTest, TellHowToUpdate) {
    window.show_update_info.click();
    EXPECT_TRUE(update.visible);
    EXPECT_EQ(update.caption.get(), "Info mise a jour");
    EXPECT_EQ(update.step1.caption.get(), "1° télecharger la derniere version de Sonarelle.exe");
    EXPECT_EQ(update.folder.caption.get(), "Rechercher le dossier d'installation : C:\\Sonarelle\\");
    EXPECT_EQ(update.step2.caption.get(), "2°Ecraser ou remplacer l'ancienne version exécutable");
    update.close.click();
    EXPECT_FALSE(update.visible);
}

TEST_F(AboutWindowsTest, OpenTheDownloadPageAndTheMail) {
    update.download.click();
    EXPECT_EQ(opened(), maker::download_page);
    update.mail.click();
    EXPECT_EQ(opened(), "mailto:" + std::string{maker::mail});
    update.site.click();
    EXPECT_EQ(opened(), maker::site);
}

TEST_F(AboutWindowsTest, WithoutAProgramForAddressesDoNothing) {
    machine.shell.has_programs = false;
    about.site.click();
    EXPECT_TRUE(machine.dialogs.asked().empty());
}

TEST_F(AboutWindowsTest, HighlightAnAddressUnderThePointer) {
    station.settings.coul_label = 0x404040;
    update.mail.mouse_move();
    EXPECT_EQ(update.mail.fore_colour.get(), 0x404040 + 18000);
    update.mouse_move();
    EXPECT_EQ(update.mail.fore_colour.get(), 0x404040);
}

} // namespace sonarelle
