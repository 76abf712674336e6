#include "platform/paths.h"

#include <gtest/gtest.h>

namespace sonarelle {

namespace {

TEST(Paths, TheNameStandsBehindTheLastBackslash) {
    EXPECT_EQ(name_of_path("D:\\Musique\\titre.mp3"), "titre.mp3");
    EXPECT_EQ(name_of_path("titre.mp3"), "titre.mp3");
    EXPECT_EQ(name_of_path("D:\\Musique\\"), "");
}

TEST(Paths, TheFolderStandsBeforeTheLastBackslash) {
    EXPECT_EQ(folder_of_path("D:\\Musique\\titre.mp3"), "D:\\Musique");
    EXPECT_EQ(folder_of_path("titre.mp3"), "");
}

TEST(Paths, TheFolderOfARootFileKeepsItsBackslash) {
    EXPECT_EQ(folder_of_path("D:\\titre.mp3"), "D:\\");
}

TEST(Paths, ABackslashEndsAFolderOfMoreThanThreeCharacters) {
    EXPECT_EQ(with_backslash("D:\\Musique"), "D:\\Musique\\");
    EXPECT_EQ(with_backslash("D:\\Musique\\"), "D:\\Musique\\");
    EXPECT_EQ(with_backslash("D:\\"), "D:\\");
    EXPECT_EQ(with_backslash("éàü"), "éàü");
}

TEST(Paths, FolderAndNameHaveOneBackslashBetweenThem) {
    EXPECT_EQ(join_path("D:\\Musique", "a.mp3"), "D:\\Musique\\a.mp3");
    EXPECT_EQ(join_path("D:\\", "a.mp3"), "D:\\a.mp3");
    EXPECT_EQ(join_path("", "a.mp3"), "a.mp3");
}

TEST(Paths, TheExtensionIsTheLastThreeCharactersInLowerCase) {
    EXPECT_EQ(extension_of("D:\\a.MP3"), "mp3");
    EXPECT_EQ(extension_of("D:\\a.mpeg"), "peg");
    EXPECT_EQ(extension_of("é"), "é");
}

TEST(Paths, ANetworkPathBeginsWithABackslash) {
    EXPECT_TRUE(is_network_path("\\\\serveur\\partage\\a.mp3"));
    EXPECT_FALSE(is_network_path("D:\\a.mp3"));
    EXPECT_FALSE(is_network_path(""));
}

TEST(Paths, SixCharactersStandInNoName) {
    for (const char* name : {"a*", "a?", "a<", "a>", "a|", "a\""})
        EXPECT_TRUE(has_forbidden_character(name)) << name;
    EXPECT_FALSE(has_forbidden_character("l'été (à 5%) & co; n°1.mp3"));
}

TEST(Pattern, AStarStandsForAnyRun) {
    EXPECT_TRUE(matches_pattern("titre.mp3", "*.mp3"));
    EXPECT_TRUE(matches_pattern(".mp3", "*.mp3"));
    EXPECT_TRUE(matches_pattern("ababac", "*ab*c"));
    EXPECT_FALSE(matches_pattern("titre.mp3x", "*.mp3"));
    EXPECT_FALSE(matches_pattern("mp3", "*.mp3"));
}

TEST(Pattern, AQuestionMarkStandsForOneCharacter) {
    EXPECT_TRUE(matches_pattern("é1", "??"));
    EXPECT_FALSE(matches_pattern("1", "??"));
}

TEST(Pattern, CaseDoesNotMatter) {
    EXPECT_TRUE(matches_pattern("ÉTÉ.MP3", "été.*"));
}

TEST(Pattern, PointStarAtTheEndFitsANameWithoutAPoint) {
    EXPECT_TRUE(matches_pattern("LISEZMOI", "*.*"));
    EXPECT_TRUE(matches_pattern("LISEZMOI", "lisezmoi.*"));
    EXPECT_FALSE(matches_pattern("LISEZMOI", "lisez.*"));
}

TEST(Pattern, AnEmptyPatternFitsAnEmptyNameAlone) {
    EXPECT_TRUE(matches_pattern("", ""));
    EXPECT_FALSE(matches_pattern("a", ""));
    EXPECT_TRUE(matches_pattern("", "*"));
    EXPECT_FALSE(matches_pattern("", "?"));
}

/// The rule said once more, in the plainest way: what each character of the pattern may stand for.
bool fits_plainly(std::string_view name, std::string_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern[0] == '*')
        return fits_plainly(name, pattern.substr(1)) || (!name.empty() && fits_plainly(name.substr(1), pattern));
    return !name.empty() && (pattern[0] == '?' || pattern[0] == name[0]) &&
           fits_plainly(name.substr(1), pattern.substr(1));
}

std::string text_of_digits(unsigned number, std::string_view letters, int length) {
    std::string text;
    for (; length > 0; --length, number /= static_cast<unsigned>(letters.size()))
        text += letters[number % letters.size()];
    return text;
}

TEST(Pattern, AgreesWithThePlainRuleOnAllShortNames) {
    for (int pattern_length = 0; pattern_length <= 5; ++pattern_length)
        for (unsigned p = 0; p < 1U << (2 * pattern_length); ++p)
            for (int length = 0; length <= 4; ++length)
                for (unsigned n = 0; n < 1U << length; ++n) {
                    const std::string pattern = text_of_digits(p, "ab*?", pattern_length);
                    const std::string name = text_of_digits(n, "ab", length);
                    ASSERT_EQ(matches_pattern(name, pattern), fits_plainly(name, pattern)) << name << " " << pattern;
                }
}

TEST(Pattern, ManyStarsAreNoBurden) {
    const std::string name(200, 'a');
    std::string pattern;
    for (int i = 0; i < 60; ++i)
        pattern += "a*";
    EXPECT_FALSE(matches_pattern(name, pattern + "b"));
}

} // namespace

} // namespace sonarelle
