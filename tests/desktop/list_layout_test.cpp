// How the list window lies: its strips, its columns, its step, at each size and in each theme.
#include "desktop/card_strip.h"
#include "desktop/list_window_fixture.h"
#include "desktop/text_size.h"

namespace sonarelle {

namespace {

constexpr QSize sizes[]{{1000, 230}, {1000, 293}, {1199, 293}, {1200, 293}, {1280, 293},
                        {1366, 261}, {1599, 400}, {1600, 360}, {1920, 360}, {1920, 1000}};

class LayoutOfTheList : public ListWindow {
protected:
    LayoutOfTheList() {
        rows_of_three();
        list().list_status.caption = "En cours index N° : (13)";
        list().progress.caption = "( 163 / 169 )";
        list().file_in_use.caption = "Dans fichier M:\\demonstration.dfm";
        list().jingles_status.caption = "Jingle On ( 2 )";
        list().items_status.caption = "Liste Off";
        list().full_length_mode.show_value(true);
        list().zap.enabled = true;
        list_view().show_air({.title = "Carnet de voyage", .left = "00:00:12", .clock = "10:54:02"});
        main_view().resize(1920, 700); // a large desk, so that the width alone decides
        list_view().follow_step(Step::large);
        settle();
    }
    void take(QSize size) {
        list_view().resize(size);
        settle();
    }
    [[nodiscard]] QRect place(const QWidget& part) { return {part.mapTo(&list_view(), QPoint{}), part.size()}; }
    /// What is read or pressed, each with a name.
    [[nodiscard]] std::vector<QWidget*> leaves() {
        std::vector<QWidget*> found;
        for (QWidget* part : list_view().content().findChildren<QWidget*>()) {
            const bool is_leaf = dynamic_cast<StationLabel*>(part) != nullptr ||
                                 qobject_cast<QAbstractButton*>(part) != nullptr || part == &table();
            if (is_leaf && part->isVisible() && !part->size().isEmpty())
                found.push_back(part);
        }
        return found;
    }
    void expect_no_overlap() {
        const auto parts = leaves();
        EXPECT_GT(parts.size(), 15U);
        for (std::size_t first = 0; first < parts.size(); ++first) {
            EXPECT_TRUE(list_view().rect().contains(place(*parts[first]))) << parts[first]->objectName().toStdString();
            for (std::size_t second = first + 1; second < parts.size(); ++second)
                EXPECT_FALSE(place(*parts[first]).intersects(place(*parts[second])))
                    << parts[first]->objectName().toStdString() << " " << parts[second]->objectName().toStdString();
        }
    }
    /// Only a name of a file may end in dots.
    void expect_whole_texts() {
        for (QWidget* part : leaves()) {
            const QString name = part->objectName();
            int needed = 0;
            if (const auto* text = dynamic_cast<const StationLabel*>(part); text != nullptr && name != "Label25")
                needed = text->width_of_text();
            else if (qobject_cast<const QAbstractButton*>(part) != nullptr && name != "Image10")
                needed = part->sizeHint().width();
            EXPECT_GE(part->width(), needed) << name.toStdString();
        }
    }
    [[nodiscard]] RowHeader& head() { return dynamic_cast<RowHeader&>(*table().horizontalHeader()); }
    void expect_whole_headings() {
        const QFontMetrics metrics{head().font()};
        for (int column = 0; column < head().count(); ++column)
            EXPECT_GE(head().sectionSize(column), metrics.horizontalAdvance(head().heading(column)) + 2 * studio::grid)
                << head().heading(column).toStdString();
    }
    [[nodiscard]] std::vector<int> strips() {
        std::vector<int> heights;
        for (const CardStrip* strip : parts_of<CardStrip>(list_view()))
            heights.push_back(strip->height());
        return heights;
    }
};

} // namespace

TEST_F(LayoutOfTheList, HasTheHeightsOfItsStep) {
    take({1280, 293});
    EXPECT_EQ(strips(), (std::vector{44, 40, 44}));
    EXPECT_EQ(table().height(), 165);
    EXPECT_EQ(table().rowHeight(0), 27);
    take({1920, 360});
    EXPECT_EQ(strips(), (std::vector{48, 44, 48}));
    EXPECT_EQ(table().height(), 220);
    EXPECT_EQ(table().rowHeight(0), 31);
}

TEST_F(LayoutOfTheList, LiesFromEdgeToEdge) {
    take({1280, 293});
    EXPECT_EQ(place(table()), QRect(0, 84, 1280, 165));
}

TEST_F(LayoutOfTheList, GivesItsHeightToTheRows) {
    take({1280, 293});
    const int docked = table().height();
    take({1280, 700});
    EXPECT_EQ(table().height(), docked + 700 - 293);
}

TEST_F(LayoutOfTheList, CanBeSmall) {
    EXPECT_EQ(list_view().minimumSize(), QSize(1000, scaled(230)));
    EXPECT_LE(list_view().minimumSizeHint().width(), 1000);
    EXPECT_LE(list_view().minimumSizeHint().height(), scaled(230));
}

TEST_F(LayoutOfTheList, HasNothingOverAnotherOrBeyondItsEdgesAtAnySize) {
    for (const QSize size : sizes) {
        SCOPED_TRACE(size.width());
        take(size);
        expect_no_overlap();
    }
}

TEST_F(LayoutOfTheList, CutsNoTextAtAnySize) {
    for (const QSize size : sizes) {
        SCOPED_TRACE(size.width());
        take(size);
        expect_whole_texts();
        expect_whole_headings();
    }
}

TEST_F(LayoutOfTheList, GivesItsWidthToThePaths) {
    for (const QSize size : sizes) {
        take(size);
        int others = 0;
        for (int column = 1; column < head().count(); ++column)
            others += head().sectionSize(column);
        EXPECT_EQ(head().sectionSize(0) + others, table().viewport()->width()) << size.width();
        EXPECT_GE(head().sectionSize(0), 360) << size.width();
    }
}

TEST_F(LayoutOfTheList, RemainingTimeStandsInTheMiddle) {
    for (const QSize size : sizes) {
        take(size);
        EXPECT_NEAR(place(label(list().remaining)).center().x(), size.width() / 2, 8) << size.width();
    }
}

TEST_F(LayoutOfTheList, FiguresStandToTheRightAndWordsToTheLeft) {
    take({1280, 293});
    const auto room = [this](int column) {
        const QImage shown = seen(*table().viewport()).copy(table().visualRect(cell(1, column)));
        const QColor ground = ground_in(shown);
        int first = shown.width();
        int last = 0;
        for (int x = 0; x < shown.width(); ++x)
            for (int y = 4; y < shown.height() - 4; ++y)
                if (contrast(shown.pixelColor(x, y), ground) > 2) {
                    first = std::min(first, x);
                    last = std::max(last, x);
                }
        return std::pair{first, shown.width() - last};
    };
    for (const int column : {1, 2, 4, 5})
        EXPECT_LE(room(column).second, 12) << column;
    for (const int column : {0, 3})
        EXPECT_LE(room(column).first, 12) << column;
}

TEST_F(LayoutOfTheList, NarrowOneSaysLess) {
    take({1280, 293});
    EXPECT_EQ(head().heading(1), "Début lecture a : (Secondes)");
    take({1000, 293});
    EXPECT_EQ(head().heading(1), "Début (s)");
    EXPECT_EQ(table().model()->headerData(1, Qt::Horizontal, Qt::ToolTipRole), "Début lecture a : (Secondes)");
}

TEST_F(LayoutOfTheList, IsLargeByItsWidthWhileItKnowsNoDesk) {
    desktop.reset();
    desktop.emplace(std::vector<Window*>{&station.list_window}, station.desk, services, SoundReading{});
    settle(); // it comes with the size that the station has for it
    take({1599, 360});
    EXPECT_EQ(table().rowHeight(0), 27);
    take({1600, 360});
    EXPECT_EQ(table().rowHeight(0), 31);
}

TEST_F(LayoutOfTheList, HasTheDesksStep) {
    take({1920, 360});
    list_view().follow_step(Step::compact);
    EXPECT_EQ(table().rowHeight(0), 27);
    list_view().follow_step(Step::large);
    EXPECT_EQ(table().rowHeight(0), 31);
    take({1280, 293}); // too narrow for it
    EXPECT_EQ(table().rowHeight(0), 27);
}

TEST_F(LayoutOfTheList, IsReadFromAsFarAsTheDesk) {
    take({1920, 360});
    main_view().resize(1920, 600);
    EXPECT_TRUE(becomes([this] { return table().rowHeight(0) == 27; }));
    main_view().resize(1920, 700);
    EXPECT_TRUE(becomes([this] { return table().rowHeight(0) == 31; }));
}

TEST_F(LayoutOfTheList, HasRoomForEverythingThatItMaySay) {
    list().file_in_use.caption = "Dans fichier liste.dfm (matin.dfm : modifications non enregistrées)";
    for (const QSize size : sizes) {
        SCOPED_TRACE(size.width());
        take(size);
        const QRect chip = place(*parts_of<Chip>(list_view()).front());
        EXPECT_GT(chip.left(), place(label(list().remaining)).right());
        EXPECT_LT(chip.right(), place(label(list().zap_status)).left());
        expect_whole_texts();
    }
}

TEST_F(LayoutOfTheList, LongStateEndsInDotsAndIsToldWhole) {
    list().file_in_use.caption = "Dans fichier M:\\emissions du soir\\semaine 47\\jazz et musiques du monde.dfm";
    take({1000, 230});
    expect_no_overlap();
    EXPECT_LT(label(list().file_in_use).width(), label(list().file_in_use).width_of_text());
}

TEST_F(LayoutOfTheList, ReadsInEveryThemeAtEverySize) {
    for (const Theme& theme : themes) {
        wear(theme);
        for (const QSize size : {QSize{1000, 230}, QSize{1280, 293}, QSize{1920, 360}}) {
            take(size);
            const QImage picture = seen(list_view());
            for (const QWidget* part : leaves()) {
                const QImage shown = picture.copy(place(*part));
                const bool is_sign = dynamic_cast<const Toggle*>(part) != nullptr || part->width() < 30;
                const bool is_text = part->isEnabled() && !is_sign && part != &table();
                const bool has_text = is_text && ink_in(shown) != ground_in(shown);
                EXPECT_TRUE(!has_text || contrast_in(shown) >= 3.8) // strokes are thinner than a pixel
                    << theme.name << " " << size.width() << " " << part->objectName().toStdString();
            }
            EXPECT_GE(contrast_in(seen(*head().viewport())), 3.8) << theme.name;
        }
    }
}

} // namespace sonarelle
