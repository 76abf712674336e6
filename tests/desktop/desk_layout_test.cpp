// The main window at the sizes of the screens that it meets: nothing clipped, nothing covered, whatever is shown.
#include <random>

#include "desktop/layout_check.h"
#include "desktop/station_views.h"

namespace sonarelle {

namespace {

constexpr QSize sizes[]{{1000, 459}, {1024, 576}, {1199, 459}, {1200, 459}, {1280, 459}, {1280, 479},
                        {1366, 459}, {1600, 639}, {1600, 640}, {1920, 672}, {2560, 1300}};

constexpr const char* names[]{"Été", "Carnet de voyage",
                              "Concerto pour deux violons en ré mineur, second mouvement, largo",
                              "Donaudampfschifffahrtsgesellschaftskapitänsmützenabzeichen", ""};

std::string told(QSize size) {
    return std::to_string(size.width()) + "x" + std::to_string(size.height());
}

class DeskLayout : public StationViews {
protected:
    DeskLayout() { show_windows(); }

    void give_size(QSize size) {
        main_view().resize(size);
        settle();
    }

    /// A number from 0 to below `end`.
    int draw(int end) { return std::uniform_int_distribution{0, end - 1}(dice_); }
    bool toss() { return draw(2) == 1; }

    void show_any_deck(int number) {
        DeckControls& deck = station.main_window.deck(number);
        constexpr int lengths[]{0, 3, 75, 3599, 32400};
        const int length = lengths[draw(5)];
        deck.progress.maximum = length;
        deck.progress.value = length == 0 ? 0 : draw(length);
        deck.counter.caption = std::to_string(length);
        deck.percent.caption = std::to_string(draw(101)) + "%";
        deck.title.caption = toss() ? "(Aucun fichier en cours)" : " - En attente";
        for (Button* button : std::initializer_list<Button*>{&deck.open, &deck.play, &deck.stop, &deck.pause, &deck.zap,
                                                             &deck.special_mix, &deck.keep_volume})
            button->enabled = toss();
        DeckLook look;
        look.role = static_cast<DeckRole>(draw(6));
        look.is_next = toss();
        look.is_unheard = toss();
        look.is_refused = draw(8) == 0;
        look.file = names[draw(5)];
        look.kind = toss() ? "MP3" : "FLAC";
        look.genre = std::array{"", "Jazz", "Folk, World & Country"}.at(static_cast<std::size_t>(draw(3)));
        look.end_point = length;
        look.mix_point = length - 6.0;
        main_view().show_look(number, look);
    }

    void show_any_air() {
        AirLook look;
        look.role = static_cast<DeckRole>(draw(6));
        look.deck = 1 + draw(3);
        look.title = names[draw(5)];
        look.left = toss() ? "09:00:00" : "00:00:12";
        if (toss())
            look.to_mix = draw(32400);
        look.next = "Ensuite : " + QString{names[draw(5)]} + " (00:00:03)";
        look.then = toss() ? names[draw(5)] : "";
        look.notice = draw(4) == 0 ? "ENCHAÎNEMENT STOPPÉ" : "";
        look.silence = draw(4) == 0 ? "99:59" : "";
        look.silent_since = "10:53:50";
        look.lost_for = draw(4) == 0 ? "12:08" : "";
        look.station = "Radio du Port des Brumes  ·  journal désactivé";
        main_view().show_air(look);
        const bool lost = !look.lost_for.isEmpty();
        main_view().show_output(lost ? "sortie : aucune carte son, cadence de l'horloge" : "sortie : la carte son joue",
                                lost);
    }

