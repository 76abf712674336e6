// The title of a deck, which the station turns by a character twice a second.
#include "desktop/title_label.h"

#include <QHelpEvent>
#include <QTest>
#include <QToolTip>

#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"

namespace sonarelle {

namespace {

/// What the station makes of a title at each tick.
QString turned(const QString& title) {
    const qsizetype kept = title.size() % 2 == 0 ? title.size() : title.size() - 1;
    return title.right(kept) + title.left(1);
}

class Titles : public DesktopFixture {
protected:
    void show(int width) {
        label.resize(width, 30);
        label.show();
    }
    void turn(int times) {
        for (int i = 0; i < times; ++i)
            label.set_text(turned(label.text()));
    }

    TitleLabel label{{.type = Type::deck_title, .bold = true}};
};

} // namespace

TEST(TurnedTitle, IsTheTitleAsItStood) {
    for (const QString& title : {QString{"Pluie de juin - "}, QString{"Matin - "}, QString{"impair"}, QString{"a"}}) {
        TurnedTitle known;
        EXPECT_FALSE(known.take(title));
        QString text = title;
        for (int i = 0; i < 60; ++i) {
            text = turned(text);
            EXPECT_TRUE(known.take(text)) << text.toStdString();
            EXPECT_EQ(known.still(), title);
        }
    }
}

TEST(TurnedTitle, IsForgottenForAnotherOne) {
    TurnedTitle known;
    static_cast<void>(known.take("Matin - "));
    EXPECT_FALSE(known.take("Soir - "));
    EXPECT_EQ(known.still(), "Soir - ");
    EXPECT_FALSE(known.take(""));
    EXPECT_EQ(known.still(), "");
}

TEST_F(Titles, OneThatFitsStandsStill) {
    show(400);
    label.set_text("Pluie de juin - ");
    const QImage before = seen(label);
    turn(5);
    EXPECT_EQ(seen(label), before);
    EXPECT_FALSE(label.is_turning());
}

TEST_F(Titles, StationsTextIsKeptBesideWhatIsPainted) {
    show(400);
    label.set_text("abc");
    turn(1);
    EXPECT_EQ(label.text(), "bca");
}

TEST_F(Titles, OneThatIsCutTurnsWithTheStation) {
    show(90);
    label.set_text("Un titre bien trop long - ");
    EXPECT_FALSE(label.is_turning());
    const QImage before = seen(label);
    turn(1);
    EXPECT_TRUE(label.is_turning());
    EXPECT_TRUE(becomes([&] { return seen(label) != before; }));
}

TEST_F(Titles, OneThatTurnsGoesOnByPixelsAndComesRoundAgain) {
    show(90);
    label.set_text("Trop long ici - ");
    turn(1);
    const QImage first = seen(label);
    EXPECT_TRUE(becomes([&] { return seen(label) != first; }));
    EXPECT_TRUE(becomes([&] {
        if (!label.is_turning())
            turn(1);
        return seen(label) == first;
    }));
}

TEST_F(Titles, AnotherOneStandsAtItsBeginning) {
    show(90);
    label.set_text("Un titre bien trop long - ");
    turn(3);
    label.set_text("Un autre titre, trop long lui aussi - ");
    EXPECT_FALSE(label.is_turning());
    TitleLabel fresh{{.type = Type::deck_title, .bold = true}};
    fresh.resize(90, 30);
    fresh.set_text("Un autre titre, trop long lui aussi - ");
    EXPECT_EQ(seen(label), seen(fresh));
}

TEST_F(Titles, OneThatTheStationTurnsNoMoreComesToRest) {
    show(90);
    label.set_text("Un titre bien trop long - ");
    const QImage still = seen(label);
    turn(1);
    EXPECT_TRUE(becomes([&] { return !label.is_turning(); }));
    EXPECT_EQ(seen(label), still);
}

TEST_F(Titles, NameOfWhatIsHeardStandsBeforeTheStationsTitle) {
    show(400);
    label.set_text("Jingle la suite - ");
    label.set_file("La rue des tilleuls");
    EXPECT_EQ(label.shown(), "La rue des tilleuls");
    const QImage heard = seen(label);
    turn(3);
    EXPECT_EQ(seen(label), heard);
    label.set_file({});
    EXPECT_EQ(label.shown(), "Jingle la suite");
    EXPECT_NE(seen(label), heard);
}

TEST_F(Titles, OneThatIsCutIsWholeInItsTip) {
    show(90);
    label.set_text("un titre ... - ");
    label.set_file("Un titre bien trop long pour la place qu'il a");
    turn(1);
    QHelpEvent asks{QEvent::ToolTip, {3, 3}, label.mapToGlobal(QPoint{3, 3})};
    QApplication::sendEvent(&label, &asks);
    EXPECT_EQ(QToolTip::text(), "Un titre bien trop long pour la place qu'il a");
    label.set_file("Été");
    label.set_text("00:03:20 ( un titre bien trop long )");
    EXPECT_FALSE(label.is_cut()) << "what stands there is whole";
}

TEST_F(Titles, LongNameOfWhatIsHeardTurnsWithTheStation) {
    show(90);
    label.set_text("Un titre ... - ");
    label.set_file("Un titre bien trop long");
    EXPECT_FALSE(label.is_turning());
    turn(1);
    EXPECT_TRUE(label.is_turning());
}

TEST_F(Titles, AnotherNameOfWhatIsHeardTurnsFromItsBeginning) {
    show(90);
    label.set_text("Un titre ... - ");
    label.set_file("Un titre bien trop long");
    turn(1);
    const QImage before = seen(label);
    ASSERT_TRUE(becomes([&] { return seen(label) != before; }));
    label.set_file("Une chanson bien trop longue");
    turn(1);
    TitleLabel fresh{{.type = Type::deck_title, .bold = true}};
    fresh.resize(90, 30);
    fresh.set_text("Un titre ... - ");
    fresh.set_file("Une chanson bien trop longue");
    fresh.set_text(turned(fresh.text()));
    EXPECT_EQ(seen(label), seen(fresh));
}

} // namespace sonarelle
