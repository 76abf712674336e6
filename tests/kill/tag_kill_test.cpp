#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <csignal>
#include <cstdlib>
#include <random>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include "support/private_folder.h"

namespace sonarelle::test {

using namespace std::chrono;
using testing::ElementsAre;

constexpr std::size_t audio_size = 5'000'000;
constexpr int kills = 500;

std::string audio_bytes() {
    std::string bytes(audio_size, '\0');
    std::mt19937 draw{1};
    for (char& byte : bytes)
        byte = static_cast<char>(draw() % 255); // no 0xFF, no mark of a tag
    return bytes;
}

/// `sonarelle-outil tag ecrire`, as a process of its own.
class TagWriter {
public:
    TagWriter(const PrivateFolder& folder, const std::string& title) {
        const char* tool = std::getenv("SONARELLE_OUTIL");
        std::vector<std::string> words{tool != nullptr ? tool : "sonarelle-outil",
                                       "tag",
                                       "ecrire",
                                       folder.path("titre.mp3"),
                                       "--titre",
                                       title,
                                       "--dossier",
                                       folder.path("station")};
        std::vector<char*> line;
        for (std::string& word : words)
            line.push_back(word.data());
        line.push_back(nullptr);
        started_ = ::posix_spawn(&process_, line[0], nullptr, nullptr, line.data(), environ) == 0;
    }

    [[nodiscard]] bool started() const { return started_; }
    /// Its exit status, or -1 when it was killed.
    int end(bool killing) const {
        if (killing)
            ::kill(process_, SIGKILL);
        int status = 0;
        ::waitpid(process_, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

private:
    pid_t process_ = 0;
    bool started_ = false;
};

std::string title_of(std::string_view file) {
    const std::string_view title = file.substr(file.size() - 125, 30);
    return std::string{title.substr(0, title.find('\0'))};
}

TEST(TagKill, MusicAndOneWholeTagAreThereAtAnyInstant) {
    const PrivateFolder folder;
    const std::string audio = audio_bytes();
    folder.put("titre.mp3", audio);
    const auto begin = steady_clock::now();
    ASSERT_EQ(TagWriter(folder, "0").end(false), 0);
    const auto span = duration_cast<microseconds>(steady_clock::now() - begin).count();

    std::mt19937 draw{20260101};
    std::string title = "0";
    int killed = 0;
    for (int i = 1; i <= kills; ++i) {
        const TagWriter writer{folder, std::to_string(i)};
        ASSERT_TRUE(writer.started());
        std::this_thread::sleep_for(microseconds{static_cast<std::int64_t>(draw()) % (span + span / 4)});
        killed += writer.end(true) == -1 ? 1 : 0;

        const std::string file = folder.bytes("titre.mp3");
        ASSERT_EQ(file.size(), audio_size + 128) << "kill " << i;
        ASSERT_TRUE(file.starts_with(audio)) << "kill " << i;
        const std::string found = title_of(file);
        ASSERT_TRUE(found == title || found == std::to_string(i)) << "kill " << i << " left the title " << found;
        title = found;
    }
    EXPECT_GT(killed, 0);

    // What the kills left beside is gone with the next tag.
    ASSERT_EQ(TagWriter(folder, "fin").end(false), 0);
    EXPECT_EQ(title_of(folder.bytes("titre.mp3")), "fin");
    std::vector<std::string> names = folder.names();
    std::erase(names, "station");
    EXPECT_THAT(names, ElementsAre("titre.mp3"));
}

} // namespace sonarelle::test