    /// Idle, on the air, in an overlap, in alarm, with all that lies between.
    void show_any_state() {
        for (int number = 1; number <= 3; ++number)
            show_any_deck(number);
        show_any_air();
        Antenne_FM& main = station.main_window;
        main.show_sliders(toss());
        main.sound_display.visible = toss();
        main.mix_titles.caption = toss() ? "Mixer les titres" : "Mix Manuel";
        (toss() ? main.mix_titles : main.mix_list).show_value(true);
        main.running_chain.caption = toss() ? "Mix liste : Play 1" : "Chargement rapide";
        main.chain_status.caption = toss() ? "Play 1 : liste mix a 32394" : "Lecture en attente";
        settle();
    }

private:
    std::mt19937 dice_{20261122};
};

} // namespace

TEST_F(DeskLayout, HoldsAtEachSize) {
    for (const QSize size : sizes) {
        give_size(size);
        ASSERT_EQ(main_view().size(), size);
        expect_laid_out(main_view(), told(size));
    }
}

TEST_F(DeskLayout, HoldsWithTheLabelsInThePlaceOfTheMenus) {
    station.main_window.click();
    for (const QSize size : sizes) {
        give_size(size);
        expect_laid_out(main_view(), told(size));
    }
}

TEST_F(DeskLayout, HoldsInEachTheme) {
    for (const Theme& theme : themes) {
        wear(theme);
        for (const QSize size : {QSize{1000, 459}, QSize{1920, 672}}) {
            give_size(size);
            expect_laid_out(main_view(), theme.name + told(size));
        }
    }
}

TEST_F(DeskLayout, HoldsInTwoHundredStates) {
    for (int state = 0; state < 200; ++state) {
        give_size(sizes[static_cast<std::size_t>(state) % std::size(sizes)]);
        show_any_state();
        expect_laid_out(main_view(), "state " + std::to_string(state) + " " + told(main_view().size()));
        if (HasFailure())
            return;
    }
}

TEST_F(DeskLayout, GrowsByItsWaveformsWithinAStep) {
    give_size({1280, 459});
    QWidget& wave = part(main_view(), station.main_window.deck(1).progress.name());
    QWidget& stop = part(main_view(), station.main_window.deck(1).stop.name());
    const int low = wave.height();
    const QSize button = stop.size();
    give_size({1280, 559});
    EXPECT_EQ(wave.height(), low + 100);
    EXPECT_EQ(stop.size(), button);
}

TEST_F(DeskLayout, MenuBarAndItsLabelsDifferByTheWaveformAlone) {
    give_size({1280, 479});
    QWidget& stop = part(main_view(), station.main_window.deck(1).stop.name());
    QWidget& header = part(main_view(), "air_header");
    const QRect with_bar = place_in(header, main_view());
    const QRect button = place_in(stop, main_view());
    station.main_window.click();
    settle();
    EXPECT_EQ(main_view().height(), 459);
    EXPECT_EQ(place_in(header, main_view()), with_bar);
    EXPECT_EQ(place_in(stop, main_view()), button.translated(0, -20));
}

TEST_F(DeskLayout, RemainingTimeIsTheLargestThing) {
    for (const QSize size : {QSize{1000, 459}, QSize{1280, 459}, QSize{1920, 672}}) {
        give_size(size);
        const int largest = part(main_view(), "remaining").font().pixelSize();
        for (const QWidget* each : parts_on_view(main_view()))
            EXPECT_TRUE(each->font().pixelSize() < largest || each->objectName() == "remaining") << name_of(*each);
    }
}

TEST_F(DeskLayout, ReadsFromFartherInALargeWindow) {
    give_size({1280, 479});
    const int compact = part(main_view(), "remaining").font().pixelSize();
    give_size({1920, 672});
    EXPECT_EQ(part(main_view(), "remaining").font().pixelSize(), 2 * compact);
}

TEST_F(DeskLayout, BannerIsTheFirstToGoAndTheEffectLeavesItsPlaceToTheLevel) {
    QWidget& banner = part(main_view(), station.main_window.banner.name());
    give_size({1920, 672});
    EXPECT_TRUE(banner.isVisible());
    give_size({1280, 479});
    EXPECT_FALSE(banner.isVisible());
    QWidget& meter = *parts_of<LevelMeter>(main_view()).front();
    station.main_window.sound_display.visible = true;
    settle();
    const int beside = meter.width();
    station.main_window.sound_display.visible = false;
    settle();
    EXPECT_GT(meter.width(), 2 * beside);
}

} // namespace sonarelle
