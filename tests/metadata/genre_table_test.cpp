#include "metadata/genre_table.h"

#include <set>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace sonarelle {
namespace {

struct CrookedName {
    std::string name;
    int shown_by;
    int code;
};

const std::vector<CrookedName> crooked_names{{"Soul", 42, 255},
                                             {"Punk", 43, 42},
                                             {"Space", 44, 43},
                                             {"Meditative", 45, 44},
                                             {"Instrumental Pop", 46, 45},
                                             {"Instrumental Rock", 47, 46},
                                             {"Ethnic", 48, 47},
                                             {"Gothic", 49, 48},
                                             {"Darkwave", 50, 49},
                                             {"Techno-Industrial", 51, 50},
                                             {"Electronic", 52, 51},
                                             {"Pop-Folk", 53, 52},
                                             {"Eurodance", 54, 53},
                                             {"Drum Solo", 122, 121}};

class CrookedGenre : public testing::TestWithParam<CrookedName> {};

TEST_P(CrookedGenre, IsShownByItsPublishedCode) {
    EXPECT_EQ(nom_du_genre(GetParam().shown_by), GetParam().name);
}

TEST_P(CrookedGenre, HasAnotherCodeByName) {
    EXPECT_EQ(numero_du_genre(GetParam().name), GetParam().code);
}

INSTANTIATE_TEST_SUITE_P(GenreTable, CrookedGenre, testing::ValuesIn(crooked_names));

TEST(GenreTable, EveryOtherNameLeadsBackToItsCode) {
    std::set<int> crooked;
    for (const auto& row : crooked_names)
        crooked.insert(row.shown_by);
    for (int code = 0; code < genre_count; ++code) {
        if (crooked.contains(code))
            continue;
        EXPECT_EQ(numero_du_genre(nom_du_genre(code)), code) << nom_du_genre(code);
    }
}

TEST(GenreTable, NoNameLeadsToTheCodes54And122) {
    for (int code = 0; code < genre_count; ++code) {
        EXPECT_NE(numero_du_genre(nom_du_genre(code)), 54);
        EXPECT_NE(numero_du_genre(nom_du_genre(code)), 122);
    }
}

TEST(GenreTable, StationHasNamesOfItsOwn) {
    EXPECT_EQ(nom_du_genre(0), "Divers");
    EXPECT_EQ(nom_du_genre(6), "Jingles");
    EXPECT_EQ(nom_du_genre(10), "Ambiance");
    EXPECT_EQ(nom_du_genre(11), "Blues");
    EXPECT_EQ(nom_du_genre(12), "Autre");
    EXPECT_EQ(nom_du_genre(147), "Divers_autres");
}

TEST(GenreTable, MisspeltAndShortenedNamesStay) {
    EXPECT_EQ(nom_du_genre(67), "Psychadelic");
    EXPECT_EQ(nom_du_genre(85), "Bebob");
    EXPECT_EQ(nom_du_genre(118), "Rhytmic Soul");
    EXPECT_EQ(nom_du_genre(140), "Contemporary C");
}

TEST(GenreTable, Code148HasNoName) {
    EXPECT_EQ(nom_du_genre(148), "");
}

TEST(GenreTable, Code255HasNoName) {
    EXPECT_EQ(nom_du_genre(255), "");
}

TEST(GenreTable, NegativeCodeHasNoName) {
    EXPECT_EQ(nom_du_genre(-1), "");
}

TEST(GenreTable, NamesAreFoundIgnoringCase) {
    EXPECT_EQ(numero_du_genre("hEaVy MeTaL"), 137);
}

TEST(GenreTable, NumberInAParenthesisIsTheCode) {
    EXPECT_EQ(numero_du_genre("(13)"), 13);
}

TEST(GenreTable, TextBehindTheParenthesisedNumberIsIgnored) {
    EXPECT_EQ(numero_du_genre("(17)Rock"), 17);
}

TEST(GenreTable, ParenthesisWithoutANumberIsZero) {
    EXPECT_EQ(numero_du_genre("(abc"), 0);
}

TEST(GenreTable, ParenthesisedNumberIsNotBoundToTheTable) {
    EXPECT_EQ(numero_du_genre("(300)"), 300);
}

TEST(GenreTable, ParenthesisedNumberIsRounded) {
    EXPECT_EQ(numero_du_genre("(16.6)"), 17);
}

TEST(GenreTable, ParenthesisedNumberBeyond16BitsIsAnOverflow) {
    try {
        (void)numero_du_genre("(32768)");
        FAIL() << "no failure";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.number, FailureNumber::overflow);
    }
}

TEST(GenreTable, TwoParenthesesAreNoGenre) {
    EXPECT_EQ(numero_du_genre("((13"), no_genre);
}

TEST(GenreTable, DigitsAreTheCode) {
    EXPECT_EQ(numero_du_genre("13"), 13);
}

TEST(GenreTable, GreatestCodeByDigitsIs146) {
    EXPECT_EQ(numero_du_genre("146"), 146);
}

TEST(GenreTable, DigitsFrom147OnAreNoGenre) {
    EXPECT_EQ(numero_du_genre("147"), no_genre);
}

TEST(GenreTable, UnknownNameIsNoGenre) {
    EXPECT_EQ(numero_du_genre("abc"), no_genre);
}

TEST(GenreTable, EmptyNameIsNoGenre) {
    EXPECT_EQ(numero_du_genre(""), no_genre);
}

TEST(GenreTable, SignBeforeDigitsIsNoGenre) {
    EXPECT_EQ(numero_du_genre("-5"), no_genre);
}

} // namespace
} // namespace sonarelle
