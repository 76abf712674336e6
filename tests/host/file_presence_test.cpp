// Which files of a list are not there.
#include "platform/host/file_presence.h"

#include <gtest/gtest.h>

#include <chrono>
#include <functional>
#include <thread>

#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle::test {

namespace {

class Presence : public testing::Test {
protected:
    Presence() { drives_.set("M", folder.path()); }

    [[nodiscard]] FilePresence presence(std::chrono::milliseconds fresh_for = std::chrono::milliseconds{10}) {
        return FilePresence{drives_, fresh_for};
    }
    static bool eventually(const std::function<bool()>& so) {
        for (int i = 0; i < 500 && !so(); ++i)
            std::this_thread::sleep_for(std::chrono::milliseconds{10});
        return so();
    }

    PrivateFolder folder;

private:
    DriveTable drives_;
};

} // namespace

TEST_F(Presence, FileCountsAsThereUntilTheDiskHasAnswered) {
    FilePresence files = presence();
    EXPECT_FALSE(files.is_missing("M:\\absent.mp3"));
}

TEST_F(Presence, FileThatIsNotThereIsMissing) {
    FilePresence files = presence();
    EXPECT_TRUE(eventually([&] { return files.is_missing("M:\\absent.mp3"); }));
}

TEST_F(Presence, FileOfAFolderOrDriveThatIsGoneIsMissing) {
    FilePresence files = presence();
    EXPECT_TRUE(eventually([&] { return files.is_missing("M:\\parti\\titre.mp3"); }));
    EXPECT_TRUE(eventually([&] { return files.is_missing("X:\\titre.mp3"); }));
}

TEST_F(Presence, NewsLastsUntilItIsAskedFor) {
    FilePresence files = presence();
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\absent.mp3"); }));
    for (int again = 0; again < 20; ++again) { // each time the disk is asked anew, and answers as before
        std::this_thread::sleep_for(std::chrono::milliseconds{15});
        static_cast<void>(files.is_missing("M:\\absent.mp3"));
    }
    EXPECT_TRUE(files.has_news());
    EXPECT_FALSE(files.has_news());
}

TEST_F(Presence, FileIsFoundIgnoringCase) {
    folder.put("Titre.MP3");
    FilePresence files = presence();
    static_cast<void>(files.is_missing("M:\\titre.mp3"));
    EXPECT_TRUE(eventually([&] { return files.is_missing("M:\\absent.mp3"); }));
    EXPECT_FALSE(files.is_missing("M:\\titre.mp3"));
}

TEST_F(Presence, FolderIsNoFile) {
    folder.put_folder("titre.mp3");
    FilePresence files = presence();
    EXPECT_TRUE(eventually([&] { return files.is_missing("M:\\titre.mp3"); }));
}

TEST_F(Presence, FileThatComesBackIsSeen) {
    FilePresence files = presence();
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\titre.mp3"); }));
    folder.put("titre.mp3");
    EXPECT_TRUE(eventually([&] { return !files.is_missing("M:\\titre.mp3"); }));
}

TEST_F(Presence, FreshAnswerIsntAskedForAgain) {
    FilePresence files = presence(std::chrono::hours{1});
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\titre.mp3"); }));
    folder.put("titre.mp3");
    static_cast<void>(files.is_missing("M:\\autre.mp3"));
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\autre.mp3"); }));
    EXPECT_TRUE(files.is_missing("M:\\titre.mp3"));
}

TEST_F(Presence, TellsOnceThatAnAnswerHasChanged) {
    FilePresence files = presence(std::chrono::hours{1});
    EXPECT_FALSE(files.has_news());
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\absent.mp3"); }));
    EXPECT_TRUE(files.has_news());
    EXPECT_FALSE(files.has_news());
}

TEST_F(Presence, ShareAndEmptyRowCountAsThere) {
    FilePresence files = presence();
    static_cast<void>(files.is_missing("\\\\serveur\\partage\\titre.mp3"));
    static_cast<void>(files.is_missing(""));
    ASSERT_TRUE(eventually([&] { return files.is_missing("M:\\absent.mp3"); }));
    EXPECT_FALSE(files.is_missing("\\\\serveur\\partage\\titre.mp3"));
    EXPECT_FALSE(files.is_missing(""));
}

TEST_F(Presence, FileThatMayNotBeLookedAtCountsAsThere) {
    folder.put("ailleurs/titre.mp3");
    folder.set_rights("ailleurs", 0);
    EXPECT_EQ(failure_without_rights([this] {
                  FilePresence files = presence();
                  bool is_missing = !eventually([&] { return files.is_missing("M:\\absent.mp3"); });
                  for (int again = 0; again < 20; ++again) { // each time the disk is asked anew
                      is_missing = files.is_missing("M:\\ailleurs\\titre.mp3") || is_missing;
                      std::this_thread::sleep_for(std::chrono::milliseconds{15});
                  }
                  if (is_missing)
                      throw Failure{FailureNumber::file_not_found};
              }),
              FailureNumber::none);
    folder.set_rights("ailleurs", 0755);
}

} // namespace sonarelle::test
