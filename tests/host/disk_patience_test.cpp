#include <gtest/gtest.h>

#include <condition_variable>
#include <fstream>
#include <functional>
#include <mutex>
#include <thread>

#include "disk_fixture.h"
#include "platform/disk_patience.h"

namespace sonarelle {
namespace {

// A mount whose server is gone; whoever asks it waits until it comes back.
class DeadMount {
public:
    void come_back() {
        const std::lock_guard lock{mutex_};
        dead_ = false;
        change_.notify_all();
    }
    void ask() {
        std::unique_lock lock{mutex_};
        ++asked_;
        change_.wait(lock, [this] { return !dead_; });
    }
    [[nodiscard]] int asked() {
        const std::lock_guard lock{mutex_};
        return asked_;
    }

private:
    std::mutex mutex_;
    std::condition_variable change_;
    bool dead_ = true;
    int asked_ = 0;
};

class DiskPatienceTest : public testing::Test {
protected:
    ~DiskPatienceTest() override { mount->come_back(); }

    /// A system whose disks are mounted at these places.
    void mount_at(const std::vector<std::string>& places) {
        for (const std::string& place : places)
            std::ofstream{table, std::ios::app} << "36 35 98:0 / " << place
                                                << " rw,noatime shared:1 - nfs serveur rw\n";
    }

    int ask(const std::string& path) {
        return patience->run(path, path, [asked = mount] {
            asked->ask();
            return 1;
        });
    }
    [[nodiscard]] FailureNumber failure_of(const std::string& path) {
        try {
            ask(path);
        } catch (const Failure& failure) {
            return failure.number;
        }
        return FailureNumber::none;
    }

    std::shared_ptr<DeadMount> mount = std::make_shared<DeadMount>();
    test::PrivateFolder folder;
    std::string table = folder.path() + "/mountinfo";
    std::shared_ptr<DiskPatience> patience = std::make_shared<DiskPatience>(std::chrono::milliseconds{20}, table);
};

TEST_F(DiskPatienceTest, GivesWhatTheDiskAnswers) {
    mount->come_back();
    EXPECT_EQ(ask("/mnt/a/titre.mp3"), 1);
}

TEST_F(DiskPatienceTest, PassesOnTheFailureOfADiskThatAnswers) {
    const auto refused = [] { throw Failure{FailureNumber::file_not_found}; };
    EXPECT_THROW(patience->run("/mnt/a", "a", refused), Failure);
    mount->come_back();
    EXPECT_EQ(ask("/mnt/a/titre.mp3"), 1);
}

TEST_F(DiskPatienceTest, DiskThatDoesNotAnswerIsADeviceFault) {
    EXPECT_EQ(failure_of("/mnt/a/titre.mp3"), FailureNumber::device_fault);
}

TEST_F(DiskPatienceTest, SilentDiskIsNotAskedAgain) {
    mount_at({"/", "/mnt/a"});
    static_cast<void>(failure_of("/mnt/a/titre.mp3"));
    for (int look = 0; look < 10; ++look)
        EXPECT_EQ(failure_of("/mnt/a/album/autre.mp3"), FailureNumber::device_fault);
    EXPECT_LE(mount->asked(), 1);
}

TEST_F(DiskPatienceTest, SilentDiskIsKnownByItsMount) {
    mount_at({"/", "/mnt", "/mnt/disque\\040de\\040musique"});
    static_cast<void>(failure_of("/mnt/disque de musique/a/b/titre.mp3"));
    EXPECT_EQ(failure_of("/mnt/disque de musique/c/titre.mp3"), FailureNumber::device_fault);
    EXPECT_LE(mount->asked(), 1);
}

TEST_F(DiskPatienceTest, SilentDiskIsKnownByItsMountWhereverTheTableNamesIt) {
    mount_at({"/mnt/a", "/"});
    static_cast<void>(failure_of("/mnt/a/titre.mp3"));
    EXPECT_EQ(failure_of("/mnt/a/album/autre.mp3"), FailureNumber::device_fault);
    EXPECT_LE(mount->asked(), 1);
}

TEST_F(DiskPatienceTest, OnTheRootsDiskTheSilentFolderAloneIsAvoided) {
    mount_at({"/"});
    static_cast<void>(failure_of("/musique/lien"));
    EXPECT_EQ(failure_of("/musique/lien/titre.mp3"), FailureNumber::device_fault);
    EXPECT_EQ(patience->run("/musique/autre.mp3", "", [] { return 2; }), 2);
}

TEST_F(DiskPatienceTest, SilentDiskKeepsNoOtherFromAnswering) {
    mount_at({"/", "/mnt/a", "/mnt/ab"});
    static_cast<void>(failure_of("/mnt/a/titre.mp3"));
    EXPECT_EQ(patience->run("/mnt/ab/titre.mp3", "", [] { return 2; }), 2);
}

TEST_F(DiskPatienceTest, DiskThatCameBackIsAskedAgain) {
    static_cast<void>(failure_of("/mnt/a/titre.mp3"));
    mount->come_back();
    while (failure_of("/mnt/a/titre.mp3") != FailureNumber::none)
        std::this_thread::yield();
}

TEST_F(DiskPatienceTest, UnansweredLookOutlivesThePatience) {
    static_cast<void>(failure_of("/mnt/a/titre.mp3"));
    while (mount->asked() == 0)
        std::this_thread::yield();
    patience.reset();
    mount->come_back();
}

TEST_F(DiskPatienceTest, WithoutALimitTheCallerWaits) {
    patience = std::make_shared<DiskPatience>();
    std::thread server{[this] {
        while (mount->asked() == 0)
            std::this_thread::yield();
        mount->come_back();
    }};
    EXPECT_EQ(ask("/mnt/a/titre.mp3"), 1);
    server.join();
}

// Drive D lies on the mount that is silent, drive E elsewhere.
class SilentDrive : public DiskPatienceTest {
protected:
    SilentDrive() {
        mount_at({"/", silent.path(), sound.path()});
        drives.set("D", silent.path());
        drives.set("E", sound.path());
        static_cast<void>(failure_of(silent.path() + "/titre.mp3"));
    }

