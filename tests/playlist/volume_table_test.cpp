#include "playlist/volume_table.h"

#include <gtest/gtest.h>

#include <set>

#include "playlist/working_records.h"

namespace sonarelle {

TEST(VolumeTable, HasEveryFifthPercentButFive) {
    std::set<int> percents;
    for (int percent = -40000; percent <= 40000; ++percent)
        if (attenuation_of_percent(percent))
            percents.insert(percent);
    std::set<int> expected{0};
    for (int percent = 10; percent <= 100; percent += 5)
        expected.insert(percent);
    EXPECT_EQ(percents, expected);
}

TEST(VolumeTable, FallsByTwoDecibelsAStepButForTheGapBelowFifteen) {
    for (int percent = 15; percent <= 100; percent += 5)
        EXPECT_EQ(attenuation_of_percent(percent), (percent - 100) * 40) << percent;
    EXPECT_EQ(attenuation_of_percent(10), -3800);
    EXPECT_EQ(attenuation_of_percent(0), -4000);
}

TEST(VolumeTable, TurnsEveryAttenuationBack) {
    for (int percent = 0; percent <= 100; ++percent) {
        if (const auto attenuation = attenuation_of_percent(percent)) {
            EXPECT_EQ(percent_of_attenuation(*attenuation), percent);
        }
    }
}

TEST(VolumeTable, HasNoRowForMinus3600) {
    EXPECT_EQ(percent_of_attenuation(-3600), std::nullopt);
}

TEST(DestinationRecord, KeepsVolumeFiveAsItIs) {
    DestinationRecord record;
    record.dest_volume = 5;
    record.convertir_valeur_son();
    EXPECT_EQ(record.dest_volume, 5);
}

TEST(DestinationRecord, PassesMinus3600UnchangedToPercent) {
    DestinationRecord record;
    record.dest_volume = -3600;
    record.convertir_valeur_son_ecriture();
    EXPECT_EQ(record.dest_volume, -3600);
}

TEST(DestinationRecord, PassesMinus3600UnchangedToAttenuation) {
    DestinationRecord record;
    record.dest_volume = -3600;
    record.convertir_valeur_son();
    EXPECT_EQ(record.dest_volume, -3600);
}

TEST(DraggedRecord, TurnsItsPercentIntoAnAttenuation) {
    DraggedRecord record;
    record.drop_volume = 80;
    record.convertir_valeur_son_drop();
    EXPECT_EQ(record.drop_volume, -800);
}

} // namespace sonarelle
