#include "metadata/ini_file.h"

#include <gtest/gtest.h>

#include "music_disk.h"
#include "platform/failure.h"

namespace sonarelle {
namespace {

constexpr std::string_view path = "C:\\Radio\\reglages.ini";

/// What the file holds once section `global` has the key `masque` with the value `%titre%`.
std::string after_writing(std::string_view before) {
    MusicDisk on_disk;
    on_disk.disk.put_file(path, before);
    write_ini_value(on_disk.disk, path, "global", "masque", "%titre%");
    return on_disk.disk.bytes(path);
}

TEST(IniFile, IsMadeWhenItIsMissing) {
    MusicDisk on_disk;
    on_disk.disk.put_folder("C:\\Radio");
    write_ini_value(on_disk.disk, path, "global", "masque", "%titre%");
    EXPECT_EQ(on_disk.disk.bytes(path), "[global]\r\nmasque=%titre%\r\n");
}

TEST(IniFile, EmptyFileGetsTheSection) {
    EXPECT_EQ(after_writing(""), "[global]\r\nmasque=%titre%\r\n");
}

TEST(IniFile, ValueIsReplacedInItsPlace) {
    EXPECT_EQ(after_writing("[global]\r\na=1\r\nmasque=vieux\r\nb=2\r\n"),
              "[global]\r\na=1\r\nmasque=%titre%\r\nb=2\r\n");
}

TEST(IniFile, SectionAndKeyAreFoundIgnoringCase) {
    EXPECT_EQ(after_writing("[GLOBAL]\r\nMasque=vieux\r\n"), "[GLOBAL]\r\nMasque=%titre%\r\n");
}

TEST(IniFile, BlanksAroundTheKeyDoNotMatter) {
    EXPECT_EQ(after_writing("[global]\r\n masque = vieux\r\n"), "[global]\r\n masque =%titre%\r\n");
}

TEST(IniFile, NewKeyComesLastInItsSection) {
    EXPECT_EQ(after_writing("[global]\r\na=1\r\n\r\n[autre]\r\nb=2\r\n"),
              "[global]\r\na=1\r\nmasque=%titre%\r\n\r\n[autre]\r\nb=2\r\n");
}

TEST(IniFile, NewKeyOfAnEmptySectionFollowsItsHead) {
    EXPECT_EQ(after_writing("[global]\r\n\r\n[autre]\r\n"), "[global]\r\nmasque=%titre%\r\n\r\n[autre]\r\n");
}

TEST(IniFile, SameKeyOfAnotherSectionStays) {
    EXPECT_EQ(after_writing("[autre]\r\nmasque=b\r\n[global]\r\nmasque=a\r\n"),
              "[autre]\r\nmasque=b\r\n[global]\r\nmasque=%titre%\r\n");
}

TEST(IniFile, NewSectionComesLast) {
    EXPECT_EQ(after_writing("[autre]\r\na=1\r\n"), "[autre]\r\na=1\r\n[global]\r\nmasque=%titre%\r\n");
}

TEST(IniFile, LastLineWithoutItsEndGetsOne) {
    EXPECT_EQ(after_writing("[global]\r\na=1"), "[global]\r\na=1\r\nmasque=%titre%\r\n");
}

TEST(IniFile, ValueAtTheEndWithoutALineEndIsReplaced) {
    EXPECT_EQ(after_writing("[global]\nmasque=a"), "[global]\nmasque=%titre%");
}

TEST(IniFile, CommentIsNoKey) {
    EXPECT_EQ(after_writing("[global]\r\n;masque=a\r\n"), "[global]\r\n;masque=a\r\nmasque=%titre%\r\n");
}

TEST(IniFile, TextIsWindows1252) {
    MusicDisk on_disk;
    write_ini_value(on_disk.disk, "C:\\r.ini", "global", "masque", "é€");
    EXPECT_EQ(on_disk.disk.bytes("C:\\r.ini"), "[global]\r\nmasque=\xE9\x80\r\n");
}

TEST(IniFile, CharacterOutsideWindows1252IsRefused) {
    MusicDisk on_disk;
    EXPECT_THROW(write_ini_value(on_disk.disk, "C:\\r.ini", "global", "masque", "Ω"), Failure);
    EXPECT_FALSE(on_disk.disk.exists("C:\\r.ini"));
}

TEST(IniFile, LineBreakInAValueIsRefused) {
    MusicDisk on_disk;
    EXPECT_THROW(write_ini_value(on_disk.disk, "C:\\r.ini", "global", "masque", "a\r\n[b]"), Failure);
}

TEST(IniFile, MissingFolderIsRefused) {
    MusicDisk on_disk;
    EXPECT_THROW(write_ini_value(on_disk.disk, path, "global", "masque", "a"), Failure);
}

TEST(IniFile, FullDiskLeavesTheOldFile) {
    MusicDisk on_disk;
    on_disk.disk.put_file(path, "[global]\r\nmasque=a\r\n");
    on_disk.disk.set_capacity(on_disk.disk.used() + 10);
    EXPECT_THROW(write_ini_value(on_disk.disk, path, "global", "masque", "b"), Failure);
    EXPECT_EQ(on_disk.disk.bytes(path), "[global]\r\nmasque=a\r\n");
}

} // namespace
} // namespace sonarelle
