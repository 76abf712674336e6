// All that is written in the two great windows can be read in every theme.
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QRadioButton>

#include "desktop/station_views.h"

namespace sonarelle {

namespace {

/// Strokes of small texts are thinner than a pixel, so the ink that is seen is fainter than the one that is chosen.
constexpr double as_seen = 3.8;

class Themes : public StationViews, public testing::WithParamInterface<Theme> {
protected:
    Themes() {
        station.main_window.click(); // its labels stand for the menu bar
        for (Window* shown : std::initializer_list<Window*>{&station.main_window, &station.list_window})
            for (Control* control : shown->controls())
                if (control->kind() == ControlKind::label && static_cast<Label&>(*control).caption.get().empty())
                    static_cast<Label&>(*control).caption = "Texte";
        show_windows();
        wear(GetParam());
    }
    /// Every widget of a kind whose text can be seen has an ink that reads.
    template <typename Kind>
    void expect_readable(QWidget& view) {
        const QImage picture = seen(view);
        for (Kind* part : parts_of<Kind>(view)) {
            const QImage shown = picture.copy(QRect{part->mapTo(&view, QPoint{}), part->size()});
            const bool has_text = ink_in(shown) != ground_in(shown);
            const bool is_told = part->isVisible() && part->isEnabled() && has_text;
            EXPECT_TRUE(!is_told || contrast_in(shown) >= as_seen)
                << part->objectName().toStdString() << " " << ink_in(shown).name().toStdString() << " on "
                << ground_in(shown).name().toStdString();
        }
    }
    template <typename... Kinds>
    void expect_all_readable(QWidget& view) {
        (expect_readable<Kinds>(view), ...);
    }
};

} // namespace

TEST_P(Themes, MainWindowReads) {
    expect_all_readable<StationLabel, QCheckBox, QRadioButton, QLineEdit, QComboBox, StudioButton>(main_view());
}

TEST_P(Themes, ListWindowReads) {
    expect_all_readable<StationLabel, QCheckBox, QRadioButton, QLineEdit, QComboBox, StudioButton>(list_view());
}

TEST_P(Themes, LabelReadsUnderThePointer) {
    auto& label = part<StationLabel>(main_view(), "Label15");
    point_at(label);
    settle();
    EXPECT_GE(contrast_in(seen_in_window(label)), as_seen);
}

TEST_P(Themes, LabelThatThePointerLeavesIsAsBefore) {
    auto& label = part<StationLabel>(main_view(), "Label15");
    const QImage rest = seen_in_window(label);
    point_at(label);
    settle();
    EXPECT_NE(seen_in_window(label), rest);
    leave(label);
    settle();
    EXPECT_EQ(seen_in_window(label), rest);
    EXPECT_EQ(station.main_window.display_label.fore_colour.get(), GetParam().label);
}

TEST_P(Themes, RowsRead) {
    rows_of_three();
    for (int row = 0; row < 3; ++row) {
        auto& table = part<RowTableView>(list_view(), "ListView1");
        const QRect cell = table.visualRect(table.model()->index(row, 0));
        EXPECT_GE(contrast_in(seen(*table.viewport()).copy(cell)), as_seen) << row;
    }
}

INSTANTIATE_TEST_SUITE_P(Every, Themes, testing::ValuesIn(themes),
                         [](const auto& theme) { return std::to_string(theme.index); });

TEST_F(StationViews, CardsAreDarkUnlessTheToldInkIs) {
    show_windows();
    for (const Theme& theme : themes) {
        wear(theme);
        const bool reads = contrast(to_qt(theme.label, studio::text), studio::card) >= readable;
        for (const Panel* card : parts_of<Panel>(main_view()))
            if (card->accent() == Accent::none) {
                EXPECT_EQ(card->palette().color(QPalette::Window), reads ? studio::card : studio::tip) << theme.name;
            }
    }
}

TEST_F(StationViews, ToldGroundThatCarriesTheToldInkIsTheWindows) {
    show_windows();
    wear({"clair", 0, 0, 0x400000, 0xFFFFFF, 0xC0FFFF, 0xC0FFFF});
    EXPECT_EQ(seen(main_view()).pixelColor(3, main_view().height() / 2), QColor(0xff, 0xff, 0xc0));
    EXPECT_GE(contrast_in(seen_in_window(part<QRadioButton>(list_view(), "Option1"))), readable);
}

} // namespace sonarelle
