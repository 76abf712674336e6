#include "platform/failure.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace sonarelle {

namespace {

TEST(Failure, SaysItsSourceAndItsSentence) {
    const Failure failure{FailureNumber::file_not_found, "D:\\a.mp3"};
    EXPECT_STREQ(failure.what(), "D:\\a.mp3 : Fichier introuvable");
}

TEST(Failure, WithoutASourceSaysItsSentenceAlone) {
    EXPECT_STREQ(Failure{FailureNumber::overflow}.what(), "Dépassement de capacité");
}

TEST(Failure, AnUnknownOneHasASentenceToo) {
    EXPECT_EQ(failure_description(FailureNumber{4711}), "Erreur inconnue");
}

TEST(ErrorIndicator, SkipsAFailingStatementAndKeepsItsNumber) {
    ErrorIndicator errors;
    EXPECT_FALSE(errors.skip([] { throw Failure{FailureNumber::disk_full}; }));
    EXPECT_EQ(errors.number(), FailureNumber::disk_full);
}

TEST(ErrorIndicator, AGoodStatementLeavesTheLastNumber) {
    ErrorIndicator errors;
    errors.skip([] { throw Failure{FailureNumber::disk_full}; });
    EXPECT_TRUE(errors.skip([] {}));
    EXPECT_TRUE(errors.is_set());
    errors.clear();
    EXPECT_FALSE(errors.is_set());
}

TEST(ErrorIndicator, LetsOtherExceptionsThrough) {
    ErrorIndicator errors;
    EXPECT_THROW(errors.skip([] { throw std::logic_error{"ours"}; }), std::logic_error);
}

} // namespace

} // namespace sonarelle
