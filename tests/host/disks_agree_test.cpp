#include <gtest/gtest.h>

#include <functional>
#include <random>
#include <string>
#include <vector>

#include "host/disk_fixture.h"
#include "platform/failure.h"
#include "platform/simulated/simulated_platform.h"

namespace sonarelle::test {

/// What the station sees of an operation: its result, or the number of its failure.
std::string seen(const std::function<std::string()>& operation) {
    try {
        return operation();
    } catch (const Failure& failure) {
        return "failure " + digits_of(failure.number);
    }
}

std::string all_names(Disk& disk, const std::string& pattern, FileAttributes attributes) {
    std::string names;
    for (std::string name = disk.Dir(pattern, attributes); !name.empty(); name = disk.Dir())
        names += name + "/";
    return names;
}

std::string all_bytes(RecordFile& file) {
    std::string bytes(static_cast<std::size_t>(file.length()), '\0');
    bytes.resize(file.read(0, std::as_writable_bytes(std::span{bytes})));
    return bytes;
}

/// One operation on a disk: drawn once, done on both.
struct Step {
    const char* name;
    std::function<std::string(Disk&, const std::string&, const std::string&)> run;
};

std::string done(const std::function<void()>& operation) {
    operation();
    return "done";
}

using Text = const std::string&;

const std::vector<Step>& steps() {
    static const std::vector<Step> all{
        {"ChDrive", [](Disk& d, Text a, Text) { return done([&] { d.ChDrive(a); }); }},
        {"ChDir", [](Disk& d, Text a, Text) { return done([&] { d.ChDir(a); }); }},
        {"absolute", [](Disk& d, Text a, Text) { return d.absolute(a); }},
        {"Dir", [](Disk& d, Text a, Text) { return all_names(d, a, FileAttributes::normal); }},
        {"Dir with folders", [](Disk& d, Text a, Text) { return all_names(d, a, FileAttributes::folder); }},
        {"Kill", [](Disk& d, Text a, Text) { return done([&] { d.Kill(a); }); }},
        {"Name", [](Disk& d, Text a, Text b) { return done([&] { d.Name(a, b); }); }},
        {"FileCopy", [](Disk& d, Text a, Text b) { return done([&] { d.FileCopy(a, b); }); }},
        {"MkDir", [](Disk& d, Text a, Text) { return done([&] { d.MkDir(a); }); }},
        {"RmDir", [](Disk& d, Text a, Text) { return done([&] { d.RmDir(a); }); }},
        {"append", [](Disk& d, Text a, Text b) { return done([&] { d.append(a, b); }); }},
        {"open", [](Disk& d, Text a, Text) { return all_bytes(*d.open(a)); }},
        {"open_or_create", [](Disk& d, Text a, Text) { return all_bytes(*d.open_or_create(a)); }},
        {"replace",
         [](Disk& d, Text a, Text b) {
             return done([&] {
                 const auto file = d.replace(a);
                 file->write(std::as_bytes(std::span{b}));
                 if (b.size() % 4 != 0)
                     file->commit();
             });
         }},
        {"facts",
         [](Disk& d, Text a, Text) {
             const FileFacts facts = d.facts(a);
             return std::to_string(facts.size) + (facts.is_folder ? " folder" : "");
         }},
    };
    return all;
}

/// Few names, so that they meet: of drives and folders, in several cases, right and wrong ones.
class PathDraw {
public:
    explicit PathDraw(std::mt19937& draw)
        : draw_{draw} {}

    std::string operator()() {
        std::string path = one_of({"D:\\", "D:\\", "D:\\", "d:", "", "\\", "E:\\", "Q:\\", "\\\\serveur\\partage\\"});
        for (auto names = draw_() % 3; names > 0; --names)
            path += one_of({"un", "UN", "Été", "ÉTÉ", "..", ".", "x.mp3"}) + one_of({"\\", "\\", "\\", "/", "\\\\"});
        return path +
               one_of({"un", "deux", "été", "x.mp3", "X.MP3", "sans", "*", "*.*", "*.mp3", "?n", "..", "", "a|b"});
    }

private:
    std::string one_of(const std::vector<std::string>& words) { return words[draw_() % words.size()]; }

    std::mt19937& draw_;
};

TEST(Disks, MachinesDiskDoesAsTheSimulatedOne) {
    DiskFixture bench;
    bench.folder.put_folder("e");
    bench.folder.put_folder("share");
    bench.folder.put_folder("d");
    bench.folder.put_folder("c");
    bench.drives.set("C", bench.folder.path("c"));
    bench.drives.set("D", bench.folder.path("d"));
    bench.drives.set("E", bench.folder.path("e"));
    bench.drives.set("\\\\serveur\\partage", bench.folder.path("share"));
    SimulatedPlatform machine{"C:\\"};
    for (const char* drive : {"D", "E", "\\\\serveur\\partage"})
        machine.disk.add_drive(drive);

    std::mt19937 draw{7};
    PathDraw path{draw};
    int successes = 0;
    for (int i = 0; i < 20'000; ++i) {
        const Step& step = steps()[draw() % steps().size()];
        const std::string first = path();
        const std::string second = path();
        const std::string expected = seen([&] { return step.run(machine.disk, first, second); });
        const std::string found = seen([&] { return step.run(bench.disk, first, second); });
        ASSERT_EQ(found, expected) << i << ": " << step.name << " " << first << " , " << second;
        ASSERT_EQ(bench.disk.current_folder(), machine.disk.current_folder()) << i;
        successes += expected.starts_with("failure") ? 0 : 1;
    }
    EXPECT_GT(successes, 2000);
}

} // namespace sonarelle::test
