#include "metadata/loadtags.h"

#include <gtest/gtest.h>

#include "music_disk.h"
#include "platform/failure.h"
#include "tag_bytes.h"

namespace sonarelle {
namespace {

const TagBytes full_tag{.title = "\xC9t\xE9",
                        .artist = "Artiste",
                        .album = "Album",
                        .year = "1998",
                        .comment = "Commentaire",
                        .track = 7,
                        .genre = 17};

struct TagWindow : Window {
    TagWindow()
        : Window{"ajout_fichier"} {}

    TextBox txtv1Titre{*this, "txtv1Titre", "Nom du fichier"};
    TextBox txtv1Artiste{*this, "txtv1Artiste", "--"};
    TextBox txtv1Album{*this, "txtv1Album", "--"};
    TextBox txtv1Annee{*this, "txtv1Annee", "2001"};
    TextBox txtv1Piste{*this, "txtv1Piste", "9"};
    TextBox txtv1Commentaire{*this, "txtv1Commentaire", "--"};
    ComboBox genre{*this, "Combo2", "Autre"};
};

struct LoadTags : testing::Test {
    void load(std::string_view bytes) {
        on_disk.disk.put_file(song, bytes);
        load_song();
    }
    void load(const TagBytes& tag) { load(audio_of(300) + tag.bytes()); }
    void load_song() {
        loadtags(on_disk.disk, song,
                 {window.txtv1Titre, window.txtv1Artiste, window.txtv1Album, window.txtv1Annee, window.txtv1Piste,
                  window.txtv1Commentaire, window.genre});
    }
    void expect_empty_fields() const {
        EXPECT_EQ(window.txtv1Titre.text(), "");
        EXPECT_EQ(window.txtv1Artiste.text(), "");
        EXPECT_EQ(window.txtv1Album.text(), "");
        EXPECT_EQ(window.txtv1Annee.text(), "");
        EXPECT_EQ(window.txtv1Piste.text(), "");
        EXPECT_EQ(window.txtv1Commentaire.text(), "");
        EXPECT_EQ(window.genre.text(), "");
    }

    MusicDisk on_disk;
    TagWindow window;
};

TEST_F(LoadTags, EveryFieldIsShown) {
    load(full_tag);
    EXPECT_EQ(window.txtv1Artiste.text(), "Artiste");
    EXPECT_EQ(window.txtv1Album.text(), "Album");
    EXPECT_EQ(window.txtv1Annee.text(), "1998");
    EXPECT_EQ(window.txtv1Piste.text(), "7");
    EXPECT_EQ(window.txtv1Commentaire.text(), "Commentaire");
    EXPECT_EQ(window.genre.text(), "Rock");
}

TEST_F(LoadTags, AccentsAreShown) {
    load(full_tag);
    EXPECT_EQ(window.txtv1Titre.text(), "Été");
}

TEST_F(LoadTags, Track0ShowsNothing) {
    load(TagBytes{.track = 0});
    EXPECT_EQ(window.txtv1Piste.text(), "");
}

TEST_F(LoadTags, Genre147ShowsNothing) {
    load(TagBytes{.genre = 147});
    EXPECT_EQ(window.genre.text(), "");
}

TEST_F(LoadTags, FileWithoutATagEmptiesTheFields) {
    load(audio_of(300));
    expect_empty_fields();
}

TEST_F(LoadTags, MissingFileEmptiesTheFields) {
    load_song();
    expect_empty_fields();
}

TEST_F(LoadTags, FaultInOneFieldLeavesTheOthersToBeFilled) {
    window.txtv1Titre.on_change = [] { throw Failure{FailureNumber::wrong_call}; };
    load(full_tag);
    EXPECT_EQ(window.txtv1Commentaire.text(), "Commentaire");
}

} // namespace
} // namespace sonarelle
