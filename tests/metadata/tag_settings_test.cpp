#include "metadata/tag_settings.h"

#include <gtest/gtest.h>

#include "music_disk.h"
#include "platform/failure.h"

namespace sonarelle {
namespace {

constexpr std::string_view marker = "C:\\Radio\\antenne_fm_tag.ini";

struct TagSettingsTest : testing::Test {
    TagSettingsTest() {
        on_disk.disk.put_folder("C:\\Radio");
        on_disk.disk.put_folder("C:\\Musique");
    }
    ~TagSettingsTest() override { EXPECT_TRUE(on_disk.dialogs.complaints().empty()); }

    void press_save() {
        on_disk.dialogs.expect_box("Sauvegarde Ok !", Answer::ok);
        settings.save();
    }

    MusicDisk on_disk;
    Window window{"ajout_fichier"};
    TextBox txtmasque{window, "txtmasque", std::string{TagSettings::default_mask}};
    Button save_button{window, "sauvegarder", std::string{TagSettings::save_caption}};
    TagSettings settings{on_disk.disk, on_disk.dialogs, "C:\\Radio", txtmasque, save_button};
};

TEST_F(TagSettingsTest, MaskIsSavedAsItIsTyped) {
    txtmasque.set_text("%artiste% - %titre%");
    press_save();
    EXPECT_EQ(on_disk.disk.bytes(marker), "[global]\r\nmasque=%artiste% - %titre%\r\n");
}

TEST_F(TagSettingsTest, MaskIsAtFirstTheRowOfAllFields) {
    press_save();
    EXPECT_EQ(on_disk.disk.bytes(marker),
              "[global]\r\nmasque=%titre% %artiste% %album% %annee% %piste% %commentaire% %genre%\r\n");
}

TEST_F(TagSettingsTest, SaveIsConfirmed) {
    press_save();
    EXPECT_EQ(on_disk.dialogs.last().text, "Sauvegarde Ok !");
    EXPECT_EQ(on_disk.dialogs.last().icon, Icon::information);
}

TEST_F(TagSettingsTest, SaveSwitchesTheButtonOff) {
    press_save();
    EXPECT_FALSE(save_button.enabled);
}

TEST_F(TagSettingsTest, RefusedWriteIsShown) {
    on_disk.disk.set_capacity(0);
    on_disk.dialogs.expect_box("erreur lors de l'écriture", Answer::ok);
    press_save();
    EXPECT_EQ(on_disk.dialogs.asked().front().icon, Icon::stop);
}

TEST_F(TagSettingsTest, FileGoesIntoTheProgramsFolderWhereverTheCurrentOneIs) {
    on_disk.disk.ChDir("C:\\Musique");
    press_save();
    EXPECT_TRUE(on_disk.disk.exists(marker));
}

TEST_F(TagSettingsTest, ButtonIsOnWithoutTheMark) {
    on_disk.disk.ChDir("C:\\Radio");
    settings.window_loads();
    EXPECT_TRUE(save_button.enabled);
}

TEST_F(TagSettingsTest, MarkInTheCurrentFolderSwitchesTheButtonOff) {
    on_disk.disk.put_file("C:\\Radio\\Antenne_FM_Tag.INI");
    on_disk.disk.ChDir("C:\\Radio");
    settings.window_loads();
    EXPECT_FALSE(save_button.enabled);
}

TEST_F(TagSettingsTest, ButtonStaysOffForALaterWindow) {
    press_save();
    on_disk.disk.ChDir("C:\\Radio");
    Button later_button{window, "sauvegarder"};
    TagSettings{on_disk.disk, on_disk.dialogs, "C:\\Radio", txtmasque, later_button}.window_loads();
    EXPECT_FALSE(later_button.enabled);
}

TEST_F(TagSettingsTest, MarkInAnotherFolderLeavesTheButtonOn) {
    on_disk.disk.put_file(marker);
    on_disk.disk.ChDir("C:\\Musique");
    settings.window_loads();
    EXPECT_TRUE(save_button.enabled);
}

TEST_F(TagSettingsTest, WriteIsReported) {
    EXPECT_EQ(ecrire_ini(on_disk.disk, on_disk.dialogs, marker, "global", "masque", "%titre%"),
              "Ok - Ecriture de la masque dans la global du fichier : \r\n\r\nC:\\Radio\\antenne_fm_tag.ini\r\n\r\n"
              "Valeur de la clé = %titre%");
}

TEST_F(TagSettingsTest, RefusedWriteIsReportedByNoText) {
    on_disk.disk.set_capacity(0);
    on_disk.dialogs.expect_box("erreur lors de l'écriture", Answer::ok);
    EXPECT_EQ(ecrire_ini(on_disk.disk, on_disk.dialogs, marker, "global", "masque", "%titre%"), "");
}

} // namespace
} // namespace sonarelle
