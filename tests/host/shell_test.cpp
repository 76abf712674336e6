#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <thread>

#include "host/disk_bench.h"
#include "platform/host/host_shell.h"
#include "support/child_process.h"

namespace sonarelle::test {

struct ShellBench : DiskBench {
    HostShell shell{disk};
};

TEST(HostShell, StartsAProgramWithAFileByItsMachinesPath) {
    ShellBench bench;
    bench.folder.put("Éditeur.sh", "#!/bin/sh\nprintf %s \"$1\" > \"$1.part\"\nmv \"$1.part\" \"$1.vu\"\n");
    bench.folder.set_rights("Éditeur.sh", 0755);
    bench.folder.put("Titre 1.mp3");
    bench.shell.start_program("D:\\éditeur.SH", "D:\\titre 1.mp3");

    while (!bench.folder.exists("Titre 1.mp3.vu"))
        std::this_thread::sleep_for(std::chrono::milliseconds{2});
    EXPECT_EQ(bench.folder.bytes("Titre 1.mp3.vu"), bench.folder.path("Titre 1.mp3"));
}

TEST(HostShell, ProgramThatIsNotThereFails) {
    ShellBench bench;
    bench.folder.put("no program");

    EXPECT_EQ(failure_of([&] { bench.shell.start_program("sonarelle-sans-programme", ""); }), 53);
    EXPECT_EQ(failure_of([&] { bench.shell.start_program("D:\\absent.sh", ""); }), 53);
    EXPECT_EQ(failure_of([&] { bench.shell.start_program("D:\\no program", ""); }), 53);
}

TEST(HostShell, DocumentThatIsNotThereFails) {
    ShellBench bench;

    EXPECT_EQ(failure_of([&] { bench.shell.open_document("D:\\aide.txt"); }), 53);
}

TEST(HostShell, KeepsTheClipboard) {
    ShellBench bench;
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
