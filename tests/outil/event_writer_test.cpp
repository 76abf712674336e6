#include "app/outil/event_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sonarelle::test {

using testing::ElementsAre;

namespace {

/// Somebody who reads, or doesn't.
struct Reader {
    std::vector<std::string> lines;
    bool reads = true;
    EventWriter events{[this](std::string line) {
        if (reads)
            lines.push_back(std::move(line));
        return reads;
    }};
};

} // namespace

TEST(EventWriter, TellsHowManyLinesWereLostBeforeTheNextThatIsRead) {
    Reader reader;
    reader.reads = false;
    reader.events.write_end_of_file(seconds(1), 1);
    reader.events.write_end_of_file(seconds(2), 2);
    reader.reads = true;
    reader.events.write_end_of_file(seconds(3), 3);
    reader.events.write_end_of_file(seconds(4), 1);

    EXPECT_THAT(reader.lines, ElementsAre("{\"t\":3.000,\"evenement\":\"avertissement\",\"texte\":\"2 lignes perdues : "
                                          "personne ne lisait\"}\n",
                                          "{\"t\":3.000,\"evenement\":\"fin_fichier\",\"lecteur\":3}\n",
                                          "{\"t\":4.000,\"evenement\":\"fin_fichier\",\"lecteur\":1}\n"));
}

TEST(EventWriter, EscapesControlCharactersThatATerminalObeys) {
    Reader reader;
    reader.events.write_warning(seconds(0), "a\u009Db\u007F\u001Bc");

    EXPECT_THAT(reader.lines, ElementsAre("{\"t\":0.000,\"evenement\":\"avertissement\",\"texte\":\"a\\u009db\\u007f\\"
                                          "u001bc\"}\n"));
}

} // namespace sonarelle::test
