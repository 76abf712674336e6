#include "playlist/list_file.h"

#include <gtest/gtest.h>

#include "support/station_fixture.h"

namespace sonarelle {

namespace {

constexpr std::string_view list = "C:\\Sonarelle\\matin.dfm";

class ListFile : public testing::Test {
protected:
    [[nodiscard]] std::int64_t count_of(const std::string& bytes) {
        machine.disk.put_file(list, bytes);
        return ListReader{machine.disk, list}.count();
    }

    SimulatedPlatform machine;
};

} // namespace

TEST_F(ListFile, OfZeroBytesIsEmpty) {
    EXPECT_EQ(count_of(""), 0);
}

TEST_F(ListFile, Of417BytesIsEmpty) {
    EXPECT_EQ(count_of(std::string(417, 'x')), 0);
}

TEST_F(ListFile, Of418BytesHoldsOneRecord) {
    EXPECT_EQ(count_of(std::string(418, 'x')), 1);
}

TEST_F(ListFile, Of419BytesHoldsOneRecord) {
    EXPECT_EQ(count_of(std::string(419, 'x')), 1);
}

TEST_F(ListFile, ThatDoesNotExistIsCreatedEmpty) {
    EXPECT_EQ((ListReader{machine.disk, list}.count()), 0);
    EXPECT_EQ(machine.disk.bytes(list), "");
}

TEST_F(ListFile, LaysItsFieldsAtTheirPlaces) {
    const std::string bytes = bytes_of(record_of("C:\\a.mp3", "12.50", 258, 1.0, "Jazz", "00:00:12"));
    EXPECT_EQ(bytes.substr(0, 9), "C:\\a.mp3 ");
    EXPECT_EQ(bytes.substr(200, 6), "12.50 ");
    EXPECT_EQ(bytes.substr(300, 5), "Jazz ");
    EXPECT_EQ(bytes.substr(400, 2), std::string("\x02\x01", 2));
    EXPECT_EQ(bytes.substr(402, 8), std::string("\0\0\0\0\0\0\xF0\x3F", 8));
    EXPECT_EQ(bytes.substr(410, 8), "00:00:12");
}

TEST_F(ListFile, FillsTextsWithSpaces) {
    EXPECT_EQ(bytes_of(record_of("a")).substr(1, 199), std::string(199, ' '));
}

TEST_F(ListFile, KeepsAPathOf200Characters) {
    const std::string path(200, 'p');
    EXPECT_EQ(record_of(path).chemin(), path);
}

TEST_F(ListFile, CutsThe201stCharacterOfAPath) {
    const std::string path = std::string(199, 'p') + "ab";
    EXPECT_EQ(record_of(path).chemin(), std::string(199, 'p') + "a");
}

TEST_F(ListFile, CutsADurationAtEightCharacters) {
    EXPECT_EQ(record_of("a", "1", 100, 0, "", "100:00:00").duree_piste(), "100:00:0");
}

TEST_F(ListFile, KeepsOneByteForEachAccentedCharacter) {
    const std::string path = "C:\\Été\\" + std::string(193, 'x');
    EXPECT_EQ(character_count(record_of(path).chemin()), 200U);
    EXPECT_EQ(record_of(path).chemin(), path);
}

TEST_F(ListFile, RefusesACharacterOutsideWindows1252AndKeepsTheField) {
    enreg_liste record = record_of("C:\\a.mp3");
    EXPECT_THROW(record.set_chemin("C:\\日本.mp3"), Failure);
    EXPECT_EQ(record.trimmed_chemin(), "C:\\a.mp3");
}

TEST_F(ListFile, RefusesRecordNumberZero) {
    machine.disk.put_file(list, bytes_of(record_of("a")));
    enreg_liste record;
    EXPECT_THROW((ListReader{machine.disk, list}.read(0, record)), Failure);
}

TEST_F(ListFile, LeavesTheRecordAloneWhenItReadsBehindTheEnd) {
    machine.disk.put_file(list, bytes_of(record_of("a")));
    enreg_liste record = record_of("avant");
    EXPECT_THROW((ListReader{machine.disk, list}.read(2, record)), Failure);
    EXPECT_EQ(record.trimmed_chemin(), "avant");
}

TEST_F(ListFile, ReplacesOneRecordAndKeepsTheRest) {
    machine.disk.put_file(list, bytes_of({record_of("a"), record_of("b"), record_of("c")}) + "reste");
    replace_record(machine.disk, list, 2, record_of("b", "30.00"));
    EXPECT_EQ(machine.disk.bytes(list), bytes_of({record_of("a"), record_of("b", "30.00"), record_of("c")}) + "reste");
}

TEST_F(ListFile, AddsARecordBehindTheLastOne) {
    machine.disk.put_file(list, bytes_of(record_of("a")));
    replace_record(machine.disk, list, 2, record_of("b"));
    EXPECT_EQ(machine.disk.bytes(list), bytes_of({record_of("a"), record_of("b")}));
}

TEST_F(ListFile, RefusesToReplaceARecordFarBehindTheEnd) {
    machine.disk.put_file(list, bytes_of(record_of("a")));
    EXPECT_THROW(replace_record(machine.disk, list, 3, record_of("b")), Failure);
}

TEST_F(ListFile, IsNeverWrittenInTheOldForm) {
    const std::string old_list(2 * enreg_rfm::size, 'x');
    machine.disk.put_file("C:\\Listes\\vieux.RFM", old_list);
    EXPECT_THROW(replace_record(machine.disk, "C:\\Listes\\vieux.RFM", 1, record_of("neuf")), Failure);
    EXPECT_EQ(machine.disk.bytes("C:\\Listes\\vieux.RFM"), old_list);
}

TEST_F(ListFile, StandsAsItWasWhenTheDiskFillsWhileARecordIsReplaced) {
    const std::string before = bytes_of({record_of("a"), record_of("b")});
    for (std::int64_t room = 0; room < 2 * 418; ++room) {
        machine.disk.put_file(list, before);
        machine.disk.set_capacity(machine.disk.used() + room);
        EXPECT_THROW(replace_record(machine.disk, list, 1, record_of("neuf")), Failure) << room;
        ASSERT_EQ(machine.disk.bytes(list), before) << room;
        machine.disk.set_capacity(1 << 20);
    }
}

} // namespace sonarelle
