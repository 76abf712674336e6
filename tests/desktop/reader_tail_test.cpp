// The end of a file that grows, whatever becomes of the file.
#include "desktop/reader_tail.h"

#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/simulated/simulated_platform.h"

namespace sonarelle {

namespace {

constexpr const char* path = "C:\\Sonarelle\\journal.doc";

struct TailOfAFile : testing::Test {
    void put(const std::string& bytes) { machine.disk.put_file(path, bytes); }
    void add(const std::string& bytes) { machine.disk.append(path, bytes); }
    static std::string lines(char letter, int count) {
        std::string text;
        for (int line = 0; line < count; ++line)
            text += std::string(49, letter) + "\n";
        return text;
    }

    SimulatedPlatform machine;
    FileTail tail{machine.disk, path, 1000};
};

} // namespace

TEST_F(TailOfAFile, IsWhatIsThereAndThenWhatIsAdded) {
    put("un\r\n");
    const TailNews first = tail.read();
    EXPECT_EQ(first.text, "un\n");
    EXPECT_TRUE(first.begins_anew);
    EXPECT_FALSE(first.is_cut);
    add("deux\r\n");
    const TailNews next = tail.read();
    EXPECT_EQ(next.text, "deux\n");
    EXPECT_FALSE(next.begins_anew);
}

TEST_F(TailOfAFile, IsNothingWhileNothingIsAdded) {
    put("un\r\n");
    static_cast<void>(tail.read());
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, "");
    EXPECT_FALSE(news.begins_anew);
}

TEST_F(TailOfAFile, IsInTheLettersOfTheStation) {
    put("Arr\xEAt");
    EXPECT_EQ(tail.read().text, "Arrêt");
}

TEST_F(TailOfAFile, ReadsNoMoreThanWasAdded) {
    put(lines('a', 10));
    static_cast<void>(tail.read());
    machine.disk.fail_read_at(path, 100);
    add("b\n");
    EXPECT_EQ(tail.read().text, "b\n");
}

TEST_F(TailOfAFile, OfALargeOneIsItsLastWholeLines) {
    put("x" + lines('a', 100));
    machine.disk.fail_read_at(path, 3000);
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, lines('a', 19));
    EXPECT_TRUE(news.is_cut);
}

TEST_F(TailOfAFile, ThatGrewByMoreThanIsReadBeginsAnew) {
    put("un\n");
    static_cast<void>(tail.read());
    add("x" + lines('b', 100));
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, lines('b', 19));
    EXPECT_TRUE(news.begins_anew);
    EXPECT_TRUE(news.is_cut);
}

TEST_F(TailOfAFile, ThatWasEmptiedBeginsAnew) {
    put("un\n");
    static_cast<void>(tail.read());
    put("");
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, "");
    EXPECT_TRUE(news.begins_anew);
    add("deux\n");
    EXPECT_EQ(tail.read().text, "deux\n");
}

TEST_F(TailOfAFile, ThatAnotherOneReplacedBeginsAnewWhateverItsLength) {
    put("un\n");
    static_cast<void>(tail.read());
    put("autre\ndeux\n");
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, "autre\ndeux\n");
    EXPECT_TRUE(news.begins_anew);
}

TEST_F(TailOfAFile, ThatIsMissingIsTakenUpWhenItComes) {
    EXPECT_EQ(tail.read().trouble, "Le fichier n'existe pas, ou pas encore.");
    put("un\n");
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, "un\n");
    EXPECT_EQ(news.trouble, "");
}

TEST_F(TailOfAFile, ThatTheDiskRefusesIsTakenUpWhenItAnswers) {
    put("un\n");
    static_cast<void>(tail.read());
    machine.disk.refuse(path, FailureNumber::permission_refused);
    EXPECT_TRUE(tail.read().trouble.starts_with("Le fichier ne peut pas être lu : "));
    machine.disk.heal(path);
    const TailNews news = tail.read();
    EXPECT_EQ(news.text, "un\n");
    EXPECT_TRUE(news.begins_anew);
}

} // namespace sonarelle
