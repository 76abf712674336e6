#include <gtest/gtest.h>

#include "metadata/TagType.h"
#include "music_disk.h"
#include "platform/failure.h"
#include "tag_bytes.h"

namespace sonarelle {
namespace {

const TagBytes old_tag{.title = "Ancien", .track = 7, .genre = 12};
const TagBytes new_tag{.title = "Titre",
                       .artist = "Artiste",
                       .album = "Album",
                       .year = "1998",
                       .comment = "Commentaire",
                       .track = 3,
                       .genre = 17};

TypeTagV1 new_tag_on(Disk& disk) {
    TypeTagV1 tag{disk};
    tag.set_Valide(true);
    tag.set_Titre(new_tag.title);
    tag.set_Artiste(new_tag.artist);
    tag.set_Album(new_tag.album);
    tag.set_Annee(new_tag.year);
    tag.set_Commentaire(new_tag.comment);
    tag.set_Piste(new_tag.track);
    tag.set_Genre(new_tag.genre);
    return tag;
}

/// A song, and the tag that goes on it.
struct Song {
    explicit Song(std::string_view bytes)
        : on_disk{bytes} {}

    [[nodiscard]] bool write() { return tag.EcrireTag(song); }
    [[nodiscard]] std::string bytes() const { return on_disk.song_bytes(); }

    MusicDisk on_disk;
    TypeTagV1 tag = new_tag_on(on_disk.disk);
};

TEST(TagWriting, TagGoesBehindTheAudio) {
    Song on{audio_of(1000)};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(1000) + new_tag.bytes());
}

TEST(TagWriting, OldTagIsReplaced) {
    Song on{audio_of(1000) + old_tag.bytes()};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(1000) + new_tag.bytes());
}

TEST(TagWriting, OldTagMarkedInSmallLettersIsReplaced) {
    TagBytes small = old_tag;
    small.mark = "tag";
    Song on{audio_of(1000) + small.bytes()};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(1000) + new_tag.bytes());
}

TEST(TagWriting, FileOfAnOldTagAloneHoldsTheNewOneAlone) {
    Song on{old_tag.bytes()};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), new_tag.bytes());
}

TEST(TagWriting, AudioOfManyBlocksIsKeptToTheByte) {
    std::string audio = audio_of(0);
    for (std::size_t i = 0; i < 2'500'000; ++i)
        audio += static_cast<char>(static_cast<unsigned char>(i * 31 % 251));
    Song on{audio};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio + new_tag.bytes());
}

TEST(TagWriting, LongTitleIsCut) {
    Song on{audio_of(200)};
    on.tag.set_Titre(std::string(31, 'T'));
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes().substr(203, 60), std::string(30, 'T') + TagBytes{.title = "Artiste"}.bytes().substr(3, 30));
}

TEST(TagWriting, Genre147CanBeWritten) {
    Song on{audio_of(200)};
    on.tag.set_Genre(147);
    EXPECT_TRUE(on.write());
    EXPECT_EQ(static_cast<unsigned char>(on.bytes().back()), 147);
}

TEST(TagWriting, RawTextOfAReadTagIsWrittenWithItsAccents) {
    const std::string bytes = audio_of(200) + TagBytes{.title = "\xC9t\xE9 \x81\x80"}.bytes();
    Song on{bytes};
    (void)on.tag.LireTag(song);
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), bytes);
}

TEST(TagWriting, WrittenTagReadsBack) {
    Song on{audio_of(1000)};
    EXPECT_TRUE(on.write());
    TypeTagV1 reader{on.on_disk.disk};
    const TypeTagV1 read = reader.LireTag(song);
    EXPECT_TRUE(read.Valide());
    EXPECT_EQ(read.Titre(), "Titre");
    EXPECT_EQ(read.Artiste(), "Artiste");
    EXPECT_EQ(read.Album(), "Album");
    EXPECT_EQ(read.Annee(), "1998");
    EXPECT_EQ(read.Commentaire(), "Commentaire");
    EXPECT_EQ(read.Piste(), 3);
    EXPECT_EQ(read.Genre(), 17);
}

TEST(TagWriting, EveryGenreButTheLastReadsBack) {
    Song on{audio_of(200)};
    for (int code = 0; code < 147; ++code) {
        on.tag.set_Genre(code);
        ASSERT_TRUE(on.write());
        EXPECT_EQ(TypeTagV1{on.on_disk.disk}.LireTag(song).Genre(), code);
    }
}

TEST(TagWriting, Genre147ReadsBackAsNone) {
    Song on{audio_of(200)};
    on.tag.set_Genre(147);
    ASSERT_TRUE(on.write());
    EXPECT_EQ(TypeTagV1{on.on_disk.disk}.LireTag(song).Genre(), 255);
}

