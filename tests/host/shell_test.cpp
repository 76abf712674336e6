#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <thread>

#include "host/disk_fixture.h"
#include "platform/host/host_shell.h"
#include "platform/host/known_programs.h"
#include "support/child_process.h"

namespace sonarelle::test {

struct ShellFixture : DiskFixture {
    HostShell shell{disk};
};

/// Programs are looked for in one folder alone, for as long as it lives.
class SearchPath {
public:
    explicit SearchPath(const std::string& folder) { ::setenv("PATH", folder.c_str(), 1); }
    ~SearchPath() { ::setenv("PATH", before_.c_str(), 1); }
    SearchPath(const SearchPath&) = delete;
    SearchPath& operator=(const SearchPath&) = delete;

private:
    std::string before_ = ::getenv("PATH");
};

TEST(HostShell, StartsAProgramWithAFileByItsMachinesPath) {
    ShellFixture bench;
    bench.folder.put("Éditeur.sh", "#!/bin/sh\nprintf %s \"$1\" > \"$1.part\"\nmv \"$1.part\" \"$1.vu\"\n");
    bench.folder.set_rights("Éditeur.sh", 0755);
    bench.folder.put("Titre 1.mp3");
    bench.shell.start_program("D:\\éditeur.SH", "D:\\titre 1.mp3");

    while (!bench.folder.exists("Titre 1.mp3.vu"))
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    EXPECT_EQ(bench.folder.bytes("Titre 1.mp3.vu"), bench.folder.path("Titre 1.mp3"));
}

TEST(HostShell, ProgramThatIsNotThereFails) {
    ShellFixture bench;
    bench.folder.put("no program");

    EXPECT_EQ(failure_of([&] { bench.shell.start_program("sonarelle-sans-programme", ""); }),
              FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { bench.shell.start_program("D:\\absent.sh", ""); }), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { bench.shell.start_program("D:\\no program", ""); }), FailureNumber::file_not_found);
}

TEST(HostShell, TakesTheFirstProgramOfThisMachineForOneOfAnotherSystem) {
    ShellFixture bench;
    bench.folder.put("kmix", "#!/bin/sh\n: > \"$0.vu\"\n");
    bench.folder.set_rights("kmix", 0755);
    bench.folder.put("xfce4-mixer", "#!/bin/sh\n: > \"$0.vu\"\n");
    bench.folder.set_rights("xfce4-mixer", 0755);
    const SearchPath only{bench.folder.path()};
    bench.shell.start_program("C:\\WINDOWS\\system32\\SNDVOL32.exe", "");

    while (!bench.folder.exists("kmix.vu"))
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    EXPECT_FALSE(bench.folder.exists("xfce4-mixer.vu"));
}

TEST(HostShell, ProgramOfAnotherSystemWithoutALikeOneHereFails) {
    ShellFixture bench;
    const SearchPath only{bench.folder.path()};

    EXPECT_EQ(failure_of([&] { bench.shell.start_program("C:\\WINDOWS\\CDPLAYER.EXE", ""); }),
              FailureNumber::file_not_found);
}

TEST(HostShell, KnowsWhatTheMenusName) {
    for (const char* program : {"Write", "C:\\WINDOWS\\CDPLAYER.EXE", "MSINFO32.EXE",
                                "C:\\Program Files\\Windows Media Player\\wmplayer.exe"}) {
        const KnownProgram* known = known_program(program);
        ASSERT_NE(known, nullptr) << program;
        EXPECT_FALSE(known->instead.empty()) << program;
    }
    EXPECT_EQ(known_program("gimp"), nullptr);
}

TEST(HostShell, DocumentThatIsNotThereFails) {
    ShellFixture bench;

    EXPECT_EQ(failure_of([&] { bench.shell.open_document("D:\\aide.txt"); }), FailureNumber::file_not_found);
}

TEST(HostShell, HasNoScreenToShowATextOn) {
    ShellFixture bench;
    bench.folder.put("journal.doc");

    EXPECT_EQ(failure_of([&] { bench.shell.show_guide("Antenne_FM"); }), FailureNumber::file_not_found);
    EXPECT_EQ(failure_of([&] { bench.shell.show_journal("D:\\journal.doc"); }), FailureNumber::file_not_found);
}

TEST(HostShell, KeepsTheClipboard) {
    ShellFixture bench;
    bench.shell.set_clipboard_text("été");

    EXPECT_EQ(bench.shell.clipboard_text(), "été");
}

TEST(HostShell, RouteToEverywhereIsAConnection) {
    const std::string headings = "Iface\tDestination\tGateway\tFlags\n";

    EXPECT_TRUE(has_default_route(headings + "eth0\t0001A8C0\t00000000\t0001\neth0\t00000000\t0101A8C0\t0003\n"));
    EXPECT_FALSE(has_default_route(headings + "eth0\t0001A8C0\t00000000\t0001\n"));
    EXPECT_FALSE(has_default_route(headings));
    EXPECT_FALSE(has_default_route(""));
}

} // namespace sonarelle::test
