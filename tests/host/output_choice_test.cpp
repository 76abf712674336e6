#include <gtest/gtest.h>

#include "platform/failure.h"
#include "platform/host/output_choice.h"
#include "support/child_process.h"
#include "support/private_folder.h"

namespace sonarelle::test {

class OutputChoice : public testing::Test {
protected:
    PrivateFolder folder;
    std::string file = folder.path("config/sortie.json");
};

TEST_F(OutputChoice, IsTheDefaultOutputWithoutAFile) {
    EXPECT_EQ(load_output_choice(file), "");
    EXPECT_FALSE(folder.exists("config")) << "looking leaves nothing behind";
}

TEST_F(OutputChoice, IsKept) {
    for (const char* name : {"Carte \"1\" du studio, été", ""}) {
        save_output_choice(file, name);
        EXPECT_EQ(load_output_choice(file), name);
    }
}

TEST_F(OutputChoice, CanBeReadByHand) {
    save_output_choice(file, "Régie");
    EXPECT_EQ(folder.bytes("config/sortie.json"), "{\n    \"sortie\": \"Régie\"\n}\n");
}

TEST_F(OutputChoice, IsTheDefaultOutputWhenTheFileIsDamaged) {
    for (const char* text : {"", "Carte", "[]", "{}", R"({"sortie": 6})", R"({"sortie": "Car)"}) {
        folder.put("config/sortie.json", text);
        EXPECT_EQ(load_output_choice(file), "") << text;
        EXPECT_EQ(folder.bytes("config/sortie.json"), text);
    }
}

TEST_F(OutputChoice, IsTheDefaultOutputWhenTheFileCantBeRead) {
    folder.put_folder("config/sortie.json");
    EXPECT_EQ(load_output_choice(file), "");
}

TEST_F(OutputChoice, DamagedFileIsSetAsideByTheNextChoice) {
    folder.put("config/sortie.json", "Carte");
    save_output_choice(file, "Régie");
    EXPECT_EQ(folder.bytes("config/sortie.json.abime"), "Carte");
    EXPECT_EQ(load_output_choice(file), "Régie");
}

TEST_F(OutputChoice, AWholeFileIsNotSetAside) {
    save_output_choice(file, "Carte");
    save_output_choice(file, "Régie");
    EXPECT_FALSE(folder.exists("config/sortie.json.abime"));
}

TEST_F(OutputChoice, ANameThatIsNoUtf8ChangesNothing) {
    save_output_choice(file, "Carte");
    EXPECT_EQ(failure_of([&] { save_output_choice(file, "R\xE9gie"); }), FailureNumber::wrong_call);
    EXPECT_EQ(load_output_choice(file), "Carte");
}

} // namespace sonarelle::test
