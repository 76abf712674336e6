// The banner: movies, pictures, and what stands in for a movie that can't be shown. And frames.
#include <QMovie>
#include <QTemporaryDir>
#include <QTest>

#include "desktop/button_bindings.h"
#include "desktop/desktop_fixture.h"
#include "desktop/pixels.h"
#include "desktop/qt_text.h"

namespace sonarelle {

namespace {

constexpr int frame_time = 4; // hundredths of a second

/// A GIF of one pixel that is red and then blue, or of one colour.
QByteArray gif(const QColor& colour, bool moves) {
    const auto byte = [](int value) { return static_cast<char>(value); };
    QByteArray bytes{"GIF89a\x01\x00\x01\x00\x80\x00\x00", 13};
    for (const QColor& entry : {colour, QColor{Qt::blue}})
        bytes.append(byte(entry.red())).append(byte(entry.green())).append(byte(entry.blue()));
    for (const int pixel : {0, 1}) {
        if (pixel == 1 && !moves)
            break;
        bytes.append("\x21\xF9\x04\x00", 4).append(byte(frame_time)).append("\x00\x00\x00", 3);
        bytes.append("\x2C\x00\x00\x00\x00\x01\x00\x01\x00\x00\x02\x02", 12);
        bytes.append(byte(pixel == 0 ? 0x44 : 0x4C)).append("\x01\x00", 2);
    }
    return bytes.append(';');
}

class Banner : public DesktopFixture {
protected:
    Banner() {
        label.resize(40, 10);
        label.setScaledContents(true);
    }
    void put(const char* name, const QByteArray& bytes) {
        QFile file{folder_.filePath(name)};
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    void show(const std::string& name) {
        movie.movie = name;
        settle();
    }
    [[nodiscard]] QColor colour() { return seen(label).pixelColor(20, 5); }
    [[nodiscard]] bool plays() const { return label.movie() != nullptr && label.movie()->state() == QMovie::Running; }

    QTemporaryDir folder_;
    PictureStore found{[this](const std::string& name) { return from_qt(folder_.filePath(to_qt(name))); }};
    DesktopServices of_banner{services.run_event, updates, found};
    Movie movie{window, "banner"};
    QWidget hidden;
    QLabel label{&hidden};
    MovieBinding binding{movie, label, of_banner};
};

using FrameBindings = DesktopFixture;

} // namespace

TEST_F(Banner, MovieStandsUntilItIsPlayed) {
    put("film.gif", gif(Qt::red, true));
    show("film.gif");
    ASSERT_NE(label.movie(), nullptr);
    EXPECT_FALSE(plays());
    EXPECT_EQ(colour(), QColor(Qt::red));
    movie.Play();
    settle();
    EXPECT_TRUE(plays());
}

TEST_F(Banner, MovieIsSeenToMove) {
    put("film.gif", gif(Qt::red, true));
    movie.loop = true;
    movie.Play();
    show("film.gif");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::blue); }));
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::red); }));
}

TEST_F(Banner, MovieThatLoopsBeginsAnew) {
    put("film.gif", gif(Qt::red, true));
    movie.loop = true;
    movie.Play();
    show("film.gif");
    int ends = 0;
    QObject::connect(label.movie(), &QMovie::finished, [&] { ++ends; });
    EXPECT_TRUE(becomes([&] { return ends >= 3; }));
}

TEST_F(Banner, MovieThatDoesntLoopEnds) {
    put("film.gif", gif(Qt::red, true));
    movie.Play();
    show("film.gif");
    EXPECT_TRUE(becomes([&] { return !plays(); }));
    QTest::qWait(10 * 10 * frame_time);
    EXPECT_FALSE(plays());
}

TEST_F(Banner, MovieIsStopped) {
    put("film.gif", gif(Qt::red, true));
    movie.loop = true;
    movie.Play();
    show("film.gif");
    movie.playing = false;
    settle();
    EXPECT_FALSE(plays());
}

TEST_F(Banner, PictureIsShownAsItIs) {
    QPixmap picture{40, 10};
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(folder_.filePath("image.png")));
    show("image.png");
    EXPECT_EQ(colour(), QColor(Qt::green));
    EXPECT_EQ(label.movie(), nullptr);
}

TEST_F(Banner, MovieThatCantBeShownGivesWayToThePictureBesideIt) {
    put("station.swf", "FWS");
    put("station.gif", gif(Qt::green, false));
    put("bandeau.gif", gif(Qt::red, false));
    movie.Play();
    show("station.swf");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::green); }));
}

TEST_F(Banner, MissingMovieGivesWayToThePictureBesideIt) {
    put("station.gif", gif(Qt::green, false));
    movie.Play();
    show("station.swf");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::green); }));
}

TEST_F(Banner, MovieWithoutAPictureGivesWayToTheProgramsOwn) {
    put("station.swf", "FWS");
    put("bandeau.gif", gif(Qt::red, false));
    movie.Play();
    show("station.swf");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::red); }));
}

TEST_F(Banner, AnotherMovieTakesThePlace) {
    put("un.gif", gif(Qt::red, false));
    put("deux.gif", gif(Qt::green, false));
    movie.Play();
    show("un.gif");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::red); }));
    show("deux.gif");
    EXPECT_TRUE(becomes([&] { return colour() == QColor(Qt::green); }));
}

TEST_F(Banner, PictureTakesThePlaceOfAMovie) {
    put("film.gif", gif(Qt::red, true));
    QPixmap picture{40, 10};
    picture.fill(Qt::green);
    ASSERT_TRUE(picture.save(folder_.filePath("image.png")));
    movie.Play();
    show("film.gif");
    show("image.png");
    EXPECT_EQ(colour(), QColor(Qt::green));
    EXPECT_FALSE(plays());
}

TEST_F(FrameBindings, CaptionIsTheTitleWithoutItsAccessMark) {
    Frame frame{window, "cadre", "&Niveau"};
    QGroupBox box;
    const FrameBinding binding{frame, box, services};
    settle();
    EXPECT_EQ(box.title(), "Niveau");
    frame.caption = "Effet";
    settle();
    EXPECT_EQ(box.title(), "Effet");
    EXPECT_EQ(box.accessibleName(), "Effet");
}

} // namespace sonarelle