TEST(TagWriting, GenreNamedPunkReadsBackAsSoul) {
    Song on{audio_of(200)};
    on.tag.set_Genre(numero_du_genre("Punk"));
    ASSERT_TRUE(on.write());
    EXPECT_EQ(nom_du_genre(TypeTagV1{on.on_disk.disk}.LireTag(song).Genre()), "Soul");
}

TEST(TagWriting, TrackBelow0IsRefusedBeforeTheFileIsTouched) {
    Song on{audio_of(200)};
    on.tag.set_Piste(-1);
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(200));
}

TEST(TagWriting, TrackAbove255IsRefusedBeforeTheFileIsTouched) {
    Song on{audio_of(200)};
    on.tag.set_Piste(256);
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(200));
}

TEST(TagWriting, FileOf127BytesIsRefusedUntouched) {
    Song on{audio_of(127)};
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(127));
}

TEST(TagWriting, FileOf128BytesWithoutATagIsAudio) {
    Song on{audio_of(128)};
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(128) + new_tag.bytes());
}

TEST(TagWriting, MissingFileIsRefusedAndNotMade) {
    MusicDisk on_disk;
    EXPECT_FALSE(new_tag_on(on_disk.disk).EcrireTag(song));
    EXPECT_FALSE(on_disk.disk.exists(song));
}

TEST(TagWriting, FolderIsRefused) {
    MusicDisk on_disk{audio_of(200)};
    EXPECT_FALSE(new_tag_on(on_disk.disk).EcrireTag("C:\\Musique\\"));
}

TEST(TagWriting, FileForReadingOnlyIsRefusedUntouched) {
    Song on{audio_of(200)};
    on.on_disk.disk.set_read_only(song);
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(200));
}

TEST(TagWriting, TagCanBeWrittenOnceTheFaultIsOver) {
    Song on{audio_of(200)};
    on.on_disk.disk.set_capacity(300);
    EXPECT_FALSE(on.write());
    on.on_disk.disk.set_capacity(1000);
    EXPECT_TRUE(on.write());
}

TEST(TagWriting, BadPlaceInTheAudioLeavesTheFileAsItWas) {
    Song on{audio_of(3'000'000)};
    on.on_disk.disk.fail_read_at(song, 2'000'000);
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(3'000'000));
}

// Room for the old file and so many bytes of the new one.
class FullDisk : public testing::TestWithParam<std::int64_t> {};

TEST_P(FullDisk, LeavesMusicAndOldTagAsTheyWere) {
    const std::string before = audio_of(2'100'000) + old_tag.bytes();
    Song on{before};
    on.on_disk.disk.set_capacity(on.on_disk.disk.used() + GetParam());
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.bytes(), before);
}

TEST_P(FullDisk, KeepsNothingOfTheNewFile) {
    Song on{audio_of(2'100'000) + old_tag.bytes()};
    const std::int64_t used = on.on_disk.disk.used();
    on.on_disk.disk.set_capacity(used + GetParam());
    EXPECT_FALSE(on.write());
    EXPECT_EQ(on.on_disk.disk.used(), used);
}

INSTANTIATE_TEST_SUITE_P(TagWriting, FullDisk, testing::Values(0, 1, 1'500'000, 2'099'999, 2'100'000, 2'100'127));

TEST(TagRemoval, FileIs128BytesShorter) {
    Song on{audio_of(1000) + old_tag.bytes()};
    on.tag.set_Valide(false);
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(1000));
}

TEST(TagRemoval, FileWithoutATagStaysAsItIs) {
    Song on{audio_of(1000)};
    on.tag.set_Valide(false);
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), audio_of(1000));
}

TEST(TagRemoval, FileOfATagAloneIsEmptyAfterwards) {
    Song on{old_tag.bytes()};
    on.tag.set_Valide(false);
    EXPECT_TRUE(on.write());
    EXPECT_EQ(on.bytes(), "");
}

TEST(TagRemoval, TrackDoesNotMatter) {
    Song on{audio_of(1000) + old_tag.bytes()};
    on.tag.set_Valide(false);
    on.tag.set_Piste(300);
    EXPECT_TRUE(on.write());
}

TEST(TagFacade, DoneIsTrue) {
    MusicDisk on_disk{audio_of(1000)};
    TagType tag{on_disk.disk};
    tag.V1 = new_tag_on(on_disk.disk);
    EXPECT_EQ(ecrire_tag(song, tag).word(), -1);
    EXPECT_EQ(on_disk.song_bytes(), audio_of(1000) + new_tag.bytes());
}

TEST(TagFacade, RefusedIsFalse) {
    MusicDisk on_disk;
    EXPECT_EQ(ecrire_tag(song, TagType{on_disk.disk}).word(), 0);
}

TEST(TagFacade, NewTagOfEachKindIsEmpty) {
    MusicDisk on_disk;
    const TagType tag{on_disk.disk};
    EXPECT_FALSE(tag.V1.Valide());
    EXPECT_FALSE(tag.Mpeg.Valide());
}

} // namespace
} // namespace sonarelle
