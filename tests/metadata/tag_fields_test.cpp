#include <gtest/gtest.h>

#include "metadata/TypeTagV1.h"
#include "music_disk.h"
#include "platform/failure.h"

namespace sonarelle {
namespace {

using namespace std::string_literals;

struct TagFieldsTest : testing::Test {
    MusicDisk on_disk;
    TypeTagV1 tag{on_disk.disk};
};

TEST_F(TagFieldsTest, NewTagIsEmptyWithoutGenre) {
    EXPECT_FALSE(tag.Valide());
    EXPECT_EQ(tag.Titre(), "");
    EXPECT_EQ(tag.Piste(), 0);
    EXPECT_EQ(tag.Genre(), 255);
}

TEST_F(TagFieldsTest, TitleIsCutTo30Characters) {
    tag.set_Titre(std::string(31, 'T'));
    EXPECT_EQ(tag.Titre(), std::string(30, 'T'));
}

TEST_F(TagFieldsTest, ArtistIsCutTo30Characters) {
    tag.set_Artiste(std::string(31, 'A'));
    EXPECT_EQ(tag.Artiste(), std::string(30, 'A'));
}

TEST_F(TagFieldsTest, AlbumIsCutTo30Characters) {
    tag.set_Album(std::string(31, 'A'));
    EXPECT_EQ(tag.Album(), std::string(30, 'A'));
}

TEST_F(TagFieldsTest, YearIsCutTo4Characters) {
    tag.set_Annee("20011");
    EXPECT_EQ(tag.Annee(), "2001");
}

TEST_F(TagFieldsTest, YearNeedNotBeANumber) {
    tag.set_Annee("an I");
    EXPECT_EQ(tag.Annee(), "an I");
}

TEST_F(TagFieldsTest, CommentIsCutTo28Characters) {
    tag.set_Commentaire(std::string(29, 'c'));
    EXPECT_EQ(tag.Commentaire(), std::string(28, 'c'));
}

TEST_F(TagFieldsTest, TitleIsFilteredBeforeItIsCut) {
    tag.set_Titre("é" + std::string(30, 'T'));
    EXPECT_EQ(tag.Titre(), std::string(30, 'T'));
}

TEST_F(TagFieldsTest, Genre147IsKept) {
    tag.set_Genre(147);
    EXPECT_EQ(tag.Genre(), 147);
}

TEST_F(TagFieldsTest, Genre148BecomesNone) {
    tag.set_Genre(148);
    EXPECT_EQ(tag.Genre(), 255);
}

TEST_F(TagFieldsTest, Genre200BecomesNone) {
    tag.set_Genre(200);
    EXPECT_EQ(tag.Genre(), 255);
}

TEST_F(TagFieldsTest, NegativeGenreBecomesNone) {
    tag.set_Genre(-1);
    EXPECT_EQ(tag.Genre(), 255);
}

TEST_F(TagFieldsTest, TrackIsStoredUnchecked) {
    tag.set_Piste(-300);
    EXPECT_EQ(tag.Piste(), -300);
}

TEST(TagFilter, PlainTextStays) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte(" Rock & Roll ~"), " Rock & Roll ~");
}

TEST(TagFilter, AccentedLettersGo) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("Été"), "t");
}

TEST(TagFilter, TextOfAccentedLettersAloneIsEmpty) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("éàü"), "");
}

TEST(TagFilter, LineBreakStays) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\r\nb"), "a\r\nb");
}

TEST(TagFilter, LineBreakAtTheEndStays) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\r\n"), "a\r\n");
}

TEST(TagFilter, LoneCarriageReturnGoes) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\rb\r"), "ab");
}

TEST(TagFilter, LoneLineFeedGoes) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\nb\n"), "ab");
}

TEST(TagFilter, CarriageReturnPartedFromItsLineFeedGoes) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("\ré\n"), "");
}

TEST(TagFilter, SecondCarriageReturnKeepsItsLineFeed) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("\r\r\n"), "\r\n");
}

TEST(TagFilter, TextBehindTheLastZeroIsWhatCounts) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\0b\0c"s), "c");
}

TEST(TagFilter, ZeroAtTheEndLeavesNothing) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("abc\0"s), "");
}

TEST(TagFilter, Character127Goes) {
    EXPECT_EQ(TypeTagV1::FiltrerTexte("a\x7F"), "a");
}

TEST(FieldCut, FieldEndsBeforeTheFirstZero) {
    EXPECT_EQ(TypeTagV1::ExtraireChamp("abc\0def"s, 2, 6), "bc");
}

TEST(FieldCut, FieldEndsBeforeTheTextThatIsNamed) {
    EXPECT_EQ(TypeTagV1::ExtraireChamp("artiste - titre", 1, 15, " - "), "artiste");
}

TEST(FieldCut, FieldWithoutAnEndIsTakenWhole) {
    EXPECT_EQ(TypeTagV1::ExtraireChamp("abcdef", 2, 3), "bcd");
}

TEST(FieldCut, AccentedLettersCountOnce) {
    EXPECT_EQ(TypeTagV1::ExtraireChamp("éàü", 2, 1), "à");
}

TEST(FieldCut, FieldBehindTheTextIsEmpty) {
    EXPECT_EQ(TypeTagV1::ExtraireChamp("abc", 5, 3), "");
}

TEST(FieldCut, StartBelow1IsAFault) {
    EXPECT_THROW((void)TypeTagV1::ExtraireChamp("abc", 0, 3), Failure);
}

TEST(FieldCut, NegativeLengthIsAFault) {
    EXPECT_THROW((void)TypeTagV1::ExtraireChamp("abc", 1, -1), Failure);
}

TEST(FieldFill, ShortTextIsFilledWithZeros) {
    EXPECT_EQ(TypeTagV1::CompleterChamp("ab", 4), "ab\0\0"s);
}

TEST(FieldFill, LongTextIsCut) {
    EXPECT_EQ(TypeTagV1::CompleterChamp("abcde", 4), "abcd");
}

TEST(FieldFill, AccentedLettersCountOnce) {
    EXPECT_EQ(TypeTagV1::CompleterChamp("éé", 3), "éé\0"s);
}

TEST(FieldFill, NegativeLengthIsAFault) {
    EXPECT_THROW((void)TypeTagV1::CompleterChamp("abc", -1), Failure);
}

} // namespace
} // namespace sonarelle