    template <typename Use>
    [[nodiscard]] static FailureNumber failure_of_use(Use use) {
        try {
            use();
        } catch (const Failure& failure) {
            return failure.number;
        }
        return FailureNumber::none;
    }

    test::PrivateFolder silent;
    test::PrivateFolder sound;
    DriveTable drives;
    HostDisk disk{drives, patience};
};

TEST_F(SilentDrive, FailsEachLookAsADeviceFault) {
    const std::vector<std::function<void()>> looks{
        [this] { disk.ChDrive("D:\\titre.mp3"); },
        [this] { disk.ChDir("D:\\"); },
        [this] { static_cast<void>(disk.Dir("D:\\titre.mp3")); },
        [this] { static_cast<void>(disk.Dir("D:\\*.mp3")); },
        [this] { static_cast<void>(disk.facts("D:\\titre.mp3")); },
        [this] { static_cast<void>(disk.machine_path("D:\\titre.mp3")); },
        [this] { static_cast<void>(disk.open("D:\\titre.mp3")); },
        [this] { static_cast<void>(disk.open_or_create("D:\\liste.dfm")); },
    };
    for (std::size_t look = 0; look < looks.size(); ++look)
        EXPECT_EQ(failure_of_use(looks[look]), FailureNumber::device_fault) << look;
}

// The chain writes an end of play back into the list, which may lie on the drive that has gone.
TEST_F(SilentDrive, FailsEachChangeAsADeviceFault) {
    const std::vector<std::function<void()>> changes{
        [this] { static_cast<void>(disk.replace("D:\\liste.dfm")); },
        [this] { disk.append("D:\\journal.doc", "x"); },
        [this] { disk.FileCopy("D:\\titre.mp3", "E:\\titre.mp3"); },
        [this] { disk.Name("D:\\titre.mp3", "D:\\autre.mp3"); },
        [this] { disk.Kill("D:\\titre.mp3"); },
        [this] { disk.MkDir("D:\\album"); },
        [this] { disk.RmDir("D:\\album"); },
    };
    for (std::size_t change = 0; change < changes.size(); ++change)
        EXPECT_EQ(failure_of_use(changes[change]), FailureNumber::device_fault) << change;
}

TEST_F(SilentDrive, LeavesTheWorkingFolderWhereItIs) {
    static_cast<void>(failure_of_use([this] { disk.ChDrive("D:\\"); }));
    EXPECT_EQ(disk.current_drive(), 'C');
}

TEST_F(SilentDrive, LeavesTheOtherDrivesAlone) {
    disk.ChDrive("E:");
    disk.append("E:\\journal.doc", "x");
    EXPECT_EQ(disk.Dir("E:\\*"), "journal.doc");
}

TEST_F(SilentDrive, ThatCameBackIsLookedAtAgain) {
    mount->come_back();
    while (failure_of_use([this] { disk.ChDrive("D:"); }) != FailureNumber::none)
        std::this_thread::yield();
    EXPECT_EQ(disk.current_drive(), 'D');
}

} // namespace
} // namespace sonarelle
