#include <gtest/gtest.h>

#include "metadata/TypeTagV1.h"
#include "music_disk.h"
#include "tag_bytes.h"

namespace sonarelle {
namespace {

const TagBytes full_tag{.title = "Titre",
                        .artist = "Artiste",
                        .album = "Album",
                        .year = "1998",
                        .comment = "Commentaire",
                        .track = 7,
                        .genre = 17};

/// What reading a song leaves: the raw object, and the result.
struct Read {
    explicit Read(std::string_view bytes)
        : on_disk{bytes},
          filtered{raw.LireTag(song)} {}
    explicit Read(const TagBytes& tag)
        : Read{audio_of(300) + tag.bytes()} {}

    MusicDisk on_disk;
    TypeTagV1 raw{on_disk.disk};
    TypeTagV1 filtered;
};

void expect_empty(const TypeTagV1& tag) {
    EXPECT_FALSE(tag.Valide());
    EXPECT_EQ(tag.Titre() + tag.Artiste() + tag.Album() + tag.Annee() + tag.Commentaire(), "");
    EXPECT_EQ(tag.Piste(), 0);
    EXPECT_EQ(tag.Genre(), 255);
}

TEST(TagReading, EveryFieldIsFound) {
    const Read read{full_tag};
    EXPECT_TRUE(read.filtered.Valide());
    EXPECT_EQ(read.filtered.Titre(), "Titre");
    EXPECT_EQ(read.filtered.Artiste(), "Artiste");
    EXPECT_EQ(read.filtered.Album(), "Album");
    EXPECT_EQ(read.filtered.Annee(), "1998");
    EXPECT_EQ(read.filtered.Commentaire(), "Commentaire");
    EXPECT_EQ(read.filtered.Piste(), 7);
    EXPECT_EQ(read.filtered.Genre(), 17);
}

TEST(TagReading, RawObjectKeepsTheAccents) {
    EXPECT_EQ(Read{TagBytes{.title = "\xC9t\xE9"}}.raw.Titre(), "Été");
}

TEST(TagReading, ResultLosesTheAccents) {
    EXPECT_EQ(Read{TagBytes{.title = "\xC9t\xE9"}}.filtered.Titre(), "t");
}

TEST(TagReading, RawObjectIsValidToo) {
    EXPECT_TRUE(Read{full_tag}.raw.Valide());
}

TEST(TagReading, MarkInSmallLettersCounts) {
    TagBytes tag = full_tag;
    tag.mark = "tag";
    EXPECT_TRUE(Read{tag}.filtered.Valide());
}

TEST(TagReading, MarkInMixedLettersCounts) {
    TagBytes tag = full_tag;
    tag.mark = "Tag";
    EXPECT_TRUE(Read{tag}.filtered.Valide());
}

TEST(TagReading, AnotherMarkIsNoTag) {
    TagBytes tag = full_tag;
    tag.mark = "TAF";
    const Read read{tag};
    expect_empty(read.raw);
    expect_empty(read.filtered);
}

TEST(TagReading, FileOf127BytesHasNoTag) {
    expect_empty(Read{full_tag.bytes().substr(1)}.raw);
}

TEST(TagReading, FileOfExactlyATagIsRead) {
    EXPECT_EQ(Read{full_tag.bytes()}.filtered.Titre(), "Titre");
}

TEST(TagReading, EmptyFileHasNoTag) {
    expect_empty(Read{std::string_view{}}.filtered);
}

TEST(TagReading, MissingFileHasNoTag) {
    MusicDisk on_disk;
    TypeTagV1 tag{on_disk.disk};
    expect_empty(tag.LireTag(song));
}

TEST(TagReading, DiskThatRefusesGivesNoTag) {
    MusicDisk on_disk{audio_of(300) + full_tag.bytes()};
    on_disk.disk.fail_read_at(song, 427);
    TypeTagV1 tag{on_disk.disk};
    expect_empty(tag.LireTag(song));
}

TEST(TagReading, FieldsOfAnEarlierFileAreForgotten) {
    Read read{full_tag};
    read.on_disk.disk.put_file(song, audio_of(300));
    (void)read.raw.LireTag(song);
    expect_empty(read.raw);
}

TEST(TagReading, FieldOf30CharactersWithoutAZeroIsTakenWhole) {
    const TagBytes tag{.title = std::string(30, 'T'), .artist = "Artiste"};
    EXPECT_EQ(Read{tag}.raw.Titre(), std::string(30, 'T'));
}

TEST(TagReading, WhatFollowsTheFirstZeroIsLeftOut) {
    const TagBytes tag{.title = std::string{"A\0B", 3}};
    EXPECT_EQ(Read{tag}.raw.Titre(), "A");
}

TEST(TagReading, SpacesAreKept) {
    EXPECT_EQ(Read{TagBytes{.title = "A   "}}.raw.Titre(), "A   ");
}

TEST(TagReading, TrackByteCountsBehindALongComment) {
    const TagBytes old_style{.comment = std::string(28, 'c'), .before_track = 'd', .track = 'e'};
    EXPECT_EQ(Read{old_style}.raw.Piste(), 'e');
}

TEST(TagReading, CommentEndsAfter28Characters) {
    const TagBytes old_style{.comment = std::string(28, 'c'), .before_track = 'd'};
    EXPECT_EQ(Read{old_style}.raw.Commentaire(), std::string(28, 'c'));
}

TEST(TagReading, TrackGoesTo255) {
    EXPECT_EQ(Read{TagBytes{.track = 255}}.raw.Piste(), 255);
}

TEST(TagReading, Genre146IsTheLastOneRead) {
    EXPECT_EQ(Read{TagBytes{.genre = 146}}.filtered.Genre(), 146);
}

TEST(TagReading, Genre147ReadsAsNone) {
    const Read read{TagBytes{.genre = 147}};
    EXPECT_EQ(read.raw.Genre(), 255);
    EXPECT_EQ(read.filtered.Genre(), 255);
}

TEST(TagReading, Genre200ReadsAsNone) {
    EXPECT_EQ(Read{TagBytes{.genre = 200}}.raw.Genre(), 255);
}

TEST(TagReading, Genre255ReadsAsNone) {
    EXPECT_EQ(Read{TagBytes{.genre = 255}}.filtered.Genre(), 255);
}

} // namespace
} // namespace sonarelle
