#include "platform/text.h"

#include <gtest/gtest.h>

#include "platform/failure.h"

namespace sonarelle {

namespace {

TEST(Text, EveryByteSurvivesARoundTrip) {
    for (int byte = 0; byte < 256; ++byte) {
        const std::string one(1, static_cast<char>(byte));
        EXPECT_EQ(to_windows_1252(from_windows_1252(one)), one) << byte;
    }
}

TEST(Text, EveryByteIsACharacterOfItsOwn) {
    std::string all;
    for (int byte = 0; byte < 256; ++byte)
        all.push_back(static_cast<char>(byte));
    EXPECT_EQ(character_count(from_windows_1252(all)), 256U);
}

TEST(Text, BytesReadAsWindows1252HasThem) {
    EXPECT_EQ(from_windows_1252("\x80 \x8A \x9C \x9F \xE9 \xFF"), "€ Š œ Ÿ é ÿ");
}

TEST(Text, BytesWithoutACharacterStandForTheControlOfTheirNumber) {
    EXPECT_EQ(from_windows_1252("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(Text, ACharacterWithoutAByteIsRefusedByName) {
    try {
        (void)to_windows_1252("été Łódź");
        FAIL() << "nothing was refused";
    } catch (const Failure& failure) {
        EXPECT_EQ(failure.source, "Ł");
        EXPECT_EQ(failure.number, FailureNumber::wrong_call);
    }
}

TEST(Text, TheFirstForeignCharacterIsNamed) {
    EXPECT_EQ(first_foreign_character("l'été 音楽 Ł"), "音");
    EXPECT_EQ(first_foreign_character("l'été à Œuf-sur-Ÿ"), std::nullopt);
}

TEST(Text, ABrokenByteOfUtf8IsForeign) {
    EXPECT_EQ(first_foreign_character("ab\xE9"), "\xE9");
}

TEST(Text, TrimTakesSpacesAlone) {
    EXPECT_EQ(trim("  \ta b\t "), "\ta b\t");
    EXPECT_EQ(trim("    "), "");
    EXPECT_EQ(trim(""), "");
}

TEST(Text, TrimOfOneSideLeavesTheOther) {
    EXPECT_EQ(trim_left("  a  "), "a  ");
    EXPECT_EQ(trim_right("  a  "), "  a");
}

TEST(Text, CaseGoesOverTheAccents) {
    EXPECT_EQ(lower_case("ÉCOUTE Š Œ Ž Ÿ × À"), "écoute š œ ž ÿ × à");
    EXPECT_EQ(upper_case("écoute š œ ž ÿ ÷ à"), "ÉCOUTE Š Œ Ž Ÿ ÷ À");
}

TEST(Text, TheSharpSHasNoCapital) {
    EXPECT_EQ(upper_case("straße"), "STRAßE");
}

TEST(Text, CaseLeavesOtherScriptsAlone) {
    EXPECT_EQ(lower_case("ŁÓ"), "Łó");
}

TEST(Text, EqualIgnoringCaseSeesAccents) {
    EXPECT_TRUE(equal_ignoring_case("Été", "éTÉ"));
    EXPECT_FALSE(equal_ignoring_case("Ete", "été"));
    EXPECT_FALSE(equal_ignoring_case("été", "étés"));
}

TEST(Text, CutsCountCharacters) {
    EXPECT_EQ(left("éàü", 2), "éà");
    EXPECT_EQ(right("éàü", 2), "àü");
    EXPECT_EQ(mid("éàü", 2), "àü");
    EXPECT_EQ(mid("éàüç", 2, 2), "àü");
}

TEST(Text, CutsBeyondTheEndsGiveWhatIsThere) {
    EXPECT_EQ(left("éà", 9), "éà");
    EXPECT_EQ(right("éà", 9), "éà");
    EXPECT_EQ(mid("éà", 9), "");
    EXPECT_EQ(left("", 1), "");
}

TEST(Text, TakingCharactersGoesOnBehindABrokenOne) {
    std::string_view text = "\xC3 é";
    EXPECT_EQ(take_character(text), U'\uFFFD');
    EXPECT_EQ(take_character(text), U' ');
    EXPECT_EQ(take_character(text), U'é');
    EXPECT_TRUE(text.empty());
}

TEST(Text, OverlongAndSurrogateFormsAreBroken) {
    for (std::string_view form :
         {"\xC0\xAF", "\xE0\x80\xAF", "\xED\xA0\x80", "\xF8\x88\x80\x80\x80", "\xF4\x90\x80\x80"})
        EXPECT_EQ(take_character(form), U'\uFFFD');
}

TEST(Text, AnyCodePointIsWrittenAndReadBack) {
    for (const char32_t point : {U'\u007F', U'\u0080', U'\u07FF', U'\u0800', U'\uFFFD', U'\U00010000', U'\U0010FFFF'}) {
        const std::string text = character(point);
        std::string_view rest = text;
        EXPECT_EQ(take_character(rest), point);
        EXPECT_TRUE(rest.empty());
    }
}

TEST(Text, ShowsControlCharactersAsPointsAndBrokenBytesAsSuch) {
    EXPECT_EQ(printable("a\nb\x1B[31m\x7F\u009D\xFF"
                        "é"),
              "a·b·[31m··\uFFFDé");
}

} // namespace

} // namespace sonarelle
